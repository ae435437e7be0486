// The library's entry: what happens while it loads and unloads, and the two
// functions that the host's module loader calls. Nothing here lets an error
// through to the process that loads the library.
#include "module/OdTcModule.h"
#include "module/TcCmd.h"
#include "module/TcModuleState.h"

#include "host/TcGuard.h"
#include "host/TcHost.h"
#include "tools/TcExecuteTool.h"

#include "hostsdk/core/HostCore.h"

#include <QEvent>

#include <dlfcn.h>

namespace tc {

int wmTcCustomize = 0;
int wmTcPaletteClosed = 0;

namespace {

// Process attach and detach. Must stay the first static object of this file.
struct LibraryEntry
{
  using RkAfxDllMainFn = int (*)(void* instance, unsigned reason);
  void* instance = nullptr;
  RkAfxDllMainFn afxMain = nullptr;

  LibraryEntry()
  {
    tcGuarded(Supp_Translate("The tool palettes module cannot find its library: %s\n"), [this] {
      Dl_info info{};
      if (dladdr(reinterpret_cast<void*>(&libraryAnchor), &info) && info.dli_fname)
        instance = dlopen(info.dli_fname, RTLD_NOW | RTLD_NOLOAD);
      // The host's translation of this module's resources, when it has one.
      using InitFn = void (*)(void*);
      for (const char* lib : {"libhostcore.so", "libhosttranslate.so"}) {
        if (void* h = dlopen(lib, RTLD_NOW | RTLD_NOLOAD)) {
          if (auto init = reinterpret_cast<InitFn>(dlsym(h, "_InitResTranslation"))) {
            init(instance);
            break;
          }
        }
      }
      if (instance)
        afxMain = reinterpret_cast<RkAfxDllMainFn>(dlsym(instance, "__RkAfxDllMain@8"));
      if (afxMain)
        afxMain(instance, 1);
    });
  }
  ~LibraryEntry()
  {
    try {
      if (afxMain)
        afxMain(instance, 0);
    } catch (...) {
    }
  }
  static void libraryAnchor() {}
} g_libraryEntry;

} // namespace

// The static objects below run in this order while the library loads.
const OdString kOtherLinetypeMarker("%otherLinetype%");
const OdString kUserArrowMarker("%userArrow%");

namespace {

void executeTool()
{
  tcGuarded(Supp_Translate("__executetool failed: %s\n"), &executeToolCommand);
}

// Registers the two commands with the host's factory; without a factory the
// library loads all the same.
struct CommandRegistration
{
  CommandRegistration()
  {
    tcGuarded(Supp_Translate("The commands of the tool palettes module cannot be registered: %s\n"), [] {
      if (CRkPtr<ICmdFactory> factory = hostCmdFactory())
        factory->registerCommandClass("ToolPalettes", &TcCmd::create, "HOST", 0, 0, 0);
      if (CRkPtr<ICmdFactory> factory = hostCmdFactory())
        factory->registerCommandFunction("HOST", "__executetool", "__executetool", 0, &executeTool, 0, 0);
    });
  }
} g_commandRegistration;

struct WindowMessages
{
  WindowMessages()
  {
    tcGuarded(Supp_Translate("The messages of the tool palettes window cannot be registered: %s\n"), [] {
      wmTcCustomize = QEvent::registerEventType();
      wmTcPaletteClosed = QEvent::registerEventType();
    });
  }
} g_windowMessages;

} // namespace

} // namespace tc

ODRX_DEFINE_DYNAMIC_MODULE(tc::OdTcModule, tc::moduleObject)
