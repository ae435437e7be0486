// The palette database and its file.
#include "model/OdTcDatabaseImpl.h"

#include "model/OdTcCatalog.h"

#include "host/TcHost.h"

#include "hostsdk/core/HostCore.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcDatabase, OdTcCatalogItem, ODRX_CREATE_IMPL(OdTcDatabaseImpl, OdTcDatabase))

OdTcDatabasePtr OdTcDatabaseImpl::createNew()
{
  return OdRxObjectImpl<OdTcDatabaseImpl, OdTcDatabase>::createObject();
}

OdTcDatabaseImpl::OdTcDatabaseImpl()
    : m_tools(OdRxObjectImpl<OdTcToolListImpl, OdTcToolList>::createObject()), m_paletteUi(OdTcPaletteUiImpl::createNew())
{
  m_tools->setParent(this);
  m_paletteUi->setParent(this);
}

bool OdTcDatabaseImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (OdTcCatalogItemImplBase<OdTcDatabase>::setValue(name, value))
    return true;
  if (name == "FileRevision") {
    m_fileRevision = value.getString();
  } else if (name == "PaletteStyle") {
    m_paletteStyle = odWcstol(value.getString());
  } else if (name == "Tools") {
    m_tools = deliveredObject<OdTcToolList>(value);
  } else if (name == "PaletteUI") {
    // The record has no run-time class of its own: it is told by its type.
    OdRxObjectPtr object = value.getRxObjectPtr();
    auto* ui = dynamic_cast<OdTcPaletteUiImpl*>(object.get());
    if (!ui)
      throw OdError_NotThatKindOfClass();
    m_paletteUi = ui;
  } else {
    return false;
  }
  return true;
}

void OdTcDatabaseImpl::writeBody(OdTcFiler* filer)
{
  OdTcCatalogItemImplBase<OdTcDatabase>::writeBody(filer);
  filer->writeAttribute("FileRevision", OdVariant(m_fileRevision));
  filer->writeObject(m_tools);
  filer->writeObject(m_paletteUi);
}

void OdTcDatabaseImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcDatabase>::copyFrom(source);
  auto* src = dynamic_cast<const OdTcDatabaseImpl*>(source);
  if (!src)
    return;
  copyItemFrom(*src);
  m_path = src->m_path;
  m_fileRevision = src->m_fileRevision;
  m_paletteStyle = src->m_paletteStyle;
  m_tools = OdRxObjectImpl<OdTcToolListImpl, OdTcToolList>::createObject();
  m_tools->setParent(this);
  auto tools = const_cast<OdTcToolList*>(src->m_tools.get())->enumerate();
  while (OdTcCatalogItem* tool = tools->next())
    m_tools->add(OdTcCatalogItemPtr(tool->clone()));
  m_paletteUi = OdTcPaletteUiImpl::createNew();
  m_paletteUi->copyFrom(src->m_paletteUi);
  m_paletteUi->setParent(this);
}

bool OdTcDatabaseImpl::isModified() const
{
  auto tools = const_cast<OdTcToolList*>(m_tools.get())->enumerate();
  while (OdTcCatalogItem* tool = tools->next())
    if (tool->isModified())
      return true;
  return m_modified;
}

bool OdTcDatabaseImpl::addChild(OdTcCatalogItem* tool)
{
  if (!tool)
    return false;
  m_tools->add(tool);
  fireItemAdded(tool);
  return true;
}

bool OdTcDatabaseImpl::removeChild(const OdString& id)
{
  if (!m_tools->remove(id))
    return false;
  m_paletteUi->toolOrder().remove(id);
  setModified();
  return true;
}

void OdTcDatabaseImpl::addMember(OdTcPersist* member)
{
  if (member && member != this)
    m_members.append(OdTcPersistPtr(member));
}

bool OdTcDatabaseImpl::load(const OdString& path)
{
  m_fileStatus = odtcFileStore().readFile(path, this, OdTcFileKind::Palette);
  m_statusFile = path;
  return m_fileStatus.filerResult;
}

OdTcReadStatus OdTcDatabaseImpl::fileStatus() const
{
  return m_statusFile == m_path ? m_fileStatus : OdTcReadStatus();
}

bool OdTcDatabaseImpl::save(const OdString& path)
{
  m_path = path;
  OdTcFileStore& store = odtcFileStore();
  if (m_statusFile == path && m_fileStatus.result == OdTcReadStatus::kDamaged && store.fileExists(path)) {
    // Whatever the file held that did not read is the user's: it is kept
    // before this palette replaces it, and a stub naming any file at all
    // must not lead to writing outside the catalog.
    OdTcCatalog* owner = catalog();
    if (owner && !store.isInCatalogFolder(path, owner->path())) {
      hostPrint(Supp_Translate("The palette file %s lies outside the catalog's folder and did not read as a palette: "
                               "it is not written over.\n"),
                path);
      return false;
    }
    OdString reason;
    const OdString copy = store.keepAside(path, reason);
    if (copy.isEmpty()) {
      hostPrint(Supp_Translate("The palette file %s did not read whole, and no copy of it can be kept (%s): it is "
                               "not written over.\n"),
                path, reason);
      return false;
    }
    hostPrint(Supp_Translate("The palette file %s did not read whole; it was kept as %s before the palette was "
                             "saved over it.\n"),
              path, copy);
  }
  OdString reason;
  if (!store.writeFile(path, this, OdTcFileKind::Palette, reason)) {
    hostPrint(Supp_Translate("Cannot save the palette \"%s\" to %s: %s.\n"), displayName(), path, reason);
    return false;
  }
  if (m_statusFile.isEmpty() || m_statusFile == path) {
    m_fileStatus = OdTcReadStatus();
    m_fileStatus.result = OdTcReadStatus::kRead;
    m_fileStatus.filerResult = true;
    m_statusFile = path;
  }
  return true;
}

} // namespace tc
