// Undo and redo of whole commands: what each takes back and brings back,
// where changes outside a command go, and the document's Edit-menu API.
#include "tests/app/AppTestSupport.h"

#include "app/core/HostDocumentManager.h"

#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbLayerTableRecord.h"

using namespace apptest;

namespace {

class Undo : public HostFixture
{
protected:
  HostDocumentImpl* doc() { return app().documents().current(); }
  OdDbDatabase* db() { return doc()->database(); }

  std::vector<std::string> types()
  {
    std::vector<std::string> out;
    OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db()->getModelSpaceId().openObject());
    for (const OdDbObjectId& id : ms->entityIds())
      if (OdDbObjectPtr e = id.openObject(); e.get())
        out.push_back(e->dxfType());
    return out;
  }
  OdString currentLayer() { return OdDbSymbolTableRecord::cast(db()->getCLAYER().openObject())->getName(); }
  bool hasLayer(const char* name) { return !db()->recordId(db()->getLayerTableId(), name).isNull(); }
};

using Types = std::vector<std::string>;

TEST_F(Undo, commands_areTakenBackAndBroughtBackWhole)
{
  app().typeLine("LINE 0,0 1,0 1,1 ");
  app().typeLine("CIRCLE 0,0 1");
  ASSERT_EQ(types(), (Types{"LINE", "LINE", "CIRCLE"}));
  app().typeLine("U");
  EXPECT_EQ(types(), (Types{"LINE", "LINE"}));
  app().typeLine("U");
  EXPECT_TRUE(types().empty()) << "one LINE command with two segments is one step";
  app().typeLine("U");
  EXPECT_NE(m_output.find("Everything has been undone."), std::string::npos);
  app().typeLine("REDO");
  EXPECT_EQ(types(), (Types{"LINE", "LINE"}));
  app().typeLine("REDO");
  EXPECT_EQ(types(), (Types{"LINE", "LINE", "CIRCLE"}));
  EXPECT_NE(m_output.find("Undone: CIRCLE"), std::string::npos) << m_output;
  EXPECT_NE(m_output.find("Redone: LINE"), std::string::npos) << m_output;
}

TEST_F(Undo, newCommandAfterUndo_leavesNothingToRedo)
{
  app().typeLine("LINE 0,0 1,0 ");
  app().typeLine("U");
  app().typeLine("CIRCLE 0,0 1");
  app().typeLine("REDO");
  EXPECT_NE(m_output.find("Nothing to redo"), std::string::npos) << m_output;
  EXPECT_EQ(types(), (Types{"CIRCLE"}));
}

TEST_F(Undo, commandsThatChangeNothing_areNoSteps)
{
  app().typeLine("LINE 0,0 1,0 ");
  app().typeLine("SETVAR TEXTSIZE\n"); // only prints
  app().typeLine("ERASE ");            // chooses nothing
  app().typeLine("U");
  EXPECT_NE(m_output.find("Undone: LINE"), std::string::npos) << m_output;
}

TEST_F(Undo, undoCount_takesBackSeveralAndStopsAtTheBeginning)
{
  for (const char* c : {"LINE 0,0 1,0 ", "CIRCLE 0,0 1", "CIRCLE 0,0 2"})
    app().typeLine(c);
  app().typeLine("UNDO 2");
  EXPECT_EQ(types(), (Types{"LINE"}));
  app().typeLine("UNDO 5");
  EXPECT_TRUE(types().empty());
  EXPECT_NE(m_output.find("Everything has been undone."), std::string::npos);
  app().typeLine("UNDO 0");
  EXPECT_NE(m_output.find("Requires a nonzero value."), std::string::npos) << m_output;
}

TEST_F(Undo, erasedObjects_comeBack)
{
  app().typeLine("CIRCLE 0,0 1");
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db()->getModelSpaceId().openObject());
  const std::string handle = ms->entityIds().back().getHandle().text();
  app().typeLine(OdString("ERASE " + handle + " "));
  EXPECT_TRUE(types().empty());
  app().typeLine("U");
  EXPECT_EQ(types(), (Types{"CIRCLE"}));
}

TEST_F(Undo, headerVariables_goBackIncludingOnesTheDrawingLacked)
{
  ASSERT_EQ(db()->headerVar("$TEXTSIZE"), nullptr);
  app().typeLine("SETVAR TEXTSIZE 4");
  app().typeLine("SETVAR DIMSCALE 3");
  app().typeLine("U");
  EXPECT_EQ(db()->getDIMSCALE(), 1.0);
  EXPECT_EQ(db()->getHeaderDouble("$TEXTSIZE"), 4.0);
  app().typeLine("U");
  EXPECT_EQ(db()->headerVar("$TEXTSIZE"), nullptr) << "a variable the drawing did not hold is gone again";
  app().typeLine("REDO");
  EXPECT_EQ(db()->getHeaderDouble("$TEXTSIZE"), 4.0);
}

// What a tool does: outside any command it makes its layer current (making
// the layer), its command draws, and when the command ends the layer of
// the user is put back. One undo takes all of it back.
TEST_F(Undo, toolRun_isOneStepWithItsChangesOutsideTheCommand)
{
  struct Restorer : OdStaticRxObject<HostEditorReactor>
  {
    OdDbDatabase* db = nullptr;
    OdDbObjectId saved;
    void commandEnded(const OdString&) override
    {
      if (!saved.isNull())
        db->setCLAYER(std::exchange(saved, OdDbObjectId()));
    }
  } restorer;
  restorer.db = db();
  app().editorEvents().addReactor(&restorer);

  doc()->lockDocument("EXECUTETOOL");
  restorer.saved = db()->getCLAYER();
  OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
  layer->setName("Tool layer");
  db()->setCLAYER(OdDbSymbolTable::cast(db()->getLayerTableId().openObject(OdDb::kForWrite))->add(layer));
  doc()->unlockDocument();
  doc()->sendCommand("^C^CLINE 0,0 9,9 ^M");
  app().editorEvents().removeReactor(&restorer);

  ASSERT_EQ(types(), (Types{"LINE"}));
  EXPECT_EQ(currentLayer(), OdString("0"));
  app().typeLine("U");
  EXPECT_TRUE(types().empty());
  EXPECT_FALSE(hasLayer("Tool layer")) << "the layer the tool made goes with its command";
  EXPECT_EQ(currentLayer(), OdString("0"));
  app().typeLine("U");
  EXPECT_NE(m_output.find("Everything has been undone."), std::string::npos) << "it was one step";
  app().typeLine("REDO");
  ASSERT_EQ(types(), (Types{"LINE"}));
  EXPECT_TRUE(hasLayer("Tool layer"));
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db()->getModelSpaceId().openObject());
  EXPECT_EQ(OdDbEntity::cast(ms->entityIds().back().openObject())->layer(), OdString("Tool layer"));
  EXPECT_EQ(currentLayer(), OdString("0"));
}

TEST_F(Undo, changesWithoutAnyCommand_areAStepOfTheirOwn)
{
  app().typeLine("CIRCLE 0,0 1");
  doc()->lockDocument("EXECUTETOOL");
  db()->setDIMSCALE(5.0);
  doc()->unlockDocument();
  EXPECT_TRUE(doc()->canUndo());
  app().typeLine("U");
  EXPECT_NE(m_output.find("Undone: changes outside a command"), std::string::npos) << m_output;
  EXPECT_EQ(db()->getDIMSCALE(), 1.0);
  EXPECT_EQ(types(), (Types{"CIRCLE"}));
}

TEST_F(Undo, editMenuApi_answersAndFiresUndoEvents)
{
  struct UndoEvents : OdStaticRxObject<HostEditorReactor>
  {
    int started = 0, finished = 0;
    void undoWillStart() override { ++started; }
    void undoFinished() override { ++finished; }
  } undoEvents;
  app().editorEvents().addReactor(&undoEvents);
  EXPECT_FALSE(doc()->canUndo());
  EXPECT_FALSE(doc()->undo());
  app().typeLine("CIRCLE 0,0 1");
  EXPECT_TRUE(doc()->canUndo());
  EXPECT_FALSE(doc()->canRedo());
  EXPECT_TRUE(doc()->undo());
  EXPECT_TRUE(types().empty());
  EXPECT_TRUE(doc()->canRedo());
  EXPECT_TRUE(doc()->redo());
  EXPECT_EQ(types(), (Types{"CIRCLE"}));
  EXPECT_EQ(undoEvents.started, 1);
  EXPECT_EQ(undoEvents.finished, 1);
  EXPECT_EQ(m_recorder.events.back(), "ended:REDO");

  // Not while a command waits for input.
  bool couldUndo = true, didUndo = true;
  app().commandLine().setInputWaiter([&]() {
    couldUndo = doc()->canUndo();
    didUndo = doc()->undo();
    return false;
  });
  app().typeLine("LINE");
  app().commandLine().setInputWaiter(nullptr);
  EXPECT_FALSE(couldUndo);
  EXPECT_FALSE(didUndo);
  EXPECT_EQ(types(), (Types{"CIRCLE"}));
  app().editorEvents().removeReactor(&undoEvents);
}

TEST_F(Undo, stepOfAPrivateCommand_isNamedAfterTheCommandItRuns)
{
  addCommand("__tsttool", [](IMemParam*) { HostApp::instance().commandLine().runCommandByName("CIRCLE"); });
  app().typeLine("__tsttool 0,0 1");
  app().typeLine("U");
  EXPECT_NE(m_output.find("Undone: CIRCLE"), std::string::npos) << m_output;
}

TEST_F(Undo, eachDocument_hasItsOwnSteps)
{
  HostDocumentImpl* first = doc();
  app().typeLine("CIRCLE 0,0 1");
  app().typeLine("NewDocument");
  app().typeLine("LINE 0,0 1,1 ");
  app().typeLine("U");
  EXPECT_TRUE(types().empty());
  EXPECT_FALSE(doc()->canUndo());
  EXPECT_TRUE(first->canUndo()) << "the first drawing keeps its CIRCLE step";
}

} // namespace
