// Start and stop of the module.
#include "module/OdTcModule.h"

#include "module/OdTcPaletteManagerImpl.h"

#include "module/TcClassTable.h"
#include "host/TcHost.h"
#include "module/TcModuleState.h"
#include "host/TcToolCompletion.h"
#include "images/TcImageClasses.h"
#include "persist/OdTcTagTable.h"
#include "persist/TcFileStore.h"
#include "persist/TcModelTags.h"

#include <dlfcn.h>

namespace tc {

void OdTcModule::deleteModule()
{
  moduleObject = nullptr;
  delete this;
}

namespace {
TcFileStore g_fileStore;
}

void OdTcModule::initApp()
{
  registerModuleClasses();
  registerModelTags(OdTcTagTable::instance());
  registerImageClasses(OdTcTagTable::instance());
  odtcSetFileStore(&g_fileStore);
  valueStorage = OdTcValueStorageImpl::createNew();
  paletteManager = OdTcPaletteManagerImpl::createNew();
  paletteManager->loadCatalogs();
  paletteVisible = false;
  if (HostServices* services = hostServices())
    if (HostEdCompletion::Registry* registry = services->completionRegistry())
      registry->addProvider("tools", toolCompletionProvider());
}

void OdTcModule::uninitApp()
{
  unregisterModuleClasses();
  valueStorage = nullptr;
  paletteManager = nullptr;
  odtcSetFileStore(nullptr);
  OdTcTagTable::instance().clear();
  if (HostServices* services = hostServices())
    if (HostEdCompletion::Registry* registry = services->completionRegistry())
      registry->removeProvider("tools", nullptr);
  hostResetCache();
}

OdString OdTcModule::moduleName() const
{
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&registerModuleClasses), &info) && info.dli_fname)
    return OdString(QString::fromLocal8Bit(info.dli_fname));
  return OdString();
}

} // namespace tc
