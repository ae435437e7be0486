// Finding the host through its exported lookups.
#include "hostsdk/patterns/PatHost.h"

#include "hostsdk/core/HostLookup.h"

#include <cstdio>

#include <dlfcn.h>

namespace {

// The host's main library answers first; a host that exports its lookups
// from the program itself answers through the process's global scope.
void* hostSymbol(const char* name)
{
  if (auto instance = reinterpret_cast<GetMainDllInstanceFn>(dlsym(RTLD_DEFAULT, "GetMainDllInstance")))
    if (void* library = instance())
      if (void* symbol = dlsym(library, name))
        return symbol;
  return dlsym(RTLD_DEFAULT, name);
}

} // namespace

HostServices* patHostServices()
{
  auto funcPtr = reinterpret_cast<GetHostFuncPtrFn>(hostSymbol("get_host_funcptr"));
  if (!funcPtr)
    return nullptr;
  auto services = reinterpret_cast<HostServicesFn>(funcPtr(kHostServicesFuncId));
  return services ? services() : nullptr;
}

CRkPtr<IApp> patHostApp()
{
  auto getApp = reinterpret_cast<GetAppFn>(hostSymbol("GetApp"));
  return getApp ? CRkPtr<IApp>::attach(getApp()) : CRkPtr<IApp>();
}

void patHostTell(const OdString& message)
{
  HostCommandOutput* out = nullptr;
  if (HostServices* services = patHostServices()) {
    if (HostDocument* document = services->currentDocument())
      out = document->commandOutput();
    if (!out)
      out = services->commandOutput();
  }
  if (out)
    out->printText("\n" + message);
  else
    std::fprintf(stderr, "%s\n", message.toUtf8().c_str());
}
