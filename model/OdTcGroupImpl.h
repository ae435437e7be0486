// Groups, the references they hold to palettes, and palette stubs: the
// implementations.
#pragma once

#include "model/OdTcCatalogItemImplBase.h"
#include "model/OdTcGroup.h"
#include "model/OdTcLists.h"
#include "model/OdTcPaletteSoftRef.h"

namespace tc {

class OdTcGroupImpl : public OdTcCatalogItemImplBase<OdTcGroup>
{
public:
  static OdTcGroupPtr createNew();
  OdTcGroupImpl();

  OdString tagName() const override { return "ToolPaletteGroup"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  bool hasChildren() const override { return m_contents->hasChildren(); }

  // A palette joins as a reference, without a word to the reactors; any
  // other item is added as it is, and announced.
  bool addChild(OdTcCatalogItem* item) override;
  bool removeChild(const OdString& id) override;
  bool hasChild(const OdString& id) const override { return m_contents->contains(id); }
  OdTcEnumPtr<OdTcCatalogItem> children() override { return m_contents->enumerate(); }

  std::int32_t activePaletteIndex() const override { return m_activePaletteIndex; }
  void setActivePaletteIndex(std::int32_t index) override { m_activePaletteIndex = index; }
  OdTcGroupContentList* contents() override { return m_contents; }

private:
  std::int32_t m_activePaletteIndex = -1;
  OdSmartPtr<OdTcGroupContentList> m_contents;
};

class OdTcPaletteSoftRefImpl : public OdTcCatalogItemImplBase<OdTcPaletteSoftRef>
{
public:
  static OdTcPaletteSoftRefPtr createNew(const OdString& paletteId = OdString());

  OdString tagName() const override { return "ToolPalette"; }
  // The reference answers to the palette's identifier.
  OdString id() const override { return m_paletteId; }
  void setId(const OdString& id) override { m_paletteId = id; }
  // Shown under the name of its palette, while that is there.
  OdString displayName() const override;
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  OdTcToolPalette* palette() override;

private:
  OdString m_paletteId;
};

class OdTcPaletteLoaderImpl : public OdTcCatalogItemImplBase<OdTcPaletteLoader>
{
public:
  static OdTcPaletteLoaderPtr createNew();

  OdString tagName() const override { return "Palette"; }
  // A stub shows as expandable before its palette is read.
  bool hasChildren() const override { return true; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;

  OdSmartPtr<OdTcToolPalette> load(const OdString& basePath) override;
  OdSmartPtr<OdTcToolPalette> load() override;
  void setHref(const OdString& href) override { m_href = href; }
  OdString href() const override { return m_href; }
  void shareProperties(OdTcProperties* properties) override { m_properties = properties; }

private:
  OdString m_href;
};

} // namespace tc
