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

extern "C" {
// For the reference host's listing command: the catalog folders as the
// module finds them, ";"-separated, in UTF-8. Empty before initApp. The
// text lives until the next call.
const char* odtcCatalogPathsUtf8();
}

namespace tc {

} // namespace tc
