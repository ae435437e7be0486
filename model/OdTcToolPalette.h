// OdTcToolPalette: the catalog item of a palette. It wraps one palette
// database, where the tools, the name and the display settings live.
#pragma once

#include "OdTcDatabase.h"

namespace tc {

class OdTcToolPalette : public OdTcCatalogItem
{
  ODRX_DECLARE_MEMBERS(OdTcToolPalette);

public:
  // Not supported on a palette: throws OdError 3.
  virtual void setPath(const OdString& path) = 0;
  virtual OdString path() const = 0;
  // The file path relative to the catalog's file; what a new stub stores.
  virtual OdString href() = 0;
  virtual std::int32_t previewStyle() const = 0;
  // An explicit order switches the palette to sort type 2 (stored order).
  virtual void setToolOrder(const OdArray<OdString>& ids) = 0;
  virtual OdArray<OdString> toolOrder() const = 0;
  // Not supported: throws OdError 3.
  virtual void setFileRevision(const OdString& revision) = 0;
  virtual void setGrouped(bool grouped) = 0;
  virtual void setSortType(std::int32_t sortType) = 0;
  virtual void setPreviewSize(std::int32_t size) = 0;
  virtual void setPreviewStyle(std::int32_t style) = 0;
  virtual void setExporting(bool exporting) = 0;
  virtual bool isGrouped() const = 0;
  virtual bool load(const OdString& path) = 0;
  virtual bool save(const OdString& path) = 0;
  virtual bool save() = 0;
  virtual bool isNameFromSource() const = 0;
  // Writes the palette to another file; its own path stays.
  virtual bool saveCopy(const OdString& path) = 0;
  virtual OdTcProperties* properties() = 0;
  virtual OdTcEnumPtr<OdTcCatalogItem> enumerateTools() = 0;
  // The database the palette wraps. (database() is the upward walk of every
  // persistent object.)
  virtual OdTcDatabase* paletteDatabase() = 0;
  virtual std::int32_t sortType() const = 0;
  virtual OdTcPaletteUiImpl* paletteUi() = 0;

  virtual void setNameFromSource(bool fromSource) = 0;
  // Saving after each added tool, off for runs that add many.
  virtual void disableUpdate() = 0;
  virtual void enableUpdate(bool saveNow) = 0;
  virtual void setRemoved(bool removed) = 0;
  // What the palette holds that this system cannot run, one line per kind
  // and tool.
  virtual OdArray<OdString> unsupportedTools() = 0;
};
using OdTcToolPalettePtr = OdSmartPtr<OdTcToolPalette>;

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
