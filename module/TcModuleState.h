// The module-wide state: set up by initApp or by the first run of the
// command "ToolPalettes".
#pragma once

#include "module/OdTcValueStorageImpl.h"
#include "module/TcUiInterfaces.h"

class OdRxModule;
class QWidget;

namespace tc {

// The module-wide objects, made by initApp in this order and released by
// uninitApp in the same order. Those of later parts join them.
extern OdTcValueStorageImplPtr valueStorage;
extern OdSmartPtr<class OdTcPaletteManager> paletteManager;

// The palette set window; null until first shown, and never freed here: the
// docking frame owns it.
extern ITcUiPaletteSet* paletteSet;
// What odtcToolPaletteVisible answers.
extern bool paletteVisible;
// What odrxCreateModuleObject hands out.
extern OdRxModule* moduleObject;
// Event numbers registered at load for "WM_TC_CUSTOMIZE" and
// "WM_TC_PALETTE_CLOSED".
extern int wmTcCustomize;
extern int wmTcPaletteClosed;

// Marker texts of the table record snapshots for another line type and a
// user arrow.
extern const OdString kOtherLinetypeMarker;
extern const OdString kUserArrowMarker;

// Makes the palette set as a child of `parent`; null on failure. The user
// interface installs the function when it is built into the module.
using TcPaletteSetCreator = ITcUiPaletteSet* (*)(QWidget* parent);
void setPaletteSetCreator(TcPaletteSetCreator creator);
TcPaletteSetCreator paletteSetCreator();

// Asks the palette set for one of its views; null without a window.
template <class T>
T* paletteSetView(int type)
{
  void* out = nullptr;
  if (paletteSet && paletteSet->queryInterface(type, &out))
    return static_cast<T*>(out);
  return nullptr;
}

} // namespace tc
