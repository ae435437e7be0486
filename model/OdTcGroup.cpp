// Groups, palette references and palette stubs.
#include "model/OdTcGroupImpl.h"

#include "model/OdTcCatalog.h"
#include "model/OdTcToolPaletteImpl.h"
#include "persist/TcPathTokens.h"

#include "hostsdk/core/HostCore.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcGroup, OdTcCatalogItem, ODRX_CREATE_IMPL(OdTcGroupImpl, OdTcGroup))
ODRX_DEFINE_MEMBERS(OdTcPaletteLoader, OdTcCatalogItem, ODRX_CREATE_IMPL(OdTcPaletteLoaderImpl, OdTcPaletteLoader))

// ------------------------------------------------------------------ group

OdTcGroupPtr OdTcGroupImpl::createNew()
{
  return OdRxObjectImpl<OdTcGroupImpl, OdTcGroup>::createObject();
}

OdTcGroupImpl::OdTcGroupImpl()
    : m_contents(OdRxObjectImpl<OdTcGroupContentListImpl, OdTcGroupContentList>::createObject())
{
  m_contents->setParent(this);
}

bool OdTcGroupImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (OdTcCatalogItemImplBase<OdTcGroup>::setValue(name, value))
    return true;
  if (name == "ActivePaletteIndex") {
    m_activePaletteIndex = odWcstol(value.getString());
  } else if (name == "Contents") {
    m_contents = OdSmartPtr<OdTcGroupContentList>(value.getRxObjectPtr());
  } else if (name == "CatalogItemOrder") {
    m_itemOrder = OdSmartPtr<OdTcCatalogItemOrderList>(value.getRxObjectPtr());
  } else {
    return false;
  }
  return true;
}

void OdTcGroupImpl::writeBody(OdTcFiler* filer)
{
  OdTcCatalogItemImplBase<OdTcGroup>::writeBody(filer);
  filer->writeTextElement("ActivePaletteIndex", OdVariant(m_activePaletteIndex), false);
  filer->writeObject(m_contents);
  filer->writeObject(m_itemOrder);
}

bool OdTcGroupImpl::addChild(OdTcCatalogItem* item)
{
  if (!item)
    return false;
  if (OdTcToolPalette::cast(item).get()) {
    m_contents->add(OdTcPaletteSoftRefImpl::createNew(item->id()));
    return true;
  }
  m_contents->add(item);
  fireItemAdded(item);
  return true;
}

bool OdTcGroupImpl::removeChild(const OdString& id)
{
  auto* list = static_cast<OdTcGroupContentListImpl*>(m_contents.get());
  OdTcCatalogItem* item = list->find(id);
  if (!item)
    return false;
  OdTcCatalogItemPtr keep(item); // alive through the reactors' calls
  fireItemRemoved(item);
  m_contents->remove(id);
  removeFromItemOrder(id);
  return true;
}

// -------------------------------------------------------------- reference

OdTcPaletteSoftRefPtr OdTcPaletteSoftRefImpl::createNew(const OdString& paletteId)
{
  auto ref = OdRxObjectImpl<OdTcPaletteSoftRefImpl, OdTcPaletteSoftRef>::createObject();
  ref->setId(paletteId);
  return ref;
}

bool OdTcPaletteSoftRefImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "ID")
    return false;
  m_paletteId = value.getString();
  return true;
}

void OdTcPaletteSoftRefImpl::writeBody(OdTcFiler* filer)
{
  filer->writeAttributeElement("ToolPalette", "ID", OdVariant(m_paletteId));
}

OdString OdTcPaletteSoftRefImpl::displayName() const
{
  OdTcToolPalette* target = const_cast<OdTcPaletteSoftRefImpl*>(this)->palette();
  return target ? target->displayName() : OdTcCatalogItemImplBase<OdTcPaletteSoftRef>::displayName();
}

OdTcToolPalette* OdTcPaletteSoftRefImpl::palette()
{
  const OdTcCatalog* owner = catalog();
  return owner ? owner->findPaletteById(m_paletteId) : nullptr;
}

// ------------------------------------------------------------------ stub

OdTcPaletteLoaderPtr OdTcPaletteLoaderImpl::createNew()
{
  return OdRxObjectImpl<OdTcPaletteLoaderImpl, OdTcPaletteLoader>::createObject();
}

bool OdTcPaletteLoaderImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (OdTcCatalogItemImplBase<OdTcPaletteLoader>::setValue(name, value))
    return true;
  if (name != "href")
    return false;
  m_href = pathFromFile(value.getString());
  return true;
}

void OdTcPaletteLoaderImpl::writeBody(OdTcFiler* filer)
{
  OdTcCatalogItemImplBase<OdTcPaletteLoader>::writeBody(filer);
  filer->writeAttributeElement("Url", "href", OdVariant(m_href));
}

OdSmartPtr<OdTcToolPalette> OdTcPaletteLoaderImpl::load(const OdString& basePath)
{
  const OdString resolved = makeAbsolutePath(m_href, basePath);
  if (!Fio_IsFileExist(resolved))
    return OdSmartPtr<OdTcToolPalette>();
  OdSmartPtr<OdTcToolPalette> palette = OdTcToolPaletteImpl::createNew();
  palette->load(resolved); // a broken file still gives a palette
  return palette;
}

OdSmartPtr<OdTcToolPalette> OdTcPaletteLoaderImpl::load()
{
  OdTcCatalog* owner = catalog();
  return load(owner ? owner->path() : OdString());
}

} // namespace tc
