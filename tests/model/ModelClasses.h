// Registers the classes of the catalog model once for a test program, as
// the module does at start.
#pragma once

#include "model/OdTcCatalogImpl.h"
#include "images/OdTcImageList.h"
#include "model/OdTcPaletteUi.h"

namespace tst {

template <class... C>
void ensureRegistered()
{
  ((C::desc() ? void() : C::rxInit()), ...);
}

inline void registerModelClasses()
{
  using namespace tc;
  ensureRegistered<OdTcPersist, OdTcCatalogItem, OdTcDatabase, OdTcToolPalette, OdTcPaletteUiProperties,
                   OdTcImageList, OdTcImage, OdTcProperties, OdTcPropertyBasicInfo, OdTcToolOrderList,
                   OdTcCatalogItemOrderList, OdTcCatalogView, OdTcList, OdTcToolList, OdTcCatalog, OdTcGroup,
                   OdTcPaletteLoader, OdTcPaletteLoaderList, OdTcGroupContentList, OdTcPaletteSoftRef,
                   OdTcGroupList, OdTcCatalogItemList>();
}

} // namespace tst
