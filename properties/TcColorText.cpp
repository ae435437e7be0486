// Colour texts.
#include "properties/TcColorText.h"

#include "hostsdk/core/HostCore.h"


#include <QStringList>

namespace tc {

namespace {

// The basic colours: their numeric text, their word, their index.
struct BasicColor
{
  const char* numeric;
  const char* word;
  std::int16_t index;
};

const BasicColor kBasicColors[] = {
    {"255,0,0", "red", 1},    {"255,255,0", "yellow", 2},  {"0,255,0", "green", 3},       {"0,255,255", "cyan", 4},
    {"0,0,255", "blue", 5},   {"255,0,255", "magenta", 6}, {"255,255,255", "white", 7},
};

OdString numericText(std::uint32_t rgb)
{
  return OdString::formatted("%d,%d,%d", int((rgb >> 16) & 0xFF), int((rgb >> 8) & 0xFF), int(rgb & 0xFF));
}

OdString wordOrSelf(const OdString& numeric)
{
  for (const BasicColor& c : kBasicColors)
    if (numeric == c.numeric)
      return Supp_Translate(c.word);
  return numeric;
}

bool sameWord(const OdString& text, const char* word)
{
  return text.iCompare(word) == 0 || text.iCompare(Supp_Translate(word)) == 0;
}

// A whole number made of digits only, or -1.
int wholeNumber(const QString& text)
{
  bool ok = false;
  const int n = text.trimmed().toInt(&ok);
  return ok && !text.trimmed().startsWith('+') && !text.trimmed().startsWith('-') ? n : -1;
}

} // namespace

OdString tcColorText(const OdCmColor& color)
{
  switch (color.colorMethod()) {
  case OdCmEntityColor::kByLayer: return Supp_Translate("By Layer");
  case OdCmEntityColor::kByBlock: return Supp_Translate("By Block");
  case OdCmEntityColor::kForeground: return Supp_Translate("Foreground");
  case OdCmEntityColor::kNone: return Supp_Translate("None");
  default: break;
  }
  if (!color.colorName().isEmpty())
    return color.colorName();
  if (color.isByACI()) {
    const int index = color.colorIndex();
    if (index >= 1 && index <= 7)
      return wordOrSelf(numericText(OdCmEntityColor::lookUpRGB(index)));
    return OdString::formatted("%d", index);
  }
  return wordOrSelf(numericText(color.rgb()));
}

bool tcParseColorText(const OdString& text, OdCmColor& color)
{
  OdString t = text;
  t.trimLeft();
  t.trimRight();
  if (sameWord(t, "By Layer") || sameWord(t, "ByLayer")) {
    color.setColorMethod(OdCmEntityColor::kByLayer);
    return true;
  }
  if (sameWord(t, "By Block") || sameWord(t, "ByBlock")) {
    color.setColorMethod(OdCmEntityColor::kByBlock);
    return true;
  }
  if (sameWord(t, "Foreground")) {
    color.setColorMethod(OdCmEntityColor::kForeground);
    return true;
  }
  if (sameWord(t, "None")) {
    color.setColorMethod(OdCmEntityColor::kNone);
    return true;
  }
  for (const BasicColor& c : kBasicColors)
    if (sameWord(t, c.word)) {
      color = OdCmColor();
      color.setColorIndex(c.index);
      return true;
    }
  const QStringList parts = t.qstring().split(',');
  if (parts.size() == 1) {
    const int index = wholeNumber(parts[0]);
    if (index < 1 || index > 255)
      return false;
    color = OdCmColor();
    color.setColorIndex(std::int16_t(index));
    return true;
  }
  if (parts.size() != 3)
    return false;
  int rgb[3];
  for (int i = 0; i < 3; ++i) {
    rgb[i] = wholeNumber(parts[i]);
    if (rgb[i] < 0 || rgb[i] > 255)
      return false;
  }
  color = OdCmColor();
  color.setRGB(std::uint8_t(rgb[0]), std::uint8_t(rgb[1]), std::uint8_t(rgb[2]));
  return true;
}

} // namespace tc
