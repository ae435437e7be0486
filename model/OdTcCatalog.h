// OdTcCatalog: one catalog file: the stubs of its palette files, the loaded
// palettes, the groups and the order of its children.
#pragma once

#include "OdTcGroup.h"
#include "OdTcToolPalette.h"

#include <vector>

namespace tc {

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
};
using OdTcCatalogPtr = OdSmartPtr<OdTcCatalog>;

class OdTcCatalogImpl : public OdTcCatalogItemImplBase<OdTcCatalog>
{
public:
  static OdTcCatalogPtr createNew();
  OdTcCatalogImpl();

  OdString tagName() const override { return "Catalog"; }
  OdTcCatalog* catalog() override { return this; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;

  bool hasChildren() const override;
  bool hasChild(const OdString& id) const override;
  bool addChild(OdTcCatalogItem* item) override;
  bool removeChild(const OdString& id) override;
  OdTcEnumPtr<OdTcCatalogItem> children() override { return enumeratePalettes(); }

  void addMember(OdTcPersist* member) override;
  OdString path() const override { return m_path; }
  OdString palettesFolder() override;
  bool save(const OdString& path) override;
  bool save() override { return save(m_path); }
  bool isLocked() const override { return m_locked; }
  OdTcEnumPtr<OdTcCatalogItem> enumerateGroups() override { return m_groups->enumerate(); }
  OdTcEnumPtr<OdTcCatalogItem> enumeratePalettes() override;
  OdTcEnumPtr<OdTcCatalogItem> enumerateLoaders() override { return m_loaders->enumerate(); }
  OdTcToolPalette* findPaletteById(const OdString& id) override;
  OdTcToolPalette* findPaletteById(const OdString& id) const override;
  OdTcToolPalettePtr importPalette(const OdString& path) override;
  bool isGrouped(const OdString& id) override;
  bool ungroupPalette(const OdString& id) override;
  OdTcToolPalette* openPalette(const OdString& id) override;
  bool unloadPalette(const OdString& id) override;
  bool isDefaultCatalog() const override { return m_defaultCatalog; }

  bool load(const OdString& path) override;
  bool savePalette(OdTcToolPalette* palette) override;
  void setLocked(bool locked) override { m_locked = locked; }
  void setDefaultCatalog(bool isDefault) override { m_defaultCatalog = isDefault; }
  OdTcGroupList* groups() override { return m_groups; }
  OdTcPaletteLoaderList* loaders() override { return m_loaders; }

private:
  OdTcPaletteLoader* findLoader(const OdString& id) const;
  void takePalette(OdTcToolPalette* palette);
  void removeFromGroups(const OdString& id);

  std::vector<OdTcPersistPtr> m_members;
  OdSmartPtr<OdTcPaletteLoaderList> m_loaders;
  std::vector<OdTcToolPalettePtr> m_palettes;
  OdSmartPtr<OdTcGroupList> m_groups;
  OdString m_fileRevision = "8.0";
  OdString m_path;
  bool m_locked = false;
  bool m_defaultCatalog = false;
};

} // namespace tc
