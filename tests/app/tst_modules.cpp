// Modules loaded by name: they find the host through its lookups, register
// commands at load, and go through initApp and uninitApp with the host's
// starts and shutdowns.
#include "tests/app/AppTestSupport.h"

#include "app/core/HostAppPropImpl.h"
#include "sdk/kernel/OdRxModule.h"

#include <dlfcn.h>

using namespace apptest;

namespace {

template <class T>
T& moduleVariable(const char* name)
{
  void* library = dlopen(TEST_MODULE_DIR "/libtstappmodule.so", RTLD_NOW | RTLD_NOLOAD);
  EXPECT_NE(library, nullptr);
  T* variable = library ? static_cast<T*>(dlsym(library, name)) : nullptr;
  if (library)
    dlclose(library);
  static T none{};
  return variable ? *variable : none;
}

// The module's counters, as they were before the test's start of the host
// (the library stays loaded from one test to the next).
struct Counts
{
  int init = moduleVariable<int>("tstmod_initCount");
  int uninit = moduleVariable<int>("tstmod_uninitCount");
  int runs = moduleVariable<int>("tstmod_commandRuns");
  int props = moduleVariable<int>("tstmod_propChanges");
};

class AppModules : public HostFixture
{
protected:
  void SetUp() override
  {
    odrxDynamicLinker()->addSearchPath(TEST_MODULE_DIR);
    m_options.modules = {"tstappmodule"};
    HostFixture::SetUp();
    // Read once the library is surely loaded; initApp has just run.
    m_before = Counts();
    m_before.init -= 1;
  }
  Counts m_before{0, 0, 0, 0};
};

TEST_F(AppModules, moduleLoadedByName_registersAndHearsTheHost)
{
  EXPECT_TRUE(moduleVariable<bool>("tstmod_registered")) << "the factory was found while the library loaded";
  EXPECT_EQ(moduleVariable<int>("tstmod_initCount"), m_before.init + 1);
  EXPECT_EQ(app().loadedModules(), (std::vector<OdString>{"tstappmodule"}));
  EXPECT_EQ(HostCommandTable::instance().find("tstmodcmd")->group, OdString("TSTMOD"));

  const int ended = moduleVariable<int>("tstmod_endedEvents");
  app().typeLine("TstModCmd");
  EXPECT_EQ(moduleVariable<int>("tstmod_commandRuns"), m_before.runs + 1);
  EXPECT_EQ(moduleVariable<int>("tstmod_endedEvents"), ended + 1);
  EXPECT_NE(m_output.find("Command: TstModCmd\nmodule command ran"), std::string::npos) << m_output;

  app().setOption("CommonDirs", "/elsewhere");
  EXPECT_EQ(moduleVariable<int>("tstmod_propChanges"), m_before.props + 1);
}

TEST_F(AppModules, restart_unloadsAndLoadsTheModuleAgain)
{
  restart();
  EXPECT_EQ(moduleVariable<int>("tstmod_uninitCount"), m_before.uninit + 1);
  EXPECT_EQ(moduleVariable<int>("tstmod_initCount"), m_before.init + 2);
  EXPECT_EQ(app().appProp().reactorCount(), 1u) << "the module's reactor of the first run is gone";
  // The command registered at the first load still runs: the library stays.
  app().typeLine("TstModCmd");
  EXPECT_EQ(moduleVariable<int>("tstmod_commandRuns"), m_before.runs + 1);
  app().shutdown();
  EXPECT_EQ(moduleVariable<int>("tstmod_uninitCount"), m_before.uninit + 2);
  EXPECT_EQ(app().editorEvents().reactorCount(), 0u);
  app().start(m_options);
}

TEST_F(AppModules, missingModule_isToldAndTheHostGoesOn)
{
  EXPECT_FALSE(app().loadModule("no_such_module_here"));
  EXPECT_NE(m_output.find("Cannot load module no_such_module_here"), std::string::npos) << m_output;
  app().typeLine("NewDocument");
  EXPECT_EQ(m_recorder.events.back(), "ended:NewDocument");
}

} // namespace
