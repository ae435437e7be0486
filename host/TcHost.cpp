// The lookups of the host by name, through the dynamic linker.
#include "host/TcHost.h"

#include "hostsdk/core/HostLookup.h"

#include <dlfcn.h>

namespace tc {

namespace {

void* symbolOfProgram(const char* name)
{
  return dlsym(RTLD_DEFAULT, name);
}

// A library already loaded by the process, or null; never loads one.
void* loadedLibrary(const char* name)
{
  return dlopen(name, RTLD_NOW | RTLD_NOLOAD);
}

TcHostSession* g_session = nullptr; // not owned: the module state keeps it

} // namespace

void* hostMainLibrary()
{
  if (auto instance = reinterpret_cast<GetMainDllInstanceFn>(symbolOfProgram("GetMainDllInstance")))
    return instance();
  if (void* view = loadedLibrary("libhostview.so"))
    return view;
  if (void* app = loadedLibrary("libhostapp.so")) {
    if (auto ex = reinterpret_cast<GetMainDllInstanceFn>(dlsym(app, "GetMainDllInstanceEx")))
      return ex();
  }
  return nullptr;
}

HostServices* hostServices()
{
  void* library = hostMainLibrary();
  if (!library)
    return nullptr;
  auto funcPtr = reinterpret_cast<GetHostFuncPtrFn>(dlsym(library, "get_host_funcptr"));
  if (!funcPtr)
    return nullptr;
  auto services = reinterpret_cast<HostServicesFn>(funcPtr(kHostServicesFuncId));
  return services ? services() : nullptr;
}

CRkPtr<ICmdFactory> hostCmdFactory()
{
  void* library = nullptr;
  if (auto name = reinterpret_cast<GetMainDllNameWFn>(symbolOfProgram("GetMainDllNameW"))) {
    const OdString file(name());
    library = loadedLibrary(file.toUtf8().c_str());
  }
  if (!library && symbolOfProgram("GetMainDllNameW"))
    library = hostMainLibrary(); // the named library may be the program itself
  if (!library)
    library = loadedLibrary("libhostview.so");
  if (!library) {
    if (void* app = loadedLibrary("libhostapp.so"))
      if (auto ex = reinterpret_cast<GetMainDllInstanceFn>(dlsym(app, "GetMainDllInstanceEx")))
        library = ex();
  }
  if (!library)
    return CRkPtr<ICmdFactory>();
  auto create = reinterpret_cast<NewICmdFactoryFn>(dlsym(library, "new_ICmdFactory"));
  if (!create)
    return CRkPtr<ICmdFactory>();
  CRkPtr<ICmdFactory> factory;
  create(factory.put());
  return factory;
}

CRkPtr<IApp> lookupHostApp()
{
  GetAppFn getApp = nullptr;
  if (void* app = loadedLibrary("libhostapp.so"))
    getApp = reinterpret_cast<GetAppFn>(dlsym(app, "GetApp"));
  if (!getApp) {
    if (auto instance = reinterpret_cast<GetMainDllInstanceFn>(symbolOfProgram("GetMainDllInstance"))) {
      if (void* library = instance())
        getApp = reinterpret_cast<GetAppFn>(dlsym(library, "GetApp"));
    } else if (void* core = loadedLibrary("libhostcore.so")) {
      // A host without the main-library lookup creates its application
      // through the core's object factory.
      using CreateObjectFn = int (*)(const char* clsid, void* outer, const char* iid, void** out);
      if (auto create = reinterpret_cast<CreateObjectFn>(dlsym(core, "_CreateObjectC@16"))) {
        void* out = nullptr;
        if (create("CLSID_APP", nullptr, IApp::kIID, &out) && out)
          return CRkPtr<IApp>::attach(static_cast<IApp*>(out));
      }
    }
  }
  return getApp ? CRkPtr<IApp>::attach(getApp()) : CRkPtr<IApp>();
}

TcHostSession::TcHostSession() : m_previous(std::exchange(g_session, this))
{
}

TcHostSession::~TcHostSession()
{
  g_session = m_previous;
}

CRkPtr<IApp> TcHostSession::app()
{
  if (!m_app)
    m_app = lookupHostApp();
  return m_app;
}

CRkPtr<IApp> hostApp()
{
  return g_session ? g_session->app() : lookupHostApp();
}

HostCommandOutput* hostCommandOutput()
{
  HostServices* services = hostServices();
  if (!services)
    return nullptr;
  if (HostDocument* document = services->currentDocument())
    if (HostCommandOutput* out = document->commandOutput())
      return out;
  return services->commandOutput();
}

bool readStdDir(const char* key, OdString& out)
{
  out = OdString();
  CRkPtr<IApp> app = hostApp();
  auto dirs = CRkPtr<IStdDirs>::query(app.get());
  if (!dirs)
    return false;
  CRkVariant value;
  if (!dirs->getValue(key, value))
    return false;
  if (value.type() == CRkVariant::kStringA)
    out = OdString(value.narrow());
  else if (value.type() == CRkVariant::kStringW)
    out = value.wide();
  return !out.isEmpty();
}

OdString userProfileFolder()
{
  return OdString(qEnvironmentVariable("HOME"));
}

} // namespace tc
