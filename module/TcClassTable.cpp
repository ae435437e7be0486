// The class table. Each class of the catalog model takes its row here when
// it comes into the module.
#include "module/TcClassTable.h"

#include "model/OdTcCatalogImpl.h"
#include "model/OdTcCatalogItem.h"
#include "module/OdTcPaletteManager.h"
#include "model/OdTcImageList.h"
#include "model/OdTcList.h"
#include "model/OdTcOrderLists.h"
#include "model/OdTcPaletteSoftRef.h"
#include "model/OdTcProperties.h"

namespace tc {

namespace {
template <class C>
TcClassRow row(const char* name)
{
  return TcClassRow{name, &C::rxInit, &C::rxUninit, &C::desc};
}
} // namespace

const std::vector<TcClassRow>& classRegistrationOrder()
{
  static const std::vector<TcClassRow> rows = {
      row<OdTcPersist>("OdTcPersist"),
      row<OdTcCatalogItem>("OdTcCatalogItem"),
      row<OdTcDatabase>("OdTcDatabase"),
      row<OdTcToolPalette>("OdTcToolPalette"),
      row<OdTcPaletteManager>("OdTcPaletteManager"),
      row<OdTcPaletteUiProperties>("OdTcPaletteUiProperties"),
      row<OdTcImageList>("OdTcImageList"),
      row<OdTcImage>("OdTcImage"),
      row<OdTcProperties>("OdTcProperties"),
      row<OdTcPropertyBasicInfo>("OdTcPropertyBasicInfo"),
      row<OdTcToolOrderList>("OdTcToolOrderList"),
      row<OdTcCatalogItemOrderList>("OdTcCatalogItemOrderList"),
      row<OdTcCatalogView>("OdTcCatalogView"),
      row<OdTcList>("OdTcList"),
      row<OdTcToolList>("OdTcToolList"),
      row<OdTcCatalog>("OdTcCatalog"),
      row<OdTcGroup>("OdTcGroup"),
      row<OdTcPaletteLoader>("OdTcPaletteLoader"),
      row<OdTcPaletteLoaderList>("OdTcPaletteLoaderList"),
      row<OdTcGroupContentList>("OdTcGroupContentList"),
      row<OdTcPaletteSoftRef>("OdTcPaletteSoftRef"),
      row<OdTcGroupList>("OdTcGroupList"),
      row<OdTcCatalogItemList>("OdTcCatalogItemList"),
  };
  return rows;
}

const std::vector<TcClassRow>& classDeletionOrder()
{
  static const std::vector<TcClassRow> rows = {
      row<OdTcDatabase>("OdTcDatabase"),
      row<OdTcPersist>("OdTcPersist"),
      row<OdTcToolPalette>("OdTcToolPalette"),
      row<OdTcPaletteManager>("OdTcPaletteManager"),
      row<OdTcPaletteUiProperties>("OdTcPaletteUiProperties"),
      row<OdTcImageList>("OdTcImageList"),
      row<OdTcImage>("OdTcImage"),
      row<OdTcProperties>("OdTcProperties"),
      row<OdTcPropertyBasicInfo>("OdTcPropertyBasicInfo"),
      row<OdTcToolOrderList>("OdTcToolOrderList"),
      row<OdTcCatalogItemOrderList>("OdTcCatalogItemOrderList"),
      row<OdTcCatalogView>("OdTcCatalogView"),
      row<OdTcCatalogItem>("OdTcCatalogItem"),
      row<OdTcCatalog>("OdTcCatalog"),
      row<OdTcGroup>("OdTcGroup"),
      row<OdTcList>("OdTcList"),
      row<OdTcToolList>("OdTcToolList"),
      row<OdTcPaletteLoader>("OdTcPaletteLoader"),
      row<OdTcPaletteLoaderList>("OdTcPaletteLoaderList"),
      row<OdTcGroupContentList>("OdTcGroupContentList"),
      row<OdTcPaletteSoftRef>("OdTcPaletteSoftRef"),
      row<OdTcGroupList>("OdTcGroupList"),
      row<OdTcCatalogItemList>("OdTcCatalogItemList"),
  };
  return rows;
}

void registerModuleClasses()
{
  for (const TcClassRow& r : classRegistrationOrder())
    r.rxInit();
}

void unregisterModuleClasses()
{
  const auto& rows = classDeletionOrder();
  if (rows.empty() || !rows.front().desc())
    throw OdError(eNotRegistered, OdString("class not registered: ") + (rows.empty() ? "" : rows.front().name));
  for (const TcClassRow& r : rows) {
    OdRxClass* desc = r.desc();
    if (!desc)
      throw OdError(eNotRegistered, OdString("class not registered: ") + r.name);
    r.rxUninit();
  }
}

} // namespace tc
