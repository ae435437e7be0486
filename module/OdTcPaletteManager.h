// OdTcPaletteManager: the one object that owns every open catalog, knows the
// user's own and the current one, and tells the windows about catalogs
// coming and going.
#pragma once

#include "model/OdTcCatalog.h"
#include "model/OdTcTool.h"
#include "model/OdTcToolPalette.h"

namespace tc {

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
  virtual OdTcTool* findTool(const OdString& id) = 0;
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

// Calls `visit` with every tool of every catalog, in catalog order: the
// catalogs, their palettes, each palette's tools as stored; stops early
// when `visit` answers false.
template <class Visit>
void forEachTool(OdTcPaletteManager& manager, Visit visit)
{
  auto catalogs = manager.catalogs();
  OdString path;
  OdTcCatalog* catalog = nullptr;
  while (catalogs->next(path, catalog)) {
    auto palettes = catalog->enumeratePalettes();
    while (OdTcCatalogItem* palette = palettes->next()) {
      auto tools = static_cast<OdTcToolPalette*>(palette)->enumerateTools();
      while (OdTcCatalogItem* item = tools->next())
        if (OdTcToolPtr tool = OdTcTool::cast(item))
          if (!visit(tool.get()))
            return;
    }
  }
}

} // namespace tc
