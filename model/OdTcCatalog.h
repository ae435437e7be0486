// OdTcCatalog: one catalog file: the stubs of its palette files, the loaded
// palettes, the groups and the order of its children.
#pragma once

#include "model/OdTcToolPalette.h"

namespace tc {

class OdTcGroupList;
class OdTcPaletteLoaderList;

class OdTcCatalog : public OdTcCatalogItem
{
  ODRX_DECLARE_MEMBERS(OdTcCatalog);

public:
  virtual void addMember(OdTcPersist* member) = 0;
  virtual OdString path() const = 0;
  // The folder "Palettes" beside the catalog file, made with its "Images"
  // folder when missing.
  virtual OdString palettesFolder() = 0;
  virtual bool save(const OdString& path) = 0;
  virtual bool save() = 0;
  virtual bool isLocked() const = 0;
  virtual OdTcEnumPtr<OdTcCatalogItem> enumerateGroups() = 0;
  virtual OdTcEnumPtr<OdTcCatalogItem> enumeratePalettes() = 0;
  virtual OdTcEnumPtr<OdTcCatalogItem> enumerateLoaders() = 0;
  virtual OdTcToolPalette* findPaletteById(const OdString& id) = 0;
  virtual OdTcToolPalette* findPaletteById(const OdString& id) const = 0;
  // A palette file of this or another program made a palette of this
  // catalog; null when it cannot be read.
  virtual OdTcToolPalettePtr importPalette(const OdString& path) = 0;
  virtual bool isGrouped(const OdString& id) = 0;
  virtual bool ungroupPalette(const OdString& id) = 0;
  // The palette, loaded from its stub if need be; null when there is none.
  virtual OdTcToolPalette* openPalette(const OdString& id) = 0;
  // Forgets a loaded palette; its file stays.
  virtual bool unloadPalette(const OdString& id) = 0;
  virtual bool isDefaultCatalog() const = 0;

  virtual bool load(const OdString& path) = 0;
  virtual bool savePalette(OdTcToolPalette* palette) = 0;
  virtual void setLocked(bool locked) = 0;
  virtual void setDefaultCatalog(bool isDefault) = 0;
  virtual OdTcGroupList* groups() = 0;
  virtual OdTcPaletteLoaderList* loaders() = 0;
  // How the last load went.
  virtual OdTcReadStatus fileStatus() const = 0;
};
using OdTcCatalogPtr = OdSmartPtr<OdTcCatalog>;

} // namespace tc
