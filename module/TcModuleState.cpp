// The module-wide state, and its start and stop.
#include "module/TcModuleState.h"

#include "module/OdTcPaletteManagerImpl.h"

#include "host/TcToolCompletion.h"
#include "images/TcImageClasses.h"
#include "persist/OdTcTagTable.h"
#include "persist/TcModelTags.h"
#include "properties/TcPropertyClasses.h"

#include "hostsdk/core/HostCore.h"

namespace tc {

OdRxModule* moduleObject = nullptr;

namespace {
std::unique_ptr<TcModuleState> g_state;
TcPaletteSetCreator g_paletteSetCreator = nullptr;

HostEdCompletion::Registry* completionRegistry()
{
  HostServices* services = hostServices();
  return services ? services->completionRegistry() : nullptr;
}
} // namespace

TcModuleState::FileLayer::FileLayer()
{
  registerModelTags(OdTcTagTable::instance());
  registerImageClasses(OdTcTagTable::instance());
  registerPropertyClasses(OdTcTagTable::instance());
  odtcSetFileStore(&store);
}

TcModuleState::FileLayer::~FileLayer()
{
  odtcSetFileStore(nullptr);
  OdTcTagTable::instance().clear();
}

TcModuleState::TcModuleState()
{
  m_valueStorage = OdTcValueStorageImpl::createNew();
  m_paletteManager = OdTcPaletteManagerImpl::createNew(m_valueStorage);
  m_paletteManager->loadCatalogs();
  m_paletteVisible = false;
  if (HostEdCompletion::Registry* registry = completionRegistry()) {
    registry->addProvider("tools", toolCompletionProvider());
    m_offersTools = true;
  }
}

TcModuleState::~TcModuleState()
{
  releaseObjects();
}

void TcModuleState::releaseObjects()
{
  m_valueStorage = nullptr;
  m_paletteManager = nullptr;
  if (std::exchange(m_offersTools, false))
    if (HostEdCompletion::Registry* registry = completionRegistry())
      registry->removeProvider("tools", nullptr);
}

void TcModuleState::start()
{
  if (g_state)
    throw OdError(eAlreadyRegistered, "the module is started already");
  g_state.reset(new TcModuleState);
}

void TcModuleState::stop()
{
  if (!g_state || !TcClassRegistration::firstOfDeletionRegistered())
    throw OdError(eNotRegistered, "the module is not started");
  // The objects go before their classes: an object left without its class
  // would crash the next start of the module in the same process.
  std::unique_ptr<TcModuleState> state = std::move(g_state);
  state->releaseObjects();
  state->m_classes.unregisterAll();
}

TcModuleState* TcModuleState::current()
{
  return g_state.get();
}

OdTcValueStorageImpl* valueStorage()
{
  return g_state ? g_state->valueStorage() : nullptr;
}

OdTcPaletteManager* paletteManager()
{
  return g_state ? g_state->paletteManager() : nullptr;
}

TcModuleState& startedModule()
{
  if (!g_state)
    throw OdError(eNotRegistered, Supp_Translate("the tool palettes module is not started"));
  return *g_state;
}

void setPaletteSetCreator(TcPaletteSetCreator creator)
{
  g_paletteSetCreator = creator;
}

TcPaletteSetCreator paletteSetCreator()
{
  return g_paletteSetCreator;
}

} // namespace tc
