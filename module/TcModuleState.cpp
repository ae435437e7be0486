// The module-wide state.
#include "module/TcModuleState.h"

#include "module/OdTcPaletteManager.h"

namespace tc {

OdTcValueStorageImplPtr valueStorage;
OdTcPaletteManagerPtr paletteManager;
ITcUiPaletteSet* paletteSet = nullptr;
bool paletteVisible = false;
OdRxModule* moduleObject = nullptr;

namespace {
TcPaletteSetCreator g_paletteSetCreator = nullptr;
} // namespace

void setPaletteSetCreator(TcPaletteSetCreator creator)
{
  g_paletteSetCreator = creator;
}

TcPaletteSetCreator paletteSetCreator()
{
  return g_paletteSetCreator;
}

} // namespace tc
