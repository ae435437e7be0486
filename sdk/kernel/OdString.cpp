// OdString: comparisons, searches and the type-checked printf formatter.
#include "sdk/kernel/OdString.h"

#include <QHashFunctions>

#include <cstdio>

const OdString OdString::kEmpty;

OdString OdString::fromUtf8(const char* bytes, int length)
{
  return OdString(QString::fromUtf8(bytes, length < 0 ? qsizetype(-1) : qsizetype(length)));
}

int OdString::compare(const OdString& other) const
{
  const int r = QString::compare(m_str, other.m_str, Qt::CaseSensitive);
  return r < 0 ? -1 : (r > 0 ? 1 : 0);
}

int OdString::iCompare(const OdString& other) const
{
  // Qt compares case-insensitively by full Unicode case folding.
  const int r = QString::compare(m_str, other.m_str, Qt::CaseInsensitive);
  return r < 0 ? -1 : (r > 0 ? 1 : 0);
}

int OdString::find(OdChar c, int start) const
{
  return int(m_str.indexOf(QChar(c), start));
}

int OdString::find(const OdString& s, int start) const
{
  return int(m_str.indexOf(s.m_str, start));
}

int OdString::reverseFind(OdChar c) const
{
  return int(m_str.lastIndexOf(QChar(c)));
}

int OdString::findOneOf(const OdString& chars) const
{
  for (qsizetype i = 0; i < m_str.size(); ++i)
    if (chars.m_str.contains(m_str.at(i)))
      return int(i);
  return -1;
}

int OdString::replace(OdChar from, OdChar to)
{
  const int n = int(m_str.count(QChar(from)));
  m_str.replace(QChar(from), QChar(to));
  return n;
}

int OdString::replace(const OdString& from, const OdString& to)
{
  if (from.isEmpty())
    return 0;
  const int n = int(m_str.count(from.m_str));
  m_str.replace(from.m_str, to.m_str);
  return n;
}

int OdString::remove(OdChar c)
{
  const int n = int(m_str.count(QChar(c)));
  m_str.remove(QChar(c));
  return n;
}

OdString& OdString::insert(int index, const OdString& s)
{
  m_str.insert(index, s.m_str);
  return *this;
}

OdString& OdString::deleteChars(int index, int count)
{
  m_str.remove(index, count);
  return *this;
}

OdString OdString::spanIncluding(const OdString& chars) const
{
  qsizetype i = 0;
  while (i < m_str.size() && chars.m_str.contains(m_str.at(i)))
    ++i;
  return OdString(m_str.left(i));
}

OdString OdString::spanExcluding(const OdString& chars) const
{
  qsizetype i = 0;
  while (i < m_str.size() && !chars.m_str.contains(m_str.at(i)))
    ++i;
  return OdString(m_str.left(i));
}

namespace {
bool isBlank(QChar c)
{
  return c.isSpace();
}
} // namespace

OdString& OdString::trimLeft()
{
  qsizetype i = 0;
  while (i < m_str.size() && isBlank(m_str.at(i)))
    ++i;
  m_str.remove(0, i);
  return *this;
}

OdString& OdString::trimRight()
{
  qsizetype n = m_str.size();
  while (n > 0 && isBlank(m_str.at(n - 1)))
    --n;
  m_str.truncate(n);
  return *this;
}

OdString& OdString::trimLeft(OdChar c)
{
  return trimLeft(OdString(c, 1));
}

OdString& OdString::trimRight(OdChar c)
{
  return trimRight(OdString(c, 1));
}

OdString& OdString::trimLeft(const OdString& chars)
{
  qsizetype i = 0;
  while (i < m_str.size() && chars.m_str.contains(m_str.at(i)))
    ++i;
  m_str.remove(0, i);
  return *this;
}

OdString& OdString::trimRight(const OdString& chars)
{
  qsizetype n = m_str.size();
  while (n > 0 && chars.m_str.contains(m_str.at(n - 1)))
    --n;
  m_str.truncate(n);
  return *this;
}

OdString& OdString::makeUpper()
{
  m_str = m_str.toUpper();
  return *this;
}

OdString& OdString::makeLower()
{
  m_str = m_str.toLower();
  return *this;
}

void OdString::formatArgs(const OdString& fmtText, const FormatArg* args, int count)
{
  const QString& fmt = fmtText.m_str;
  QString out;
  out.reserve(fmt.size() + 16);
  int next = 0;
  const qsizetype n = fmt.size();
  for (qsizetype i = 0; i < n; ++i) {
    const QChar c = fmt.at(i);
    if (c != u'%') {
      out += c;
      continue;
    }
    if (i + 1 < n && fmt.at(i + 1) == u'%') {
      out += u'%';
      ++i;
      continue;
    }
    // Parse %[flags][width][.precision][length]conversion.
    qsizetype j = i + 1;
    QString flags;
    while (j < n && QStringView(u"-+ 0#").contains(fmt.at(j)))
      flags += fmt.at(j++);
    int width = -1;
    if (j < n && fmt.at(j) == u'*') {
      width = (next < count) ? int(args[next++].i) : 0;
      ++j;
    } else {
      while (j < n && fmt.at(j).isDigit())
        width = (width < 0 ? 0 : width * 10) + fmt.at(j++).digitValue();
    }
    int precision = -1;
    if (j < n && fmt.at(j) == u'.') {
      ++j;
      precision = 0;
      if (j < n && fmt.at(j) == u'*') {
        precision = (next < count) ? int(args[next++].i) : 0;
        ++j;
      } else {
        while (j < n && fmt.at(j).isDigit())
          precision = precision * 10 + fmt.at(j++).digitValue();
      }
    }
    while (j < n && QStringView(u"hlLqjztI6432").contains(fmt.at(j)))
      ++j;
    if (j >= n) {
      out += fmt.mid(i); // a dangling '%' stays as written
      break;
    }
    const QChar conv = fmt.at(j);
    const qsizetype start = i;
    i = j;
    if (!QStringView(u"sSdiuxXoeEfFgGcp").contains(conv)) {
      out += fmt.mid(start, j - start + 1); // not a conversion: kept as written
      continue;
    }
    if (next >= count)
      continue; // no argument for this one: dropped
    const FormatArg& a = args[next++];
    QString piece;
    if (conv == u's' || conv == u'S') {
      piece = a.kind == FormatArg::kText ? a.text
            : a.kind == FormatArg::kReal ? QString::number(a.d)
                                         : QString::number(a.i);
      if (precision >= 0)
        piece.truncate(precision);
    } else if (conv == u'c') {
      piece = a.kind == FormatArg::kText ? a.text.left(1) : QString(QChar(char16_t(a.u)));
    } else {
      std::string spec = "%" + flags.toStdString();
      if (width >= 0)
        spec += std::to_string(width);
      if (precision >= 0)
        spec += "." + std::to_string(precision);
      char buf[512];
      const char cv = char(conv.unicode());
      if (QStringView(u"eEfFgG").contains(conv)) {
        const double v = a.kind == FormatArg::kReal ? a.d
                       : a.kind == FormatArg::kUnsigned ? double(a.u) : double(a.i);
        std::snprintf(buf, sizeof buf, (spec + cv).c_str(), v);
      } else if (conv == u'd' || conv == u'i') {
        const long long v = a.kind == FormatArg::kReal ? (long long)a.d : a.i;
        std::snprintf(buf, sizeof buf, (spec + "lld").c_str(), v);
      } else if (conv == u'p') {
        std::snprintf(buf, sizeof buf, "0x%llx", a.u);
      } else {
        const unsigned long long v = a.kind == FormatArg::kReal ? (unsigned long long)a.d : a.u;
        std::snprintf(buf, sizeof buf, (spec + "ll" + cv).c_str(), v);
      }
      out += QString::fromUtf8(buf);
      continue; // width already applied
    }
    if (width > 0 && piece.size() < width) {
      if (flags.contains(u'-'))
        piece = piece.leftJustified(width);
      else
        piece = piece.rightJustified(width);
    }
    out += piece;
  }
  m_str = out;
}

size_t qHash(const OdString& s, size_t seed) noexcept
{
  return ::qHash(s.qstring(), seed);
}
