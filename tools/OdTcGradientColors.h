// The colours of a gradient tool, as its payload keeps them: "GradientColors"
// holds one "GradientColor" for each colour, and each holds its colour as a
// colour record, "Color" with an "AcCmColor" element.
#pragma once

#include "model/OdTcPersistImpl.h"

#include "sdk/db/OdCmColor.h"

#include <vector>

namespace tc {

// The colour record: "AcCmColor" with the packed colour in "mRGB". Made by
// the palette filer from a "Color" element inside a "GradientColor".
class OdTcColorValueImpl : public OdTcPersistImpl<OdTcPersist>
{
public:
  static OdSmartPtr<OdTcColorValueImpl> createNew(const OdCmColor& color = OdCmColor());

  OdString tagName() const override { return "Color"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  void copyFrom(const OdRxObject* source) override;

  const OdCmColor& color() const { return m_color; }
  void setColor(const OdCmColor& color) { m_color = color; }

private:
  OdCmColor m_color;
};

class OdTcGradientColorImpl : public OdTcPersistImpl<OdTcPersist>
{
public:
  static OdSmartPtr<OdTcGradientColorImpl> createNew(const OdCmColor& color = OdCmColor());
  OdTcGradientColorImpl();

  OdString tagName() const override { return "GradientColor"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override { filer->writeObject(m_value); }
  void copyFrom(const OdRxObject* source) override;

  OdCmColor color() const { return m_value->color(); }
  void setColor(const OdCmColor& color) { m_value->setColor(color); }

private:
  OdSmartPtr<OdTcColorValueImpl> m_value;
};

class OdTcGradientColorsImpl : public OdTcPersistImpl<OdTcPersist>
{
public:
  // Two colours, blue fading to yellow, as a new gradient tool has them.
  static OdSmartPtr<OdTcGradientColorsImpl> createNew();
  // No colours: what a file's list is read into.
  static OdSmartPtr<OdTcGradientColorsImpl> createEmpty();

  OdString tagName() const override { return "GradientColors"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  void copyFrom(const OdRxObject* source) override;

  int count() const { return int(m_colors.size()); }
  // The colour at `index`; the default colour when there is none.
  OdCmColor color(int index) const;
  // Sets the colour at `index`, adding colours up to it where the list is
  // shorter.
  void setColor(int index, const OdCmColor& color);

private:
  std::vector<OdSmartPtr<OdTcGradientColorImpl>> m_colors;
};

} // namespace tc
