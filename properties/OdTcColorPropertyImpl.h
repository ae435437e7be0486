// OdTcColorPropertyImpl: the colour a tool's objects get ("Color").
#pragma once

#include "properties/OdTcDatabasePropertyImplBase.h"
#include "properties/OdTcPropertyCreateInfos.h"

namespace tc {

class OdTcColorPropertyImpl : public OdTcDatabasePropertyImplBase<OdTcDatabaseProperty>
{
public:
  OdTcColorPropertyImpl();
  static OdSmartPtr<OdTcColorPropertyImpl> createNew();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;
  OdString tagName() const override { return "Color"; }

  // Saves the drawing's current colour; sets the tool's unless the tool
  // leaves it, or applying is off.
  void apply(OdDbDatabase* database) override;
  void restore(OdDbDatabase* database) override;

  // The tool's colour; for a tool that leaves the colour (and shows
  // "-- use current"), a white by-colour colour of the book "curr_color"
  // named with the translated "-- use current", which only the editor sees.
  OdCmColor getColor() const;
  // A colour of the book "curr_color" makes the property unspecified.
  void setColor(const OdCmColor& color);

  bool useCurrentEnabled() const { return m_useCurrentEnabled; }
  void setUseCurrentEnabled(bool enabled) { m_useCurrentEnabled = enabled; }
  bool applyDisabled() const { return m_applyDisabled; }
  void setApplyDisabled(bool disabled) { m_applyDisabled = disabled; }

protected:
  OdString specifiedText() const override;
  bool takeText(const OdString& text) override;
  OdString createInfoTag() const override { return "ColorCreateInfo"; }

private:
  // The create-info of the colour; made when the file brought none.
  OdTcColorPropertyCreateInfoImpl* colorInfo() const;

  OdCmColor m_savedColor;
  bool m_hasSaved = false;
  bool m_useCurrentEnabled = true;
  bool m_applyDisabled = false;
};

} // namespace tc
