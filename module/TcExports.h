// The functions that other host modules call. None lets an error through:
// a failure is told on the command line and gives the empty answer.
#pragma once

#include "hostsdk/core/CRkVariant.h"

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
// The palette window's remembered values ("ActiveView", "IconSize", ...),
// kept in the host's configuration from one run to the next: for a host
// that shows or sets them without the window. Without the module, or
// without the host's branch for them, nothing is read or kept.
bool odtcGetStateValue(const char* name, CRkVariant& value);
void odtcSetStateValue(const char* name, const CRkVariant& value);
// The default the window takes when the value is missing; false for the
// values whose default depends on the window or that have none.
bool odtcGetStateDefault(const char* name, CRkVariant& value);

} // namespace tc

extern "C" {
// The catalog folders as the module finds them, ";"-separated, in UTF-8:
// what a host shows as the module's paths. Empty while the module is not
// started. The text lives until the next call.
const char* odtcCatalogPathsUtf8();
}
