// The exported functions for other modules.
#include "module/TcExports.h"

#include "module/TcModuleState.h"

#include "model/OdTcCatalogItem.h"
#include "module/OdTcPaletteManager.h"

namespace tc {

OdTcPaletteManager* odtcToolPaletteManager()
{
  return paletteManager.get();
}

bool odtcToolPaletteVisible()
{
  return paletteVisible;
}

OdTcCatalogItem* odtcGetSelectedItem()
{
  auto* tree = paletteSetView<ITcUiTreeView>(kITcUiTreeView);
  return tree ? tree->selectedItem() : nullptr;
}

void odtcInitReactor(OdTcCatalogItem* item)
{
  auto* tree = paletteSetView<ITcUiTreeView>(kITcUiTreeView);
  if (!tree || !item)
    return;
  if (OdTcCatalogItemReactor* reactor = tree->catalogItemReactor())
    item->addReactor(reactor);
}

void odtcUninitReactor(OdTcCatalogItem* item)
{
  auto* tree = paletteSetView<ITcUiTreeView>(kITcUiTreeView);
  if (!tree || !item)
    return;
  if (OdTcCatalogItemReactor* reactor = tree->catalogItemReactor())
    item->removeReactor(reactor);
}

} // namespace tc

const char* odtcCatalogPathsUtf8()
{
  static std::string text;
  text = tc::valueStorage ? tc::valueStorage->catalogPaths().toUtf8() : std::string();
  return text.c_str();
}
