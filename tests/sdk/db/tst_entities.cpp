// Entities: general properties, and the values of the kinds that keep lists
// (polylines, hatches, splines, multi-line text, attributes, images).
#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbRasterImage.h"
#include "sdk/db/OdDbText.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <gtest/gtest.h>

namespace {

struct Drawing
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite));
};

} // namespace

TEST(OdDbEntity, generalProperties_areKeptApart)
{
  Drawing d;
  OdDbLinePtr line = OdDbLine::createObject();
  d.ms->appendOdDbEntity(line);
  OdCmColor c;
  c.setRGB(200, 100, 50);
  c.setNames("Rust", "Metals");
  line->setColor(c);
  line->setLayer("0");
  line->setLinetype(d.db->getLinetypeContinuousId());
  line->setLinetypeScale(3.0);
  line->setLineWeight(OdDb::kLnWt050);
  line->setTransparency(OdCmTransparency(std::uint8_t(77)));
  EXPECT_EQ(line->color(), c);
  EXPECT_EQ(line->layerId(), d.db->getLayerZeroId());
  EXPECT_EQ(line->linetypeId(), d.db->getLinetypeContinuousId());
  EXPECT_DOUBLE_EQ(line->linetypeScale(), 3.0);
  EXPECT_EQ(line->lineWeight(), OdDb::kLnWt050);
  EXPECT_EQ(line->transparency().alpha(), 77);
  line->setColorIndex(3);
  EXPECT_TRUE(line->color().isByACI());
  EXPECT_TRUE(line->color().colorName().isEmpty()) << "an index colour drops the old name";
  line->setColor(OdCmColor());
  EXPECT_TRUE(line->color().isByLayer());
  line->setLinetype("ByLayer");
  EXPECT_EQ(line->linetypeId(), d.db->getLinetypeByLayerId());
}

TEST(OdDbEntity, setDatabaseDefaults_takesTheCurrentValues)
{
  Drawing d;
  OdCmColor c;
  c.setColorIndex(4);
  d.db->setCECOLOR(c);
  d.db->setCELWEIGHT(OdDb::kLnWt025);
  OdDbCirclePtr circle = OdDbCircle::createObject();
  d.ms->appendOdDbEntity(circle);
  circle->setDatabaseDefaults();
  EXPECT_EQ(circle->colorIndex(), 4);
  EXPECT_EQ(circle->lineWeight(), OdDb::kLnWt025);
  EXPECT_EQ(circle->blockId(), d.db->getModelSpaceId());
}

TEST(OdDbArc, angles_areRadiansOutsideDegreesInside)
{
  OdDbArcPtr arc = OdDbArc::createObject();
  arc->setStartAngle(M_PI / 2);
  arc->setEndAngle(M_PI);
  EXPECT_NEAR(arc->startAngle(), M_PI / 2, 1e-12);
  EXPECT_EQ(arc->rawValue(OdDbArc::kArcSub, 50), "90.0");
  EXPECT_EQ(arc->rawValue(OdDbArc::kArcSub, 51), "180.0");
}

TEST(OdDbPolyline, vertices_keepBulgesAndWidths)
{
  OdDbPolylinePtr pl = OdDbPolyline::createObject();
  pl->addVertexAt(0, OdGePoint2d(0, 0), 0.5, 0.1, 0.2);
  pl->addVertexAt(1, OdGePoint2d(4, 0));
  pl->addVertexAt(1, OdGePoint2d(2, 1));
  pl->setClosed(true);
  ASSERT_EQ(pl->numVerts(), 3u);
  OdGePoint2d p;
  pl->getPointAt(1, p);
  EXPECT_EQ(p, OdGePoint2d(2, 1));
  EXPECT_DOUBLE_EQ(pl->getBulgeAt(0), 0.5);
  double sw = 0, ew = 0;
  pl->getWidthsAt(0, sw, ew);
  EXPECT_DOUBLE_EQ(ew, 0.2);
  EXPECT_TRUE(pl->isClosed());
  EXPECT_EQ(pl->getInt(OdDbPolyline::kSub, 90), 3) << "the vertex count follows";
  pl->removeVertexAt(0);
  EXPECT_EQ(pl->numVerts(), 2u);
  EXPECT_EQ(pl->getInt(OdDbPolyline::kSub, 90), 2);
}

TEST(OdDb2dPolyline, vertices_joinTheDatabaseWithTheirPolyline)
{
  Drawing d;
  OdDb2dPolylinePtr pl = OdDb2dPolyline::createObject();
  for (int i = 0; i < 3; ++i) {
    OdDb2dVertexPtr v = OdDb2dVertex::createObject();
    v->setPosition(OdGePoint3d(i, i * i, 0));
    pl->appendVertex(v);
  }
  d.ms->appendOdDbEntity(pl);
  const auto ids = pl->vertexIds();
  ASSERT_EQ(ids.size(), 3u);
  for (const OdDbObjectId& id : ids) {
    EXPECT_TRUE(id.isValid());
    EXPECT_EQ(id.openObject()->ownerId(), pl->objectId());
  }
  std::vector<OdDbObjectId> owned;
  pl->ownedSubObjects(owned);
  ASSERT_EQ(owned.size(), 4u);
  EXPECT_EQ(owned.back().openObject()->dxfType(), "SEQEND");
}

TEST(OdDbMText, longContents_areSplitWithoutBreakingCharacters)
{
  OdDbMTextPtr t = OdDbMText::createObject();
  OdString text;
  for (int i = 0; i < 200; ++i)
    text += OdString("äß");
  t->setContents(text);
  EXPECT_EQ(t->contents(), text);
  int pieces = 0;
  for (const OdDbDxfPair& p : t->dxfPairs())
    if (p.code == 3) {
      ++pieces;
      EXPECT_LE(p.value.size(), 250u);
      EXPECT_FALSE(OdDxf::toOdString(p.value).qstring().contains(QChar(0xFFFD)));
    }
  EXPECT_GE(pieces, 3);
  t->setContents("short");
  EXPECT_EQ(t->contents(), OdString("short"));
}

TEST(OdDbHatch, data_roundTripsLoopsPatternAndGradient)
{
  OdDbHatchPtr h = OdDbHatch::createObject();
  OdDbHatch::Data d;
  d.patternName = "ANSI31";
  d.solid = false;
  d.angle = 45.0;
  d.scale = 2.0;
  OdDbHatch::Loop poly;
  poly.vertices = {{0, 0}, {10, 0}, {10, 10}};
  poly.bulges = {0.0, 0.5, 0.0};
  d.loops.push_back(poly);
  OdDbHatch::Loop edges;
  edges.type = OdDbHatch::kDefault;
  OdDbHatch::Edge arc;
  arc.type = OdDbHatch::kCirArc;
  arc.p1 = {5, 5};
  arc.radius = 2;
  arc.endAngle = 360;
  OdDbHatch::Edge spline;
  spline.type = OdDbHatch::kSpline;
  spline.knots = {0, 0, 0, 0, 1, 1, 1, 1};
  spline.controlPoints = {{0, 0}, {1, 2}, {3, 2}, {4, 0}};
  spline.rational = true;
  spline.weights = {1, 0.5, 0.5, 1};
  edges.edges = {arc, spline};
  edges.sourceHandles = {"2A"};
  d.loops.push_back(edges);
  OdDbHatch::PatternLine line;
  line.angle = 45;
  line.offset = {-1.25, 1.25};
  line.dashes = {3.0, -1.5};
  d.lines.push_back(line);
  d.seeds = {{1, 1}};
  h->setData(d);
  const OdDbHatch::Data r = h->data();
  ASSERT_EQ(r.loops.size(), 2u);
  EXPECT_EQ(r.loops[0].vertices.size(), 3u);
  EXPECT_DOUBLE_EQ(r.loops[0].bulges[1], 0.5);
  ASSERT_EQ(r.loops[1].edges.size(), 2u);
  EXPECT_DOUBLE_EQ(r.loops[1].edges[0].radius, 2.0);
  EXPECT_EQ(r.loops[1].edges[1].controlPoints.size(), 4u);
  EXPECT_EQ(r.loops[1].edges[1].weights, spline.weights);
  EXPECT_EQ(r.loops[1].sourceHandles, edges.sourceHandles);
  ASSERT_EQ(r.lines.size(), 1u);
  EXPECT_EQ(r.lines[0].dashes, line.dashes);
  EXPECT_EQ(r.seeds.size(), 1u);
  EXPECT_NEAR(h->patternAngle(), M_PI / 4, 1e-12) << "pattern angles are degrees in the file";
  EXPECT_EQ(h->patternName(), OdString("ANSI31"));
  EXPECT_FALSE(h->isSolidFill());
  EXPECT_EQ(h->numLoops(), 2);
  OdGePoint2dArray verts;
  OdGeDoubleArray bulges;
  h->getLoopAt(0, verts, bulges);
  EXPECT_EQ(verts.size(), 3u);

  h->setGradient(OdDbHatch::kPreDefinedGradient, "CYLINDER");
  h->setGradientAngle(M_PI / 3);
  OdCmColor colors[2];
  colors[0].setRGB(255, 0, 0);
  colors[1].setRGB(0, 0, 255);
  const double values[2] = {0.0, 1.0};
  h->setGradientColors(2, colors, values);
  EXPECT_EQ(h->hatchObjectType(), OdDbHatch::kGradientObject);
  EXPECT_EQ(h->gradientName(), OdString("CYLINDER"));
  EXPECT_NEAR(h->gradientAngle(), M_PI / 3, 1e-12) << "gradient angles are radians in the file";
  unsigned count = 0;
  OdArray<OdCmColor> got;
  OdGeDoubleArray gotValues;
  h->getGradientColors(count, got, gotValues);
  ASSERT_EQ(count, 2u);
  EXPECT_EQ(got[1].rgb(), 0x0000FFu);
  EXPECT_EQ(h->numLoops(), 2) << "the loops stay";
}

TEST(OdDbHatch, loopCountPromisingMore_readsTheLoopThatIsThere)
{
  OdDbHatchPtr h = OdDbHatch::createObject();
  OdDbHatch::Data d = h->data();
  OdDbHatch::Loop square;
  square.vertices = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
  square.bulges = {0, 0, 0, 0};
  d.loops = {square};
  h->setData(d);
  // A loop count that promises more than the file holds.
  int promised = 0;
  for (auto& p : h->dxfPairs())
    if (p.code == 91 && ++promised)
      p.value = "5";
  ASSERT_EQ(promised, 1);
  const OdDbHatch::Data back = h->data();
  ASSERT_GE(back.loops.size(), 1u);
  EXPECT_LE(back.loops.size(), 5u);
  EXPECT_EQ(back.loops[0].vertices.size(), 4u);
  EXPECT_EQ(back.loops[0].vertices[2].x, 10.0);
}

TEST(OdDbSpline, nurbsData_roundTrips)
{
  OdDbSplinePtr s = OdDbSpline::createObject();
  OdGePoint3dArray cps{{0, 0, 0}, {1, 2, 0}, {3, 1, 0}, {4, 4, 0}};
  OdGeDoubleArray knots{0, 0, 0, 0, 1, 1, 1, 1};
  s->setNurbsData(3, false, false, false, cps, knots, OdGeDoubleArray());
  int degree = 0;
  bool rational = true, closed = true, periodic = true;
  OdGePoint3dArray gotCps;
  OdGeDoubleArray gotKnots, weights;
  double tol = 0;
  s->getNurbsData(degree, rational, closed, periodic, gotCps, gotKnots, weights, tol);
  EXPECT_EQ(degree, 3);
  EXPECT_FALSE(rational);
  EXPECT_EQ(gotCps, cps);
  EXPECT_EQ(gotKnots, knots);
  EXPECT_EQ(s->numControlPoints(), 4);

  const OdGePoint3dArray fit{{0, 0, 0}, {2, 1, 0}, {4, 0, 0}};
  s->setFitData(fit, 3, 1e-6, OdGeVector3d(1, 0, 0), OdGeVector3d(0, -1, 0));
  OdGePoint3dArray gotFit;
  OdGeVector3d start, end;
  bool tangents = false;
  s->getFitData(gotFit, degree, tol, tangents, start, end);
  EXPECT_EQ(gotFit, fit);
  EXPECT_TRUE(tangents);
  EXPECT_EQ(end, OdGeVector3d(0, -1, 0));
  EXPECT_DOUBLE_EQ(tol, 1e-6);
  EXPECT_EQ(s->numControlPoints(), 4) << "the control points stay";
  EXPECT_EQ(s->getInt(OdDbSpline::kSub, 74), 3);
}

TEST(OdDbBlockReference, attributes_followTheReference)
{
  Drawing d;
  OdDbBlockReferencePtr ref = OdDbBlockReference::createObject();
  ref->setBlockTableRecord(d.db->getPaperSpaceId());
  ref->setLayer("0");
  ref->setScaleFactors(OdGeScale3d(2, 3, 1));
  ref->setRotation(M_PI / 2);
  OdDbAttributePtr a = OdDbAttribute::createObject();
  a->setTag("NAME");
  a->setTextString("North");
  ref->appendAttribute(a);
  d.ms->appendOdDbEntity(ref);
  ASSERT_EQ(ref->attributeIds().size(), 1u);
  EXPECT_TRUE(a->objectId().isValid());
  EXPECT_EQ(a->ownerId(), ref->objectId());
  EXPECT_EQ(ref->getInt(OdDbBlockReference::kSub, 66), 1) << "readers learn of attributes from code 66";
  EXPECT_EQ(ref->blockTableRecord(), d.db->getPaperSpaceId());
  EXPECT_NEAR(ref->rotation(), M_PI / 2, 1e-12);
  EXPECT_EQ(ref->scaleFactors(), OdGeScale3d(2, 3, 1));
  OdDbObjectIteratorPtr it = ref->attributeIterator();
  ASSERT_FALSE(it->done());
  EXPECT_EQ(OdDbAttribute::cast(it->entity())->tag(), OdString("NAME"));
}

TEST(OdDbRasterImageDef, activeFileName_resolvesWindowsPathsBesideTheDrawing)
{
  QTemporaryDir dir;
  QDir(dir.path()).mkpath("img");
  QFile f(dir.filePath("img/pic.png"));
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.close();
  Drawing d;
  d.db->setFilename(OdString(dir.filePath("drawing.dxf")));
  OdDbDictionaryPtr images = OdDbDictionary::cast(d.db->imageDictionaryId(true).openObject(OdDb::kForWrite));
  OdDbRasterImageDefPtr def = OdDbRasterImageDef::createObject();
  images->setAt("pic", def);
  def->setSourceFileName(".\\img\\pic.png");
  EXPECT_EQ(def->activeFileName(), OdString(dir.filePath("img/pic.png")));
  def->setSourceFileName("C:\\elsewhere\\img\\pic.png");
  EXPECT_EQ(def->activeFileName(), OdString("C:/elsewhere/img/pic.png")) << "a path that does not exist stays";
  OdDbRasterImagePtr img = OdDbRasterImage::createObject();
  def->setImageSize(640, 480);
  img->setImageDefId(def->objectId());
  d.ms->appendOdDbEntity(img);
  EXPECT_EQ(img->imageDefId(), def->objectId());
  EXPECT_EQ(img->imageSize().x, 640.0) << "the size comes from the definition";
  img->setOrientation(OdGePoint3d(1, 1, 0), OdGeVector3d(6.4, 0, 0), OdGeVector3d(0, 4.8, 0));
  OdGePoint3d origin;
  OdGeVector3d u, v;
  img->getOrientation(origin, u, v);
  EXPECT_TRUE(u.isEqualTo(OdGeVector3d(6.4, 0, 0)));
  EXPECT_TRUE(v.isEqualTo(OdGeVector3d(0, 4.8, 0)));
}
