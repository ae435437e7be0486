// The item lists and order lists.
#include "model/OdTcLists.h"

#include "model/OdTcOrderLists.h"
#include "model/OdTcPaletteSoftRef.h"

namespace tc {

ODRX_NO_CONS_DEFINE_MEMBERS(OdTcCatalogItem, OdTcPersist)
ODRX_NO_CONS_DEFINE_MEMBERS(OdTcPaletteSoftRef, OdTcCatalogItem)
ODRX_DEFINE_MEMBERS(OdTcList, OdTcPersist, ODRX_CREATE_IMPL(OdTcListImpl, OdTcList))
ODRX_DEFINE_MEMBERS(OdTcToolList, OdTcList, ODRX_CREATE_IMPL(OdTcToolListImpl, OdTcToolList))
ODRX_DEFINE_MEMBERS(OdTcGroupList, OdTcList, ODRX_CREATE_IMPL(OdTcGroupListImpl, OdTcGroupList))
ODRX_DEFINE_MEMBERS(OdTcPaletteLoaderList, OdTcList,
                    ODRX_CREATE_IMPL(OdTcPaletteLoaderListImpl, OdTcPaletteLoaderList))
ODRX_DEFINE_MEMBERS(OdTcGroupContentList, OdTcList,
                    ODRX_CREATE_IMPL(OdTcGroupContentListImpl, OdTcGroupContentList))
ODRX_DEFINE_MEMBERS(OdTcCatalogItemList, OdTcPersist,
                    ODRX_CREATE_IMPL(OdTcCatalogItemListImpl, OdTcCatalogItemList))
// The order lists register without a creation function: they are made by
// the items that own them and by the tag table.
ODRX_NO_CONS_DEFINE_MEMBERS(OdTcCatalogItemOrderList, OdTcPersist)
ODRX_NO_CONS_DEFINE_MEMBERS(OdTcToolOrderList, OdTcPersist)

OdSmartPtr<OdTcCatalogItemOrderList> OdTcCatalogItemOrderListImpl::createNew()
{
  return OdRxObjectImpl<OdTcCatalogItemOrderListImpl, OdTcCatalogItemOrderList>::createObject();
}

OdSmartPtr<OdTcToolOrderList> OdTcToolOrderListImpl::createNew()
{
  return OdRxObjectImpl<OdTcToolOrderListImpl, OdTcToolOrderList>::createObject();
}

bool OdTcToolListImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name == "Tool")
    add(OdTcCatalogItemPtr(value.getRxObjectPtr()));
  return true;
}

bool OdTcGroupListImpl::setValue(const OdString& name, const OdVariant& value)
{
  return name == "ToolPaletteGroup" && takeDelivered(value);
}

bool OdTcPaletteLoaderListImpl::setValue(const OdString& name, const OdVariant& value)
{
  return name == "Palette" && takeDelivered(value);
}

bool OdTcGroupContentListImpl::setValue(const OdString& name, const OdVariant& value)
{
  return (name == "ToolPaletteGroup" || name == "ToolPalette") && takeDelivered(value);
}

void OdTcGroupContentListImpl::writeBody(OdTcFiler* filer)
{
  // A reference whose palette is gone is left out, so that a save also
  // cleans dangling references.
  for (const auto& item : m_items) {
    if (OdTcPaletteSoftRefPtr ref = OdTcPaletteSoftRef::cast(item.get())) {
      if (ref->palette())
        filer->writeAttributeElement("ToolPalette", "ID", OdVariant(ref->id()));
    } else {
      filer->writeObject(item);
    }
  }
}

} // namespace tc
