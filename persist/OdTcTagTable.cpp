// The process-wide tag table.
#include "persist/OdTcFiler.h"
#include "persist/OdTcTagTable.h"

#include "model/OdTcCatalogImpl.h"
#include "images/OdTcImageList.h"
#include "model/OdTcLists.h"
#include "model/OdTcOrderLists.h"
#include "model/OdTcProperties.h"

namespace tc {

namespace {
template <class Impl, class I>
OdTcPersistPtr make()
{
  return OdTcPersistPtr(OdRxObjectImpl<Impl, I>::createObject());
}
} // namespace

OdTcTagTable& OdTcTagTable::instance()
{
  // Entries in the order of the table, so that a later one for the same
  // name wins.
  static OdTcTagTable table = [] {
    OdTcTagTable t;
    t.registerTag("Properties", &make<OdTcPropertiesImpl, OdTcProperties>);
    t.registerTag("Images", &make<OdTcImageListImpl, OdTcImageList>);
    t.registerTag("Image", &make<OdTcImageImpl, OdTcImage>);
    t.registerTag("Tools", &make<OdTcToolListImpl, OdTcToolList>);
    t.registerTag("BasicPropInfo", &make<OdTcPropertyBasicInfoImpl, OdTcPropertyBasicInfo>);
    t.registerTag("ToolOrder", &make<OdTcToolOrderListImpl, OdTcToolOrderList>);
    t.registerTag("CatalogItemOrder", &make<OdTcCatalogItemOrderListImpl, OdTcCatalogItemOrderList>);
    t.registerTag("PaletteUI", &make<OdTcPaletteUiImpl, OdTcPaletteUiImpl>);
    t.registerTag("CAcTcUiToolPalette", &make<OdTcPaletteUiPropertiesImpl, OdTcPaletteUiProperties>);
    t.registerTag("CatalogView", &make<OdTcCatalogViewImpl, OdTcCatalogView>);
    t.registerTag("Palette", &make<OdTcPaletteLoaderImpl, OdTcPaletteLoader>);
    t.registerTag("Palettes", &make<OdTcPaletteLoaderListImpl, OdTcPaletteLoaderList>);
    t.registerTag("Contents", &make<OdTcGroupContentListImpl, OdTcGroupContentList>);
    t.registerTag("ToolPaletteGroup", &make<OdTcGroupImpl, OdTcGroup>);
    t.registerTag("ToolPalette", &make<OdTcPaletteSoftRefImpl, OdTcPaletteSoftRef>);
    t.registerTag("Groups", &make<OdTcGroupListImpl, OdTcGroupList>);
    return t;
  }();
  return table;
}

bool OdTcTagTable::isKnownTag(const OdString& name) const
{
  return m_factories.count(name) != 0;
}

OdTcPersistPtr OdTcTagTable::createByTag(const OdString& name) const
{
  auto it = m_factories.find(name);
  return it == m_factories.end() ? OdTcPersistPtr() : it->second();
}

void OdTcTagTable::registerTag(const OdString& name, OdTcTagFactory factory)
{
  m_factories[name] = factory;
}

void OdTcTagTable::unregisterTag(const OdString& name)
{
  m_factories.erase(name);
}

} // namespace tc
