// The functions that other host modules call. None lets an error through:
// a failure is told on the command line and gives the empty answer.
#pragma once

namespace tc {

class OdTcPaletteManager;
class OdTcCatalogItem;

// The palette manager, or null while the module is not started.
OdTcPaletteManager* odtcToolPaletteManager();
bool odtcToolPaletteVisible();
// The item selected in the palette window's tree; null without the window.
OdTcCatalogItem* odtcGetSelectedItem();
// Adds, or removes, the tree's reactor to an item; nothing without the tree.
void odtcInitReactor(OdTcCatalogItem* item);
void odtcUninitReactor(OdTcCatalogItem* item);

} // namespace tc

extern "C" {
// The catalog folders as the module finds them, ";"-separated, in UTF-8:
// what a host shows as the module's paths. Empty while the module is not
// started. The text lives until the next call.
const char* odtcCatalogPathsUtf8();
}
