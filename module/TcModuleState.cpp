// The module-wide state, and its start and stop.
#include "module/TcModuleState.h"

#include "module/OdTcPaletteManagerImpl.h"
#include "module/TcToolCompletion.h"

#include "images/TcImageClasses.h"
#include "persist/OdTcTagTable.h"
#include "persist/TcModelTags.h"
#include "properties/TcPropertyClasses.h"
#include "tools/TcToolClasses.h"

#include "hostsdk/core/HostCore.h"
#include "sdk/kernel/OdRxClass.h"

#include <memory>

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

HostEditorEvents* editorEvents()
{
  HostServices* services = hostServices();
  return services ? services->editorEvents() : nullptr;
}

// A module-wide object made through the class description of T: OdError
// 255 without a description, OdError_NotThatKindOfClass when the object
// made is of another class.
template <class T>
OdSmartPtr<T> createThroughClass()
{
  OdRxClass* description = T::desc();
  if (!description)
    throw OdError(eNotRegistered, "a class of the module is not registered");
  OdRxObjectPtr object = description->create();
  OdSmartPtr<T> typed = T::cast(object.get());
  if (typed.isNull())
    throw OdError_NotThatKindOfClass();
  return typed;
}
} // namespace

TcModuleState::FileLayer::FileLayer()
{
  registerModelTags(OdTcTagTable::instance());
  registerImageClasses(OdTcTagTable::instance());
  registerPropertyClasses(OdTcTagTable::instance());
  registerToolTags(OdTcTagTable::instance());
  odtcSetFileStore(&store);
}

TcModuleState::FileLayer::~FileLayer()
{
  odtcSetFileStore(nullptr);
  OdTcTagTable::instance().clear();
}

TcModuleState::TcModuleState()
{
  // What was made before a failure is undone: the host must not keep a
  // reactor or a provider of a module that did not start.
  try {
    m_valueStorage = OdTcValueStorageImpl::createNew();
    m_paletteManager = OdTcPaletteManagerImpl::createNew(m_valueStorage);
    m_editorReactor = createThroughClass<TcEditorReactor>();
    m_conveyor = OdTcConveyorImpl::createNew();
    m_stateSaver = OdTcStateSaverImpl::createNew();
    m_toolBuffer = OdTcToolBuffer::createNew(m_paletteManager);
    m_commandConveyor = createThroughClass<OdTcCommandConveyor>();
    m_pipeline = std::make_unique<TcToolPipeline>(m_editorReactor, m_commandConveyor);
    TcToolPipeline::install(m_pipeline.get());
    if (HostEditorEvents* events = editorEvents()) {
      events->addReactor(m_editorReactor);
      m_watchesEditor = true;
    }
    m_paletteManager->loadCatalogs();
    m_paletteVisible = false;
    if (HostEdCompletion::Registry* registry = completionRegistry()) {
      registry->addProvider("tools", toolCompletionProvider());
      m_offersTools = true;
    }
  } catch (...) {
    releaseObjects();
    throw;
  }
}

TcModuleState::~TcModuleState()
{
  releaseObjects();
}

void TcModuleState::releaseObjects()
{
  // A tool that runs now is dropped without restoring anything.
  if (std::exchange(m_watchesEditor, false))
    if (HostEditorEvents* events = editorEvents())
      events->removeReactor(m_editorReactor);
  if (TcToolPipeline::current() == m_pipeline.get())
    TcToolPipeline::install(nullptr);
  m_pipeline.reset();
  m_valueStorage = nullptr;
  m_paletteManager = nullptr;
  m_editorReactor = nullptr;
  m_conveyor = nullptr;
  m_stateSaver = nullptr;
  m_toolBuffer = nullptr;
  m_commandConveyor = nullptr;
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

OdTcStateSaverImpl* stateSaver()
{
  return g_state ? g_state->stateSaver() : nullptr;
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
