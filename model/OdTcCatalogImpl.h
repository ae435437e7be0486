// OdTcCatalogImpl: the implementation.
#pragma once

#include "model/OdTcCatalog.h"
#include "model/OdTcCatalogItemImplBase.h"
#include "model/OdTcGroupImpl.h"
#include "model/OdTcToolPaletteImpl.h"

#include <vector>

namespace tc {

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
  OdTcReadStatus fileStatus() const override { return m_fileStatus; }

private:
  OdTcPaletteLoader* findLoader(const OdString& id) const;
  void takePalette(OdTcToolPalette* palette);
  void removeFromGroups(const OdString& id);
  // Deletes the file of a palette taken out of the catalog, when it is the
  // palette's own and lies in the catalog's folder.
  void removePaletteFile(OdTcToolPalette* palette);

  std::vector<OdTcPersistPtr> m_members;
  OdSmartPtr<OdTcPaletteLoaderList> m_loaders;
  std::vector<OdTcToolPalettePtr> m_palettes;
  OdSmartPtr<OdTcGroupList> m_groups;
  OdString m_fileRevision = "8.0";
  OdString m_path;
  bool m_locked = false;
  bool m_defaultCatalog = false;
  OdTcReadStatus m_fileStatus;
};

} // namespace tc
