// The lookups through which a module finds its host. They live in this
// library, so that every program linking it (the console, the desktop
// program, test programs) is a host; a module finds them with
// dlsym(RTLD_DEFAULT, ...).
#include "app/core/HostApp.h"
#include "app/core/HostCmdFactoryImpl.h"
#include "app/core/HostLookupExports.h"
#include "app/core/HostServicesImpl.h"

#include <dlfcn.h>

#include <string>

#define VERDANI_HOST_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

// The file of this library, found from an address inside it.
const std::string& ownLibraryFile()
{
  static const std::string file = [] {
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&ownLibraryFile), &info) && info.dli_fname)
      return std::string(info.dli_fname);
    return std::string();
  }();
  return file;
}

HostServices* hostServices()
{
  return &HostApp::instance().services();
}

} // namespace

VERDANI_HOST_EXPORT void* GetMainDllInstance()
{
  // RTLD_NOLOAD only finds the library already mapped: it takes one more
  // reference, once per process.
  static void* handle = ownLibraryFile().empty() ? nullptr
                                                 : dlopen(ownLibraryFile().c_str(), RTLD_NOW | RTLD_NOLOAD);
  return handle;
}

VERDANI_HOST_EXPORT void* get_host_funcptr(int id)
{
  if (id == kHostServicesFuncId)
    return reinterpret_cast<void*>(&hostServices);
  return nullptr;
}

VERDANI_HOST_EXPORT IApp* GetApp()
{
  HostApp& app = HostApp::instance();
  app.addRef();
  return &app;
}

VERDANI_HOST_EXPORT const wchar_t* GetMainDllNameW()
{
  static const std::wstring name = QString::fromLocal8Bit(ownLibraryFile().c_str()).toStdWString();
  return name.c_str();
}

VERDANI_HOST_EXPORT void new_ICmdFactory(ICmdFactory** out)
{
  if (!out)
    return;
  ICmdFactory* factory = &HostApp::instance().cmdFactory();
  factory->addRef();
  *out = factory;
}
