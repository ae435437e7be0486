// Sets up what the module sets up for the catalog model when it starts: the
// classes, the element names of the files, and the file store.
#pragma once

#include "model/OdTcCatalogImpl.h"
#include "model/OdTcImageList.h"
#include "model/OdTcPaletteUi.h"

#include "images/TcImageClasses.h"
#include "persist/OdTcTagTable.h"
#include "persist/TcFileStore.h"
#include "persist/TcModelTags.h"

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
  registerModelTags(OdTcTagTable::instance());
  registerImageClasses(OdTcTagTable::instance());
  static TcFileStore store;
  odtcSetFileStore(&store);
}

} // namespace tst
