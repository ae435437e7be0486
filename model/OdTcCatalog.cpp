// The catalog: its file, its palettes and groups.
#include "model/OdTcCatalogImpl.h"

#include "host/TcHost.h"
#include "persist/TcPathTokens.h"
#include "persist/TcFileIo.h"

#include "hostsdk/core/CXStringW.h"
#include "hostsdk/core/HostCore.h"
#include "sdk/kernel/OdRxSystemServices.h"

#include <QDir>
#include <QFile>

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
    m_loaders = OdSmartPtr<OdTcPaletteLoaderList>(value.getRxObjectPtr());
  } else if (name == "Groups") {
    m_groups = OdSmartPtr<OdTcGroupList>(value.getRxObjectPtr());
  } else if (name == "CatalogItemOrder") {
    m_itemOrder = OdSmartPtr<OdTcCatalogItemOrderList>(value.getRxObjectPtr());
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
    // The file goes at once; no later save brings it back.
    if (Fio_IsFileExist(palette->path()))
      QFile::remove(palette->path().qstring());
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

void OdTcCatalogImpl::addMember(OdTcPersist* member)
{
  if (member && member != this)
    m_members.push_back(OdTcPersistPtr(member));
}

OdString OdTcCatalogImpl::palettesFolder()
{
  const OdString folder = CXStringW(m_path).FilePath().str() + "/Palettes";
  if (!QDir(folder.qstring()).exists()) {
    QDir().mkpath(folder.qstring());
    QDir().mkpath((folder + "/Images").qstring());
  }
  return folder;
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
  if (!Fio_IsFileExist(path))
    return false;
  if (!readTcFile(path, this, TcFileKind::Catalog))
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
  if (OdTcPaletteLoader* loader = findLoader(palette->id()))
    return palette->save(makeAbsolutePath(loader->href(), m_path));
  const OdString name = OdString::formatted("%s_%s", palette->displayName(), palette->id());
  return palette->save(palettesFolder() + "/" + name + ".vtc");
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
      loader->setName(palette->displayName());
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
  return writeTcFile(path, this, TcFileKind::Catalog);
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
