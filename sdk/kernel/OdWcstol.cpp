// odWcstol: the 32-bit number reader.
#include "sdk/kernel/OdWcstol.h"

#include <QByteArray>

#include <charconv>
#include <limits>

std::int32_t odWcstol(const OdString& text, int* end, int base)
{
  const QString& s = text.qstring();
  const qsizetype n = s.size();
  qsizetype i = 0;
  while (i < n && (s.at(i) == u' ' || (s.at(i) >= u'\t' && s.at(i) <= u'\r')))
    ++i;
  bool negative = false;
  if (i < n && (s.at(i) == u'+' || s.at(i) == u'-')) {
    negative = s.at(i) == u'-';
    ++i;
  }
  if ((base == 0 || base == 16) && i + 1 < n && s.at(i) == u'0' && (s.at(i + 1) == u'x' || s.at(i + 1) == u'X')) {
    base = 16;
    i += 2;
  } else if (base == 0) {
    base = (i < n && s.at(i) == u'0') ? 8 : 10;
  }
  const qsizetype digitsStart = i;
  // Accumulate with a clamp so that any number of digits is safe.
  const std::int64_t limit = negative ? -std::int64_t(std::numeric_limits<std::int32_t>::min())
                                      : std::int64_t(std::numeric_limits<std::int32_t>::max());
  std::int64_t value = 0;
  bool overflow = false;
  for (; i < n; ++i) {
    const char16_t c = s.at(i).unicode();
    int d;
    if (c >= u'0' && c <= u'9')
      d = c - u'0';
    else if (c >= u'a' && c <= u'z')
      d = c - u'a' + 10;
    else if (c >= u'A' && c <= u'Z')
      d = c - u'A' + 10;
    else
      break;
    if (d >= base)
      break;
    if (!overflow) {
      value = value * base + d;
      if (value > limit)
        overflow = true;
    }
  }
  if (i == digitsStart) {
    if (end)
      *end = 0;
    return 0;
  }
  if (end)
    *end = int(i);
  if (overflow)
    return negative ? std::numeric_limits<std::int32_t>::min() : std::numeric_limits<std::int32_t>::max();
  return std::int32_t(negative ? -value : value);
}

double odWcstod(const OdString& text, int* end)
{
  // from_chars ignores the C locale, which a Qt application sets from the
  // user's environment: a decimal comma must never creep into files.
  const QByteArray bytes = text.qstring().toLatin1();
  const char* first = bytes.constData();
  const char* last = first + bytes.size();
  const char* p = first;
  while (p < last && (*p == ' ' || (*p >= '\t' && *p <= '\r')))
    ++p;
  if (p < last && *p == '+')
    ++p;
  double v = 0.0;
  const auto r = std::from_chars(p, last, v);
  if (r.ec == std::errc::invalid_argument) {
    if (end)
      *end = 0;
    return 0.0;
  }
  if (end)
    *end = int(r.ptr - first);
  return v;
}
