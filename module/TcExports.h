// The functions that other host modules call.
#pragma once

namespace tc {

class OdTcPaletteManager;
class OdTcCatalogItem;

// The palette manager, or null before initApp.
OdTcPaletteManager* odtcToolPaletteManager();
bool odtcToolPaletteVisible();
// The item selected in the palette window's tree; null without the window.
OdTcCatalogItem* odtcGetSelectedItem();
// Adds, or removes, the tree's reactor to an item; nothing without the tree.
void odtcInitReactor(OdTcCatalogItem* item);
void odtcUninitReactor(OdTcCatalogItem* item);

} // namespace tc
