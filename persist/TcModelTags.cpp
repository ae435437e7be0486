// The catalog model's elements, in the order of the tag table of the file
// format.
#include "persist/TcModelTags.h"

#include "persist/OdTcTagTable.h"

#include "model/OdTcGroupImpl.h"
#include "model/OdTcLists.h"
#include "model/OdTcOrderLists.h"
#include "model/OdTcPaletteUi.h"
#include "model/OdTcProperties.h"
#include "model/OdTcToolImpl.h"

namespace tc {

namespace {
template <class Impl, class I>
OdTcPersistPtr make()
{
  return OdTcPersistPtr(OdRxObjectImpl<Impl, I>::createObject());
}
} // namespace

void registerModelTags(OdTcTagTable& tags)
{
  tags.registerTag("Properties", &make<OdTcPropertiesImpl, OdTcProperties>);
  tags.registerTag("Tools", &make<OdTcToolListImpl, OdTcToolList>);
  tags.registerTag("Tool", &make<OdTcToolImpl, OdTcTool>);
  tags.registerTag("Data", &make<OdTcToolDataImpl, OdTcToolData>);
  tags.registerTag("CustomData", &make<OdTcToolCustomDataImpl, OdTcToolCustomData>);
  tags.registerTag("Flyout", &make<OdTcToolFlyoutImpl, OdTcToolFlyout>);
  tags.registerTag("StockToolRef", &make<OdTcStockToolRefImpl, OdTcStockToolRef>);
  tags.registerTag("BasicPropInfo", &make<OdTcPropertyBasicInfoImpl, OdTcPropertyBasicInfo>);
  tags.registerTag("PaletteUI", &make<OdTcPaletteUiImpl, OdTcPaletteUiImpl>);
  tags.registerTag("CAcTcUiToolPalette", &make<OdTcPaletteUiPropertiesImpl, OdTcPaletteUiProperties>);
  tags.registerTag("CatalogView", &make<OdTcCatalogViewImpl, OdTcCatalogView>);
  tags.registerTag("ToolSource", &make<OdTcToolSourceImpl, OdTcToolSource>);
  tags.registerTag("ToolOrder", &make<OdTcToolOrderListImpl, OdTcToolOrderList>);
  tags.registerTag("CatalogItemOrder", &make<OdTcCatalogItemOrderListImpl, OdTcCatalogItemOrderList>);
  tags.registerTag("Palette", &make<OdTcPaletteLoaderImpl, OdTcPaletteLoader>);
  tags.registerTag("Palettes", &make<OdTcPaletteLoaderListImpl, OdTcPaletteLoaderList>);
  tags.registerTag("Source", &make<OdTcSourceImpl, OdTcSource>);
  tags.registerTag("Contents", &make<OdTcGroupContentListImpl, OdTcGroupContentList>);
  tags.registerTag("ToolPaletteGroup", &make<OdTcGroupImpl, OdTcGroup>);
  tags.registerTag("ToolPalette", &make<OdTcPaletteSoftRefImpl, OdTcPaletteSoftRef>);
  tags.registerTag("Groups", &make<OdTcGroupListImpl, OdTcGroupList>);
}

} // namespace tc
