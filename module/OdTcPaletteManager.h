// OdTcPaletteManager: the one object that owns every open catalog, knows the
// user's own and the current one, and tells the windows about catalogs
// coming and going.
#pragma once

#include "OdTcCatalog.h"

#include <map>
#include <vector>

namespace tc {

class TcCfgChangeReactor;

class OdTcPaletteManagerReactor
{
public:
  virtual ~OdTcPaletteManagerReactor() = default;
  // A long run of `count` steps begins.
  virtual void blocksStarted(int count) {}
  virtual void blocksStep() {}
  virtual void blocksFinished() {}
  virtual void catalogAdded(OdTcCatalog* catalog) {}
  // The catalog is still alive during the call.
  virtual void catalogRemoved(OdTcCatalog* catalog) {}
  // The set of catalogs changed in a refresh: rebuild.
  virtual void catalogsChanged() {}
};

// A cursor over the catalogs by their file path. The catalogs must not
// change while it walks.
class OdTcEnumCatalog : public OdRxObject
{
public:
  virtual bool next(OdString& path, OdTcCatalog*& catalog) = 0;
  virtual void reset() = 0;
};
using OdTcEnumCatalogPtr = OdSmartPtr<OdTcEnumCatalog>;

class OdTcPaletteManager : public OdRxObject
{
  ODRX_DECLARE_MEMBERS(OdTcPaletteManager);

public:
  // A null reactor is ignored; one added twice is called twice.
  virtual void addReactor(OdTcPaletteManagerReactor* reactor) = 0;
  virtual void removeReactor(OdTcPaletteManagerReactor* reactor) = 0;
  virtual OdTcCatalog* currentCatalog() = 0;
  // Opens a catalog in every folder of the list, making the ones missing
  // in writable folders. Always true.
  virtual bool loadCatalogs() = 0;
  // Opens a catalog and gives it a fresh identity.
  virtual bool addCatalog(const OdString& path) = 0;
  // Closes the catalog of that identity (ignoring case); its file stays.
  virtual bool removeCatalog(const OdString& id) = 0;
  virtual OdTcEnumCatalogPtr catalogs() = 0;
  // Writes every catalog to the file it was opened from.
  virtual void saveCatalogs() = 0;
  virtual std::int32_t iconSize() const = 0;
  virtual void setIconSize(std::int32_t size) = 0;
  virtual void cancelProcessing() = 0;
  virtual void openConfig() = 0;
  // The first item of that identity in any palette of any catalog, compared
  // exactly; null when there is none.
  virtual OdTcCatalogItem* findTool(const OdString& id) = 0;
  virtual bool hasTool(const OdString& id) = 0;
  // Null makes the user's own catalog current, if one is open.
  virtual OdTcCatalog* setCurrentCatalog(OdTcCatalog* catalog) = 0;
  // Follows a change of the host's configuration: catalogs of folders no
  // longer listed close, catalogs of new folders open.
  virtual void refreshCatalogs() = 0;
  virtual bool openCatalog(const OdString& path) = 0;

  virtual bool isProcessingBlocks() const = 0;
};
using OdTcPaletteManagerPtr = OdSmartPtr<OdTcPaletteManager>;

class OdTcPaletteManagerImpl : public OdTcPaletteManager
{
public:
  static OdTcPaletteManagerPtr createNew();
  OdTcPaletteManagerImpl();
  ~OdTcPaletteManagerImpl() override;

  void addReactor(OdTcPaletteManagerReactor* reactor) override;
  void removeReactor(OdTcPaletteManagerReactor* reactor) override;
  OdTcCatalog* currentCatalog() override { return m_currentCatalog; }
  bool loadCatalogs() override;
  bool addCatalog(const OdString& path) override;
  bool removeCatalog(const OdString& id) override;
  OdTcEnumCatalogPtr catalogs() override;
  void saveCatalogs() override;
  std::int32_t iconSize() const override { return m_iconSize; }
  void setIconSize(std::int32_t size) override { m_iconSize = size; }
  void cancelProcessing() override { m_processingBlocks = false; }
  void openConfig() override;
  OdTcCatalogItem* findTool(const OdString& id) override;
  bool hasTool(const OdString& id) override { return findTool(id) != nullptr; }
  OdTcCatalog* setCurrentCatalog(OdTcCatalog* catalog) override;
  void refreshCatalogs() override;
  bool openCatalog(const OdString& path) override;
  bool isProcessingBlocks() const override { return m_processingBlocks; }

  const OdArray<OdString>& imageExtensions() const { return m_imageExtensions; }
  const OdArray<OdString>& drawingExtensions() const { return m_drawingExtensions; }

  // The split of a ";"-separated list: a text without ";" is one entry even
  // when empty; otherwise empty pieces are dropped.
  static OdArray<OdString> splitPathList(const OdString& list);

private:
  class EnumImpl;

  OdString defaultCatalogPath() const;
  // A new catalog named after its folder, written at once and read back.
  void createCatalog(const OdString& file);
  template <class Call>
  void forEachReactor(const Call& call)
  {
    for (OdTcPaletteManagerReactor* r : std::vector<OdTcPaletteManagerReactor*>(m_reactors))
      call(r);
  }

  std::map<OdString, OdTcCatalogPtr> m_catalogs; // by file path as opened
  // The current catalog. A catalog closed while current stays current, so
  // the manager keeps it alive rather than let the pointer dangle.
  OdTcCatalogPtr m_currentCatalog;
  std::int32_t m_iconSize = 3;
  std::vector<OdTcPaletteManagerReactor*> m_reactors; // not owned
  bool m_processingBlocks = false;
  bool m_configEnabled = false;
  OdArray<OdString> m_imageExtensions;
  OdArray<OdString> m_drawingExtensions;
  TcCfgChangeReactor* m_cfgReactor = nullptr; // counted
};

} // namespace tc
