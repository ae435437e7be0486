// Parsing and formatting of command-line values.
#include "app/core/HostInputParser.h"

#include <QLocale>
#include <QStringList>

#include <cmath>

namespace HostInputParser {

namespace {

QString trimmed(const OdString& text)
{
  return text.qstring().trimmed();
}

// The capital letters of a keyword, its shortcut ("Close" gives "C",
// "eXit" gives "X"); the whole word when it has none.
QString shortcutOf(const QString& keyword)
{
  QString s;
  for (QChar c : keyword)
    if (c.isUpper())
      s += c;
  return s.isEmpty() ? keyword : s;
}

std::optional<double> realOf(const QString& text)
{
  if (text.isEmpty())
    return std::nullopt;
  bool ok = false;
  const double v = QLocale::c().toDouble(text, &ok);
  if (!ok || !std::isfinite(v))
    return std::nullopt;
  return v;
}

} // namespace

std::optional<double> parseReal(const OdString& text)
{
  return realOf(trimmed(text));
}

std::optional<int> parseInteger(const OdString& text)
{
  const QString t = trimmed(text);
  bool ok = false;
  const int v = t.toInt(&ok, 10);
  return ok ? std::optional<int>(v) : std::nullopt;
}

std::optional<double> parseAngleDegrees(const OdString& text)
{
  QString t = trimmed(text);
  if (t.endsWith(u'd', Qt::CaseInsensitive))
    t.chop(1);
  const std::optional<double> degrees = realOf(t);
  if (!degrees)
    return std::nullopt;
  return *degrees * M_PI / 180.0;
}

bool looksLikePoint(const OdString& text)
{
  const QString t = trimmed(text);
  return t.startsWith(u'@') || t.contains(u',') || t.contains(u'<');
}

std::optional<OdGePoint3d> parsePoint(const OdString& text, const OdGePoint3d& lastPoint)
{
  QString t = trimmed(text);
  bool relative = false;
  if (t.startsWith(u'@')) {
    relative = true;
    t = t.mid(1).trimmed();
    if (t.isEmpty())
      return lastPoint;
  }
  OdGePoint3d p;
  const int lt = int(t.indexOf(u'<'));
  if (lt >= 0) {
    const std::optional<double> distance = realOf(t.left(lt).trimmed());
    const std::optional<double> angle = parseAngleDegrees(OdString(t.mid(lt + 1)));
    if (!distance || !angle)
      return std::nullopt;
    p = OdGePoint3d(*distance * std::cos(*angle), *distance * std::sin(*angle), 0.0);
  } else {
    const QStringList parts = t.split(u',');
    if (parts.size() < 2 || parts.size() > 3)
      return std::nullopt;
    double c[3] = {0.0, 0.0, 0.0};
    for (qsizetype i = 0; i < parts.size(); ++i) {
      const std::optional<double> v = realOf(parts[i].trimmed());
      if (!v)
        return std::nullopt;
      c[i] = *v;
    }
    p = OdGePoint3d(c[0], c[1], c[2]);
  }
  if (relative)
    p = lastPoint + p.asVector();
  return p;
}

OdString matchKeyword(const OdString& text, const std::vector<OdString>& keywords)
{
  const QString t = trimmed(text);
  if (t.isEmpty())
    return OdString();
  std::vector<OdString> candidates;
  for (const OdString& k : keywords) {
    if (k.qstring().compare(t, Qt::CaseInsensitive) == 0)
      return k;
    if (k.qstring().startsWith(t, Qt::CaseInsensitive))
      candidates.push_back(k);
  }
  if (candidates.size() == 1)
    return candidates.front();
  // The shortcut may stand inside the word ("X" of "eXit").
  for (const OdString& k : keywords)
    if (shortcutOf(k.qstring()).compare(t, Qt::CaseInsensitive) == 0)
      return k;
  return OdString();
}

std::optional<OdCmColor> parseColor(const OdString& text)
{
  QString t = trimmed(text);
  OdCmColor c;
  if (t.compare(QLatin1String("BYLAYER"), Qt::CaseInsensitive) == 0) {
    c.setColorMethod(OdCmEntityColor::kByLayer);
    return c;
  }
  if (t.compare(QLatin1String("BYBLOCK"), Qt::CaseInsensitive) == 0) {
    c.setColorMethod(OdCmEntityColor::kByBlock);
    return c;
  }
  if (t.compare(QLatin1String("NONE"), Qt::CaseInsensitive) == 0) {
    c.setColorMethod(OdCmEntityColor::kNone);
    return c;
  }
  if (t.startsWith(QLatin1String("RGB"), Qt::CaseInsensitive))
    t = t.mid(3).trimmed();
  if (t.startsWith(u':'))
    t = t.mid(1).trimmed();
  const QStringList parts = t.split(u',');
  if (parts.size() == 3) {
    int rgb[3];
    for (int i = 0; i < 3; ++i) {
      bool ok = false;
      rgb[i] = parts[i].trimmed().toInt(&ok);
      if (!ok || rgb[i] < 0 || rgb[i] > 255)
        return std::nullopt;
    }
    c.setRGB(std::uint8_t(rgb[0]), std::uint8_t(rgb[1]), std::uint8_t(rgb[2]));
    return c;
  }
  if (parts.size() == 1) {
    bool ok = false;
    const int index = t.toInt(&ok);
    if (!ok || index < 0 || index > 256)
      return std::nullopt;
    c.setColorIndex(std::int16_t(index));
    return c;
  }
  return std::nullopt;
}

OdString formatColor(const OdCmColor& color)
{
  if (color.isByLayer())
    return "BYLAYER";
  if (color.isByBlock())
    return "BYBLOCK";
  if (color.isNone())
    return "NONE";
  if (color.isByColor())
    return OdString::formatted("RGB:%d,%d,%d", int(color.red()), int(color.green()), int(color.blue()));
  return OdString::formatted("%d", int(color.colorIndex()));
}

OdString formatReal(double value)
{
  if (value == 0.0)
    return "0"; // never "-0"
  return OdString(QString::number(value, 'g', QLocale::FloatingPointShortest));
}

OdString formatPoint(const OdGePoint3d& point)
{
  return formatReal(point.x) + "," + formatReal(point.y) + "," + formatReal(point.z);
}

OdString formatAngle(double radians)
{
  // Rounded to what a typed angle gives, so that 90 shows as 90.
  const double degrees = std::round(radians * 180.0 / M_PI * 1e9) / 1e9;
  return formatReal(degrees);
}

OdString composePrompt(const OdString& message, const std::vector<OdString>& keywords, const OdString& defaultText)
{
  OdString text = message;
  if (!keywords.empty()) {
    QStringList names;
    for (const OdString& k : keywords)
      names << k.qstring();
    text += OdString(QStringLiteral(" or [%1]").arg(names.join(u'/')));
  }
  if (!defaultText.isEmpty())
    text += " <" + defaultText + ">";
  return text + ": ";
}

} // namespace HostInputParser
