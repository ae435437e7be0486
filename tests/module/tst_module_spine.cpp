// The module's spine against a host: loading, the commands and exported
// functions, initApp and uninitApp, a second start in the same process, and
// the edge at which nothing of the module reaches the host.
#include "tests/module/FakeHost.h"

#include "model/OdTcCatalogImpl.h"
#include "module/OdTcModule.h"
#include "module/OdTcPaletteManager.h"
#include "module/TcCmd.h"
#include "module/TcExports.h"
#include "module/TcModuleState.h"

#include "sdk/kernel/OdRxClass.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <functional>

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

bool printed(const std::string& text)
{
  return fakehost::state().printed.find(text) != std::string::npos;
}

std::vector<std::string> catalogNames()
{
  std::vector<std::string> names;
  OdTcPaletteManager* manager = odtcToolPaletteManager();
  if (!manager)
    return names;
  auto e = manager->catalogs();
  OdString path;
  OdTcCatalog* c = nullptr;
  while (e->next(path, c))
    names.push_back(c->displayName().toUtf8());
  return names;
}

// A palette set with a tree, standing in for the window of the desktop
// host: enough for the exported functions that ask the window.
struct FakeTree : ITcUiTreeView
{
  bool queryInterface(int, void**) override { return false; }
  void loadTree() override {}
  OdTcCatalogItem* selectedItem() override
  {
    if (broken)
      throw std::runtime_error("the tree is broken");
    return selected;
  }
  OdTcCatalogItemReactor* catalogItemReactor() override { return &reactor; }
  OdTcCatalogItem* selected = nullptr;
  OdTcCatalogItemReactor reactor;
  bool broken = false;
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

// Each test starts with a fresh host and leaves the module stopped.
class ModuleLife : public ::testing::Test
{
protected:
  void SetUp() override
  {
    fakehost::reset();
    fakehost::state().userDataFolder = OdString(m_dir.filePath(QStringLiteral("data")));
    fakehost::state().stdDirs["ToolPaletteDir"] = CRkVariant(OdString(m_dir.filePath(QStringLiteral("data/ToolPalette"))));
    void* h = nullptr;
    m_module = odrxCreateModuleObject(h);
  }
  void TearDown() override
  {
    if (TcModuleState::current())
      m_module->uninitApp();
    EXPECT_EQ(TcModuleState::current(), nullptr);
    EXPECT_EQ(OdTcPersist::desc(), nullptr) << "a class outlived the module";
  }

  QTemporaryDir m_dir;
  OdRxModule* m_module = nullptr;
};

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
  EXPECT_TRUE(a->moduleName().find("libtoolpalettes.so") >= 0);
  int v[4] = {};
  odrxGetAPIVersion(v[0], v[1], v[2], v[3]);
  EXPECT_EQ(std::vector<int>(v, v + 4), (std::vector<int>{4, 3, 1, 0}));
}

TEST_F(ModuleLife, loadUseUnloadLoadAgain_inOneProcess)
{
  // A catalog of the user with one palette, on disk.
  odrxDynamicLinker()->loadModule("toolpalettes");
  ASSERT_NE(odtcToolPaletteManager(), nullptr);
  OdTcCatalog* user = odtcToolPaletteManager()->currentCatalog();
  ASSERT_NE(user, nullptr);
  OdTcToolPalettePtr palette = OdTcToolPalette::createObject();
  palette->setName("Walls");
  user->addChild(palette);
  odtcToolPaletteManager()->saveCatalogs();
  palette = nullptr;
  ASSERT_TRUE(odrxDynamicLinker()->unloadModule("toolpalettes"));
  EXPECT_EQ(moduleObject, nullptr); // deleteModule cleared it
  EXPECT_EQ(odtcToolPaletteManager(), nullptr);
  EXPECT_TRUE(fakehost::state().providers.empty());
  EXPECT_TRUE(fakehost::state().propReactors.empty());

  odrxDynamicLinker()->loadModule("toolpalettes");
  EXPECT_EQ(catalogNames(), std::vector<std::string>{"Tool Palettes"});
  OdTcCatalog* again = odtcToolPaletteManager()->currentCatalog();
  ASSERT_NE(again, nullptr);
  auto palettes = again->enumeratePalettes();
  OdTcCatalogItem* walls = palettes->next();
  ASSERT_NE(walls, nullptr);
  EXPECT_EQ(walls->displayName(), "Walls");
  odtcToolPaletteManager()->saveCatalogs();
  EXPECT_TRUE(odrxDynamicLinker()->unloadModule("toolpalettes"));
  EXPECT_EQ(fakehost::state().printed, "");
  void* h = nullptr;
  m_module = odrxCreateModuleObject(h);
}

TEST_F(ModuleLife, initApp_registersClassesAndProvider_uninitApp_removesThem)
{
  m_module->initApp();
  EXPECT_TRUE(odrxClassDictionary()->has("OdTcPersist"));
  EXPECT_EQ(OdTcPersist::desc()->myParent(), OdRxObject::desc());
  // A class implemented above the model is created through its description.
  ASSERT_NE(OdTcImageList::desc()->constructor(), nullptr);
  EXPECT_FALSE(OdTcImageList::createObject().isNull());
  ASSERT_TRUE(fakehost::state().providers.count("tools"));
  EXPECT_EQ(fakehost::state().propReactors.size(), 1u);
  EXPECT_FALSE(odtcToolPaletteVisible());
  m_module->uninitApp();
  EXPECT_FALSE(odrxClassDictionary()->has("OdTcPersist"));
  EXPECT_EQ(fakehost::state().providers.count("tools"), 0u);
  EXPECT_TRUE(fakehost::state().propReactors.empty());
  EXPECT_EQ(fakehost::state().printed, "");
}

TEST_F(ModuleLife, initAppTwice_toldAndTheFirstStartStays_uninitAppTwice_told)
{
  m_module->initApp();
  OdTcPaletteManager* manager = odtcToolPaletteManager();
  EXPECT_NO_THROW(m_module->initApp());
  EXPECT_TRUE(printed("The tool palettes module cannot start: the module is started already")) << fakehost::state().printed;
  EXPECT_EQ(odtcToolPaletteManager(), manager);
  m_module->uninitApp();
  fakehost::state().printed.clear();
  EXPECT_NO_THROW(m_module->uninitApp());
  EXPECT_TRUE(printed("The tool palettes module cannot stop: the module is not started")) << fakehost::state().printed;
}

TEST_F(ModuleLife, initAppFailingMidway_undoesItsWork_andALaterStartWorks)
{
  // Another module holds one of the names: the start fails in the middle
  // of the registration.
  OdRxClass* taken = newOdRxClass("OdTcCatalogView", OdRxObject::desc());
  EXPECT_NO_THROW(m_module->initApp());
  EXPECT_TRUE(printed("class already registered: OdTcCatalogView")) << fakehost::state().printed;
  EXPECT_EQ(OdTcPersist::desc(), nullptr);
  EXPECT_EQ(odtcToolPaletteManager(), nullptr);
  EXPECT_TRUE(fakehost::state().providers.empty());
  // Commands of a module that did not start say so.
  ICmdProcess* cmd = nullptr;
  TcCmd::create(&cmd, nullptr);
  EXPECT_NO_THROW(cmd->run(nullptr));
  EXPECT_TRUE(printed("ToolPalettes failed: the tool palettes module is not started")) << fakehost::state().printed;
  cmd->release();
  EXPECT_NO_THROW(m_module->uninitApp());
  EXPECT_TRUE(printed("cannot stop: the module is not started"));

  deleteOdRxClass(taken);
  fakehost::state().printed.clear();
  m_module->initApp();
  EXPECT_NE(odtcToolPaletteManager(), nullptr);
  EXPECT_EQ(fakehost::state().printed, "");
}

TEST_F(ModuleLife, brokenConfigurationValue_atStart_isToldAndAStartAfterTheFixWorks)
{
  fakehost::state().brokenKey = "ToolPaletteDir";
  EXPECT_NO_THROW(m_module->initApp());
  EXPECT_TRUE(printed("cannot start: the value ToolPaletteDir is broken")) << fakehost::state().printed;
  EXPECT_EQ(OdTcPersist::desc(), nullptr);
  EXPECT_TRUE(fakehost::state().propReactors.empty());
  fakehost::state().brokenKey.clear();
  m_module->initApp();
  EXPECT_NE(odtcToolPaletteManager(), nullptr);
}

namespace {

// What the host calls into a started module, each with a part of the host
// broken so that it throws inside the module.
struct EdgeRow
{
  const char* name;
  std::function<void(FakePaletteSet& window)> breakAndCall;
  const char* told;
};

void PrintTo(const EdgeRow& row, std::ostream* os)
{
  *os << row.name;
}

class ModuleEdge : public ModuleLife, public ::testing::WithParamInterface<EdgeRow>
{
};

} // namespace

TEST_P(ModuleEdge, anExceptionInsideIsToldAndTheModuleGoesOn)
{
  m_module->initApp();
  FakePaletteSet window;
  TcModuleState::current()->setPaletteSet(&window);
  EXPECT_NO_THROW(GetParam().breakAndCall(window));
  EXPECT_TRUE(printed(GetParam().told)) << fakehost::state().printed;
  // Still working afterwards.
  fakehost::state().brokenKey.clear();
  fakehost::state().brokenProfile = false;
  window.tree.broken = false;
  EXPECT_EQ(catalogNames(), std::vector<std::string>{"Tool Palettes"});
  TcModuleState::current()->setPaletteSet(nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    rows, ModuleEdge,
    ::testing::Values(
        EdgeRow{"optionChange",
                [](FakePaletteSet&) {
                  fakehost::state().brokenKey = "ToolPaletteDir";
                  fakehost::changeOption("ToolPaletteDir");
                },
                "could not follow the change of the options: the value ToolPaletteDir is broken"},
        EdgeRow{"toolPalettesCommand",
                [](FakePaletteSet&) {
                  fakehost::state().brokenProfile = true;
                  ICmdProcess* cmd = nullptr;
                  TcCmd::create(&cmd, nullptr);
                  cmd->run(nullptr);
                  cmd->release();
                },
                "ToolPalettes failed: the configuration tree is broken"},
        EdgeRow{"exportedSelectedItem",
                [](FakePaletteSet& window) {
                  window.tree.broken = true;
                  EXPECT_EQ(odtcGetSelectedItem(), nullptr);
                },
                "odtcGetSelectedItem failed: the tree is broken"},
        EdgeRow{"exportedPaths",
                [](FakePaletteSet&) {
                  fakehost::state().brokenKey = "CommonDirs";
                  EXPECT_STREQ(odtcCatalogPathsUtf8(), "");
                },
                "odtcCatalogPathsUtf8 failed: the value CommonDirs is broken"}),
    [](const ::testing::TestParamInfo<EdgeRow>& info) { return std::string(info.param.name); });

TEST(TcCmdState, plainBeforeAnyRun_andTheContextIsCounted)
{
  fakehost::reset();
  ICmdProcess* cmd = nullptr;
  ASSERT_EQ(TcCmd::create(&cmd, nullptr), 1);
  EXPECT_EQ(cmd->getState(), 1);
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

TEST_F(ModuleLife, toolPalettesWithoutWindow_saysSoAndWritesTheStartupEntry)
{
  m_module->initApp();
  ICmdProcess* cmd = nullptr;
  TcCmd::create(&cmd, nullptr);
  EXPECT_EQ(cmd->run(nullptr), 0);
  // This host has no main window: the command says so, and the start-up
  // entry is written all the same.
  EXPECT_TRUE(printed("desktop host"));
  EXPECT_EQ(fakehost::state().startup.count("ToolPalettes"), 1u);
  EXPECT_EQ(cmd->getState(), 1);
  EXPECT_EQ(TcModuleState::current()->paletteSet(), nullptr);
  cmd->release();
}

TEST_F(ModuleLife, exportsWithAWindow_reachTheTree_andTheToggleFollowsIt)
{
  m_module->initApp();
  EXPECT_EQ(odtcGetSelectedItem(), nullptr); // no window yet
  FakePaletteSet window;
  TcModuleState* state = TcModuleState::current();
  state->setPaletteSet(&window);
  OdTcCatalogPtr catalog = OdTcCatalog::createObject();
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
  state->setPaletteVisible(true);
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
  state->setPaletteSet(nullptr);
}
