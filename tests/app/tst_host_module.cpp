// A module library for the host's tests: it finds the host the way the tool
// palettes module does (lookups by name), registers commands while it
// loads, and hooks reactors up in initApp. The test reads its counters
// through dlsym.
#include "hostsdk/core/AppInterfaces.h"
#include "hostsdk/core/CmdInterfaces.h"
#include "hostsdk/core/HostLookup.h"
#include "hostsdk/core/HostServices.h"
#include "sdk/kernel/OdRxModule.h"

#include <dlfcn.h>

extern "C" {
int tstmod_initCount = 0;
int tstmod_uninitCount = 0;
int tstmod_commandRuns = 0;
int tstmod_endedEvents = 0;
int tstmod_propChanges = 0;
bool tstmod_registered = false;
}

namespace {

HostServices* services()
{
  auto instance = reinterpret_cast<GetMainDllInstanceFn>(dlsym(RTLD_DEFAULT, "GetMainDllInstance"));
  void* library = instance ? instance() : nullptr;
  auto funcPtr = library ? reinterpret_cast<GetHostFuncPtrFn>(dlsym(library, "get_host_funcptr")) : nullptr;
  auto get = funcPtr ? reinterpret_cast<HostServicesFn>(funcPtr(kHostServicesFuncId)) : nullptr;
  return get ? get() : nullptr;
}

IApp* app()
{
  auto getApp = reinterpret_cast<GetAppFn>(dlsym(RTLD_DEFAULT, "GetApp"));
  return getApp ? getApp() : nullptr;
}

void moduleCommand()
{
  ++tstmod_commandRuns;
  if (HostServices* host = services())
    host->commandOutput()->print("\nmodule command ran %d", tstmod_commandRuns);
}

// Registered at library load, as static initialisers of modules do.
struct Registration
{
  Registration()
  {
    auto name = reinterpret_cast<GetMainDllNameWFn>(dlsym(RTLD_DEFAULT, "GetMainDllNameW"));
    if (!name)
      return;
    void* library = dlopen(OdString(name()).toUtf8().c_str(), RTLD_NOW | RTLD_NOLOAD);
    auto create = library ? reinterpret_cast<NewICmdFactoryFn>(dlsym(library, "new_ICmdFactory")) : nullptr;
    if (!create)
      return;
    ICmdFactory* factory = nullptr;
    create(&factory);
    if (factory) {
      tstmod_registered = factory->registerCommandFunction("TSTMOD", "TstModCmd", "TstModCmd", 0, &moduleCommand, 0, 0);
      factory->release();
    }
  }
} g_registration;

class Reactor : public OdStaticRxObject<HostEditorReactor>
{
public:
  void commandEnded(const OdString&) override { ++tstmod_endedEvents; }
} g_reactor;

class PropReactor : public CRkUnknownImpl<IPropReactor>
{
public:
  int onChange(const char*, const CRkVariant&) override
  {
    ++tstmod_propChanges;
    return 1;
  }
};
PropReactor* g_propReactor = nullptr;

class TestModule : public OdRxModule
{
public:
  void deleteModule() override;
  void initApp() override
  {
    ++tstmod_initCount;
    services()->editorEvents()->addReactor(&g_reactor);
    CRkPtr<IApp> application = CRkPtr<IApp>::attach(app());
    if (auto props = CRkPtr<IAppProp>::query(application.get())) {
      g_propReactor = new PropReactor;
      props->addPropReactor(g_propReactor);
    }
  }
  void uninitApp() override
  {
    ++tstmod_uninitCount;
    services()->editorEvents()->removeReactor(&g_reactor);
    CRkPtr<IApp> application = CRkPtr<IApp>::attach(app());
    if (auto props = CRkPtr<IAppProp>::query(application.get()); props && g_propReactor)
      props->removePropReactor(g_propReactor);
    if (g_propReactor)
      g_propReactor->release();
    g_propReactor = nullptr;
  }
  OdString moduleName() const override { return "tstappmodule"; }
};
OdRxModule* g_module = nullptr;

void TestModule::deleteModule()
{
  g_module = nullptr;
  delete this;
}

} // namespace

ODRX_DEFINE_DYNAMIC_MODULE(TestModule, g_module)
