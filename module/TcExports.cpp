// The exported functions for other modules.
#include "module/TcExports.h"

#include "module/TcModuleState.h"
#include "module/TcUiStateSaver.h"

#include "host/TcGuard.h"

#include "hostsdk/core/HostCore.h"

#include <string>

namespace tc {

namespace {
ITcUiTreeView* tree()
{
  const TcModuleState* state = TcModuleState::current();
  return state ? state->paletteSetView<ITcUiTreeView>(kITcUiTreeView) : nullptr;
}

OdString failure(const char* function)
{
  return OdString(function) + Supp_Translate(" failed: %s\n");
}
} // namespace

OdTcPaletteManager* odtcToolPaletteManager()
{
  return paletteManager();
}

bool odtcToolPaletteVisible()
{
  const TcModuleState* state = TcModuleState::current();
  return state && state->paletteVisible();
}

OdTcCatalogItem* odtcGetSelectedItem()
{
  OdTcCatalogItem* item = nullptr;
  tcGuarded(failure("odtcGetSelectedItem"), [&] {
    if (ITcUiTreeView* view = tree())
      item = view->selectedItem();
  });
  return item;
}

void odtcInitReactor(OdTcCatalogItem* item)
{
  tcGuarded(failure("odtcInitReactor"), [&] {
    ITcUiTreeView* view = tree();
    if (!view || !item)
      return;
    if (OdTcCatalogItemReactor* reactor = view->catalogItemReactor())
      item->addReactor(reactor);
  });
}

void odtcUninitReactor(OdTcCatalogItem* item)
{
  tcGuarded(failure("odtcUninitReactor"), [&] {
    ITcUiTreeView* view = tree();
    if (!view || !item)
      return;
    if (OdTcCatalogItemReactor* reactor = view->catalogItemReactor())
      item->removeReactor(reactor);
  });
}

bool odtcGetStateValue(const char* name, CRkVariant& value)
{
  bool found = false;
  tcGuarded(failure("odtcGetStateValue"), [&] {
    if (OdTcStateSaverImpl* saver = stateSaver())
      found = saver->getValue(name, value);
  });
  return found;
}

void odtcSetStateValue(const char* name, const CRkVariant& value)
{
  tcGuarded(failure("odtcSetStateValue"), [&] {
    if (OdTcStateSaverImpl* saver = stateSaver())
      saver->setValue(name, value);
  });
}

bool odtcGetStateDefault(const char* name, CRkVariant& value)
{
  return stateDefaultValue(name, value);
}

} // namespace tc

const char* odtcCatalogPathsUtf8()
{
  static std::string text;
  tc::tcGuarded(tc::failure("odtcCatalogPathsUtf8"), [] {
    text.clear();
    if (tc::OdTcValueStorageImpl* storage = tc::valueStorage())
      text = storage->catalogPaths().toUtf8();
  });
  return text.c_str();
}
