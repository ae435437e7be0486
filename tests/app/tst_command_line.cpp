// The command processor: macros, cancel, event order, lookup of commands.
#include "tests/app/AppTestSupport.h"

#include "app/core/HostCmdFactoryImpl.h"
#include "app/core/HostLookupExports.h"
#include "hostsdk/core/HostCore.h"
#include "app/core/HostDocumentManager.h"
#include "app/core/HostServicesImpl.h"

#include <stdexcept>

using namespace apptest;

namespace {

class AppCommandLine : public HostFixture
{
protected:
  void SetUp() override
  {
    HostFixture::SetUp();
    addCommand("TstEnd", [](IMemParam*) {});
    addCommand("TstAsk", [this](IMemParam*) {
      OdString s;
      if (app().commandLine().getString("Word: ", s))
        m_read.push_back(s.toUtf8());
    });
    addCommand("TstAskLine", [this](IMemParam*) {
      OdString s;
      if (app().commandLine().getString("Line: ", s, true))
        m_read.push_back(s.toUtf8());
    });
    addCommand("TstThrow", [](IMemParam*) { throw OdError(eInvalidInput, "bad things"); });
    addCommand("TstStdThrow", [](IMemParam*) { throw std::runtime_error("worse things"); });
  }

  std::vector<std::string> m_read;
};

using Events = std::vector<std::string>;

struct EventRow
{
  const char* name;
  const char* typed;
  Events events;
  const char* printed; // a line the command line must show, or null
};

// Test names in ctest carry the row: its name, not its bytes.
void PrintTo(const EventRow& row, std::ostream* os)
{
  *os << row.name;
}

class AppCommandEvents : public AppCommandLine, public ::testing::WithParamInterface<EventRow>
{
};

TEST_P(AppCommandEvents, typedText_givesEventsInOrder)
{
  app().commandLine().type(GetParam().typed);
  EXPECT_EQ(m_recorder.events, GetParam().events) << "typed: " << GetParam().typed;
  if (GetParam().printed) {
    EXPECT_NE(m_output.find(GetParam().printed), std::string::npos) << m_output;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AppCommandEvents,
    ::testing::Values(
        EventRow{"ended_enter", "TstEnd\n", {"willStart:TstEnd", "ended:TstEnd"}, "Command: TstEnd"},
        EventRow{"ended_space", "TstEnd ", {"willStart:TstEnd", "ended:TstEnd"}, nullptr},
        EventRow{"ended_caretM", "TstEnd^M", {"willStart:TstEnd", "ended:TstEnd"}, nullptr},
        EventRow{"ended_windowsLineEnd", "TstEnd\r\n\r\n", {"willStart:TstEnd", "ended:TstEnd"}, nullptr},
        // The name is looked up ignoring case; events carry the global name.
        EventRow{"ended_anyCase", "tstEND\n", {"willStart:TstEnd", "ended:TstEnd"}, nullptr},
        EventRow{"cancelled_caretC", "TstAsk\n^C", {"willStart:TstAsk", "cancelled:TstAsk"}, "*Cancel*"},
        EventRow{"cancelled_midInput", "TstAsk^Mhalf^C", {"willStart:TstAsk", "cancelled:TstAsk"}, "*Cancel*"},
        EventRow{"failed_odError", "TstThrow\n", {"willStart:TstThrow", "failed:TstThrow"}, "Command TstThrow failed: bad things"},
        EventRow{"failed_stdException", "TstStdThrow\n", {"willStart:TstStdThrow", "failed:TstStdThrow"}, "worse things"},
        // Cancels with nothing running only print; the command after them runs.
        EventRow{"idleCancels_thenCommand", "^C^CTstEnd ", {"willStart:TstEnd", "ended:TstEnd"}, "*Cancel*"},
        EventRow{"unknown", "Nope\n", {}, "Unknown command \"Nope\".\n"},
        // Without an Enter nothing is complete, so nothing runs.
        EventRow{"noEnter_nothingRuns", "TstEnd", {}, nullptr},
        // A command cancelled by the end of the input.
        EventRow{"cancelled_endOfInput", "TstAsk\n", {"willStart:TstAsk", "cancelled:TstAsk"}, "*Cancel*"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(AppCommandLine, macro_splitsInputsAtEnterSpaceAndQuotes)
{
  app().commandLine().type("TstAsk^Mone^MTstAsk two TstAskLine^Mthree four\nTstAsk \"<block>\" \n");
  EXPECT_EQ(m_read, (std::vector<std::string>{"one", "two", "three four", "\"<block>\""}));
  EXPECT_EQ(m_recorder.events.size(), 8u);
  EXPECT_EQ(m_output.find("Unknown command"), std::string::npos) << m_output;
}

TEST_F(AppCommandLine, macro_inPieces_isReadWhole)
{
  app().commandLine().type("Tst");
  app().commandLine().type("Ask^");
  EXPECT_TRUE(m_recorder.events.empty()) << "a lone caret waits for what follows";
  app().commandLine().type("Mword^M");
  EXPECT_EQ(m_read, (std::vector<std::string>{"word"}));
  app().commandLine().type("lone^");
  app().commandLine().type("x");
  EXPECT_EQ(app().commandLine().queue().pending(), OdString("lone^x")) << "a caret before another letter is text";
}

TEST_F(AppCommandLine, spaceAfterCommandName_leftoverWordIsNextCommand)
{
  app().typeLine("TstAsk hello world");
  EXPECT_EQ(m_read, (std::vector<std::string>{"hello"}));
  EXPECT_NE(m_output.find("Unknown command \"world\"."), std::string::npos) << m_output;
}

TEST_F(AppCommandLine, exit_endsAndDropsWaitingInput)
{
  app().commandLine().type("TstEnd\nExit\nTstEnd\n");
  EXPECT_TRUE(app().exitRequested());
  EXPECT_EQ(m_recorder.events,
            (Events{"willStart:TstEnd", "ended:TstEnd", "willStart:Exit", "ended:Exit"}));
  EXPECT_TRUE(app().commandLine().queue().isEmpty());
}

TEST_F(AppCommandLine, sendCommandDuringCommand_runsAfterItEnds)
{
  addCommand("TstSend", [](IMemParam*) {
    HostDocument* document = HostApp::instance().services().currentDocument();
    ASSERT_NE(document, nullptr);
    document->sendCommand("TstEnd ");
    EXPECT_EQ(HostApp::instance().commandLine().activeCommand(), OdString("TstSend"));
  });
  app().typeLine("TstSend");
  EXPECT_EQ(m_recorder.events, (Events{"willStart:TstSend", "ended:TstSend", "willStart:TstEnd", "ended:TstEnd"}));
}

TEST_F(AppCommandLine, documentGetString_readsForModuleCommands)
{
  // What a module's command does: read through the current document.
  addCommand("TstDocAsk", [this](IMemParam*) {
    OdString s;
    HostDocument* document = HostApp::instance().services().currentDocument();
    if (document->getString(OdString(), s))
      m_read.push_back(s.toUtf8());
  });
  app().services().currentDocument()->sendCommand("TstDocAsk^M\"<block>\" ");
  app().services().currentDocument()->sendCommand("\n");
  EXPECT_EQ(m_read, (std::vector<std::string>{"\"<block>\""}));
  EXPECT_EQ(m_recorder.events, (Events{"willStart:TstDocAsk", "ended:TstDocAsk"}));
}

TEST_F(AppCommandLine, runScript_commandReadsFollowingLines)
{
  std::istringstream script("TstAskLine\nall of this line\nTstEnd\n");
  EXPECT_FALSE(app().runScript(script));
  EXPECT_EQ(m_read, (std::vector<std::string>{"all of this line"}));
  EXPECT_EQ(m_recorder.events.back(), "ended:TstEnd");
  EXPECT_NE(m_output.find("Line: all of this line\n"), std::string::npos) << m_output;
}

// Functions registered the way modules do it: through new_ICmdFactory.
int g_functionRuns = 0;
void countingFunction()
{
  ++g_functionRuns;
}

class CountingCommand : public CRkUnknownImpl<ICmdProcess>
{
public:
  static inline std::vector<std::string> steps;
  static inline int alive = 0;
  CountingCommand() { ++alive; }
  ~CountingCommand() override { --alive; }
  int run(IRkUnknown* argument) override
  {
    CRkPtr<IMemParam> params = CRkPtr<IMemParam>::query(argument);
    CRkVariant v;
    steps.push_back(params && params->getValue("Size", v) ? "run:" + v.toString().toUtf8() : "run");
    return 0;
  }
  int prepare() override { steps.push_back("prepare"); return 0; }
  int finish(IRkUnknown*) override { steps.push_back("finish"); return 0; }
  int getState() override { return 1; }
  int getContext(IRkUnknown**) override { return 0; }
  void setContext(IRkUnknown*) override {}
  static int create(ICmdProcess** out, void*)
  {
    *out = new CountingCommand;
    return 1;
  }
};

TEST_F(AppCommandLine, factoryCommands_runTypedAndByName)
{
  CRkPtr<ICmdFactory> factory = CRkPtr<ICmdFactory>::query(&app());
  ASSERT_TRUE(factory);
  ASSERT_TRUE(factory->registerCommandFunction(kTestGroup, "TstLocal", "TstGlobal", 0, &countingFunction, 0, 0));
  ASSERT_TRUE(factory->registerCommandClass("TstClass", &CountingCommand::create, kTestGroup, 0, 0, 0));
  // The same name twice in one group keeps the first.
  EXPECT_FALSE(factory->registerCommandFunction(kTestGroup, "tstglobal", "tstglobal", 0, &countingFunction, 0, 0));

  g_functionRuns = 0;
  app().typeLine("TSTLOCAL");
  app().typeLine("tstglobal");
  EXPECT_EQ(g_functionRuns, 2);
  EXPECT_EQ(m_recorder.events.front(), "willStart:TstGlobal");

  CountingCommand::steps.clear();
  CRkPtr<ICmdRun> run;
  ASSERT_TRUE(factory->getCommand("tstclass", run.put()));
  CRkPtr<IMemParam> params = CRkPtr<IMemParam>::attach(new_MemParam());
  params->setValue("Size", CRkVariant(std::int32_t(7)));
  EXPECT_EQ(run->run(params.get()), 1);
  EXPECT_EQ(CountingCommand::steps, (std::vector<std::string>{"prepare", "run:7", "finish"}));
  EXPECT_EQ(CountingCommand::alive, 0) << "the command object must be released after its run";
  EXPECT_FALSE(factory->getCommand("NoSuchCommand", run.put()));
}

TEST_F(AppCommandLine, nestedRunByName_eventsNestAndParametersArrive)
{
  std::string seen;
  addCommand("TstInner", [&seen](IMemParam* p) {
    CRkVariant v;
    if (p && p->getValue("Name", v))
      seen = v.toString().toUtf8();
  });
  addCommand("TstOuter", [](IMemParam*) {
    CRkPtr<ICmdFactory> factory;
    new_ICmdFactory(factory.put());
    CRkPtr<ICmdRun> inner;
    ASSERT_TRUE(factory->getCommand("TstInner", inner.put()));
    CRkPtr<IMemParam> params = CRkPtr<IMemParam>::attach(new_MemParam());
    params->setValue("Name", CRkVariant(OdString("door")));
    inner->run(params.get());
  });
  app().typeLine("TstOuter");
  EXPECT_EQ(seen, "door");
  EXPECT_EQ(m_recorder.events,
            (Events{"willStart:TstOuter", "willStart:TstInner", "ended:TstInner", "ended:TstOuter"}));
}

TEST_F(AppCommandLine, groups_keepSameNameApart)
{
  ASSERT_TRUE(addCommand("TstTwin", [](IMemParam*) {}));
  ASSERT_TRUE(addCommand("TstTwin", [](IMemParam*) {}, "TESTGROUP2"));
  EXPECT_FALSE(addCommand("tsttwin", [](IMemParam*) {})) << "one name once per group";
  auto& table = HostCommandTable::instance();
  EXPECT_EQ(table.find("TESTGROUP2", "TSTTWIN")->group, OdString("TESTGROUP2"));
  EXPECT_EQ(table.find("tsttwin")->group, OdString(kTestGroup)) << "the group used first wins a bare name";
  EXPECT_EQ(table.remove("TESTGROUP2"), 1);
  EXPECT_EQ(table.find("TESTGROUP2", "TstTwin"), nullptr);
  for (const char* name : {"NewDocument", "OpenDocument", "CloseDocument", "Exit", "SETDIR"})
    EXPECT_EQ(table.find(name)->group, OdString("VERDANI")) << name;
}

TEST_F(AppCommandLine, reactorRemovedDuringDispatch_isNotCalledAgain)
{
  EventRecorder second;
  app().editorEvents().addReactor(&second);
  app().editorEvents().addReactor(&second); // added once only
  // The first reactor takes the second one out in the middle of a round.
  m_recorder.onEvent = [&](const std::string&) { app().editorEvents().removeReactor(&second); };
  app().typeLine("TstEnd");
  EXPECT_EQ(m_recorder.events.size(), 2u);
  EXPECT_TRUE(second.events.empty());
  m_recorder.onEvent = nullptr;
}

TEST_F(AppCommandLine, reactorThatThrows_othersStillHear)
{
  struct Thrower : OdStaticRxObject<HostEditorReactor>
  {
    void commandEnded(const OdString&) override { throw OdError(eInvalidInput, "reactor trouble"); }
  } thrower;
  EventRecorder after;
  app().editorEvents().addReactor(&thrower);
  app().editorEvents().addReactor(&after);
  app().typeLine("TstEnd");
  app().editorEvents().removeReactor(&thrower);
  app().editorEvents().removeReactor(&after);
  EXPECT_EQ(after.events, (Events{"willStart:TstEnd", "ended:TstEnd"}));
  EXPECT_NE(m_output.find("reactor trouble"), std::string::npos) << m_output;
}

TEST_F(AppCommandLine, documents_newOpenClose)
{
  ASSERT_NE(app().documents().current(), nullptr);
  EXPECT_EQ(app().documents().current()->documentName(), OdString("Drawing1.dxf"));
  ASSERT_NE(app().documents().current()->database(), nullptr); // a new, empty drawing
  app().typeLine("NewDocument");
  EXPECT_EQ(app().services().currentDocument()->documentName(), OdString("Drawing2.dxf"));

  const QString file = m_home.path() + "/plan one.dxf";
  QFile f(file);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n  8\n0\n 10\n0\n 20\n0\n 11\n5\n 21\n5\n  0\nENDSEC\n  0\nEOF\n");
  f.close();
  const QString garbage = m_home.path() + "/garbage.dxf";
  QFile g(garbage);
  ASSERT_TRUE(g.open(QIODevice::WriteOnly));
  g.write("this is no drawing");
  g.close();
  app().typeLine("OpenDocument\n" + OdString(garbage));
  EXPECT_NE(m_output.find("Cannot open the document"), std::string::npos) << m_output;
  // Commands read their input from what was typed after them.
  app().typeLine("OpenDocument\n" + OdString(file));
  EXPECT_EQ(app().services().currentDocument()->documentName(), OdString("plan one.dxf"));
  app().typeLine("OpenDocument\n" + OdString(m_home.path() + "/missing.dxf"));
  EXPECT_NE(m_output.find("missing.dxf does not exist"), std::string::npos) << m_output;
  app().typeLine("OpenDocument\nold.dwg");
  EXPECT_NE(m_output.find("DWG"), std::string::npos) << m_output;
  EXPECT_EQ(app().documents().documents().size(), 3u);

  app().typeLine("CloseDocument");
  EXPECT_EQ(app().services().currentDocument()->documentName(), OdString("Drawing2.dxf"));
  app().typeLine("CloseDocument");
  app().typeLine("CloseDocument");
  EXPECT_EQ(app().services().currentDocument(), nullptr);
  app().typeLine("CloseDocument");
  EXPECT_NE(m_output.find("No document is open."), std::string::npos);
  EXPECT_EQ(m_recorder.events.back(), "ended:CloseDocument");
}

TEST_F(AppCommandLine, messageBox_printsAndAnswersDefault)
{
  EXPECT_EQ(hostMessageBox("Replace the palette?", "Tool Palettes", 4 | 32), int(kHostIdYes));
  EXPECT_EQ(hostMessageBox("Saved.", "Tool Palettes", 64), int(kHostIdOk));
  EXPECT_NE(m_output.find("Tool Palettes: Replace the palette?\n"), std::string::npos) << m_output;
}

TEST_F(AppCommandLine, output_linesUpBothMessageHabits)
{
  m_output.clear();
  HostCommandOutput* out = app().services().commandOutput();
  out->print("\nFirst %d%%", 50);
  out->print("\nSecond");
  app().output().printLine("Third");
  EXPECT_EQ(m_output, "First 50%\nSecond\nThird\n");
}

} // namespace
