// Distances and angles as text in a drawing's units.
#include "hostsdk/units/HostUnits.h"

#include "sdk/db/OdDbDatabase.h"

#include <QRegularExpression>

#include <algorithm>

#include <cmath>

namespace {

int setting(const OdDbDatabase* db, const char* name, int fallback)
{
  return db ? int(db->getHeaderInt(name, fallback)) : fallback;
}

QString fixed(double v, int precision)
{
  return QString::number(v, 'f', std::clamp(precision, 0, 8));
}

// Whole inches and a reduced fraction of 1/2^precision.
QString fractionText(double inches, int precision, bool withInchMark)
{
  const int denominator = 1 << std::clamp(precision, 0, 8);
  long long units = std::llround(inches * denominator);
  const long long whole = units / denominator;
  long long numerator = units % denominator;
  int den = denominator;
  while (numerator && numerator % 2 == 0) {
    numerator /= 2;
    den /= 2;
  }
  QString text;
  if (numerator == 0)
    text = QString::number(whole);
  else if (whole == 0)
    text = QString("%1/%2").arg(numerator).arg(den);
  else
    text = QString("%1 %2/%3").arg(whole).arg(numerator).arg(den);
  return withInchMark ? text + '"' : text;
}

QString feetAndInches(double value, int precision, bool architectural)
{
  const bool negative = value < 0;
  double rest = std::fabs(value);
  // Rounded first, so that 11.99999 inches do not show as 0'-12".
  const double step = architectural ? 1.0 / (1 << std::clamp(precision, 0, 8)) : std::pow(10.0, -std::clamp(precision, 0, 8));
  rest = std::round(rest / step) * step;
  const long long feet = (long long)(std::floor(rest / 12.0 + 1e-12));
  const double inches = std::max(0.0, rest - feet * 12.0);
  const QString inchText = architectural ? fractionText(inches, precision, true) : fixed(inches, precision) + '"';
  QString text = feet > 0 ? QString("%1'-%2").arg(feet).arg(inchText) : inchText;
  return negative ? '-' + text : text;
}

// "15", "15.5", "1/2", "15 1/2": a whole, a decimal or a mixed number.
bool readMixed(const QString& text, double& out)
{
  static const QRegularExpression mixed(R"(^(\d+(?:\.\d*)?|\.\d+)?\s*(?:(\d+)\s*/\s*(\d+))?$)");
  const QRegularExpressionMatch m = mixed.match(text.trimmed());
  if (!m.hasMatch() || (m.captured(1).isEmpty() && m.captured(2).isEmpty()))
    return false;
  double v = m.captured(1).isEmpty() ? 0.0 : m.captured(1).toDouble();
  if (!m.captured(2).isEmpty()) {
    const double den = m.captured(3).toDouble();
    if (den == 0.0)
      return false;
    // "15.5 1/2" is no number.
    if (m.captured(1).contains('.'))
      return false;
    v += m.captured(2).toDouble() / den;
  }
  out = v;
  return true;
}

double normalized(double radians)
{
  double a = std::fmod(radians, 2 * M_PI);
  if (a < 0)
    a += 2 * M_PI;
  if (a >= 2 * M_PI - 1e-14)
    a = 0.0;
  return a;
}

QString dms(double degrees, int precision)
{
  const int p = std::clamp(precision, 0, 8);
  double step = 1.0;
  if (p >= 1 && p <= 2)
    step = 1.0 / 60.0;
  else if (p >= 3 && p <= 4)
    step = 1.0 / 3600.0;
  else if (p > 4)
    step = std::pow(10.0, -(p - 4)) / 3600.0;
  const double rounded = std::round(degrees / step) * step;
  const long long d = (long long)std::floor(rounded + 1e-9);
  if (p == 0)
    return QString("%1d").arg(d);
  const double minutesAll = (rounded - d) * 60.0;
  const long long m = (long long)std::floor(minutesAll + 1e-9);
  if (p <= 2)
    return QString("%1d%2'").arg(d).arg(m);
  const double seconds = std::max(0.0, (minutesAll - m) * 60.0);
  const QString s = p <= 4 ? QString::number(std::llround(seconds)) : fixed(seconds, p - 4);
  return QString("%1d%2'%3\"").arg(d).arg(m).arg(s);
}

// "45d30'15\"", "45d30'", "45d", "45.5d": degrees.
bool readDms(const QString& text, double& degrees)
{
  static const QRegularExpression form(R"(^(\d+(?:\.\d*)?)d(?:\s*(\d+(?:\.\d*)?)')?(?:\s*(\d+(?:\.\d*)?)\")?$)");
  const QRegularExpressionMatch m = form.match(text.trimmed());
  if (!m.hasMatch())
    return false;
  degrees = m.captured(1).toDouble() + m.captured(2).toDouble() / 60.0 + m.captured(3).toDouble() / 3600.0;
  return true;
}

// A plain number, or one with its unit's mark; degrees out.
bool readAngleDegrees(const QString& text, int unit, double& degrees)
{
  const QString t = text.trimmed();
  if (t.isEmpty())
    return false;
  if (readDms(t, degrees))
    return true;
  bool ok = false;
  const QChar last = t.back().toLower();
  if (last == 'r' || last == 'g') {
    const double v = t.left(t.size() - 1).trimmed().toDouble(&ok);
    if (!ok)
      return false;
    degrees = last == 'r' ? v * 180.0 / M_PI : v * 0.9;
    return true;
  }
  const double v = t.toDouble(&ok);
  if (!ok)
    return false;
  switch (unit) {
  case 2: degrees = v * 0.9; break;
  case 3: degrees = v * 180.0 / M_PI; break;
  default: degrees = v; break;
  }
  return true;
}

} // namespace

OdString hostdbRToS(double value, int unit, int precision, const OdDbDatabase* database)
{
  if (unit < 1 || unit > 5)
    unit = setting(database, "$LUNITS", 2);
  if (precision < 0)
    precision = setting(database, "$LUPREC", 4);
  switch (unit) {
  case 1: {
    QString text = QString::number(value, 'E', std::clamp(precision, 0, 8));
    // Two digits of exponent at least, as in "1.5500E+01".
    static const QRegularExpression exponent(R"(E([+-])(\d)$)");
    text.replace(exponent, "E\\10\\2");
    return OdString(text);
  }
  case 3: return OdString(feetAndInches(value, precision, false));
  case 4: return OdString(feetAndInches(value, precision, true));
  case 5: {
    const QString text = fractionText(std::fabs(value), precision, false);
    return OdString(value < 0 && text != "0" ? '-' + text : text);
  }
  default: return OdString(fixed(value, precision));
  }
}

bool hostdbDisToF(const OdString& text, int unit, double& value, const OdDbDatabase* database)
{
  (void)unit;
  (void)database;
  QString t = text.qstring().trimmed();
  if (t.isEmpty())
    return false;
  bool ok = false;
  const double plain = t.toDouble(&ok);
  if (ok && std::isfinite(plain)) {
    value = plain;
    return true;
  }
  bool negative = false;
  if (t.startsWith('-')) {
    negative = true;
    t = t.mid(1).trimmed();
  }
  double feet = 0.0;
  const int footMark = t.indexOf('\'');
  if (footMark >= 0) {
    bool feetOk = false;
    feet = t.left(footMark).trimmed().toDouble(&feetOk);
    if (!feetOk)
      return false;
    t = t.mid(footMark + 1).trimmed();
    if (t.startsWith('-'))
      t = t.mid(1).trimmed();
  }
  if (t.endsWith('"'))
    t.chop(1);
  double inches = 0.0;
  if (!t.isEmpty() && !readMixed(t, inches))
    return false;
  if (footMark < 0 && t.isEmpty())
    return false;
  const double v = feet * 12.0 + inches;
  value = negative ? -v : v;
  return true;
}

OdString hostdbAngToS(double angle, int unit, int precision, const OdDbDatabase* database)
{
  if (unit < 0 || unit > 4)
    unit = setting(database, "$AUNITS", 0);
  if (precision < 0)
    precision = setting(database, "$AUPREC", 0);
  const double a = normalized(angle);
  const double degrees = a * 180.0 / M_PI;
  switch (unit) {
  case 1: return OdString(dms(degrees, precision));
  case 2: return OdString(fixed(degrees / 0.9, precision) + 'g');
  case 3: return OdString(fixed(a, precision) + 'r');
  case 4: {
    // Bearings from north or south towards east or west.
    const double d = std::round(degrees * 1e9) / 1e9;
    if (d == 0.0)
      return OdString("E");
    if (d == 90.0)
      return OdString("N");
    if (d == 180.0)
      return OdString("W");
    if (d == 270.0)
      return OdString("S");
    if (d < 90.0)
      return OdString("N " + dms(90.0 - d, precision) + " E");
    if (d < 180.0)
      return OdString("N " + dms(d - 90.0, precision) + " W");
    if (d < 270.0)
      return OdString("S " + dms(270.0 - d, precision) + " W");
    return OdString("S " + dms(d - 270.0, precision) + " E");
  }
  default: return OdString(fixed(degrees, precision));
  }
}

bool hostdbAngToF(const OdString& text, int unit, double& angle, const OdDbDatabase* database)
{
  if (unit < 0 || unit > 4)
    unit = setting(database, "$AUNITS", 0);
  const QString t = text.qstring().trimmed().toUpper();
  if (t == "N" || t == "E" || t == "S" || t == "W") {
    angle = (t == "E" ? 0.0 : t == "N" ? 90.0 : t == "W" ? 180.0 : 270.0) * M_PI / 180.0;
    return true;
  }
  if (t.size() > 2 && (t.front() == 'N' || t.front() == 'S') && (t.back() == 'E' || t.back() == 'W')) {
    double bearing = 0.0;
    if (!readAngleDegrees(t.mid(1, t.size() - 2).toLower(), 0, bearing) || bearing > 90.0)
      return false;
    double degrees = 0.0;
    if (t.front() == 'N')
      degrees = t.back() == 'E' ? 90.0 - bearing : 90.0 + bearing;
    else
      degrees = t.back() == 'E' ? 270.0 + bearing : 270.0 - bearing;
    angle = degrees * M_PI / 180.0;
    return true;
  }
  bool negative = false;
  QString body = text.qstring().trimmed();
  if (body.startsWith('-')) {
    negative = true;
    body = body.mid(1);
  }
  double degrees = 0.0;
  if (!readAngleDegrees(body, unit, degrees))
    return false;
  angle = (negative ? -degrees : degrees) * M_PI / 180.0;
  return true;
}
