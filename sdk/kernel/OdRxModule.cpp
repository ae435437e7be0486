// Module loading through dlopen.
#include "sdk/kernel/OdRxModule.h"

#include "sdk/kernel/OdRxClass.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <dlfcn.h>

#include <map>

ODRX_NO_CONS_DEFINE_MEMBERS(OdRxModule, OdRxObject)

namespace {

struct LoadedModule
{
  void* handle = nullptr;
  OdRxModule* module = nullptr;
};

struct LinkerState
{
  std::map<OdString, LoadedModule> modules; // by the name asked for
  OdArray<OdString> extraPaths;
};

LinkerState& state()
{
  static LinkerState s;
  return s;
}

OdString folderOf(const QString& file)
{
  return OdString(QFileInfo(file).absolutePath());
}

OdString ownLibraryFolder()
{
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&odrxDynamicLinker), &info) && info.dli_fname)
    return folderOf(QString::fromLocal8Bit(info.dli_fname));
  return OdString();
}

OdString programFolder()
{
  return folderOf(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget());
}

} // namespace

void OdRxDynamicLinker::addSearchPath(const OdString& folder)
{
  if (!state().extraPaths.contains(folder))
    state().extraPaths.append(folder);
}

OdArray<OdString> OdRxDynamicLinker::searchPaths() const
{
  OdArray<OdString> paths;
  const QString env = qEnvironmentVariable("VERDANI_MODULE_PATH");
  for (const QString& p : env.split(u':', Qt::SkipEmptyParts))
    paths.append(OdString(p));
  paths.append(state().extraPaths);
  for (const OdString& p : {programFolder(), ownLibraryFolder()})
    if (!p.isEmpty() && !paths.contains(p))
      paths.append(p);
  return paths;
}

OdRxModule* OdRxDynamicLinker::loadModule(const OdString& name)
{
  if (OdRxModule* m = getModule(name))
    return m;

  OdArray<OdString> candidates;
  if (name.find(u'/') >= 0) {
    candidates.append(name);
  } else {
    for (const OdString& folder : searchPaths())
      for (const OdString& file : {"lib" + name + ".so", name + ".so", name})
        candidates.append(folder + "/" + file);
    candidates.append("lib" + name + ".so"); // the system's own search
  }

  void* handle = nullptr;
  OdString lastError;
  for (const OdString& file : candidates) {
    if (file.find(u'/') >= 0 && !QFileInfo(file.qstring()).isFile())
      continue;
    handle = dlopen(file.toUtf8().c_str(), RTLD_NOW | RTLD_GLOBAL);
    if (handle)
      break;
    if (const char* e = dlerror())
      lastError = OdString(e);
  }
  if (!handle)
    throw OdError(eFileNotFound, OdString::formatted("Cannot load module %s%s%s", name,
                                                     lastError.isEmpty() ? "" : ": ", lastError));

  auto version = reinterpret_cast<OdRxGetApiVersionFn>(dlsym(handle, "odrxGetAPIVersion"));
  auto create = reinterpret_cast<OdRxCreateModuleObjectFn>(dlsym(handle, "odrxCreateModuleObject"));
  if (!create)
    throw OdError(eInvalidInput, OdString::formatted("%s is not a module: it has no odrxCreateModuleObject", name));
  if (version) {
    int a = 0, b = 0, c = 0, d = 0;
    version(a, b, c, d);
    if (a != kOdApiVersion[0])
      throw OdError(eInvalidInput,
                    OdString::formatted("Module %s speaks API %d.%d, this host %d.%d", name, a, b,
                                        kOdApiVersion[0], kOdApiVersion[1]));
  }
  void* instance = handle;
  OdRxModule* module = create(instance);
  if (!module)
    throw OdError(eInvalidInput, OdString::formatted("Module %s made no module object", name));
  state().modules[name] = LoadedModule{handle, module};
  try {
    module->initApp();
  } catch (...) {
    state().modules.erase(name);
    throw;
  }
  return module;
}

bool OdRxDynamicLinker::unloadModule(const OdString& name)
{
  auto& modules = state().modules;
  auto it = modules.find(name);
  if (it == modules.end())
    return false;
  OdRxModule* module = it->second.module;
  modules.erase(it);
  module->uninitApp();
  module->deleteModule();
  return true;
}

OdRxModule* OdRxDynamicLinker::getModule(const OdString& name) const
{
  auto& modules = state().modules;
  auto it = modules.find(name);
  return it == modules.end() ? nullptr : it->second.module;
}

OdArray<OdString> OdRxDynamicLinker::loadedModules() const
{
  OdArray<OdString> names;
  for (const auto& [name, m] : state().modules)
    names.append(name);
  return names;
}

OdRxDynamicLinker* odrxDynamicLinker()
{
  static OdRxDynamicLinker linker;
  return &linker;
}
