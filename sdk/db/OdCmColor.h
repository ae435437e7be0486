// OdCmColor and OdCmTransparency: colours and transparency of drawing objects.
#pragma once

#include "sdk/kernel/OdString.h"

#include <cstdint>

namespace OdCmEntityColor {
enum ColorMethod : std::uint8_t
{
  kByLayer = 0xC0,
  kByBlock = 0xC1,
  kByColor = 0xC2,
  kByACI = 0xC3,
  kByPen = 0xC4,
  kForeground = 0xC5,
  kLayerOff = 0xC6,
  kLayerFrozen = 0xC7,
  kNone = 0xC8
};
enum ACIcolorMethod : std::int16_t
{
  kACIbyBlock = 0,
  kACIforeground = 7,
  kACIbyLayer = 256,
  kACIRed = 1,
  kACIYellow = 2,
  kACIGreen = 3,
  kACICyan = 4,
  kACIBlue = 5,
  kACIMagenta = 6,
  kACIWhite = 7
};
// The RGB value of an AutoCAD colour index, packed 0x00RRGGBB.
std::uint32_t lookUpRGB(int colorIndex);
// The colour index nearest to an RGB value (1..255).
int lookUpACI(std::uint8_t r, std::uint8_t g, std::uint8_t b);
} // namespace OdCmEntityColor

// A colour: a method in the high byte and, below it, either an RGB value or a
// colour index, plus an optional colour book and colour name.
class OdCmColor
{
public:
  OdCmColor() = default;
  explicit OdCmColor(OdCmEntityColor::ColorMethod method) { setColorMethod(method); }

  OdCmEntityColor::ColorMethod colorMethod() const { return OdCmEntityColor::ColorMethod(m_value >> 24); }
  void setColorMethod(OdCmEntityColor::ColorMethod method);

  // The packed value: method << 24 | (RGB or index).
  std::uint32_t color() const { return m_value; }
  void setColor(std::uint32_t value) { m_value = value; }

  void setRGB(std::uint8_t r, std::uint8_t g, std::uint8_t b);
  void setRed(std::uint8_t v) { setRGB(v, green(), blue()); }
  void setGreen(std::uint8_t v) { setRGB(red(), v, blue()); }
  void setBlue(std::uint8_t v) { setRGB(red(), green(), v); }
  // For an index colour these give the RGB of the index.
  std::uint8_t red() const { return std::uint8_t(rgb() >> 16); }
  std::uint8_t green() const { return std::uint8_t(rgb() >> 8); }
  std::uint8_t blue() const { return std::uint8_t(rgb()); }
  std::uint32_t rgb() const;

  // 0 by block, 256 by layer, 1..255 an index; for RGB the nearest index.
  std::int16_t colorIndex() const;
  void setColorIndex(std::int16_t index);

  bool isByLayer() const;
  bool isByBlock() const;
  bool isByColor() const { return colorMethod() == OdCmEntityColor::kByColor; }
  bool isByACI() const { return colorMethod() == OdCmEntityColor::kByACI; }
  bool isForeground() const;
  bool isNone() const { return colorMethod() == OdCmEntityColor::kNone; }

  const OdString& colorName() const { return m_colorName; }
  const OdString& bookName() const { return m_bookName; }
  bool setNames(const OdString& colorName, const OdString& bookName = OdString());
  // "BOOK$NAME" as DXF keeps it (code 430); empty without a name.
  OdString colorNameForDxf() const;
  void setNamesFromDxf(const OdString& text);

  OdString getDescription() const;

  friend bool operator==(const OdCmColor& a, const OdCmColor& b)
  {
    return a.m_value == b.m_value && a.m_colorName == b.m_colorName && a.m_bookName == b.m_bookName;
  }
  friend bool operator!=(const OdCmColor& a, const OdCmColor& b) { return !(a == b); }

private:
  std::uint32_t m_value = std::uint32_t(OdCmEntityColor::kByLayer) << 24;
  OdString m_colorName;
  OdString m_bookName;
};

template <class T>
class OdArray;
using OdCmColorArray = OdArray<OdCmColor>;

class OdCmTransparency
{
public:
  enum transparencyMethod : std::uint8_t { kByLayer = 0, kByBlock = 1, kByAlpha = 2, kErrorValue = 3 };

  OdCmTransparency() = default;
  explicit OdCmTransparency(transparencyMethod m) : m_method(m) {}
  explicit OdCmTransparency(std::uint8_t alpha) : m_method(kByAlpha), m_alpha(alpha) {}
  explicit OdCmTransparency(double alphaPercent) { setAlphaPercent(alphaPercent); }

  transparencyMethod method() const { return m_method; }
  void setMethod(transparencyMethod m) { m_method = m; }
  std::uint8_t alpha() const { return m_alpha; }
  void setAlpha(std::uint8_t a) { m_method = kByAlpha; m_alpha = a; }
  double alphaPercent() const { return m_alpha / 255.0; }
  void setAlphaPercent(double p);
  bool isByLayer() const { return m_method == kByLayer; }
  bool isByBlock() const { return m_method == kByBlock; }
  bool isByAlpha() const { return m_method == kByAlpha; }
  bool isClear() const { return isByAlpha() && m_alpha == 0; }
  bool isSolid() const { return isByAlpha() && m_alpha == 255; }

  // The DXF form (code 440): 0 by layer, 0x1000000 by block, 0x2000000 | alpha.
  std::uint32_t serializeOut() const;
  void serializeIn(std::uint32_t value);

  friend bool operator==(const OdCmTransparency& a, const OdCmTransparency& b)
  {
    return a.m_method == b.m_method && (a.m_method != kByAlpha || a.m_alpha == b.m_alpha);
  }
  friend bool operator!=(const OdCmTransparency& a, const OdCmTransparency& b) { return !(a == b); }

private:
  transparencyMethod m_method = kByLayer;
  std::uint8_t m_alpha = 255;
};
