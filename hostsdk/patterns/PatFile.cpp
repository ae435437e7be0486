// Reading .pat files: "*NAME, description" lines, each followed by lines of
// numbers "angle, x-origin, y-origin, delta-x, delta-y [, dash...]".
#include "hostsdk/patterns/PatFile.h"

#include "hostsdk/core/HostCore.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <cmath>

namespace {

// Far above any real pattern file; a file this large is something else.
constexpr qint64 kMaxFileSize = 32 * 1024 * 1024;

QString decode(QByteArray bytes)
{
  if (bytes.startsWith("\xEF\xBB\xBF"))
    bytes.remove(0, 3);
  QStringDecoder utf8(QStringDecoder::Utf8);
  QString text = utf8(bytes);
  // Files from Windows carry descriptions in the ANSI code page.
  if (utf8.hasError())
    text = QString::fromLatin1(bytes);
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return text;
}

OdString lineError(const OdString& path, int line, const OdString& what)
{
  return OdString::formatted(Supp_Translate("%s, line %d: %s"), path, line, what);
}

// The numbers of one line of a pattern; false with `what` on a bad line.
bool parseNumbers(QString line, std::vector<double>& numbers, OdString& what)
{
  const qsizetype comment = line.indexOf(QLatin1Char(';'));
  if (comment >= 0)
    line.truncate(comment);
  QStringList fields = line.split(QLatin1Char(','));
  // Some writers end a line with a comma.
  if (fields.size() > 1 && fields.last().trimmed().isEmpty())
    fields.removeLast();
  numbers.clear();
  for (const QString& field : fields) {
    const QString text = field.trimmed();
    if (text.isEmpty()) {
      what = Supp_Translate("a value is missing between two commas.");
      return false;
    }
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok || !std::isfinite(value)) {
      what = OdString::formatted(Supp_Translate("\"%s\" is not a number."), text);
      return false;
    }
    numbers.push_back(value);
  }
  if (numbers.size() < 5) {
    what = OdString::formatted(
        Supp_Translate("a line of a pattern needs at least five numbers (angle, x-origin, y-origin, delta-x, "
                       "delta-y); this one has %d."),
        int(numbers.size()));
    return false;
  }
  return true;
}

} // namespace

bool PatFile::load(const OdString& path, OdString* error)
{
  m_path = path;
  m_patterns.clear();
  auto fail = [&](const OdString& message) {
    if (error)
      *error = message;
    return false;
  };
  const QFileInfo info(path.qstring());
  if (!info.exists())
    return fail(OdString::formatted(Supp_Translate("The pattern file %s does not exist."), path));
  if (info.isDir())
    return fail(OdString::formatted(Supp_Translate("%s is a folder, not a pattern file."), path));
  if (info.size() > kMaxFileSize)
    return fail(OdString::formatted(Supp_Translate("%s is too large to be a pattern file (%d MB)."), path,
                                    int(info.size() / (1024 * 1024))));
  QFile file(path.qstring());
  if (!file.open(QIODevice::ReadOnly))
    return fail(OdString::formatted(Supp_Translate("Cannot read the pattern file %s: %s."), path,
                                    file.errorString()));
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError)
    return fail(OdString::formatted(Supp_Translate("Cannot read the pattern file %s: %s."), path,
                                    file.errorString()));
  return parse(bytes, path, error);
}

bool PatFile::parse(const QByteArray& bytes, const OdString& path, OdString* error)
{
  m_path = path;
  m_patterns.clear();
  std::vector<PatPattern> patterns;
  OdString name, description;
  std::vector<PatLineFamily> families;
  bool inPattern = false;
  auto finishPattern = [&] {
    if (inPattern)
      patterns.emplace_back(name, description, std::move(families));
    families.clear();
  };

  const QStringList lines = decode(bytes).split(QLatin1Char('\n'));
  std::vector<double> numbers;
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const int lineNumber = int(i + 1);
    const QString line = lines[i].trimmed();
    if (line.isEmpty() || line.startsWith(QLatin1Char(';')))
      continue;
    OdString what;
    if (line.startsWith(QLatin1Char('*'))) {
      finishPattern();
      const qsizetype comma = line.indexOf(QLatin1Char(','));
      name = OdString(line.mid(1, comma < 0 ? -1 : comma - 1).trimmed());
      description = comma < 0 ? OdString() : OdString(line.mid(comma + 1).trimmed());
      inPattern = true;
      if (!name.isEmpty())
        continue;
      what = Supp_Translate("the pattern has no name after \"*\".");
    } else if (!inPattern) {
      what = Supp_Translate("a line of numbers comes before the first pattern name (a line \"*NAME, description\").");
    } else if (parseNumbers(line, numbers, what)) {
      PatLineFamily family;
      family.angle = numbers[0];
      family.origin = OdGePoint2d(numbers[1], numbers[2]);
      family.delta = OdGeVector2d(numbers[3], numbers[4]);
      family.dashes.assign(numbers.begin() + 5, numbers.end());
      families.push_back(std::move(family));
      continue;
    }
    if (error)
      *error = lineError(path, lineNumber, what);
    return false;
  }
  finishPattern();
  m_patterns = std::move(patterns);
  return true;
}

const PatPattern* PatFile::find(const OdString& name) const
{
  for (const PatPattern& pattern : m_patterns)
    if (pattern.isNamed(name))
      return &pattern;
  return nullptr;
}
