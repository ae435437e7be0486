// Colour texts.
#include "hostsdk/ui/HostUiColorText.h"

#include <QRegularExpression>
#include <QStringList>

namespace {
const char* const kNames[] = {"red", "yellow", "green", "cyan", "blue", "magenta", "white"};
} // namespace

namespace HostUiColorText {

OdString format(const OdCmColor& color)
{
  if (color.isByLayer())
    return "ByLayer";
  if (color.isByBlock())
    return "ByBlock";
  if (color.isByColor())
    return OdString::formatted("%d,%d,%d", int(color.red()), int(color.green()), int(color.blue()));
  const int index = color.colorIndex();
  if (index >= 1 && index <= 7)
    return kNames[index - 1];
  return OdString::formatted("%d", index);
}

bool parse(const OdString& text, OdCmColor& color, bool allowByLayerByBlock)
{
  const QString t = text.qstring().trimmed();
  OdCmColor out;
  if (t.compare(QLatin1String("ByLayer"), Qt::CaseInsensitive) == 0 || t == QLatin1String("256")) {
    if (!allowByLayerByBlock)
      return false;
    out.setColorMethod(OdCmEntityColor::kByLayer);
  } else if (t.compare(QLatin1String("ByBlock"), Qt::CaseInsensitive) == 0 || t == QLatin1String("0")) {
    if (!allowByLayerByBlock)
      return false;
    out.setColorMethod(OdCmEntityColor::kByBlock);
  } else if (t.contains(u',')) {
    const QStringList parts = t.split(u',');
    if (parts.size() != 3)
      return false;
    int rgb[3];
    for (int i = 0; i < 3; ++i) {
      bool ok = false;
      rgb[i] = parts[i].trimmed().toInt(&ok);
      if (!ok || rgb[i] < 0 || rgb[i] > 255)
        return false;
    }
    out.setRGB(std::uint8_t(rgb[0]), std::uint8_t(rgb[1]), std::uint8_t(rgb[2]));
  } else {
    int index = 0;
    for (int i = 0; i < 7; ++i)
      if (t.compare(QLatin1String(kNames[i]), Qt::CaseInsensitive) == 0)
        index = i + 1;
    if (!index) {
      bool ok = false;
      index = t.toInt(&ok);
      if (!ok || index < 1 || index > 255)
        return false;
    }
    out.setColorIndex(std::int16_t(index));
  }
  color = out;
  return true;
}

} // namespace HostUiColorText
