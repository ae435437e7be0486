// InsertBlock, XATTACH and INSERTRASTER run by name with the parameters a
// tool gives, and typed; and the transforms of an exploded block.
#include "tests/app/AppTestSupport.h"

#include "app/core/HostCmdFactoryImpl.h"
#include "app/core/HostDocumentManager.h"
#include "app/core/HostEntityTransform.h"
#include "app/core/HostSysVars.h"

#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbRasterImage.h"
#include "sdk/dxf/OdDxf.h"

#include <QImage>

#include <cmath>
#include <deque>

using namespace apptest;

namespace {

class InsertCommands : public HostFixture
{
protected:
  void SetUp() override
  {
    HostFixture::SetUp();
    // Answers for the prompts, one line each, as a script gives them.
    app().commandLine().setInputProvider([this](const OdString&, OdString& line) {
      if (m_answers.empty())
        return false;
      line = m_answers.front();
      m_answers.pop_front();
      return true;
    });
  }
  void TearDown() override
  {
    app().commandLine().setInputProvider(nullptr);
    HostFixture::TearDown();
  }

  OdDbDatabase* db() { return app().documents().current()->database(); }

  // Runs a command by name with named parameters, as a tool does.
  int runWith(const char* command, const std::vector<std::pair<const char*, CRkVariant>>& values,
              std::deque<OdString> answers)
  {
    m_answers = std::move(answers);
    CRkPtr<IMemParam> params = CRkPtr<IMemParam>::attach(new_MemParam());
    for (const auto& [name, value] : values)
      params->setValue(name, value);
    CRkPtr<ICmdRun> run;
    EXPECT_TRUE(app().cmdFactory().getCommand(command, run.put()));
    return run ? run->run(params.get()) : 0;
  }

  std::vector<OdDbEntityPtr> entities()
  {
    std::vector<OdDbEntityPtr> out;
    OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db()->getModelSpaceId().openObject());
    for (const OdDbObjectId& id : ms->entityIds())
      if (OdDbEntityPtr e = OdDbEntity::cast(id.openObject()); e.get())
        out.push_back(e);
    return out;
  }

  // A block "DOOR": a line from 0,0 to 10,0 (colour by block), and
  // attributes NUMBER (prompt "Door number", default "D1"), FIRE
  // (constant) and MAKER (preset, default "ACME").
  OdDbBlockTableRecordPtr makeDoor(OdDb::UnitsValue units = OdDb::kUnitsUndefined)
  {
    OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::createObject();
    block->setName("DOOR");
    OdDbSymbolTable::cast(db()->getBlockTableId().openObject(OdDb::kForWrite))->add(block);
    block->setBlockInsertUnits(units);
    OdDbLinePtr line = OdDbLine::createObject();
    line->setEndPoint(OdGePoint3d(10, 0, 0));
    line->setColor(OdCmColor(OdCmEntityColor::kByBlock));
    block->appendOdDbEntity(line);
    auto attdef = [&](const char* tag, const char* prompt, const char* value, bool constant, bool preset) {
      OdDbAttributeDefinitionPtr def = OdDbAttributeDefinition::createObject();
      def->setTag(tag);
      def->setPrompt(prompt);
      def->setTextString(value);
      def->setPosition(OdGePoint3d(1, 2, 0));
      def->setHeight(0.5);
      def->setConstant(constant);
      def->setPreset(preset);
      block->appendOdDbEntity(def);
    };
    attdef("NUMBER", "Door number", "D1", false, false);
    attdef("FIRE", "", "EI30", true, false);
    attdef("MAKER", "", "ACME", false, true);
    return block;
  }

  std::map<std::string, std::string> attributesOf(const OdDbBlockReference* ref)
  {
    std::map<std::string, std::string> out;
    for (const OdDbObjectId& id : ref->attributeIds())
      if (OdDbAttributePtr a = OdDbAttribute::cast(id.openObject()); a.get())
        out[a->tag().toUtf8()] = a->textString().toUtf8();
    return out;
  }

  QString writePicture(const char* name, int width, int height)
  {
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    const QString path = m_home.path() + "/" + name;
    EXPECT_TRUE(picture.save(path));
    return path;
  }

  std::deque<OdString> m_answers;
};

TEST_F(InsertCommands, insertBlock_fromATool_asksOnlyThePointAndTheAttributes)
{
  makeDoor();
  const int ran = runWith("InsertBlock",
                          {{"BC_RUN_BY_NAME_SCALE_ROT_EXPLODE", CRkVariant("Run")},
                           {"name", CRkVariant(OdString("DOOR"))},
                           {"BC_SCALE", CRkVariant(2.0)},
                           {"BC_ROTATE_ANGLE", CRkVariant(M_PI / 2)},
                           {"BC_ASK_ROTATION", CRkVariant(false)},
                           {"BC_IS_EXPLODE", CRkVariant(false)}},
                          {"5,5", "D17"});
  EXPECT_EQ(ran, 1);
  ASSERT_EQ(entities().size(), 1u) << m_output;
  OdDbBlockReferencePtr ref = OdDbBlockReference::cast(entities()[0]);
  ASSERT_TRUE(ref.get());
  EXPECT_EQ(ref->position(), OdGePoint3d(5, 5, 0));
  EXPECT_EQ(ref->scaleFactors(), OdGeScale3d(2.0));
  EXPECT_NEAR(ref->rotation(), M_PI / 2, 1e-12);
  // The constant attribute stays with the definition; the preset one takes
  // its default without asking.
  EXPECT_EQ(attributesOf(ref), (std::map<std::string, std::string>{{"NUMBER", "D17"}, {"MAKER", "ACME"}}));
  EXPECT_NE(m_output.find("Door number <D1>: D17"), std::string::npos) << m_output;
  // The attribute sits where the definition's point goes: 5,5 + 2 * R90 * (1,2).
  OdDbAttributePtr number = OdDbAttribute::cast(ref->attributeIds().front().openObject());
  EXPECT_TRUE(number->position().isEqualTo(OdGePoint3d(1, 7, 0), 1e-9));
  EXPECT_EQ(number->height(), 1.0);
}

TEST_F(InsertCommands, insertBlock_withAttreqOff_takesTheDefaults)
{
  makeDoor();
  app().sysVars().setVar("ATTREQ", OdResBuf::newValue(std::int16_t(0)));
  runWith("InsertBlock", {{"name", CRkVariant(OdString("door"))}, {"BC_SCALE", CRkVariant(1.0)},
                          {"BC_ROTATE_ANGLE", CRkVariant(0.0)}},
          {"0,0"});
  ASSERT_EQ(entities().size(), 1u) << m_output;
  EXPECT_EQ(attributesOf(OdDbBlockReference::cast(entities()[0])),
            (std::map<std::string, std::string>{{"NUMBER", "D1"}, {"MAKER", "ACME"}}));
}

TEST_F(InsertCommands, insertBlock_typed_asksForWhatNoParameterGives)
{
  makeDoor();
  m_answers = {"", ""}; // the attribute takes its default
  app().typeLine("InsertBlock DOOR 1,1 3 45");
  ASSERT_EQ(entities().size(), 1u) << m_output;
  OdDbBlockReferencePtr ref = OdDbBlockReference::cast(entities()[0]);
  EXPECT_EQ(ref->scaleFactors(), OdGeScale3d(3.0));
  EXPECT_NEAR(ref->rotation(), M_PI / 4, 1e-12);
  EXPECT_EQ(attributesOf(ref)["NUMBER"], "D1");
}

TEST_F(InsertCommands, insertBlock_askRotation_usesTheToolsAngleAsDefault)
{
  makeDoor();
  runWith("InsertBlock", {{"name", CRkVariant(OdString("DOOR"))}, {"BC_SCALE", CRkVariant(1.0)},
                          {"BC_ROTATE_ANGLE", CRkVariant(M_PI / 6)}, {"BC_ASK_ROTATION", CRkVariant(true)}},
          {"0,0", "", ""});
  EXPECT_NE(m_output.find("Specify rotation angle <30>: "), std::string::npos) << m_output;
  EXPECT_NEAR(OdDbBlockReference::cast(entities()[0])->rotation(), M_PI / 6, 1e-12);
}

TEST_F(InsertCommands, insertBlock_scalesByTheInsertionUnits)
{
  makeDoor(OdDb::kUnitsMillimeters);
  db()->setINSUNITS(OdDb::kUnitsMeters);
  runWith("InsertBlock", {{"name", CRkVariant(OdString("DOOR"))}, {"BC_SCALE", CRkVariant(2.0)},
                          {"BC_ROTATE_ANGLE", CRkVariant(0.0)}},
          {"0,0", ""});
  EXPECT_NEAR(OdDbBlockReference::cast(entities()[0])->scaleFactors().sx, 0.002, 1e-15);
}

TEST_F(InsertCommands, insertBlock_explode_placesTheEntitiesWithCurrentProperties)
{
  makeDoor();
  OdCmColor red;
  red.setColorIndex(1);
  db()->setCECOLOR(red);
  runWith("InsertBlock", {{"name", CRkVariant(OdString("DOOR"))}, {"BC_SCALE", CRkVariant(2.0)},
                          {"BC_ROTATE_ANGLE", CRkVariant(M_PI)}, {"BC_IS_EXPLODE", CRkVariant(true)}},
          {"100,0"});
  const auto all = entities();
  ASSERT_EQ(all.size(), 4u) << m_output; // the line and the three definitions
  OdDbLinePtr line = OdDbLine::cast(all[0]);
  ASSERT_TRUE(line.get());
  EXPECT_TRUE(line->endPoint().isEqualTo(OdGePoint3d(80, 0, 0), 1e-9));
  EXPECT_EQ(line->color().colorIndex(), 1) << "by block becomes the current colour";
  EXPECT_EQ(all[1]->dxfType(), "ATTDEF");
}

TEST_F(InsertCommands, insertBlock_unknownBlock_saysSoAndMakesNothing)
{
  EXPECT_EQ(runWith("InsertBlock", {{"name", CRkVariant(OdString("NOPE"))}}, {}), 1);
  EXPECT_NE(m_output.find("The drawing has no block \"NOPE\""), std::string::npos) << m_output;
  EXPECT_TRUE(entities().empty());
  EXPECT_FALSE(app().documents().current()->canUndo());
}

TEST_F(InsertCommands, insertBlock_cancelledAtAnAttribute_makesNothing)
{
  makeDoor();
  app().commandLine().type("InsertBlock DOOR 0,0 1 0 ^C");
  EXPECT_TRUE(entities().empty());
  EXPECT_EQ(m_recorder.events.back(), "cancelled:InsertBlock");
}

TEST_F(InsertCommands, insertBlock_undoAndRedo_takeTheReferenceAndItsAttributes)
{
  makeDoor();
  runWith("InsertBlock", {{"name", CRkVariant(OdString("DOOR"))}, {"BC_SCALE", CRkVariant(1.0)},
                          {"BC_ROTATE_ANGLE", CRkVariant(0.0)}},
          {"0,0", ""});
  ASSERT_EQ(entities().size(), 1u);
  const std::vector<OdDbObjectId> attributes = OdDbBlockReference::cast(entities()[0])->attributeIds();
  app().typeLine("U");
  EXPECT_TRUE(entities().empty());
  for (const OdDbObjectId& id : attributes)
    EXPECT_TRUE(id.isErased());
  app().typeLine("REDO");
  ASSERT_EQ(entities().size(), 1u);
  EXPECT_EQ(attributesOf(OdDbBlockReference::cast(entities()[0])).size(), 2u);
}

class XAttach : public InsertCommands
{
protected:
  // A drawing in millimetres with a circle, to attach.
  QString writeSource(const char* name)
  {
    OdDbDatabasePtr source = odDbCreateDatabase();
    source->setINSUNITS(OdDb::kUnitsMillimeters);
    OdDbCirclePtr circle = OdDbCircle::createObject();
    circle->setRadius(5);
    OdDbBlockTableRecord::cast(source->getModelSpaceId().openObject(OdDb::kForWrite))->appendOdDbEntity(circle);
    const QString path = m_home.path() + "/" + name;
    odDxfWriteFile(source, OdString(path));
    return path;
  }
};

TEST_F(XAttach, attachAndOverlay_makeExternalReferenceBlocks)
{
  const QString file = writeSource("site plan.dxf");
  db()->setINSUNITS(OdDb::kUnitsMillimeters);
  runWith("XATTACH", {{"ToolPaletteCall", CRkVariant(OdString(file))}, {"XATT_REFTYPE", CRkVariant(std::int32_t(1))},
                      {"XATT_SCALE", CRkVariant(2.0)}, {"XATT_ROTATION", CRkVariant(0.0)},
                      {"XATT_PROMPT_ROTATION", CRkVariant(false)}, {"XATT_IS_EXPLODE", CRkVariant(false)}},
          {"3,4"});
  OdDbBlockTableRecordPtr block =
      OdDbBlockTableRecord::cast(db()->recordId(db()->getBlockTableId(), "site plan").openObject());
  ASSERT_TRUE(block.get()) << m_output;
  EXPECT_TRUE(block->isFromExternalReference());
  EXPECT_FALSE(block->isFromOverlayReference());
  EXPECT_EQ(block->pathName(), OdString(file));
  EXPECT_EQ(block->entityIds().size(), 1u) << "the reference is loaded";
  ASSERT_EQ(entities().size(), 1u);
  OdDbBlockReferencePtr ref = OdDbBlockReference::cast(entities()[0]);
  EXPECT_EQ(ref->blockName(), OdString("site plan"));
  EXPECT_EQ(ref->position(), OdGePoint3d(3, 4, 0));
  EXPECT_EQ(ref->scaleFactors(), OdGeScale3d(2.0));
  // Attached again: the same block, a second reference.
  runWith("XATTACH", {{"ToolPaletteCall", CRkVariant(OdString(file))}, {"XATT_SCALE", CRkVariant(1.0)},
                      {"XATT_ROTATION", CRkVariant(0.0)}},
          {"0,0"});
  EXPECT_EQ(entities().size(), 2u);

  const QString other = writeSource("overlay.dxf");
  runWith("XATTACH", {{"ToolPaletteCall", CRkVariant(OdString(other))}, {"XATT_REFTYPE", CRkVariant(std::int32_t(2))},
                      {"XATT_SCALE", CRkVariant(1.0)}, {"XATT_ROTATION", CRkVariant(0.0)}},
          {"0,0"});
  OdDbBlockTableRecordPtr overlay =
      OdDbBlockTableRecord::cast(db()->recordId(db()->getBlockTableId(), "overlay").openObject());
  ASSERT_TRUE(overlay.get());
  EXPECT_TRUE(overlay->isFromOverlayReference());
}

struct RefusedRow
{
  const char* name;
  const char* file; // relative to the test's home; "@" makes a broken drawing there
  const char* message;
};

void PrintTo(const RefusedRow& row, std::ostream* os)
{
  *os << row.name;
}

class XAttachRefused : public XAttach, public ::testing::WithParamInterface<RefusedRow>
{
};

TEST_P(XAttachRefused, saysWhyAndChangesNothing)
{
  QString file = m_home.path() + "/" + GetParam().file;
  if (QString(GetParam().file) == "broken.dxf") {
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("no drawing at all");
  }
  if (QString(GetParam().file) == "DOOR.dxf") {
    makeDoor();
    file = writeSource("DOOR.dxf");
  }
  const std::size_t objects = db()->allObjectIds().size();
  const bool couldUndo = app().documents().current()->canUndo();
  runWith("XATTACH", {{"ToolPaletteCall", CRkVariant(OdString(file))}, {"XATT_SCALE", CRkVariant(1.0)},
                      {"XATT_ROTATION", CRkVariant(0.0)}},
          {"0,0"});
  EXPECT_NE(m_output.find(GetParam().message), std::string::npos) << m_output;
  EXPECT_EQ(db()->allObjectIds().size(), objects);
  EXPECT_EQ(app().documents().current()->canUndo(), couldUndo) << "no undo step either";
}

INSTANTIATE_TEST_SUITE_P(Rows, XAttachRefused,
                         ::testing::Values(RefusedRow{"missingFile", "nowhere.dxf", "the file does not exist"},
                                           RefusedRow{"notADrawing", "broken.dxf", "Nothing was attached."},
                                           RefusedRow{"nameOfABlock", "DOOR.dxf", "has a block named \"DOOR\""}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(InsertCommands, insertRaster_twice_sharesOneDefinition)
{
  const QString path = writePicture("logo.png", 40, 20);
  for (const char* point : {"10,10", "100,0"})
    runWith("INSERTRASTER", {{"PathScaleRotationNoDialog", CRkVariant(OdString("PathScaleRotationNoDialog"))},
                             {"DefName", CRkVariant(OdString("logo"))}, {"Path", CRkVariant(OdString(path))},
                             {"Scale", CRkVariant(0.5)}, {"Rotation", CRkVariant(M_PI / 2)}},
            {point});
  OdDbDictionaryPtr images = OdDbDictionary::cast(db()->imageDictionaryId().openObject());
  ASSERT_TRUE(images.get()) << m_output;
  EXPECT_EQ(images->numEntries(), 1u);
  OdDbRasterImageDefPtr def = OdDbRasterImageDef::cast(images->getAt("logo").openObject());
  ASSERT_TRUE(def.get());
  EXPECT_EQ(def->size().x, 40.0);
  const auto all = entities();
  ASSERT_EQ(all.size(), 2u);
  OdDbRasterImagePtr image = OdDbRasterImage::cast(all[1]);
  EXPECT_EQ(image->imageDefId(), def->objectId());
  OdGePoint3d origin;
  OdGeVector3d u, v;
  image->getOrientation(origin, u, v);
  EXPECT_EQ(origin, OdGePoint3d(100, 0, 0));
  EXPECT_TRUE(u.isEqualTo(OdGeVector3d(0, 20, 0), 1e-9)) << "40 pixels at half scale, turned a quarter";
  EXPECT_TRUE(v.isEqualTo(OdGeVector3d(-10, 0, 0), 1e-9));
  // Each image has its reactor, and the definition lists both.
  EXPECT_EQ(def->getPersistentReactors().size(), 2u);
  OdDbObjectPtr reactor = image->reactorId().openObject();
  ASSERT_TRUE(reactor.get());
  EXPECT_EQ(reactor->ownerId(), image->objectId());
}

TEST_F(InsertCommands, insertRaster_missingOrBrokenPicture_placesNothing)
{
  runWith("INSERTRASTER", {{"Path", CRkVariant(OdString(m_home.path() + "/none.png"))}}, {"0,0"});
  EXPECT_NE(m_output.find("the file does not exist"), std::string::npos) << m_output;
  QFile f(m_home.path() + "/bad.png");
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("not a picture");
  f.close();
  runWith("INSERTRASTER", {{"Path", CRkVariant(OdString(m_home.path() + "/bad.png"))}}, {"0,0"});
  EXPECT_NE(m_output.find("Cannot place the image"), std::string::npos) << m_output;
  EXPECT_TRUE(entities().empty());
  EXPECT_TRUE(db()->imageDictionaryId().isNull() ||
              OdDbDictionary::cast(db()->imageDictionaryId().openObject())->numEntries() == 0);
}

// --- transforms of exploded entities ------------------------------------------

struct TransformRow
{
  const char* name;
  std::function<OdDbEntityPtr()> make;
  std::function<void(const OdDbEntity*)> check;
};

void PrintTo(const TransformRow& row, std::ostream* os)
{
  *os << row.name;
}

class Transform : public ::testing::TestWithParam<TransformRow>
{
};

// Base 0,0 to 10,0, twice the size, a quarter turn.
TEST_P(Transform, movesTurnsAndScales)
{
  OdDbEntityPtr e = GetParam().make();
  HostSimilarity s;
  s.insertion = OdGePoint3d(10, 0, 0);
  s.scale = 2.0;
  s.rotation = M_PI / 2;
  ASSERT_TRUE(HostEntityTransform::transform(e, s));
  GetParam().check(e);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Transform,
    ::testing::Values(
        TransformRow{"line",
                     [] {
                       OdDbLinePtr l = OdDbLine::createObject();
                       l->setEndPoint(OdGePoint3d(1, 0, 0));
                       return OdDbEntityPtr(l);
                     },
                     [](const OdDbEntity* e) {
                       EXPECT_TRUE(OdDbLine::cast(e)->endPoint().isEqualTo(OdGePoint3d(10, 2, 0), 1e-12));
                     }},
        TransformRow{"arc",
                     [] {
                       OdDbArcPtr a = OdDbArc::createObject();
                       a->setRadius(1);
                       a->setEndAngle(M_PI / 2);
                       return OdDbEntityPtr(a);
                     },
                     [](const OdDbEntity* e) {
                       OdDbArcPtr a = OdDbArc::cast(e);
                       EXPECT_EQ(a->radius(), 2.0);
                       EXPECT_NEAR(a->startAngle(), M_PI / 2, 1e-12);
                       EXPECT_NEAR(a->endAngle(), M_PI, 1e-12);
                     }},
        TransformRow{"text",
                     [] {
                       OdDbTextPtr t = OdDbText::createObject();
                       t->setPosition(OdGePoint3d(0, 1, 0));
                       t->setHeight(1.5);
                       return OdDbEntityPtr(t);
                     },
                     [](const OdDbEntity* e) {
                       OdDbTextPtr t = OdDbText::cast(e);
                       EXPECT_TRUE(t->position().isEqualTo(OdGePoint3d(8, 0, 0), 1e-12));
                       EXPECT_EQ(t->height(), 3.0);
                       EXPECT_NEAR(t->rotation(), M_PI / 2, 1e-12);
                     }},
        TransformRow{"polylineWidths",
                     [] {
                       OdDbPolylinePtr p = OdDbPolyline::createObject();
                       p->addVertexAt(0, OdGePoint2d(0, 0), 0.5, 1.0, 1.0);
                       p->addVertexAt(1, OdGePoint2d(1, 0));
                       return OdDbEntityPtr(p);
                     },
                     [](const OdDbEntity* e) {
                       OdDbPolylinePtr p = OdDbPolyline::cast(e);
                       OdGePoint2d q;
                       p->getPointAt(1, q);
                       EXPECT_NEAR(q.x, 10, 1e-12);
                       EXPECT_NEAR(q.y, 2, 1e-12);
                       EXPECT_EQ(p->getBulgeAt(0), 0.5);
                       double w0, w1;
                       p->getWidthsAt(0, w0, w1);
                       EXPECT_EQ(w0, 2.0);
                     }},
        TransformRow{"nestedReference",
                     [] {
                       OdDbBlockReferencePtr r = OdDbBlockReference::createObject();
                       r->setScaleFactors(OdGeScale3d(3.0));
                       return OdDbEntityPtr(r);
                     },
                     [](const OdDbEntity* e) {
                       OdDbBlockReferencePtr r = OdDbBlockReference::cast(e);
                       EXPECT_EQ(r->scaleFactors(), OdGeScale3d(6.0));
                       EXPECT_NEAR(r->rotation(), M_PI / 2, 1e-12);
                       EXPECT_EQ(r->position(), OdGePoint3d(10, 0, 0));
                     }},
        TransformRow{"hatchPattern",
                     [] {
                       OdDbHatchPtr h = OdDbHatch::createObject();
                       OdDbHatch::Data d;
                       d.solid = false;
                       d.patternName = "ANSI31";
                       d.angle = 0;
                       d.scale = 1;
                       OdDbHatch::PatternLine line;
                       line.angle = 45;
                       line.offset = OdGeVector2d(0, 1);
                       line.dashes = {1.0, -0.5};
                       d.lines = {line};
                       OdDbHatch::Loop loop;
                       loop.vertices = {{0, 0}, {1, 0}, {1, 1}};
                       loop.bulges = {0, 0, 0};
                       d.loops = {loop};
                       h->setData(d);
                       return OdDbEntityPtr(h);
                     },
                     [](const OdDbEntity* e) {
                       const OdDbHatch::Data d = OdDbHatch::cast(e)->data();
                       EXPECT_NEAR(d.angle, 90.0, 1e-9);
                       EXPECT_EQ(d.scale, 2.0);
                       EXPECT_NEAR(d.lines[0].angle, 135.0, 1e-9);
                       EXPECT_NEAR(d.lines[0].offset.x, -2.0, 1e-12);
                       EXPECT_EQ(d.lines[0].dashes, (std::vector<double>{2.0, -1.0}));
                       EXPECT_NEAR(d.loops[0].vertices[1].y, 2.0, 1e-12);
                     }}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(TransformRefused, dimensionsAndTiltedObjects_areLeftAlone)
{
  HostSimilarity s;
  s.scale = 2;
  EXPECT_FALSE(HostEntityTransform::transform(OdDbDimension::createObject(), s));
  OdDbCirclePtr tilted = OdDbCircle::createObject();
  tilted->setNormal(OdGeVector3d(1, 0, 0));
  tilted->setRadius(1);
  EXPECT_FALSE(HostEntityTransform::transform(tilted, s));
  EXPECT_EQ(tilted->radius(), 1.0);
}

} // namespace
