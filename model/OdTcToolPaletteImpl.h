// OdTcToolPaletteImpl: the implementation.
#pragma once

#include "model/OdTcDatabaseImpl.h"
#include "model/OdTcToolPalette.h"

namespace tc {

class OdTcToolPaletteImpl : public OdTcCatalogItemImplBase<OdTcToolPalette>
{
public:
  static OdTcToolPalettePtr createNew();
  OdTcToolPaletteImpl();

  OdString tagName() const override { return "ToolPalette"; }
  void copyFrom(const OdRxObject* source) override;
  OdString displayName() const override { return m_database->displayName(); }
  bool hasChildren() const override { return m_database->hasChildren(); }

  OdString id() const override { return m_database->id(); }
  void setId(const OdString& id) override { m_database->setId(id); }
  OdString description() const override { return m_database->description(); }
  void setName(const OdString& name) override { m_database->setName(name); }
  void setDescription(const OdString& description) override { m_database->setDescription(description); }
  OdTcImageList* images() override { return m_database->images(); }
  OdTcImage* image(int kind) override { return m_database->image(kind); }
  void addImage(OdTcImage* image) override { m_database->addImage(image); }
  void clearResource() override { m_database->clearResource(); }
  bool setImageFile(const OdString& path) override { return m_database->setImageFile(path); }
  void ensureImages() override { m_database->ensureImages(); }
  OdString revision() const override { return m_database->revision(); }
  std::int32_t option() const override { return m_database->option(); }
  void setOption(std::int32_t option) override { m_database->setOption(option); }
  OdString resourceSource() const override { return m_database->resourceSource(); }
  bool isModified() const override { return m_database->isModified(); }
  void setModified() override { m_database->setModified(); }
  OdTcEnumPtr<OdTcCatalogItem> children() override { return m_database->enumerateTools(); }
  bool addChild(OdTcCatalogItem* tool) override;
  bool removeChild(const OdString& id) override { return m_database->removeChild(id); }
  bool hasChild(const OdString& id) const override { return m_database->hasChild(id); }

  void setPath(const OdString& path) override;
  OdString path() const override { return m_database->path(); }
  OdString href() override;
  std::int32_t previewStyle() const override { return m_database->paletteUi()->previewStyle(); }
  void setToolOrder(const OdArray<OdString>& ids) override;
  OdArray<OdString> toolOrder() const override { return m_database->paletteUi()->toolOrder(); }
  void setFileRevision(const OdString& revision) override;
  void setGrouped(bool grouped) override { m_grouped = grouped; }
  void setSortType(std::int32_t sortType) override;
  void setPreviewSize(std::int32_t size) override;
  void setPreviewStyle(std::int32_t style) override;
  void setExporting(bool exporting) override { m_database->setExporting(exporting); }
  bool isGrouped() const override { return m_grouped; }
  bool load(const OdString& path) override;
  bool save(const OdString& path) override { return m_database->save(path); }
  bool save() override { return m_database->save(); }
  bool isNameFromSource() const override { return m_nameFromSource; }
  bool saveCopy(const OdString& path) override;
  OdTcProperties* properties() override;
  OdTcEnumPtr<OdTcCatalogItem> enumerateTools() override { return m_database->enumerateTools(); }
  OdTcDatabase* paletteDatabase() override { return m_database; }
  std::int32_t sortType() const override { return m_database->paletteUi()->sortType(); }
  OdTcPaletteUiImpl* paletteUi() override { return m_database->paletteUi(); }
  OdArray<OdTcCatalogItemPtr> sortedTools() override;
  void setNameFromSource(bool fromSource) override { m_nameFromSource = fromSource; }
  void disableUpdate() override { m_updateOnAdd = false; }
  void enableUpdate(bool saveNow) override;
  void setRemoved(bool removed) override { m_removed = removed; }
  OdArray<OdString> unsupportedTools() override;

private:
  OdTcDatabasePtr m_database;
  bool m_grouped = false;
  bool m_nameFromSource = false;
  bool m_updateOnAdd = true;
};

} // namespace tc
