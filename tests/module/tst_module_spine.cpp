// The module's spine against a host: loading, the commands and exported
// functions, initApp and uninitApp, the configuration reactor.
#include "tests/module/FakeHost.h"

#include "model/OdTcCatalogImpl.h"
#include "module/OdTcModule.h"
#include "module/OdTcPaletteManager.h"
#include "model/OdTcPersist.h"
#include "module/TcCfgChangeReactor.h"
#include "module/TcCmd.h"
#include "module/TcExports.h"
#include "module/TcModuleState.h"

#include "sdk/kernel/OdRxClass.h"

#include <gtest/gtest.h>

extern "C" OdRxModule* odrxCreateModuleObject(void*& instance);
extern "C" void odrxGetAPIVersion(int& a, int& b, int& c, int& d);

using namespace tc;

namespace {

const fakehost::Command* findCommand(const std::string& name)
{
  for (const auto& c : fakehost::state().commands)
    if (c.name == name)
      return &c;
  return nullptr;
}

int errorCode(const std::function<void()>& f)
{
  try {
    f();
  } catch (const OdError& e) {
    return e.code();
  }
  return 0;
}

} // namespace

TEST(ModuleEntry, commandsRegisteredInGroupHostWhileLoading)
{
  const auto* palettes = findCommand("ToolPalettes");
  const auto* execute = findCommand("__executetool");
  ASSERT_TRUE(palettes && execute);
  EXPECT_EQ(palettes->group, "HOST");
  EXPECT_NE(palettes->creator, nullptr);
  EXPECT_EQ(execute->group, "HOST");
  EXPECT_NE(execute->function, nullptr);
  execute->function(); // no tool waiting: nothing happens
}

TEST(ModuleEntry, oneModuleObjectForTwoCalls_andApiVersion)
{
  int handle = 0;
  void* first = &handle;
  OdRxModule* a = odrxCreateModuleObject(first);
  EXPECT_EQ(first, nullptr); // the caller's variable is cleared
  void* second = &handle;
  OdRxModule* b = odrxCreateModuleObject(second);
  EXPECT_EQ(a, b);
  EXPECT_EQ(second, &handle); // and left alone the second time
  EXPECT_EQ(a->sysData(), &handle);
  EXPECT_TRUE(a->moduleName().find("libtoolpalettes.so") >= 0);
  int v[4] = {};
  odrxGetAPIVersion(v[0], v[1], v[2], v[3]);
  EXPECT_EQ(std::vector<int>(v, v + 4), (std::vector<int>{4, 3, 1, 0}));
}

TEST(ModuleEntry, loaderFindsTheModuleByName)
{
  OdRxModule* m = odrxDynamicLinker()->loadModule("toolpalettes");
  void* dummy = nullptr;
  EXPECT_EQ(m, odrxCreateModuleObject(dummy));
  EXPECT_NE(OdTcPersist::desc(), nullptr);
  EXPECT_TRUE(odrxDynamicLinker()->unloadModule("toolpalettes"));
  EXPECT_EQ(OdTcPersist::desc(), nullptr);
  EXPECT_EQ(moduleObject, nullptr); // deleteModule cleared it
}

class ModuleLife : public ::testing::Test
{
protected:
  void SetUp() override
  {
    void* h = nullptr;
    m_module = odrxCreateModuleObject(h);
  }
  void TearDown() override
  {
    if (OdTcPersist::desc())
      m_module->uninitApp();
  }
  OdRxModule* m_module = nullptr;
};

TEST_F(ModuleLife, initApp_registersClassesAndProvider_uninitApp_removesThem)
{
  m_module->initApp();
  EXPECT_TRUE(odrxClassDictionary()->has("OdTcPersist"));
  EXPECT_EQ(OdTcPersist::desc()->myParent(), OdRxObject::desc());
  ASSERT_TRUE(fakehost::state().providers.count("tools"));
  EXPECT_FALSE(odtcToolPaletteVisible());
  m_module->uninitApp();
  EXPECT_FALSE(odrxClassDictionary()->has("OdTcPersist"));
  EXPECT_EQ(fakehost::state().providers.count("tools"), 0u);
}

TEST_F(ModuleLife, initAppTwice_throws313_uninitAppTwice_throws255)
{
  m_module->initApp();
  EXPECT_EQ(errorCode([&] { m_module->initApp(); }), 313);
  m_module->uninitApp();
  EXPECT_EQ(errorCode([&] { m_module->uninitApp(); }), 255);
}

TEST_F(ModuleLife, uninitAppAfterFailedInitApp_throws255AtOnce)
{
  OdTcPersist::rxInit(); // someone else holds the name: initApp fails
  EXPECT_EQ(errorCode([&] { m_module->initApp(); }), 313);
  OdTcPersist::rxUninit();
  EXPECT_EQ(errorCode([&] { m_module->uninitApp(); }), 255);
}

TEST_F(ModuleLife, exportsBeforeAnyWindow_answerNothing)
{
  m_module->initApp();
  EXPECT_EQ(odtcGetSelectedItem(), nullptr);
  odtcInitReactor(nullptr);
  odtcUninitReactor(nullptr);
  EXPECT_NE(odtcToolPaletteManager(), nullptr);
  EXPECT_FALSE(odtcToolPaletteVisible());
  m_module->uninitApp();
  EXPECT_EQ(odtcToolPaletteManager(), nullptr);
}

TEST(TcCmdState, plainBeforeAnyRun_runWithoutWindowWritesStartupEntry)
{
  fakehost::state().startup.clear();
  fakehost::state().printed.clear();
  ICmdProcess* cmd = nullptr;
  ASSERT_EQ(TcCmd::create(&cmd, nullptr), 1);
  EXPECT_EQ(cmd->getState(), 1);
  EXPECT_EQ(cmd->run(nullptr), 0);
  // This host has no main window: the command says so, and the start-up
  // entry is written all the same.
  EXPECT_NE(fakehost::state().printed.find("desktop host"), std::string::npos);
  EXPECT_EQ(fakehost::state().startup.count("ToolPalettes"), 1u);
  EXPECT_EQ(cmd->getState(), 1);
  EXPECT_EQ(paletteSet, nullptr);

  IRkUnknown* context = nullptr;
  EXPECT_EQ(cmd->getContext(&context), 0);
  cmd->setContext(cmd);
  ASSERT_EQ(cmd->getContext(&context), 1);
  EXPECT_EQ(context, cmd);
  context->release();
  cmd->setContext(nullptr);
  void* asUnknown = nullptr;
  EXPECT_TRUE(cmd->queryInterface(IRkUnknown::kIID, &asUnknown));
  static_cast<IRkUnknown*>(asUnknown)->release();
  EXPECT_FALSE(cmd->queryInterface(IApp::kIID, &asUnknown));
  cmd->release();
}

TEST(TcCfgChangeReactorTest, optionChangeRefreshesCatalogsAndTouchesNoWindow)
{
  int refreshed = 0;
  auto* reactor = new TcCfgChangeReactor([&] { ++refreshed; });
  ASSERT_EQ(fakehost::state().propReactors.size(), 1u);
  fakehost::changeOption("ToolPaletteDir");
  EXPECT_EQ(refreshed, 1);
  EXPECT_EQ(paletteSet, nullptr);
  reactor->detach();
  EXPECT_TRUE(fakehost::state().propReactors.empty());
  fakehost::changeOption("ToolPaletteDir");
  EXPECT_EQ(refreshed, 1);
  reactor->release();
}

namespace {

// A palette set with a tree, standing in for the window of the desktop
// host: enough for the exported functions that ask the window.
struct FakeTree : ITcUiTreeView
{
  bool queryInterface(int, void**) override { return false; }
  void loadTree() override {}
  OdTcCatalogItem* selectedItem() override { return selected; }
  OdTcCatalogItemReactor* catalogItemReactor() override { return &reactor; }
  OdTcCatalogItem* selected = nullptr;
  OdTcCatalogItemReactor reactor;
};

struct FakePaletteSet : ITcUiPaletteSet
{
  bool queryInterface(int type, void** out) override
  {
    if (type != kITcUiTreeView)
      return false;
    *out = static_cast<ITcUiTreeView*>(&tree);
    return true;
  }
  void show(bool visible) override { shown = visible; }
  bool isShown() const override { return shown; }
  FakeTree tree;
  bool shown = false;
};

} // namespace

TEST_F(ModuleLife, exportsWithAWindow_reachTheTree_andTheToggleFollowsIt)
{
  m_module->initApp();
  FakePaletteSet window;
  paletteSet = &window;
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  window.tree.selected = catalog;
  EXPECT_EQ(odtcGetSelectedItem(), catalog.get());
  odtcInitReactor(catalog);
  EXPECT_TRUE(catalog->removeReactor(&window.tree.reactor)); // it was added
  odtcInitReactor(catalog);
  odtcUninitReactor(catalog);
  EXPECT_FALSE(catalog->removeReactor(&window.tree.reactor));

  // The command hides and shows the window it finds, and keeps the start-up
  // entry in step.
  ICmdProcess* cmd = nullptr;
  TcCmd::create(&cmd, nullptr);
  paletteVisible = true;
  EXPECT_EQ(cmd->getState(), 3);
  cmd->run(nullptr);
  EXPECT_FALSE(window.shown);
  EXPECT_FALSE(odtcToolPaletteVisible());
  EXPECT_EQ(fakehost::state().startup.count("ToolPalettes"), 0u);
  EXPECT_EQ(cmd->getState(), 1);
  cmd->run(nullptr); // as after the close button: shown again, entry again
  EXPECT_TRUE(window.shown);
  EXPECT_EQ(fakehost::state().startup.count("ToolPalettes"), 1u);
  cmd->release();
  paletteSet = nullptr;
  paletteVisible = false;
}
