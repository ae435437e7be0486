// OdRxModule: a run-time module of the SDK, and the linker that loads
// modules from shared libraries by name.
#pragma once

#include "sdk/kernel/OdArray.h"
#include "sdk/kernel/OdRxObject.h"

class OdRxModule : public OdRxObject
{
  ODRX_DECLARE_MEMBERS(OdRxModule);

public:
  // The library's handle, as given to odrxCreateModuleObject.
  virtual void* sysData() = 0;
  // Destroys the module object; called after uninitApp.
  virtual void deleteModule() = 0;
  virtual void initApp() = 0;
  virtual void uninitApp() = 0;
  // The library's full file name.
  virtual OdString moduleName() const = 0;
};

// The frame a module class is instantiated through: it keeps the library's
// handle and is not counted (the module lives until deleteModule).
template <class T>
class OdRxWin32Module : public T
{
public:
  explicit OdRxWin32Module(void* handle) : m_handle(handle) {}
  void* sysData() override { return m_handle; }
  void addRef() override {}
  void release() override {}
  long numRefs() const override { return 1; }

private:
  void* m_handle;
};

// The API version that this SDK speaks; a module reporting another major
// version is refused.
inline constexpr int kOdApiVersion[4] = {4, 3, 1, 0};

extern "C" {
// The two entry points that every module library exports.
using OdRxCreateModuleObjectFn = OdRxModule* (*)(void*& instance);
using OdRxGetApiVersionFn = void (*)(int& a, int& b, int& c, int& d);
}

// Defines the two entry points of a module library for its module class.
// The first odrxCreateModuleObject makes the object with the caller's
// handle, keeps it in `Slot` (an OdRxModule* of the library, which the
// class's deleteModule clears) and clears the caller's variable; every call
// answers the object kept. A failure to make it answers null, which the
// loader reports.
#define ODRX_DEFINE_DYNAMIC_MODULE(ModuleClass, Slot)                                   \
  extern "C" OdRxModule* odrxCreateModuleObject(void*& instance)                       \
  {                                                                                     \
    if (!(Slot)) {                                                                      \
      try {                                                                             \
        (Slot) = new OdRxWin32Module<ModuleClass>(instance);                            \
        instance = nullptr;                                                             \
      } catch (...) {                                                                   \
        return nullptr;                                                                 \
      }                                                                                 \
    }                                                                                   \
    return (Slot);                                                                      \
  }                                                                                     \
  extern "C" void odrxGetAPIVersion(int& a, int& b, int& c, int& d)                    \
  {                                                                                     \
    a = kOdApiVersion[0];                                                               \
    b = kOdApiVersion[1];                                                               \
    c = kOdApiVersion[2];                                                               \
    d = kOdApiVersion[3];                                                               \
  }

class OdRxDynamicLinker
{
public:
  // Loads the module of that name (a path, or a name looked up as
  // "lib<name>.so", "<name>.so" and "<name>" in the search folders), creates
  // its module object and runs initApp. A module already loaded is given
  // back as it is. Throws OdError naming the module and the reason.
  OdRxModule* loadModule(const OdString& name);
  // Runs uninitApp and deleteModule. The library stays mapped: commands and
  // function objects it registered with the host may outlive the module.
  bool unloadModule(const OdString& name);
  OdRxModule* getModule(const OdString& name) const;
  OdArray<OdString> loadedModules() const;

  // Folders searched, in order, before the system's own library search:
  // $VERDANI_MODULE_PATH (colon separated), then the folder of the running
  // program, then the folder of this library.
  void addSearchPath(const OdString& folder);
  OdArray<OdString> searchPaths() const;
};

OdRxDynamicLinker* odrxDynamicLinker();
