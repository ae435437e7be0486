// The palette manager.
#include "module/OdTcPaletteManagerImpl.h"

#include "module/TcCfgChangeReactor.h"
#include "module/TcModuleState.h"

#include "host/TcHost.h"

#include "hostsdk/core/CXStringW.h"
#include "hostsdk/core/HostCore.h"
#include "sdk/kernel/OdRxSystemServices.h"

#include <QDir>
#include <QFileInfo>

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcPaletteManager, OdRxObject,
                    return OdRxObjectPtr(OdTcPaletteManagerImpl::createNew(valueStorage()));)

namespace {
constexpr const char* kCatalogFile = "VdTcCatalog.vtc";

// An empty entry names no folder, even though the separator added to it
// would name the root.
bool isDirectory(const OdString& entry, const OdString& folder)
{
  return !entry.isEmpty() && QFileInfo(folder.qstring()).isDir();
}
} // namespace

class OdTcPaletteManagerImpl::EnumImpl : public OdTcEnumCatalog
{
public:
  explicit EnumImpl(const std::map<OdString, OdTcCatalogPtr>* catalogs) : m_catalogs(catalogs), m_it(catalogs->begin()) {}
  bool next(OdString& path, OdTcCatalog*& catalog) override
  {
    if (m_it == m_catalogs->end())
      return false;
    path = m_it->first;
    catalog = m_it->second.get();
    ++m_it;
    return true;
  }
  void reset() override { m_it = m_catalogs->begin(); }

private:
  const std::map<OdString, OdTcCatalogPtr>* m_catalogs; // not owned
  std::map<OdString, OdTcCatalogPtr>::const_iterator m_it;
};

OdTcPaletteManagerPtr OdTcPaletteManagerImpl::createNew(OdTcValueStorageImpl* storage)
{
  return OdRxObjectImpl<OdTcPaletteManagerImpl, OdTcPaletteManager>::createObject(storage);
}

OdTcPaletteManagerImpl::OdTcPaletteManagerImpl(OdTcValueStorageImpl* storage) : m_valueStorage(storage)
{
  m_cfgReactor = CRkPtr<TcCfgChangeReactor>::attach(new TcCfgChangeReactor([this] { refreshCatalogs(); }));
  try {
    const OdString user = userCatalogFolder();
    for (const OdString& entry : splitPathList(catalogPathList())) {
      if (entry != user)
        continue;
      for (const OdString& folder : {user, user + "/Palettes", user + "/Palettes/Images"})
        if (!Fio_IsFileExist(folder))
          QDir().mkpath(folder.qstring());
    }
  } catch (...) {
    // The host must not keep a reactor whose manager never came to be.
    m_cfgReactor->detach();
    throw;
  }

  for (const char* e : {"bmp", "jpeg", "tiff", "jpg", "png"})
    m_imageExtensions.append(e);
  for (const char* e : {"dwg", "dxf", "dwf"})
    m_drawingExtensions.append(e);
}

OdTcPaletteManagerImpl::~OdTcPaletteManagerImpl()
{
  m_cfgReactor->detach();
}

OdString OdTcPaletteManagerImpl::userCatalogFolder() const
{
  return m_valueStorage ? m_valueStorage->userCatalogFolder() : OdString();
}

OdString OdTcPaletteManagerImpl::catalogPathList() const
{
  return m_valueStorage ? m_valueStorage->catalogPaths() : OdString();
}

OdArray<OdString> OdTcPaletteManagerImpl::splitPathList(const OdString& list)
{
  OdArray<OdString> out;
  if (list.find(u';') < 0) {
    out.append(list);
    return out;
  }
  for (const QString& piece : list.qstring().split(u';', Qt::SkipEmptyParts))
    out.append(OdString(piece));
  return out;
}

OdString OdTcPaletteManagerImpl::defaultCatalogPath() const
{
  return userCatalogFolder() + "/" + kCatalogFile;
}

void OdTcPaletteManagerImpl::addReactor(OdTcPaletteManagerReactor* reactor)
{
  if (reactor)
    m_reactors.push_back(reactor);
}

void OdTcPaletteManagerImpl::removeReactor(OdTcPaletteManagerReactor* reactor)
{
  auto it = std::find(m_reactors.begin(), m_reactors.end(), reactor);
  if (it != m_reactors.end())
    m_reactors.erase(it);
}

void OdTcPaletteManagerImpl::createCatalog(const OdString& file)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  catalog->setName(CXStringW(CXStringW(file).FilePath()).GetFileName().str());
  catalog->save(file);
  addCatalog(file);
}

bool OdTcPaletteManagerImpl::loadCatalogs()
{
  const OdString defaultPath = defaultCatalogPath();
  for (const OdString& entry : splitPathList(catalogPathList())) {
    OdString folder = entry;
    if (folder.isEmpty() || folder.getAt(folder.getLength() - 1) != u'/')
      folder += "/";
    if (!isDirectory(entry, folder)) {
      hostPrint(Supp_Translate("Cannot find Tool Palettes catalog directory: '%s'\n"), entry);
      continue;
    }
    const OdString file = folder + kCatalogFile;
    const bool exists = Fio_IsFileExist(file);
    const bool needCreate = !exists && CXStringW(file).Compare(defaultPath) != 0;
    if (needCreate) {
      if (!Fio_IsWritableDir(entry)) {
        hostPrint("Specified ToolPalette catalog path: %s is ReadOnly. Cannot create catalog  and suppor files\n",
                  entry);
        continue;
      }
      createCatalog(file);
    } else {
      openCatalog(file);
    }
  }
  if (!m_currentCatalog && !m_catalogs.empty())
    m_currentCatalog = m_catalogs.begin()->second;
  return true;
}

bool OdTcPaletteManagerImpl::openCatalog(const OdString& path)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  const bool loaded = catalog->load(path);
  const OdTcReadStatus status = catalog->fileStatus();
  if (status.result == OdTcReadStatus::kUnreadable) {
    // A catalog in its place would be saved over the user's file, which
    // may hold years of work that only this machine cannot read.
    hostPrint(Supp_Translate("Cannot read the tool palettes catalog %s: %s. The catalog is left out, and its file "
                             "stays as it is.\n"),
              path, status.reason);
    return true;
  }
  if (status.result == OdTcReadStatus::kDamaged) {
    OdString reason;
    const OdString copy = odtcFileStore().keepAside(path, reason);
    if (copy.isEmpty()) {
      hostPrint(Supp_Translate("The tool palettes catalog %s is damaged (%s), and no copy of it can be kept (%s). "
                               "The catalog is left out, and its file stays as it is.\n"),
                path, status.reason, reason);
      return true;
    }
    hostPrint(Supp_Translate("The tool palettes catalog %s is damaged (%s). %s; the file as it was is kept as "
                             "%s.\n"),
              path, status.reason,
              loaded ? Supp_Translate("What could be read is shown") : Supp_Translate("An empty catalog replaces it"),
              copy);
  }
  if (!loaded) {
    // Missing, or no catalog at all in the file: a new catalog in memory,
    // current at once.
    catalog = OdTcCatalogImpl::createNew();
    catalog->setId(odrxSystemServices()->createGuid());
    catalog->setName(Supp_Translate("Tool Palettes"));
    m_currentCatalog = catalog;
  }
  if (!Fio_IsWritableDir(CXStringW(path).FilePath()))
    catalog->setLocked(true);
  const bool isDefault = path == defaultCatalogPath();
  if (isDefault)
    catalog->setDefaultCatalog(true);
  m_catalogs[path] = catalog;
  forEachReactor([&](OdTcPaletteManagerReactor* r) { r->catalogAdded(catalog); });
  if (isDefault)
    m_currentCatalog = catalog;
  return true;
}

bool OdTcPaletteManagerImpl::addCatalog(const OdString& path)
{
  if (!openCatalog(path))
    return false;
  auto it = m_catalogs.find(path);
  if (it != m_catalogs.end())
    it->second->setId(odrxSystemServices()->createGuid());
  return true;
}

bool OdTcPaletteManagerImpl::removeCatalog(const OdString& id)
{
  for (auto it = m_catalogs.begin(); it != m_catalogs.end(); ++it) {
    if (it->second->id().iCompare(id) != 0)
      continue;
    OdTcCatalogPtr keep = it->second;
    forEachReactor([&](OdTcPaletteManagerReactor* r) { r->catalogRemoved(keep); });
    m_catalogs.erase(it);
    return true;
  }
  return false;
}

OdTcEnumCatalogPtr OdTcPaletteManagerImpl::catalogs()
{
  return OdTcEnumCatalogPtr(new OdRxObjectImpl<EnumImpl>(&m_catalogs), kOdRxObjAttach);
}

void OdTcPaletteManagerImpl::saveCatalogs()
{
  for (auto& [path, catalog] : m_catalogs)
    catalog->save(path);
}

void OdTcPaletteManagerImpl::openConfig()
{
  // The manager keeps no configuration of its own: the switch stays off.
  if (!m_configEnabled)
    return;
}

OdTcTool* OdTcPaletteManagerImpl::findTool(const OdString& id)
{
  OdTcTool* found = nullptr;
  forEachTool(*this, [&](OdTcTool* tool) {
    if (tool->id() == id)
      found = tool;
    return !found;
  });
  return found;
}

OdTcCatalog* OdTcPaletteManagerImpl::setCurrentCatalog(OdTcCatalog* catalog)
{
  if (catalog) {
    m_currentCatalog = catalog;
    return catalog;
  }
  for (auto& [path, c] : m_catalogs) {
    if (c->isDefaultCatalog()) {
      m_currentCatalog = c;
      break;
    }
  }
  return m_currentCatalog;
}

void OdTcPaletteManagerImpl::refreshCatalogs()
{
  const OdArray<OdString> list = splitPathList(catalogPathList());
  const OdString defaultPath = defaultCatalogPath();
  bool changed = false;

  std::vector<OdString> gone;
  for (const auto& [path, catalog] : m_catalogs)
    if (!list.contains(CXStringW(path).FilePath().str()))
      gone.push_back(path);
  for (const OdString& path : gone) {
    auto it = m_catalogs.find(path);
    if (it == m_catalogs.end())
      continue;
    removeCatalog(it->second->id());
    changed = true;
  }

  for (const OdString& entry : list) {
    // The separator is added without looking: an entry that ends in one
    // gives a key that differs from the one loadCatalogs made.
    const OdString folder = entry + "/";
    if (!isDirectory(entry, folder)) {
      hostPrint(Supp_Translate("Cannot find Tool Palettes catalog directory: '%s'\n"), entry);
      continue;
    }
    const OdString file = folder + kCatalogFile;
    const bool exists = Fio_IsFileExist(file);
    const bool isDefault = file == defaultPath;
    if (exists && !isDefault) {
      if (!m_catalogs.count(file)) {
        addCatalog(file);
        changed = true;
      }
    } else if (exists && isDefault) {
      if (m_catalogs.empty())
        openCatalog(file);
    } else if (!exists && !isDefault) {
      createCatalog(file);
      changed = true;
    }
  }
  if (m_catalogs.empty())
    m_currentCatalog = nullptr;
  if (changed)
    forEachReactor([](OdTcPaletteManagerReactor* r) { r->catalogsChanged(); });
}

} // namespace tc
