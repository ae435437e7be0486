// OdTcDatabaseImpl: the implementation.
#pragma once

#include "model/OdTcCatalogItemImplBase.h"
#include "model/OdTcDatabase.h"
#include "model/OdTcLists.h"
#include "model/OdTcPaletteUi.h"

namespace tc {

class OdTcDatabaseImpl : public OdTcCatalogItemImplBase<OdTcDatabase>
{
public:
  static OdTcDatabasePtr createNew();
  OdTcDatabaseImpl();

  OdString tagName() const override { return "Palette"; }
  OdTcDatabase* database() override { return this; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  void copyFrom(const OdRxObject* source) override;
  bool hasChildren() const override { return m_tools->hasChildren(); }

  bool isModified() const override;
  bool addChild(OdTcCatalogItem* tool) override;
  bool removeChild(const OdString& id) override;
  bool hasChild(const OdString& id) const override { return m_tools->contains(id); }
  OdTcEnumPtr<OdTcCatalogItem> children() override { return enumerateTools(); }

  OdTcEnumPtr<OdTcCatalogItem> enumerateTools() override { return m_tools->enumerate(); }
  bool load(const OdString& path) override;
  bool save(const OdString& path) override;
  void addMember(OdTcPersist* member) override;
  OdString path() const override { return m_path; }
  bool save() override { return save(m_path); }
  bool isExporting() const override { return m_exporting; }
  OdTcPaletteUiImpl* paletteUi() override { return m_paletteUi; }
  void setPath(const OdString& path) override { m_path = path; }
  void setExporting(bool exporting) override { m_exporting = exporting; }
  OdString fileRevision() const override { return m_fileRevision; }
  std::int32_t paletteStyle() const override { return m_paletteStyle; }
  OdTcToolList* tools() override { return m_tools; }
  OdTcReadStatus fileStatus() const override;

private:
  OdString m_path;
  OdString m_fileRevision = "8.0";
  OdSmartPtr<OdTcToolList> m_tools;
  std::int32_t m_paletteStyle = 0;
  OdArray<OdTcPersistPtr> m_members;
  OdTcPaletteUiImplPtr m_paletteUi;
  bool m_exporting = false;
  // What is known of the file `m_statusFile`: a copy written for export
  // changes nothing of the palette's own file.
  OdTcReadStatus m_fileStatus;
  OdString m_statusFile;
};

} // namespace tc
