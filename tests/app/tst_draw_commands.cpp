// The drawing commands run as users and tools run them: typed, from a
// macro with blanks, answered by clicks; what they make, and the current
// properties it carries.
#include "tests/app/AppTestSupport.h"

#include "app/core/HostDocumentManager.h"
#include "app/core/HostServicesImpl.h"

#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbText.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"

#include <cmath>

using namespace apptest;

namespace {

using Events = std::vector<std::string>;

class DrawCommands : public HostFixture
{
protected:
  OdDbDatabase* db() { return app().documents().current()->database(); }

  // The live entities of model space, in their order.
  std::vector<OdDbEntityPtr> entities()
  {
    std::vector<OdDbEntityPtr> out;
    OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db()->getModelSpaceId().openObject());
    for (const OdDbObjectId& id : ms->entityIds())
      if (OdDbEntityPtr e = OdDbEntity::cast(id.openObject()); e.get())
        out.push_back(e);
    return out;
  }

  template <class Rec>
  OdDbObjectId addRecord(OdDbObjectId table, const char* name)
  {
    OdSmartPtr<Rec> r = Rec::createObject();
    r->setName(name);
    return OdDbSymbolTable::cast(table.openObject(OdDb::kForWrite))->add(r);
  }
};

TEST_F(DrawCommands, toolMacroWithBlanks_drawsALineAndEnds)
{
  app().services().currentDocument()->sendCommand("^C^CLINE 0,0 500,0 ^M");
  const auto all = entities();
  ASSERT_EQ(all.size(), 1u);
  OdDbLinePtr line = OdDbLine::cast(all[0]);
  ASSERT_TRUE(line.get());
  EXPECT_EQ(line->startPoint(), OdGePoint3d(0, 0, 0));
  EXPECT_EQ(line->endPoint(), OdGePoint3d(500, 0, 0));
  EXPECT_EQ(m_recorder.events, (Events{"willStart:LINE", "ended:LINE"}));
  EXPECT_FALSE(app().commandLine().isCommandActive());
}

struct ShapeRow
{
  const char* name;
  const char* script;
  const char* type;
  std::function<void(const OdDbEntity*)> check;
};

void PrintTo(const ShapeRow& row, std::ostream* os)
{
  *os << row.name;
}

class DrawShapes : public DrawCommands, public ::testing::WithParamInterface<ShapeRow>
{
};

TEST_P(DrawShapes, scriptMakesTheShape)
{
  app().typeLine(GetParam().script);
  const auto all = entities();
  ASSERT_FALSE(all.empty()) << m_output;
  EXPECT_EQ(all.back()->dxfType(), GetParam().type) << m_output;
  GetParam().check(all.back());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DrawShapes,
    ::testing::Values(
        ShapeRow{"lineRelative", "LINE 10,10 @5,0 ", "LINE",
                 [](const OdDbEntity* e) { EXPECT_EQ(OdDbLine::cast(e)->endPoint(), OdGePoint3d(15, 10, 0)); }},
        ShapeRow{"lineClose", "LINE 0,0 10,0 10,10 C", "LINE",
                 [](const OdDbEntity* e) { EXPECT_EQ(OdDbLine::cast(e)->endPoint(), OdGePoint3d(0, 0, 0)); }},
        ShapeRow{"lineUndoSegment", "LINE 0,0 10,0 99,99 U 0,10 ", "LINE",
                 [](const OdDbEntity* e) { EXPECT_EQ(OdDbLine::cast(e)->endPoint(), OdGePoint3d(0, 10, 0)); }},
        ShapeRow{"circleRadius", "CIRCLE 5,5 2.5", "CIRCLE",
                 [](const OdDbEntity* e) { EXPECT_EQ(OdDbCircle::cast(e)->radius(), 2.5); }},
        ShapeRow{"circleDiameter", "CIRCLE 5,5 D 8", "CIRCLE",
                 [](const OdDbEntity* e) { EXPECT_EQ(OdDbCircle::cast(e)->radius(), 4.0); }},
        ShapeRow{"circleRadiusByPoint", "CIRCLE 0,0 3,4", "CIRCLE",
                 [](const OdDbEntity* e) { EXPECT_DOUBLE_EQ(OdDbCircle::cast(e)->radius(), 5.0); }},
        // Counterclockwise through the top: from 0 to 180 degrees.
        ShapeRow{"arcOverTheTop", "ARC 10,0 0,10 -10,0", "ARC",
                 [](const OdDbEntity* e) {
                   OdDbArcPtr a = OdDbArc::cast(e);
                   EXPECT_NEAR(a->startAngle(), 0.0, 1e-9);
                   EXPECT_NEAR(a->endAngle(), M_PI, 1e-9);
                   EXPECT_NEAR(a->radius(), 10.0, 1e-9);
                 }},
        // Clockwise picks give the same arc, run the other way round.
        ShapeRow{"arcClockwise", "ARC -10,0 0,10 10,0", "ARC",
                 [](const OdDbEntity* e) {
                   OdDbArcPtr a = OdDbArc::cast(e);
                   EXPECT_NEAR(a->startAngle(), 0.0, 1e-9);
                   EXPECT_NEAR(a->endAngle(), M_PI, 1e-9);
                 }},
        // Collinear points give no arc; the end point asked again does.
        ShapeRow{"arcCollinearAsksAgain", "ARC 0,0 5,0 10,0 5,5", "ARC",
                 [](const OdDbEntity* e) { EXPECT_NEAR(OdDbArc::cast(e)->radius(), std::sqrt(12.5), 1e-9); }},
        ShapeRow{"plineClosed", "PLINE 0,0 10,0 10,10 C", "LWPOLYLINE",
                 [](const OdDbEntity* e) {
                   OdDbPolylinePtr p = OdDbPolyline::cast(e);
                   EXPECT_EQ(p->numVerts(), 3u);
                   EXPECT_TRUE(p->isClosed());
                 }},
        ShapeRow{"plineUndoThenEnter", "PLINE 0,0 10,0 20,0 U ", "LWPOLYLINE",
                 [](const OdDbEntity* e) {
                   OdDbPolylinePtr p = OdDbPolyline::cast(e);
                   EXPECT_EQ(p->numVerts(), 2u);
                   EXPECT_FALSE(p->isClosed());
                 }},
        ShapeRow{"textRotated", "TEXT 1,2 5 90 Hello world\n", "TEXT",
                 [](const OdDbEntity* e) {
                   OdDbTextPtr t = OdDbText::cast(e);
                   EXPECT_EQ(t->textString(), OdString("Hello world"));
                   EXPECT_EQ(t->height(), 5.0);
                   EXPECT_NEAR(t->rotation(), M_PI / 2, 1e-12);
                 }},
        // The second line goes one line spacing below the first.
        ShapeRow{"textTwoLines", "TEXT 0,0 2 0 one\ntwo\n", "TEXT",
                 [](const OdDbEntity* e) {
                   OdDbTextPtr t = OdDbText::cast(e);
                   EXPECT_EQ(t->textString(), OdString("two"));
                   EXPECT_NEAR(t->position().y, -2 * 1.6667, 1e-9);
                 }}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(DrawCommands, newEntities_takeTheCurrentProperties)
{
  OdDbDatabase* d = db();
  const OdDbObjectId walls = addRecord<OdDbLayerTableRecord>(d->getLayerTableId(), "Walls");
  const OdDbObjectId dashed = addRecord<OdDbLinetypeTableRecord>(d->getLinetypeTableId(), "Dashed");
  const OdDbObjectId notes = addRecord<OdDbTextStyleTableRecord>(d->getTextStyleTableId(), "Notes");
  d->setCLAYER(walls);
  d->setCELTYPE(dashed);
  d->setTEXTSTYLE(notes);
  OdCmColor red;
  red.setColorIndex(1);
  d->setCECOLOR(red);
  d->setCELTSCALE(2.0);
  d->setCELWEIGHT(OdDb::kLnWt035);
  d->setCETRANSPARENCY(OdCmTransparency(std::uint8_t(127)));
  app().typeLine("LINE 0,0 1,1 ");
  app().typeLine("CIRCLE 0,0 1");
  app().typeLine("ARC 1,0 0,1 -1,0");
  app().typeLine("PLINE 0,0 1,0 ");
  app().typeLine("TEXT 0,0 1 0 note\n");
  const auto all = entities();
  ASSERT_EQ(all.size(), 5u) << m_output;
  for (const OdDbEntityPtr& e : all) {
    SCOPED_TRACE(e->dxfType());
    EXPECT_EQ(e->layer(), OdString("Walls"));
    EXPECT_EQ(e->linetype(), OdString("Dashed"));
    EXPECT_EQ(e->color().colorIndex(), 1);
    EXPECT_EQ(e->linetypeScale(), 2.0);
    EXPECT_EQ(e->lineWeight(), OdDb::kLnWt035);
    EXPECT_EQ(e->transparency().alpha(), 127);
  }
  EXPECT_EQ(OdDbText::cast(all.back())->textStyleName(), OdString("Notes"));
}

TEST_F(DrawCommands, namedPlotStyles_newEntitiesPointAtTheCurrentStyle)
{
  OdDbDatabase* d = db();
  d->setHeaderInt("$PSTYLEMODE", 0, 290);
  app().typeLine("SETVAR CPLOTSTYLE Normal");
  app().typeLine("LINE 0,0 1,1 ");
  ASSERT_EQ(entities().size(), 1u) << m_output;
  EXPECT_EQ(d->getCEPSNTYPE(), OdDb::kPlotStyleNameById);
  EXPECT_EQ(entities()[0]->getString(OdDbEntity::kSub, 390), d->getHeaderString("$CEPSNID"));
  EXPECT_FALSE(d->getHeaderString("$CEPSNID").isEmpty());
}

TEST_F(DrawCommands, textSize_isTheDefaultAndIsKept)
{
  app().typeLine("TEXT 0,0 7 0 a\n");
  app().typeLine("TEXT 0,0  0 b\n"); // Enter at the height: the last one
  const auto all = entities();
  ASSERT_EQ(all.size(), 2u) << m_output;
  EXPECT_EQ(OdDbText::cast(all[1])->height(), 7.0);
  EXPECT_EQ(db()->getHeaderDouble("$TEXTSIZE"), 7.0);
}

TEST_F(DrawCommands, erase_byHandleRefusesWhatCannotBeChosen)
{
  app().typeLine("LINE 0,0 1,1 ");
  app().typeLine("CIRCLE 0,0 1");
  const auto all = entities();
  ASSERT_EQ(all.size(), 2u);
  const std::string line = all[0]->getDbHandle().text();
  const std::string layer = db()->getLayerZeroId().getHandle().text();
  app().typeLine(OdString("ERASE ZZ " + layer + " FFFFF " + line + " " + line + " "));
  EXPECT_NE(m_output.find("\"ZZ\" is no handle"), std::string::npos) << m_output;
  EXPECT_NE(m_output.find("is no drawing entity"), std::string::npos) << m_output;
  EXPECT_NE(m_output.find("no object with the handle FFFFF"), std::string::npos) << m_output;
  EXPECT_NE(m_output.find("1 was already selected"), std::string::npos) << m_output;
  EXPECT_NE(m_output.find("1 object erased."), std::string::npos) << m_output;
  ASSERT_EQ(entities().size(), 1u);
  EXPECT_EQ(entities()[0]->dxfType(), "CIRCLE");
}

TEST_F(DrawCommands, cancelledLine_keepsItsSegments)
{
  app().commandLine().type("LINE 0,0 5,5 ^C");
  EXPECT_EQ(entities().size(), 1u);
  EXPECT_EQ(m_recorder.events.back(), "cancelled:LINE");
}

TEST_F(DrawCommands, desktopClicks_answerPointPrompts)
{
  // A desktop host's wait: it looks at what is asked and clicks.
  std::vector<HostPrompt> asked;
  std::vector<OdGePoint3d> clicks{{1, 1, 0}, {4, 5, 0}};
  int notices = 0;
  app().commandLine().setInputNotifier([&]() {
    ++notices;
    EXPECT_TRUE(app().commandLine().inputWaiting());
  });
  app().commandLine().setInputWaiter([&]() {
    const HostPrompt& p = app().commandLine().activePrompt();
    asked.push_back(p);
    if (clicks.empty()) {
      app().commandLine().type("\n"); // Enter ends LINE
      return true;
    }
    EXPECT_TRUE(app().commandLine().submitPoint(clicks.front()));
    clicks.erase(clicks.begin());
    return true;
  });
  app().typeLine("LINE");
  app().commandLine().setInputWaiter(nullptr);
  app().commandLine().setInputNotifier(nullptr);
  EXPECT_EQ(notices, 3) << "two clicks and an Enter";
  ASSERT_EQ(entities().size(), 1u);
  EXPECT_EQ(OdDbLine::cast(entities()[0])->endPoint(), OdGePoint3d(4, 5, 0));
  ASSERT_EQ(asked.size(), 3u);
  EXPECT_EQ(asked[0].kind, HostPrompt::kPoint);
  EXPECT_FALSE(asked[0].hasBasePoint);
  EXPECT_TRUE(asked[1].hasBasePoint) << "the rubber band starts at the first point";
  EXPECT_EQ(asked[1].basePoint, OdGePoint3d(1, 1, 0));
  EXPECT_EQ(asked[1].keywords, std::vector<OdString>{"Undo"});
  EXPECT_NE(m_output.find("Specify next point or [Undo]: 4,5,0"), std::string::npos) << m_output;
  EXPECT_EQ(app().commandLine().activePrompt().kind, HostPrompt::kNone);
  EXPECT_FALSE(app().commandLine().submitPoint(OdGePoint3d())) << "no prompt waits";
}

TEST_F(DrawCommands, waiterThatGivesUp_cancelsTheCommand)
{
  app().commandLine().setInputWaiter([]() { return false; });
  app().typeLine("CIRCLE");
  app().commandLine().setInputWaiter(nullptr);
  EXPECT_EQ(m_recorder.events.back(), "cancelled:CIRCLE");
  EXPECT_TRUE(entities().empty());
}

TEST_F(DrawCommands, noDocument_saysSoAndDrawsNothing)
{
  app().typeLine("CloseDocument");
  for (const char* command : {"LINE", "CIRCLE", "ARC", "PLINE", "TEXT", "ERASE", "U", "REDO"}) {
    m_output.clear();
    app().typeLine(command);
    EXPECT_NE(m_output.find("No document is open"), std::string::npos) << command << ": " << m_output;
  }
}

} // namespace
