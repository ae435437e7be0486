// The scene of a drawing: where each kind of entity lands, how it looks,
// what layers hide, and how the scene follows, picks and snaps.
#include "app/gui/DrawingScene.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbText.h"
#include "tests/app/gui/GuiTestSupport.h"

#include <cmath>

namespace {

using namespace guitest;

std::vector<const ScenePrim*> drawnPrims(const DrawingScene& scene, std::size_t entity)
{
  std::vector<const ScenePrim*> out;
  const SceneEntity& e = scene.entities().at(entity);
  for (std::uint32_t i = e.primFirst; i < e.primFirst + e.primCount; ++i)
    if (!(scene.prims()[i].flags & ScenePrimFlag::kPickOnly))
      out.push_back(&scene.prims()[i]);
  return out;
}

OdDbBlockTableRecordPtr addBlock(OdDbDatabase* db, const char* name, const OdGePoint3d& origin = OdGePoint3d())
{
  OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::createObject();
  addRecord(db->getBlockTableId(), block, name);
  block->setOrigin(origin);
  return block;
}

OdDbBlockReferencePtr addInsert(OdDbBlockTableRecord* into, OdDbObjectId block, const OdGePoint3d& at, double rotation,
                                double scale)
{
  OdDbBlockReferencePtr ref = OdDbBlockReference::createObject();
  ref->setBlockTableRecord(block);
  ref->setPosition(at);
  ref->setRotation(rotation);
  ref->setScaleFactors(OdGeScale3d(scale));
  into->appendOdDbEntity(ref);
  return ref;
}

OdDbHatch::Loop squareLoop(double x0, double y0, double x1, double y1)
{
  OdDbHatch::Loop loop;
  loop.vertices = {OdGePoint2d(x0, y0), OdGePoint2d(x1, y0), OdGePoint2d(x1, y1), OdGePoint2d(x0, y1)};
  loop.bulges.assign(4, 0.0);
  return loop;
}

// --- where each kind lands ---------------------------------------------

struct KindRow
{
  const char* name;
  std::function<void(OdDbDatabase*)> make; // adds the entity last in model space
  QRectF box;                              // where it must land
  friend void PrintTo(const KindRow& r, std::ostream* os) { *os << r.name; }
};

class SceneKinds : public ::testing::TestWithParam<KindRow>
{
};

TEST_P(SceneKinds, entityLandsWhereItBelongs)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  GetParam().make(db.get());
  DrawingScene scene;
  scene.build(db.get());
  ASSERT_FALSE(scene.entities().empty());
  const SceneEntity& e = scene.entities().back();
  ASSERT_TRUE(e.hasBox) << "nothing drawn";
  const QRectF want = GetParam().box;
  const double tol = std::max(0.02, 0.02 * std::max(want.width(), want.height()));
  EXPECT_NEAR(e.box.left(), want.left(), tol);
  EXPECT_NEAR(e.box.right(), want.right(), tol);
  EXPECT_NEAR(e.box.top(), want.top(), tol);
  EXPECT_NEAR(e.box.bottom(), want.bottom(), tol);
}

QRectF box(double x0, double y0, double x1, double y1)
{
  return QRectF(QPointF(x0, y0), QPointF(x1, y1));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, SceneKinds,
    ::testing::Values(
        KindRow{"line", [](OdDbDatabase* db) { addLine(modelSpace(db), 0, 0, 10, 5); }, box(0, 0, 10, 5)},
        KindRow{"circle",
                [](OdDbDatabase* db) {
                  OdDbCirclePtr c = OdDbCircle::createObject();
                  c->setCenter(OdGePoint3d(5, 5, 0));
                  c->setRadius(2);
                  modelSpace(db)->appendOdDbEntity(c);
                },
                box(3, 3, 7, 7)},
        KindRow{"arcQuarter",
                [](OdDbDatabase* db) {
                  OdDbArcPtr a = OdDbArc::createObject();
                  a->setRadius(10);
                  a->setStartAngle(0);
                  a->setEndAngle(M_PI / 2);
                  modelSpace(db)->appendOdDbEntity(a);
                },
                box(0, 0, 10, 10)},
        // Seen from below, the plane's x axis points the other way.
        KindRow{"arcUpsideDown",
                [](OdDbDatabase* db) {
                  OdDbArcPtr a = OdDbArc::createObject();
                  a->setCenter(OdGePoint3d(5, 0, 0));
                  a->setRadius(10);
                  a->setStartAngle(0);
                  a->setEndAngle(M_PI / 2);
                  a->setNormal(OdGeVector3d(0, 0, -1));
                  modelSpace(db)->appendOdDbEntity(a);
                },
                box(-15, 0, -5, 10)},
        KindRow{"ellipse",
                [](OdDbDatabase* db) {
                  OdDbEllipsePtr e = OdDbEllipse::createObject();
                  e->set(OdGePoint3d(0, 0, 0), OdGeVector3d::kZAxis, OdGeVector3d(10, 0, 0), 0.5);
                  modelSpace(db)->appendOdDbEntity(e);
                },
                box(-10, -5, 10, 5)},
        // A bulge of 1 is a half circle, to the right of the way it runs.
        KindRow{"polylineBulge",
                [](OdDbDatabase* db) {
                  OdDbPolylinePtr p = OdDbPolyline::createObject();
                  p->setVertices({{OdGePoint2d(0, 0), 0, 0, 1.0}, {OdGePoint2d(10, 0)}});
                  modelSpace(db)->appendOdDbEntity(p);
                },
                box(0, -5, 10, 0)},
        KindRow{"polylineWide",
                [](OdDbDatabase* db) {
                  OdDbPolylinePtr p = OdDbPolyline::createObject();
                  p->setVertices({{OdGePoint2d(0, 0)}, {OdGePoint2d(10, 0)}});
                  p->setConstantWidth(2);
                  modelSpace(db)->appendOdDbEntity(p);
                },
                box(0, -1, 10, 1)},
        KindRow{"point",
                [](OdDbDatabase* db) {
                  OdDbPointPtr p = OdDbPoint::createObject();
                  p->setPosition(OdGePoint3d(3, 4, 0));
                  modelSpace(db)->appendOdDbEntity(p);
                },
                box(3, 4, 3, 4)},
        KindRow{"solid",
                [](OdDbDatabase* db) {
                  OdDbSolidPtr s = OdDbSolid::createObject();
                  s->setPointAt(0, OdGePoint3d(0, 0, 0));
                  s->setPointAt(1, OdGePoint3d(4, 0, 0));
                  s->setPointAt(2, OdGePoint3d(0, 3, 0));
                  s->setPointAt(3, OdGePoint3d(0, 3, 0));
                  modelSpace(db)->appendOdDbEntity(s);
                },
                box(0, 0, 4, 3)},
        KindRow{"spline",
                [](OdDbDatabase* db) {
                  OdDbSplinePtr s = OdDbSpline::createObject();
                  OdGePoint3dArray cps;
                  cps.append(OdGePoint3d(0, 0, 0));
                  cps.append(OdGePoint3d(5, 10, 0));
                  cps.append(OdGePoint3d(10, 0, 0));
                  OdGeDoubleArray knots;
                  for (double k : {0.0, 0.0, 0.0, 1.0, 1.0, 1.0})
                    knots.append(k);
                  s->setNurbsData(2, false, false, false, cps, knots, OdGeDoubleArray());
                  modelSpace(db)->appendOdDbEntity(s);
                },
                box(0, 0, 10, 5)}, // a quadratic Bezier peaks at half its control point
        KindRow{"insertRotatedScaled",
                [](OdDbDatabase* db) {
                  OdDbBlockTableRecordPtr b = addBlock(db, "B");
                  addLine(b, 0, 0, 1, 0);
                  addInsert(modelSpace(db), b->objectId(), OdGePoint3d(10, 10, 0), M_PI / 2, 2);
                },
                box(10, 10, 10, 12)},
        KindRow{"insertOfABlockWithABasePoint",
                [](OdDbDatabase* db) {
                  OdDbBlockTableRecordPtr b = addBlock(db, "B", OdGePoint3d(1, 0, 0));
                  addLine(b, 1, 0, 2, 0);
                  addInsert(modelSpace(db), b->objectId(), OdGePoint3d(0, 0, 0), 0, 1);
                },
                box(0, 0, 1, 0)},
        KindRow{"nestedInserts",
                [](OdDbDatabase* db) {
                  OdDbBlockTableRecordPtr inner = addBlock(db, "INNER");
                  addLine(inner, 0, 0, 1, 0);
                  OdDbBlockTableRecordPtr outer = addBlock(db, "OUTER");
                  addInsert(outer, inner->objectId(), OdGePoint3d(5, 0, 0), 0, 2);
                  addInsert(modelSpace(db), outer->objectId(), OdGePoint3d(100, 0, 0), 0, 3);
                },
                box(115, 0, 121, 0)},
        KindRow{"hatchSolid",
                [](OdDbDatabase* db) {
                  OdDbHatchPtr h = OdDbHatch::createObject();
                  OdDbHatch::Data d;
                  d.loops.push_back(squareLoop(2, 3, 12, 8));
                  h->setData(d);
                  modelSpace(db)->appendOdDbEntity(h);
                },
                box(2, 3, 12, 8)}));

TEST(SceneText, heightIsTheHeightOfCapitals)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbTextPtr t = OdDbText::createObject();
  t->setPosition(OdGePoint3d(0, 0, 0));
  t->setHeight(10);
  t->setTextString("H");
  modelSpace(db)->appendOdDbEntity(t);
  DrawingScene scene;
  scene.build(db.get());
  const QRectF b = scene.entities().back().box;
  EXPECT_NEAR(b.left(), 0, 0.5);
  EXPECT_GE(b.bottom(), 10.0) << "the capitals fit under the ascent";
  EXPECT_LT(b.bottom(), 15.0);
  EXPECT_LT(b.top(), 0.0) << "descenders go below the baseline";
  EXPECT_GT(b.top(), -5.0);
}

TEST(SceneText, alignedTextRunsBetweenItsPoints)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbTextPtr t = OdDbText::createObject();
  t->setTextString("ALIGNED");
  t->setHeight(2);
  t->setPosition(OdGePoint3d(10, 0, 0));
  t->setAlignmentPoint(OdGePoint3d(10, 50, 0));
  t->setHorizontalMode(3);
  modelSpace(db)->appendOdDbEntity(t);
  DrawingScene scene;
  scene.build(db.get());
  const QRectF b = scene.entities().back().box;
  // It stands upright along the y axis: tall, not wide.
  EXPECT_NEAR(b.bottom() - b.top(), 50, 5);
  EXPECT_LT(b.width(), 40);
}

TEST(SceneText, middleCentreMultiLineTextIsCentredOnItsPoint)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbMTextPtr t = OdDbMText::createObject();
  t->setContents("First line\\PSecond line");
  t->setTextHeight(5);
  t->setLocation(OdGePoint3d(50, 50, 0));
  t->setAttachment(OdDbMText::kMiddleCenter);
  modelSpace(db)->appendOdDbEntity(t);
  DrawingScene scene;
  scene.build(db.get());
  const QRectF b = scene.entities().back().box;
  EXPECT_NEAR(b.center().x(), 50, 3);
  EXPECT_NEAR(b.center().y(), 50, 5);
  EXPECT_GT(b.height(), 10) << "two lines";
}

// --- how it looks ------------------------------------------------------

TEST(SceneLook, coloursResolveThroughLayersAndBlocks)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  addLayer(db, "Red", 1);
  addLayer(db, "Blue", 5);
  OdDbBlockTableRecordPtr b = addBlock(db, "B");
  OdDbLinePtr byBlock = addLine(b, 0, 0, 1, 0);
  byBlock->setColorIndex(0);
  addLine(b, 0, 1, 1, 1); // on layer 0, ByLayer: takes the reference's layer
  OdDbBlockTableRecordPtr ms = modelSpace(db);
  OdDbLinePtr red = addLine(ms, 0, 0, 1, 1);
  red->setLayer("Red");
  OdDbLinePtr white = addLine(ms, 0, 0, 1, 1);
  white->setColorIndex(7);
  OdDbLinePtr trueColour = addLine(ms, 0, 0, 1, 1);
  OdCmColor c;
  c.setRGB(12, 34, 56);
  trueColour->setColor(c);
  OdDbBlockReferencePtr ref = addInsert(ms, b->objectId(), OdGePoint3d(), 0, 1);
  ref->setLayer("Blue");
  ref->setColorIndex(3);

  DrawingScene scene;
  scene.build(db.get());
  auto colourOf = [&](std::size_t entity, std::size_t prim = 0) {
    return scene.styles()[drawnPrims(scene, entity).at(prim)->style].color;
  };
  EXPECT_EQ(colourOf(0), qRgb(255, 0, 0));
  EXPECT_EQ(colourOf(1), scene.foreground()) << "index 7 stands out from the background";
  EXPECT_EQ(colourOf(2), qRgb(12, 34, 56));
  EXPECT_EQ(colourOf(3, 0), qRgb(0, 255, 0)) << "ByBlock takes the reference's colour";
  EXPECT_EQ(colourOf(3, 1), qRgb(0, 0, 255)) << "layer 0 takes the reference's layer";
}

struct VisibilityRow
{
  const char* name;
  bool off, frozen;
  std::size_t shownOfBlock; // of the block's two lines (one on 0, one on "Other")
  bool modelLineShown;
  friend void PrintTo(const VisibilityRow& r, std::ostream* os) { *os << r.name; }
};

class SceneVisibility : public ::testing::TestWithParam<VisibilityRow>
{
};

TEST_P(SceneVisibility, layersThatAreOffOrFrozenHide)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbLayerTableRecordPtr hidden = addLayer(db, "Hidden", 2);
  hidden->setIsOff(GetParam().off);
  hidden->setIsFrozen(GetParam().frozen);
  addLayer(db, "Other", 4);
  OdDbBlockTableRecordPtr b = addBlock(db, "B");
  addLine(b, 0, 0, 1, 0);
  addLine(b, 0, 1, 1, 1)->setLayer("Other");
  OdDbBlockTableRecordPtr ms = modelSpace(db);
  addLine(ms, 0, 0, 5, 5)->setLayer("Hidden");
  addInsert(ms, b->objectId(), OdGePoint3d(), 0, 1)->setLayer("Hidden");
  DrawingScene scene;
  scene.build(db.get());
  EXPECT_EQ(!drawnPrims(scene, 0).empty(), GetParam().modelLineShown);
  EXPECT_EQ(drawnPrims(scene, 1).size(), GetParam().shownOfBlock);
}

INSTANTIATE_TEST_SUITE_P(Layers, SceneVisibility,
                         ::testing::Values(VisibilityRow{"on", false, false, 2, true},
                                           // Off: the reference's own layer hides what is on 0, not the rest.
                                           VisibilityRow{"off", true, false, 1, false},
                                           // Frozen: the reference and all of its block go.
                                           VisibilityRow{"frozen", false, true, 0, false}));

struct DashRow
{
  double ltscale;
  std::size_t dashes;
  friend void PrintTo(const DashRow& r, std::ostream* os) { *os << "LTSCALE " << r.ltscale; }
};

class SceneDashes : public ::testing::TestWithParam<DashRow>
{
};

TEST_P(SceneDashes, linetypeCutsTheLineIntoItsDashes)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbLinetypeTableRecordPtr lt = OdDbLinetypeTableRecord::createObject();
  addRecord(db->getLinetypeTableId(), lt, "DASHED");
  lt->setNumDashes(2);
  lt->setDashLengthAt(0, 10);
  lt->setDashLengthAt(1, -5);
  db->setLTSCALE(GetParam().ltscale);
  addLine(modelSpace(db), 0, 0, 100, 0)->setLinetype("DASHED");
  DrawingScene scene;
  scene.build(db.get());
  const auto drawn = drawnPrims(scene, 0);
  ASSERT_EQ(drawn.size(), 1u);
  ASSERT_EQ(drawn[0]->kind, ScenePrimKind::Segments);
  EXPECT_EQ(drawn[0]->count / 2, GetParam().dashes);
  // The whole line still picks.
  EXPECT_EQ(scene.pick(QPointF(12.5, 0), 0.1), scene.entities()[0].id) << "in a gap";
}

// 100 units of dash 10 and gap 5 hold 7 dashes; scaled twice, 4.
INSTANTIATE_TEST_SUITE_P(Scales, SceneDashes, ::testing::Values(DashRow{1.0, 7}, DashRow{2.0, 4}));

TEST(SceneLook, lineweightsBecomePixels)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  addLine(modelSpace(db), 0, 0, 1, 0)->setLineWeight(OdDb::kLnWt050);
  addLine(modelSpace(db), 0, 0, 1, 0)->setLineWeight(OdDb::kLnWt013);
  DrawingScene scene;
  scene.build(db.get());
  EXPECT_EQ(scene.styles()[drawnPrims(scene, 0)[0]->style].widthPx, 2.0f);
  EXPECT_EQ(scene.styles()[drawnPrims(scene, 1)[0]->style].widthPx, 0.0f) << "thin lines stay thinnest";
}

TEST(SceneHatch, patternLinesStayInsideTheBoundaryAndOutOfTheIsland)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbHatchPtr h = OdDbHatch::createObject();
  OdDbHatch::Data d;
  d.solid = false;
  d.patternName = "LINES";
  d.lines.push_back(OdDbHatch::PatternLine{0.0, OdGePoint2d(0, 0.5), OdGeVector2d(0, 5), {}});
  d.loops.push_back(squareLoop(0, 0, 100, 100));
  d.loops.push_back(squareLoop(40, 40, 60, 60));
  h->setData(d);
  modelSpace(db)->appendOdDbEntity(h);
  DrawingScene scene;
  scene.build(db.get());
  const auto drawn = drawnPrims(scene, 0);
  ASSERT_EQ(drawn.size(), 1u);
  ASSERT_EQ(drawn[0]->kind, ScenePrimKind::Segments);
  const std::uint32_t n = drawn[0]->count;
  EXPECT_EQ(n / 2, 20u + 4u) << "20 lines across, 4 of them cut in two by the island";
  for (std::uint32_t i = 0; i < n; i += 2) {
    const QPointF a = scene.points()[drawn[0]->first + i], b = scene.points()[drawn[0]->first + i + 1];
    const QPointF mid = (a + b) / 2;
    EXPECT_TRUE(mid.x() > 0 && mid.x() < 100);
    EXPECT_FALSE(mid.x() > 40 && mid.x() < 60 && mid.y() > 40 && mid.y() < 60) << "a line in the island";
  }
  // The boundary picks the hatch; the middle of its area does not.
  EXPECT_EQ(scene.pick(QPointF(0.05, 77.7), 0.2), scene.entities()[0].id);
  EXPECT_TRUE(scene.pick(QPointF(20, 22.2), 0.2).isNull());
}

// --- following, picking, snapping --------------------------------------

TEST(SceneFollows, addedErasedAndChangedEntities)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbLinePtr first = addLine(modelSpace(db), 0, 0, 10, 0);
  DrawingScene scene;
  scene.build(db.get());
  EXPECT_FALSE(scene.sync()) << "nothing changed";

  OdDbLinePtr second = addLine(modelSpace(db), 0, 0, 0, 20);
  ASSERT_TRUE(scene.sync());
  EXPECT_EQ(scene.entityCount(), 2u);
  EXPECT_NEAR(scene.extents()->height(), 20, 1e-9);

  second->upgradeOpen();
  second->setEndPoint(OdGePoint3d(0, 50, 0));
  ASSERT_TRUE(scene.sync());
  EXPECT_NEAR(scene.boxOf(second->objectId()).height(), 50, 1e-9);
  EXPECT_EQ(scene.entityCount(), 2u);

  first->upgradeOpen();
  first->erase();
  ASSERT_TRUE(scene.sync());
  EXPECT_EQ(scene.entityCount(), 1u);
  EXPECT_TRUE(scene.pick(QPointF(5, 0), 0.5).isNull()) << "an erased entity is not picked";
}

TEST(ScenePick, nearestEntityWithinTheTolerance)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbLinePtr a = addLine(modelSpace(db), 0, 0, 10, 0);
  OdDbLinePtr b = addLine(modelSpace(db), 0, 1, 10, 1);
  DrawingScene scene;
  scene.build(db.get());
  EXPECT_EQ(scene.pick(QPointF(5, 0.3), 0.5), a->objectId());
  EXPECT_EQ(scene.pick(QPointF(5, 0.7), 0.5), b->objectId());
  EXPECT_TRUE(scene.pick(QPointF(5, 5), 0.5).isNull());
}

TEST(SceneSnap, endPointsAndCentres)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  addLine(modelSpace(db), 0, 0, 10, 0);
  OdDbCirclePtr c = OdDbCircle::createObject();
  c->setCenter(OdGePoint3d(30, 0, 0));
  c->setRadius(2);
  modelSpace(db)->appendOdDbEntity(c);
  DrawingScene scene;
  scene.build(db.get());
  auto end = scene.snap(QPointF(9.6, 0.3), 1.0);
  ASSERT_TRUE(end);
  EXPECT_EQ(end->kind, SnapKind::End);
  EXPECT_EQ(end->point, QPointF(10, 0));
  auto centre = scene.snap(QPointF(30.4, 1.5), 2.0);
  ASSERT_TRUE(centre);
  EXPECT_EQ(centre->kind, SnapKind::Center);
  EXPECT_EQ(centre->point, QPointF(30, 0));
  EXPECT_FALSE(scene.snap(QPointF(20, 20), 1.0));
}

} // namespace
