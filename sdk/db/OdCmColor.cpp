// Colour methods, the colour index table and transparency packing.
#include "sdk/db/OdCmColor.h"

#include <array>
#include <cmath>

namespace {

// The standard 256-entry colour index table. Indices 10..249 run round the
// hue circle in steps of 15 degrees, five shades each, odd ones half
// saturated; 250..255 are greys.
std::array<std::uint32_t, 256> makeAciTable()
{
  std::array<std::uint32_t, 256> t{};
  const std::uint32_t basic[10] = {0x000000, 0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF,
                                   0x0000FF, 0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};
  for (int i = 0; i < 10; ++i)
    t[i] = basic[i];
  const double values[5] = {255, 204, 153, 127, 76};
  for (int i = 10; i < 250; ++i) {
    const double hue = ((i - 10) / 10) * 15.0;
    const int shade = (i % 10) / 2;
    const double sat = (i % 2) ? 0.5 : 1.0;
    const double v = values[shade];
    const double h = hue / 60.0;
    const int sector = int(h) % 6;
    const double f = h - std::floor(h);
    const double p = v * (1 - sat), q = v * (1 - sat * f), r = v * (1 - sat * (1 - f));
    double R = 0, G = 0, B = 0;
    switch (sector) {
    case 0: R = v; G = r; B = p; break;
    case 1: R = q; G = v; B = p; break;
    case 2: R = p; G = v; B = r; break;
    case 3: R = p; G = q; B = v; break;
    case 4: R = r; G = p; B = v; break;
    default: R = v; G = p; B = q; break;
    }
    t[i] = (std::uint32_t(R) << 16) | (std::uint32_t(G) << 8) | std::uint32_t(B);
  }
  const std::uint32_t greys[6] = {51, 91, 132, 173, 214, 255};
  for (int i = 0; i < 6; ++i)
    t[250 + i] = (greys[i] << 16) | (greys[i] << 8) | greys[i];
  return t;
}

const std::array<std::uint32_t, 256>& aciTable()
{
  static const auto table = makeAciTable();
  return table;
}

} // namespace

std::uint32_t OdCmEntityColor::lookUpRGB(int colorIndex)
{
  if (colorIndex < 0 || colorIndex > 255)
    return 0xFFFFFF;
  return aciTable()[colorIndex];
}

int OdCmEntityColor::lookUpACI(std::uint8_t r, std::uint8_t g, std::uint8_t b)
{
  int best = 7;
  long bestDist = -1;
  for (int i = 1; i < 256; ++i) {
    const std::uint32_t c = aciTable()[i];
    const long dr = long((c >> 16) & 0xFF) - r, dg = long((c >> 8) & 0xFF) - g, db = long(c & 0xFF) - b;
    const long d = dr * dr + dg * dg + db * db;
    if (bestDist < 0 || d < bestDist) {
      bestDist = d;
      best = i;
    }
  }
  return best;
}

void OdCmColor::setColorMethod(OdCmEntityColor::ColorMethod method)
{
  switch (method) {
  case OdCmEntityColor::kByLayer: m_value = (std::uint32_t(method) << 24) | 256; break;
  case OdCmEntityColor::kByBlock: m_value = (std::uint32_t(method) << 24); break;
  case OdCmEntityColor::kForeground: m_value = (std::uint32_t(method) << 24) | 7; break;
  default: m_value = (std::uint32_t(method) << 24) | (m_value & 0xFFFFFF); break;
  }
}

void OdCmColor::setRGB(std::uint8_t r, std::uint8_t g, std::uint8_t b)
{
  m_value = (std::uint32_t(OdCmEntityColor::kByColor) << 24) | (std::uint32_t(r) << 16) | (std::uint32_t(g) << 8) | b;
}

std::uint32_t OdCmColor::rgb() const
{
  switch (colorMethod()) {
  case OdCmEntityColor::kByColor: return m_value & 0xFFFFFF;
  case OdCmEntityColor::kByACI: return OdCmEntityColor::lookUpRGB(int(m_value & 0xFF));
  case OdCmEntityColor::kForeground: return 0xFFFFFF;
  default: return m_value & 0xFFFFFF;
  }
}

std::int16_t OdCmColor::colorIndex() const
{
  switch (colorMethod()) {
  case OdCmEntityColor::kByLayer: return 256;
  case OdCmEntityColor::kByBlock: return 0;
  case OdCmEntityColor::kByACI: return std::int16_t(m_value & 0xFF);
  case OdCmEntityColor::kForeground: return 7;
  case OdCmEntityColor::kByColor: return std::int16_t(OdCmEntityColor::lookUpACI(red(), green(), blue()));
  default: return 7;
  }
}

void OdCmColor::setColorIndex(std::int16_t index)
{
  if (index == 256 || index < 0)
    setColorMethod(OdCmEntityColor::kByLayer);
  else if (index == 0)
    setColorMethod(OdCmEntityColor::kByBlock);
  else
    m_value = (std::uint32_t(OdCmEntityColor::kByACI) << 24) | std::uint32_t(index & 0xFF);
}

bool OdCmColor::isByLayer() const
{
  return colorMethod() == OdCmEntityColor::kByLayer || (isByACI() && (m_value & 0xFFFF) == 256);
}

bool OdCmColor::isByBlock() const
{
  return colorMethod() == OdCmEntityColor::kByBlock || (isByACI() && (m_value & 0xFFFF) == 0);
}

bool OdCmColor::isForeground() const
{
  return colorMethod() == OdCmEntityColor::kForeground;
}

bool OdCmColor::setNames(const OdString& colorName, const OdString& bookName)
{
  m_colorName = colorName;
  m_bookName = bookName;
  return true;
}

OdString OdCmColor::colorNameForDxf() const
{
  if (m_colorName.isEmpty())
    return OdString();
  return m_bookName + "$" + m_colorName;
}

void OdCmColor::setNamesFromDxf(const OdString& text)
{
  const int dollar = text.find(u'$');
  if (dollar < 0)
    setNames(text, OdString());
  else
    setNames(text.mid(dollar + 1), text.left(dollar));
}

OdString OdCmColor::getDescription() const
{
  switch (colorMethod()) {
  case OdCmEntityColor::kByLayer: return "BYLAYER";
  case OdCmEntityColor::kByBlock: return "BYBLOCK";
  case OdCmEntityColor::kByACI: return OdString::formatted("%d", int(colorIndex()));
  case OdCmEntityColor::kByColor:
    if (!m_colorName.isEmpty())
      return m_bookName.isEmpty() ? m_colorName : m_bookName + "$" + m_colorName;
    return OdString::formatted("%d,%d,%d", int(red()), int(green()), int(blue()));
  case OdCmEntityColor::kForeground: return "FOREGROUND";
  case OdCmEntityColor::kNone: return "NONE";
  default: return OdString();
  }
}

void OdCmTransparency::setAlphaPercent(double p)
{
  m_method = kByAlpha;
  if (p < 0)
    p = 0;
  if (p > 1)
    p = 1;
  m_alpha = std::uint8_t(p * 255.0 + 0.5);
}

std::uint32_t OdCmTransparency::serializeOut() const
{
  switch (m_method) {
  case kByLayer: return 0;
  case kByBlock: return 0x1000000;
  case kByAlpha: return 0x2000000 | m_alpha;
  default: return 0x3000000;
  }
}

void OdCmTransparency::serializeIn(std::uint32_t value)
{
  switch (value >> 24) {
  case 0: m_method = kByLayer; break;
  case 1: m_method = kByBlock; break;
  case 2: m_method = kByAlpha; m_alpha = std::uint8_t(value & 0xFF); break;
  default: m_method = kErrorValue; break;
  }
}
