// The general properties whose value is a word or a number: linetype scale
// ("LinetypeScale"), lineweight ("LineWeight"), plot style ("PlotStyle"),
// transparency ("Transparency"), and the table style ("Tablestyle"), which
// is only kept.
#pragma once

#include "properties/OdTcDatabasePropertyImplBase.h"

#include "sdk/db/OdCmColor.h"
#include "sdk/db/OdDbObjectId.h"

namespace tc {

class OdTcLineTypeScalePropertyImpl : public OdTcDatabasePropertyImplBase<OdTcDatabaseProperty>
{
public:
  OdTcLineTypeScalePropertyImpl();
  static OdSmartPtr<OdTcLineTypeScalePropertyImpl> createNew();
  OdRxObjectPtr clone() const override;
  OdString tagName() const override { return "LinetypeScale"; }
  // A scale that is not above zero is not set.
  void apply(OdDbDatabase* database) override;
  void restore(OdDbDatabase* database) override;

protected:
  // Digits and points only.
  bool takeText(const OdString& text) override;

private:
  double m_saved = 0.0;
  bool m_hasSaved = false;
};

class OdTcLineWeightPropertyImpl : public OdTcDatabasePropertyImplBase<OdTcDatabaseProperty>
{
public:
  OdTcLineWeightPropertyImpl();
  static OdSmartPtr<OdTcLineWeightPropertyImpl> createNew();
  OdRxObjectPtr clone() const override;
  OdString tagName() const override { return "LineWeight"; }
  // A number that is no weight the host offers is not set.
  void apply(OdDbDatabase* database) override;
  void restore(OdDbDatabase* database) override;

  // -1 by layer, -2 by block, -3 by default, else hundredths of a
  // millimetre; false for a value that is none of these.
  bool weight(int& weight) const;

protected:
  OdString specifiedText() const override;
  bool takeText(const OdString& text) override;

private:
  OdDb::LineWeight m_saved = OdDb::kLnWtByLayer;
  bool m_hasSaved = false;
};

class OdTcPlotStylePropertyImpl : public OdTcDatabasePropertyImplBase<OdTcDatabaseProperty>
{
public:
  OdTcPlotStylePropertyImpl();
  static OdSmartPtr<OdTcPlotStylePropertyImpl> createNew();
  OdRxObjectPtr clone() const override;
  OdString tagName() const override { return "PlotStyle"; }
  // "ByLayer" and "ByBlock" set the plot style type; a named style does
  // nothing. The type is saved and, on purpose, never put back.
  void apply(OdDbDatabase* database) override;

private:
  OdDb::PlotStyleNameType m_saved = OdDb::kPlotStyleNameByLayer;
};

class OdTcTransparencyPropertyImpl : public OdTcDatabasePropertyImplBase<OdTcDatabaseProperty>
{
public:
  OdTcTransparencyPropertyImpl();
  static OdSmartPtr<OdTcTransparencyPropertyImpl> createNew();
  OdRxObjectPtr clone() const override;
  OdString tagName() const override { return "Transparency"; }
  void apply(OdDbDatabase* database) override;
  void restore(OdDbDatabase* database) override;

  // The value as the drawing keeps it: 0 by layer, 0x1000000 by block,
  // 0x2000000 with the alpha in the low byte for a percentage.
  static std::uint32_t transparencyValue(const OdString& text);

protected:
  // Digits only.
  bool takeText(const OdString& text) override;

private:
  OdCmTransparency m_saved;
  bool m_hasSaved = false;
};

// Read and written so that files keep it; it does nothing and has no editor.
class OdTcTableStylePropertyImpl : public OdTcDatabasePropertyImplBase<OdTcDatabaseProperty>
{
public:
  OdTcTableStylePropertyImpl();
  static OdSmartPtr<OdTcTableStylePropertyImpl> createNew();
  OdRxObjectPtr clone() const override;
  OdString tagName() const override { return "Tablestyle"; }
  IRkEditableProperty* createEditableProperty() override { return nullptr; }
};

} // namespace tc
