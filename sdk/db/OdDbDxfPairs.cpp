// The conversions between pair texts and values.
#include "sdk/db/OdDbDxfPairs.h"

#include <charconv>
#include <cstring>

OdDxf::ValueType OdDxf::codeType(int code)
{
  if (code >= 0 && code <= 9) return kString;
  if (code == 105) return kHandle;
  if (code >= 10 && code <= 59) return kDouble;
  if (code >= 60 && code <= 79) return kInt16;
  if (code >= 90 && code <= 99) return kInt32;
  if (code == 100 || code == 101 || code == 102) return kString;
  if (code >= 110 && code <= 149) return kDouble;
  if (code >= 160 && code <= 169) return kInt64;
  if (code >= 170 && code <= 179) return kInt16;
  if (code >= 210 && code <= 239) return kDouble;
  if (code >= 270 && code <= 289) return kInt16;
  if (code >= 290 && code <= 299) return kBool;
  if (code >= 300 && code <= 309) return kString;
  if (code >= 310 && code <= 319) return kBinary;
  if (code >= 320 && code <= 369) return kHandle;
  if (code >= 370 && code <= 389) return kInt16;
  if (code >= 390 && code <= 399) return kHandle;
  if (code >= 400 && code <= 409) return kInt16;
  if (code >= 410 && code <= 419) return kString;
  if (code >= 420 && code <= 429) return kInt32;
  if (code >= 430 && code <= 439) return kString;
  if (code >= 440 && code <= 449) return kInt32;
  if (code >= 450 && code <= 459) return kInt32;
  if (code >= 460 && code <= 469) return kDouble;
  if (code >= 470 && code <= 479) return kString;
  if (code == 480 || code == 481) return kHandle;
  if (code == 999) return kString;
  if (code >= 1000 && code <= 1003) return kString;
  if (code == 1004) return kBinary;
  if (code == 1005) return kHandle;
  if (code >= 1006 && code <= 1009) return kString;
  if (code >= 1010 && code <= 1059) return kDouble;
  if (code >= 1060 && code <= 1070) return kInt16;
  if (code == 1071) return kInt32;
  return kString;
}

std::string_view OdDxf::trim(std::string_view t)
{
  while (!t.empty() && (t.front() == ' ' || t.front() == '\t'))
    t.remove_prefix(1);
  while (!t.empty() && (t.back() == ' ' || t.back() == '\t' || t.back() == '\r'))
    t.remove_suffix(1);
  return t;
}

double OdDxf::toDouble(std::string_view text, double fallback)
{
  text = trim(text);
  if (!text.empty() && text.front() == '+')
    text.remove_prefix(1);
  double v = fallback;
  const auto r = std::from_chars(text.data(), text.data() + text.size(), v);
  if (r.ec != std::errc())
    return fallback;
  return v;
}

long long OdDxf::toInt(std::string_view text, long long fallback)
{
  text = trim(text);
  if (!text.empty() && text.front() == '+')
    text.remove_prefix(1);
  long long v = fallback;
  const auto r = std::from_chars(text.data(), text.data() + text.size(), v);
  if (r.ec != std::errc()) {
    // Some writers put "1.0" where an integer belongs.
    double d = 0;
    const auto rd = std::from_chars(text.data(), text.data() + text.size(), d);
    if (rd.ec != std::errc() || !(d > -9.2e18 && d < 9.2e18))
      return fallback;
    return (long long)d;
  }
  return v;
}

std::string OdDxf::fromDouble(double value)
{
  char buf[64];
  const auto r = std::to_chars(buf, buf + sizeof buf, value);
  std::string s(buf, r.ptr);
  // Keep a decimal point, as other readers expect for real values.
  if (s.find_first_of(".eEn") == std::string::npos)
    s += ".0";
  return s;
}

std::string OdDxf::fromInt(long long value)
{
  char buf[32];
  const auto r = std::to_chars(buf, buf + sizeof buf, value);
  return std::string(buf, r.ptr);
}

OdString OdDxf::toOdString(std::string_view utf8)
{
  return OdString(QString::fromUtf8(utf8.data(), qsizetype(utf8.size())));
}

std::string OdDxf::fromOdString(const OdString& text)
{
  return text.toUtf8();
}

OdCmColor OdDxf::toColor(std::int16_t index, const OdDbDxfPair* rgb, const OdDbDxfPair* names)
{
  OdCmColor c;
  c.setColorIndex(index);
  if (rgb) {
    const auto v = std::uint32_t(toInt(rgb->value));
    c.setRGB(std::uint8_t(v >> 16), std::uint8_t(v >> 8), std::uint8_t(v));
    if (names)
      c.setNamesFromDxf(toOdString(names->value));
  }
  return c;
}

void OdDxf::appendTrueColor(const OdCmColor& color, OdDbDxfPairArray& out, OdDbStringArena& arena)
{
  if (!color.isByColor())
    return;
  out.push_back({420, arena.store(fromInt(color.rgb()))});
  if (!color.colorName().isEmpty())
    out.push_back({430, arena.store(fromOdString(color.colorNameForDxf()))});
}
