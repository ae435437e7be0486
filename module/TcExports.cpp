// The exported functions for other modules.
#include "TcExports.h"

#include "TcModuleState.h"

#include "OdTcPaletteManager.h"

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
  // Items take reactors once the catalog items are part of the module.
}

void odtcUninitReactor(OdTcCatalogItem* item)
{
  auto* tree = paletteSetView<ITcUiTreeView>(kITcUiTreeView);
  if (!tree || !item)
    return;
}

} // namespace tc

const char* odtcCatalogPathsUtf8()
{
  static std::string text;
  text = tc::valueStorage ? tc::valueStorage->catalogPaths().toUtf8() : std::string();
  return text.c_str();
}
