// The catalog: its file, its palettes and groups.
#include "model/OdTcCatalogImpl.h"

#include "model/OdTcFileStore.h"

#include "host/TcHost.h"

#include "hostsdk/core/HostCore.h"
#include "sdk/kernel/OdRxSystemServices.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcCatalog, OdTcCatalogItem, ODRX_CREATE_IMPL(OdTcCatalogImpl, OdTcCatalog))

OdTcCatalogPtr OdTcCatalogImpl::createNew()
{
  return OdRxObjectImpl<OdTcCatalogImpl, OdTcCatalog>::createObject();
}

OdTcCatalogImpl::OdTcCatalogImpl()
    : m_loaders(OdRxObjectImpl<OdTcPaletteLoaderListImpl, OdTcPaletteLoaderList>::createObject()),
      m_groups(OdRxObjectImpl<OdTcGroupListImpl, OdTcGroupList>::createObject())
{
  m_loaders->setParent(this);
  m_groups->setParent(this);
}

bool OdTcCatalogImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (OdTcCatalogItemImplBase<OdTcCatalog>::setValue(name, value))
    return true;
  if (name == "FileRevision") {
    m_fileRevision = value.getString();
  } else if (name == "Palettes") {
    m_loaders = deliveredObject<OdTcPaletteLoaderList>(value);
  } else if (name == "Groups") {
    m_groups = deliveredObject<OdTcGroupList>(value);
  } else if (name == "CatalogItemOrder") {
    m_itemOrder = deliveredObject<OdTcCatalogItemOrderList>(value);
  } else {
    return false;
  }
  return true;
}

void OdTcCatalogImpl::writeBody(OdTcFiler* filer)
{
  OdTcCatalogItemImplBase<OdTcCatalog>::writeBody(filer);
  filer->writeAttribute("FileRevision", OdVariant(m_fileRevision));
  filer->writeObject(m_loaders);
  filer->writeObject(m_groups);
  filer->writeObject(m_itemOrder);
}

bool OdTcCatalogImpl::hasChildren() const
{
  return !m_palettes.empty() || m_groups->hasChildren();
}

bool OdTcCatalogImpl::hasChild(const OdString& id) const
{
  return findPaletteById(id) || m_groups->contains(id);
}

void OdTcCatalogImpl::takePalette(OdTcToolPalette* palette)
{
  palette->attachToCatalog(this);
  m_palettes.push_back(OdTcToolPalettePtr(palette));
  fireItemAdded(palette);
}

bool OdTcCatalogImpl::addChild(OdTcCatalogItem* item)
{
  if (OdTcGroupPtr group = OdTcGroup::cast(item)) {
    group->attachToCatalog(this);
    m_groups->add(group);
    fireItemAdded(group);
    return true;
  }
  if (OdTcToolPalettePtr palette = OdTcToolPalette::cast(item)) {
    takePalette(palette);
    return true;
  }
  return false;
}

bool OdTcCatalogImpl::removeChild(const OdString& id)
{
  auto it = std::find_if(m_palettes.begin(), m_palettes.end(), [&](const auto& p) { return p->id() == id; });
  if (it != m_palettes.end()) {
    OdTcToolPalettePtr palette = *it;
    if (isGrouped(id))
      removeFromGroups(id);
    auto tools = palette->enumerateTools();
    while (OdTcCatalogItem* tool = tools->next())
      if (OdTcImageList* images = tool->images())
        images->removeAll(true);
    removePaletteFile(palette);
    m_loaders->remove(id);
    palette->setRemoved(true);
    fireItemRemoved(palette);
    m_palettes.erase(std::find(m_palettes.begin(), m_palettes.end(), palette));
    removeFromItemOrder(id);
    return true;
  }
  if (OdTcCatalogItem* group = static_cast<OdTcGroupListImpl*>(m_groups.get())->find(id)) {
    OdTcCatalogItemPtr keep(group);
    fireItemRemoved(group);
    m_groups->remove(id);
    removeFromItemOrder(id);
    return true;
  }
  return false;
}

void OdTcCatalogImpl::removePaletteFile(OdTcToolPalette* palette)
{
  // The file goes at once; no later save brings it back. A stub may name
  // any file at all, so only what is surely the palette's goes.
  OdTcFileStore& store = odtcFileStore();
  const OdString file = palette->path();
  if (file.isEmpty() || !store.fileExists(file))
    return;
  OdString reason;
  if (!store.isInCatalogFolder(file, m_path))
    hostPrint(Supp_Translate("The palette file %s lies outside the catalog's folder: only the palette's entry was "
                             "removed, and the file was left in place.\n"),
              file);
  else if (palette->paletteDatabase()->fileStatus().result != OdTcReadStatus::kRead)
    hostPrint(Supp_Translate("The palette file %s did not read as a palette: only the palette's entry was removed, "
                             "and the file was left in place.\n"),
              file);
  else if (!store.removeFile(file, reason))
    hostPrint(Supp_Translate("Cannot delete the palette file %s: %s.\n"), file, reason);
}

void OdTcCatalogImpl::addMember(OdTcPersist* member)
{
  if (member && member != this)
    m_members.push_back(OdTcPersistPtr(member));
}

OdString OdTcCatalogImpl::palettesFolder()
{
  return odtcFileStore().palettesFolder(m_path);
}

OdTcEnumPtr<OdTcCatalogItem> OdTcCatalogImpl::enumeratePalettes()
{
  return OdTcEnumImpl<OdTcCatalogItem, std::vector<OdTcToolPalettePtr>>::create(&m_palettes);
}

OdTcToolPalette* OdTcCatalogImpl::findPaletteById(const OdString& id)
{
  return static_cast<const OdTcCatalogImpl*>(this)->findPaletteById(id);
}

OdTcToolPalette* OdTcCatalogImpl::findPaletteById(const OdString& id) const
{
  for (const auto& palette : m_palettes)
    if (palette->id() == id)
      return palette.get();
  return nullptr;
}

OdTcPaletteLoader* OdTcCatalogImpl::findLoader(const OdString& id) const
{
  OdTcCatalogItem* item = static_cast<OdTcPaletteLoaderListImpl*>(m_loaders.get())->find(id);
  return item ? static_cast<OdTcPaletteLoader*>(item) : nullptr;
}

namespace {
// Every soft reference at any depth, with `visit(ref)`.
template <class Visit>
void forEachReference(OdTcEnumPtr<OdTcCatalogItem> items, const Visit& visit)
{
  while (OdTcCatalogItem* item = items->next()) {
    if (OdTcPaletteSoftRefPtr ref = OdTcPaletteSoftRef::cast(item))
      visit(ref.get());
    else if (OdTcGroupPtr group = OdTcGroup::cast(item))
      forEachReference(group->children(), visit);
  }
}
} // namespace

bool OdTcCatalogImpl::isGrouped(const OdString& id)
{
  bool found = false;
  forEachReference(m_groups->enumerate(), [&](OdTcPaletteSoftRef* ref) { found = found || ref->id() == id; });
  return found;
}

void OdTcCatalogImpl::removeFromGroups(const OdString& id)
{
  // Each top-level group, then only the first nested group of each level.
  auto groups = m_groups->enumerate();
  while (OdTcCatalogItem* top = groups->next()) {
    OdTcGroupPtr group = OdTcGroup::cast(top);
    while (group) {
      group->contents()->remove(id);
      OdTcGroupPtr nested;
      auto items = group->contents()->enumerate();
      while (OdTcCatalogItem* item = items->next()) {
        if ((nested = OdTcGroup::cast(item)))
          break;
      }
      group = nested;
    }
  }
}

bool OdTcCatalogImpl::ungroupPalette(const OdString& id)
{
  if (!isGrouped(id))
    return false;
  removeFromGroups(id);
  if (OdTcToolPalette* palette = findPaletteById(id))
    palette->setGrouped(false);
  return true;
}

OdTcToolPalette* OdTcCatalogImpl::openPalette(const OdString& id)
{
  if (hasChild(id))
    return findPaletteById(id);
  OdTcPaletteLoader* loader = findLoader(id);
  if (!loader)
    return nullptr;
  OdTcToolPalettePtr palette = loader->load(m_path);
  if (palette.isNull())
    return nullptr;
  addChild(palette);
  return palette;
}

bool OdTcCatalogImpl::unloadPalette(const OdString& id)
{
  auto it = std::find_if(m_palettes.begin(), m_palettes.end(), [&](const auto& p) { return p->id() == id; });
  if (it == m_palettes.end())
    return false;
  OdTcPersist* palette = it->get();
  m_members.erase(std::remove_if(m_members.begin(), m_members.end(),
                                 [&](const OdTcPersistPtr& m) { return m.get() == palette; }),
                  m_members.end());
  m_palettes.erase(it);
  return true;
}

bool OdTcCatalogImpl::load(const OdString& path)
{
  m_path = path;
  m_fileStatus = odtcFileStore().readFile(path, this, OdTcFileKind::Catalog);
  if (!m_fileStatus.filerResult)
    return false;
  m_loaders->setParent(this);
  m_groups->setParent(this);
  auto loaders = m_loaders->enumerate();
  while (OdTcCatalogItem* item = loaders->next()) {
    if (OdTcToolPalettePtr palette = static_cast<OdTcPaletteLoader*>(item)->load(path))
      takePalette(palette);
  }
  forEachReference(m_groups->enumerate(), [&](OdTcPaletteSoftRef* ref) {
    if (OdTcToolPalette* palette = findPaletteById(ref->id()))
      palette->setGrouped(true);
  });
  return true;
}

bool OdTcCatalogImpl::savePalette(OdTcToolPalette* palette)
{
  OdTcFileStore& store = odtcFileStore();
  if (OdTcPaletteLoader* loader = findLoader(palette->id()))
    return palette->save(store.resolveHref(loader->href(), m_path));
  return palette->save(store.newPaletteFile(palettesFolder(), palette->displayName(), palette->id()));
}

bool OdTcCatalogImpl::save(const OdString& path)
{
  if (m_path.isEmpty())
    m_path = path; // a new catalog: its palettes go beside the file it becomes
  for (const auto& palette : m_palettes)
    if (palette->isModified() && !palette->isRemoved())
      savePalette(palette);
  // Stubs name their files relative to where the catalog goes now.
  m_path = path;
  for (const auto& palette : m_palettes) {
    if (palette->isRemoved())
      continue;
    if (OdTcPaletteLoader* loader = findLoader(palette->id())) {
      // Only a rename touches the stub, so that a catalog saved without a
      // change is the file it was. A palette without a name (a file that
      // did not read) leaves the stub's name alone.
      const OdString name = palette->displayName();
      if (!name.isEmpty() && name != loader->displayName())
        loader->setName(name);
      continue;
    }
    // A palette saved for the first time gets its stub: same identity, the
    // palette's own display record, and the way to its file.
    if (palette->path().isEmpty())
      savePalette(palette);
    OdTcPaletteLoaderPtr loader = OdTcPaletteLoaderImpl::createNew();
    static_cast<OdTcPaletteLoaderImpl*>(loader.get())->setValue("Revision", OdVariant(palette->revision()));
    loader->setOption(palette->option());
    loader->setId(palette->id());
    loader->shareProperties(palette->properties());
    loader->setHref(palette->href());
    m_loaders->add(loader);
  }
  OdString reason;
  if (odtcFileStore().writeFile(path, this, OdTcFileKind::Catalog, reason))
    return true;
  hostPrint(Supp_Translate("Cannot save the catalog \"%s\" to %s: %s.\n"), displayName(), path, reason);
  return false;
}

OdTcToolPalettePtr OdTcCatalogImpl::importPalette(const OdString& path)
{
  OdTcToolPalettePtr palette = OdTcToolPaletteImpl::createNew();
  if (!palette->load(path))
    return OdTcToolPalettePtr();
  const OdArray<OdString> unsupported = palette->unsupportedTools();
  for (const OdString& tool : unsupported)
    hostPrint(Supp_Translate("\nSkipped unsupported tool: %s"), tool);
  palette->setId(odrxSystemServices()->createGuid());
  palette->paletteDatabase()->setPath(OdString()); // a new palette, not the imported file
  savePalette(palette);
  addChild(palette);
  return palette;
}

} // namespace tc
