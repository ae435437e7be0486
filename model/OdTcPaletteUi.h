// The records of a palette's "PaletteUI" element: how its tools are shown,
// and their order.
#pragma once

#include "model/OdTcOrderLists.h"
#include "model/OdTcPersistImpl.h"

namespace tc {

class OdTcCatalogView : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcCatalogView);

public:
  virtual OdTcToolOrderList* toolOrder() = 0;
};

class OdTcPaletteUiProperties : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcPaletteUiProperties);

public:
  virtual OdTcCatalogView* catalogView() = 0;
};

class OdTcCatalogViewImpl : public OdTcPersistImpl<OdTcCatalogView>
{
public:
  OdTcCatalogViewImpl();
  OdString tagName() const override { return "CatalogView"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override { filer->writeObject(m_toolOrder); }
  void copyFrom(const OdRxObject* source) override;
  OdTcToolOrderList* toolOrder() override { return m_toolOrder; }

private:
  OdSmartPtr<OdTcToolOrderList> m_toolOrder;
};

class OdTcPaletteUiPropertiesImpl : public OdTcPersistImpl<OdTcPaletteUiProperties>
{
public:
  OdTcPaletteUiPropertiesImpl();
  OdString tagName() const override { return "CAcTcUiToolPalette"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override { filer->writeObject(m_catalogView); }
  void copyFrom(const OdRxObject* source) override;
  OdTcCatalogView* catalogView() override { return m_catalogView; }

private:
  OdSmartPtr<OdTcCatalogView> m_catalogView;
};

// Sort types: 0 by name, 1 by type, 2 in stored order.
class OdTcPaletteUiImpl : public OdTcPersistImpl<OdTcPersist>
{
public:
  static OdSmartPtr<OdTcPaletteUiImpl> createNew();
  OdTcPaletteUiImpl();

  OdString tagName() const override { return "PaletteUI"; }
  // "CAdUiPalette" of other programs is accepted and left alone.
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  void copyFrom(const OdRxObject* source) override;

  std::int32_t sortType() const { return m_sortType; }
  std::int32_t previewSize() const { return m_previewSize; }
  std::int32_t previewStyle() const { return m_previewStyle; }
  void setSortType(std::int32_t v) { m_sortType = v; }
  void setPreviewSize(std::int32_t v) { m_previewSize = v; }
  void setPreviewStyle(std::int32_t v) { m_previewStyle = v; }
  OdTcPaletteUiProperties* uiProperties() { return m_uiProperties; }
  // The identifiers of the tools in stored order.
  OdArray<OdString>& toolOrder();

private:
  std::int32_t m_sortType = 0;
  std::int32_t m_previewSize = 1;
  std::int32_t m_previewStyle = 0;
  OdSmartPtr<OdTcPaletteUiProperties> m_uiProperties;
};
using OdTcPaletteUiImplPtr = OdSmartPtr<OdTcPaletteUiImpl>;

} // namespace tc
