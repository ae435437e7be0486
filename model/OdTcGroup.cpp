// Groups, palette references and palette stubs.
#include "model/OdTcGroupImpl.h"

#include "model/OdTcCatalog.h"
#include "model/OdTcFileStore.h"
#include "model/OdTcToolPaletteImpl.h"

#include "host/TcHost.h"

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
    m_contents = deliveredObject<OdTcGroupContentList>(value);
  } else if (name == "CatalogItemOrder") {
    m_itemOrder = deliveredObject<OdTcCatalogItemOrderList>(value);
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
  m_href = value.getString(); // written back as read, whatever its separators
  return true;
}

void OdTcPaletteLoaderImpl::writeBody(OdTcFiler* filer)
{
  OdTcCatalogItemImplBase<OdTcPaletteLoader>::writeBody(filer);
  filer->writeAttributeElement("Url", "href", OdVariant(m_href));
}

OdSmartPtr<OdTcToolPalette> OdTcPaletteLoaderImpl::load(const OdString& basePath)
{
  const OdString resolved = odtcFileStore().resolveHref(m_href, basePath);
  OdSmartPtr<OdTcToolPalette> palette = OdTcToolPaletteImpl::createNew();
  palette->load(resolved);
  const OdTcReadStatus status = palette->paletteDatabase()->fileStatus();
  switch (status.result) {
  case OdTcReadStatus::kRead:
    break;
  case OdTcReadStatus::kDamaged:
    // A broken file still gives a palette. It answers to its stub, so that
    // the catalog keeps one entry for the file.
    hostPrint(Supp_Translate("The palette file %s is damaged (%s); the palette shows what could be read.\n"),
              resolved, status.reason);
    palette->setId(m_id);
    break;
  case OdTcReadStatus::kUnreadable:
    hostPrint(Supp_Translate("Cannot read the palette file %s: %s. The palette is not shown; the catalog keeps its "
                             "entry.\n"),
              resolved, status.reason);
    return OdSmartPtr<OdTcToolPalette>();
  default:
    return OdSmartPtr<OdTcToolPalette>();
  }
  return palette;
}

OdSmartPtr<OdTcToolPalette> OdTcPaletteLoaderImpl::load()
{
  OdTcCatalog* owner = catalog();
  return load(owner ? owner->path() : OdString());
}

} // namespace tc
