// The "PaletteUI" records.
#include "model/OdTcPaletteUi.h"

#include "sdk/kernel/OdWcstol.h"

namespace tc {

ODRX_NO_CONS_DEFINE_MEMBERS(OdTcCatalogView, OdTcPersist)
ODRX_DEFINE_MEMBERS(OdTcPaletteUiProperties, OdTcPersist,
                    ODRX_CREATE_IMPL(OdTcPaletteUiPropertiesImpl, OdTcPaletteUiProperties))

OdTcCatalogViewImpl::OdTcCatalogViewImpl() : m_toolOrder(OdTcToolOrderListImpl::createNew())
{
  m_toolOrder->setParent(this);
}

bool OdTcCatalogViewImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "ToolOrder")
    return false;
  m_toolOrder = OdSmartPtr<OdTcToolOrderList>(value.getRxObjectPtr());
  return true;
}

void OdTcCatalogViewImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcCatalogView>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcCatalogViewImpl*>(source))
    m_toolOrder->ids() = const_cast<OdTcToolOrderList*>(src->m_toolOrder.get())->ids();
}

OdTcPaletteUiPropertiesImpl::OdTcPaletteUiPropertiesImpl()
    : m_catalogView(OdRxObjectImpl<OdTcCatalogViewImpl, OdTcCatalogView>::createObject())
{
  m_catalogView->setParent(this);
}

bool OdTcPaletteUiPropertiesImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "CatalogView")
    return false;
  m_catalogView = OdSmartPtr<OdTcCatalogView>(value.getRxObjectPtr());
  return true;
}

void OdTcPaletteUiPropertiesImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcPaletteUiProperties>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcPaletteUiPropertiesImpl*>(source))
    m_catalogView->copyFrom(src->m_catalogView);
  m_catalogView->setParent(this);
}

OdSmartPtr<OdTcPaletteUiImpl> OdTcPaletteUiImpl::createNew()
{
  return OdRxObjectImpl<OdTcPaletteUiImpl>::createObject();
}

OdTcPaletteUiImpl::OdTcPaletteUiImpl()
    : m_uiProperties(OdRxObjectImpl<OdTcPaletteUiPropertiesImpl, OdTcPaletteUiProperties>::createObject())
{
  m_uiProperties->setParent(this);
}

bool OdTcPaletteUiImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name == "CAcTcUiToolPalette") {
    m_uiProperties = OdSmartPtr<OdTcPaletteUiProperties>(value.getRxObjectPtr());
  } else if (name == "CAdUiPalette") {
    // another program's window settings: accepted, not kept
  } else if (name == "SortType") {
    m_sortType = odWcstol(value.getString());
  } else if (name == "PreviewSize") {
    m_previewSize = odWcstol(value.getString());
  } else if (name == "PreviewStyle") {
    m_previewStyle = odWcstol(value.getString());
  } else {
    return false;
  }
  return true;
}

void OdTcPaletteUiImpl::writeBody(OdTcFiler* filer)
{
  filer->writeTextElement("SortType", OdVariant(m_sortType), false);
  filer->writeTextElement("PreviewSize", OdVariant(m_previewSize), false);
  filer->writeTextElement("PreviewStyle", OdVariant(m_previewStyle), false);
  filer->writeObject(m_uiProperties);
}

void OdTcPaletteUiImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcPersist>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcPaletteUiImpl*>(source)) {
    m_sortType = src->m_sortType;
    m_previewSize = src->m_previewSize;
    m_previewStyle = src->m_previewStyle;
    m_uiProperties->copyFrom(src->m_uiProperties);
  }
  m_uiProperties->setParent(this);
}

OdArray<OdString>& OdTcPaletteUiImpl::toolOrder()
{
  return m_uiProperties->catalogView()->toolOrder()->ids();
}

} // namespace tc
