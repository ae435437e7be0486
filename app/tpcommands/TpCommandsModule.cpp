// The module of the reference host's tool palettes commands: it finds the
// host by its exported lookups and registers ToolPalettesList,
// ToolPalettesImages, ToolPalettesState, ToolPalettesSave and ToolPalettesRun
// with the host's command factory.
#include "app/tpcommands/TpCatalogList.h"
#include "app/tpcommands/TpStateCommand.h"
#include "app/tpcommands/TpToolRun.h"

#include "hostsdk/core/AppInterfaces.h"
#include "hostsdk/core/CmdInterfaces.h"
#include "hostsdk/core/HostLookup.h"
#include "hostsdk/core/HostServices.h"
#include "sdk/kernel/OdRxModule.h"

#include <dlfcn.h>

namespace {

HostServices* services()
{
  auto instance = reinterpret_cast<GetMainDllInstanceFn>(dlsym(RTLD_DEFAULT, "GetMainDllInstance"));
  void* library = instance ? instance() : nullptr;
  auto funcPtr = library ? reinterpret_cast<GetHostFuncPtrFn>(dlsym(library, "get_host_funcptr")) : nullptr;
  auto get = funcPtr ? reinterpret_cast<HostServicesFn>(funcPtr(kHostServicesFuncId)) : nullptr;
  return get ? get() : nullptr;
}

// Runs a command on the command line of the host; an error stays here.
void run(void (*command)(HostCommandOutput&))
{
  HostServices* host = services();
  HostCommandOutput* out = host ? host->commandOutput() : nullptr;
  if (!out)
    return;
  try {
    command(*out);
  } catch (const OdError& e) {
    out->print("%s\n", e.description());
  } catch (const std::exception& e) {
    out->print("%s\n", OdString(e.what()));
  }
}

void toolPalettesList()
{
  run([](HostCommandOutput& out) { tpcommands::listCatalogs(out, false); });
}

void toolPalettesImages()
{
  run([](HostCommandOutput& out) { tpcommands::listCatalogs(out, true); });
}

void toolPalettesState()
{
  run([](HostCommandOutput& out) {
    HostServices* host = services();
    tpcommands::rememberedState(out, host ? host->currentDocument() : nullptr);
  });
}

void toolPalettesSave()
{
  run(&tpcommands::saveCatalogs);
}

void toolPalettesRun()
{
  run([](HostCommandOutput& out) {
    if (HostServices* host = services())
      tpcommands::runTool(*host, out);
  });
}

OdRxModule* g_module = nullptr;

class TpCommandsModule : public OdRxModule
{
public:
  void deleteModule() override
  {
    g_module = nullptr;
    delete this;
  }
  // The host's table keeps commands for the life of the process: a second
  // start finds them there and its registration changes nothing.
  void initApp() override
  {
    auto getApp = reinterpret_cast<GetAppFn>(dlsym(RTLD_DEFAULT, "GetApp"));
    CRkPtr<IApp> app = CRkPtr<IApp>::attach(getApp ? getApp() : nullptr);
    if (auto factory = CRkPtr<ICmdFactory>::query(app.get())) {
      factory->registerCommandFunction("VERDANI", "ToolPalettesList", "ToolPalettesList", 0, &toolPalettesList, 0, 0);
      factory->registerCommandFunction("VERDANI", "ToolPalettesImages", "ToolPalettesImages", 0, &toolPalettesImages,
                                       0, 0);
      factory->registerCommandFunction("VERDANI", "ToolPalettesState", "ToolPalettesState", 0, &toolPalettesState, 0,
                                       0);
      factory->registerCommandFunction("VERDANI", "ToolPalettesSave", "ToolPalettesSave", 0, &toolPalettesSave, 0, 0);
      factory->registerCommandFunction("VERDANI", "ToolPalettesRun", "ToolPalettesRun", 0, &toolPalettesRun, 0, 0);
    }
  }
  void uninitApp() override {}
  OdString moduleName() const override { return "tpcommands"; }
};

} // namespace

ODRX_DEFINE_DYNAMIC_MODULE(TpCommandsModule, g_module)
