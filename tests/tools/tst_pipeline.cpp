// The editor reactor's watch over the running tool, the keyword of
// "__executetool", and the command conveyor's records.
#include "tests/tools/ToolTestSupport.h"

#include "tools/TcEditorReactor.h"
#include "tools/TcExecuteTool.h"

#include <gtest/gtest.h>

using namespace tc;

namespace {

class Document : public HostDocument
{
public:
  HostCommandOutput* commandOutput() override { return nullptr; }
  OdString documentName() const override { return "Drawing1.dxf"; }
  void sendCommand(const OdString&) override {}
};

class Reactor : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerToolClasses(); }

  OdTcToolPtr running(const char* name)
  {
    OdTcToolPtr tool = OdTcToolImpl::createNew();
    tool->setName(name);
    tool->setRunningDocument(&m_document);
    m_reactor.setRunningTool(tool);
    return tool;
  }

  Document m_document;
  Document m_other;
  OdRxObjectImpl<TcEditorReactor> m_reactor;
};

} // namespace

TEST_F(Reactor, toolRunsOnlyInItsDocument)
{
  EXPECT_TRUE(m_reactor.canRunIn(&m_other));
  OdTcToolPtr tool = running("Door");
  EXPECT_TRUE(m_reactor.canRunIn(&m_document));
  EXPECT_FALSE(m_reactor.canRunIn(&m_other));
  EXPECT_EQ(m_reactor.runningToolName(), "Door");
  EXPECT_EQ(m_reactor.runningDocumentName(), "Drawing1.dxf");
}

TEST_F(Reactor, afterAForcedStop_theNextCancelIsSwallowedOnce)
{
  OdTcToolPtr first = running("First");
  m_reactor.forceStop();
  EXPECT_EQ(m_reactor.runningTool(), nullptr);
  EXPECT_EQ(first->runningDocument(), nullptr) << "the stopped tool is at rest";
  EXPECT_FALSE(m_reactor.isCancelArmed());

  OdTcToolPtr second = running("Second");
  m_reactor.cancelRun(); // the cancel that the second click typed
  EXPECT_EQ(m_reactor.runningTool(), second.get());
  EXPECT_TRUE(m_reactor.isCancelArmed());
  m_reactor.cancelRun(); // a cancel of the second tool's own command
  EXPECT_EQ(m_reactor.runningTool(), nullptr);
  EXPECT_EQ(second->runningDocument(), nullptr);
}

TEST_F(Reactor, commandsOfClosingAndExit_dropTheWatchWithoutRestoring)
{
  for (const char* command : {"CloseDocument", "Exit"}) {
    OdTcToolPtr tool = running("Door");
    m_reactor.commandEnded(command);
    EXPECT_EQ(m_reactor.runningTool(), nullptr) << command;
    EXPECT_EQ(tool->runningDocument(), &m_document) << "left set until the next click: " << command;
  }
  // Other commands end a run only in the current document, which a host
  // without documents does not have.
  OdTcToolPtr tool = running("Door");
  m_reactor.commandEnded("LINE");
  EXPECT_EQ(m_reactor.runningTool(), tool.get());
  m_reactor.stopAndRestore();
}

TEST(ExecuteToolKeyword, quotesBracketsAndTrailingBlanksDropped)
{
  struct Row
  {
    const char* input;
    const char* word;
  };
  for (const Row& row : {Row{"\"<block>\" ", "block"}, Row{"<xref>", "xref"}, Row{"\"raster\"", "raster"},
                         Row{"other", "other"}, Row{"", ""}})
    EXPECT_EQ(executeToolKeyword(row.input), OdString(row.word)) << row.input;
}

TEST(CommandConveyor, takingARecordLowersItsFlagOnly)
{
  OdRxObjectImpl<OdTcCommandConveyorImpl> conveyor;
  EXPECT_FALSE(conveyor.hasBlockParams());
  ToolBlockInsertParams block;
  block.blockName = "Door";
  block.isXref = true;
  conveyor.setBlockParams(block);
  ToolRasterInsertParams raster;
  raster.sourceFile = "/img/a.png";
  conveyor.setRasterParams(raster);
  EXPECT_TRUE(conveyor.hasBlockParams());
  EXPECT_EQ(conveyor.takeBlockParams().blockName, "Door");
  EXPECT_FALSE(conveyor.hasBlockParams());
  EXPECT_TRUE(conveyor.hasRasterParams()) << "each kind has its own place";
  EXPECT_EQ(conveyor.takeRasterParams().sourceFile, "/img/a.png");
  EXPECT_FALSE(conveyor.hasRasterParams());
}
