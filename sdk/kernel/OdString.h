// OdString: the SDK's text type, UTF-16 on the interface, kept in a QString.
#pragma once

#include <QString>

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>

using OdChar = char16_t;

class OdString
{
public:
  static const OdString kEmpty;

  OdString() = default;
  OdString(const QString& s) : m_str(s) {}
  OdString(QString&& s) : m_str(std::move(s)) {}
  OdString(const char* utf8) : m_str(QString::fromUtf8(utf8)) {}
  OdString(const char16_t* s) : m_str(QString::fromUtf16(s)) {}
  OdString(const wchar_t* s) : m_str(QString::fromWCharArray(s)) {}
  OdString(const std::string& utf8) : m_str(QString::fromUtf8(utf8.data(), qsizetype(utf8.size()))) {}
  OdString(std::u16string_view s) : m_str(QString::fromUtf16(s.data(), qsizetype(s.size()))) {}
  OdString(OdChar c, int count) : m_str(qsizetype(count), QChar(c)) {}

  static OdString fromUtf8(const char* bytes, int length = -1);
  std::string toUtf8() const { return m_str.toUtf8().toStdString(); }
  std::wstring toWString() const { return m_str.toStdWString(); }

  const QString& qstring() const { return m_str; }
  QString& qstring() { return m_str; }
  const OdChar* c_str() const { return reinterpret_cast<const OdChar*>(m_str.utf16()); }

  int getLength() const { return int(m_str.size()); }
  int length() const { return getLength(); }
  bool isEmpty() const { return m_str.isEmpty(); }
  void empty() { m_str.clear(); }
  OdChar getAt(int i) const { return m_str.at(i).unicode(); }
  OdChar operator[](int i) const { return getAt(i); }
  void setAt(int i, OdChar c) { m_str[i] = QChar(c); }

  // Comparison: exact (code unit order), or ignoring case by Unicode case
  // folding, so that Cyrillic and accented names compare as users expect.
  int compare(const OdString& other) const;
  int iCompare(const OdString& other) const;
  int compare(const char* s) const { return compare(OdString(s)); }
  int iCompare(const char* s) const { return iCompare(OdString(s)); }

  int find(OdChar c, int start = 0) const;
  int find(const OdString& s, int start = 0) const;
  int reverseFind(OdChar c) const;
  int findOneOf(const OdString& chars) const;
  int replace(OdChar from, OdChar to);
  int replace(const OdString& from, const OdString& to);
  int remove(OdChar c);
  OdString& insert(int index, const OdString& s);
  OdString& deleteChars(int index, int count = 1);

  OdString left(int count) const { return OdString(m_str.left(count)); }
  OdString right(int count) const { return OdString(m_str.right(count)); }
  OdString mid(int start) const { return OdString(m_str.mid(start)); }
  OdString mid(int start, int count) const { return OdString(m_str.mid(start, count)); }
  OdString spanIncluding(const OdString& chars) const;
  OdString spanExcluding(const OdString& chars) const;

  OdString& trimLeft();
  OdString& trimRight();
  OdString& trimLeft(OdChar c);
  OdString& trimRight(OdChar c);
  OdString& trimLeft(const OdString& chars);
  OdString& trimRight(const OdString& chars);
  OdString& makeUpper();
  OdString& makeLower();

  // printf-style formatting with type-checked arguments: %s and %ls take any
  // text, %d %i %u %x %X %c take integers, %f %g %e take numbers, %% is a
  // percent sign. Flags, width and precision are honoured. A specifier with
  // no argument left is dropped rather than read from nowhere.
  template <class... Args>
  OdString& format(const OdString& fmt, const Args&... args);
  template <class... Args>
  static OdString formatted(const OdString& fmt, const Args&... args)
  {
    OdString s;
    s.format(fmt, args...);
    return s;
  }

  OdString& operator+=(const OdString& s) { m_str += s.m_str; return *this; }
  OdString& operator+=(OdChar c) { m_str += QChar(c); return *this; }
  OdString& operator+=(const char* s) { m_str += QString::fromUtf8(s); return *this; }
  friend OdString operator+(const OdString& a, const OdString& b) { return OdString(a.m_str + b.m_str); }
  friend OdString operator+(const OdString& a, const char* b) { return OdString(a.m_str + QString::fromUtf8(b)); }
  friend OdString operator+(const char* a, const OdString& b) { return OdString(QString::fromUtf8(a) + b.m_str); }
  friend OdString operator+(const OdString& a, OdChar c) { return OdString(a.m_str + QChar(c)); }

  friend bool operator==(const OdString& a, const OdString& b) { return a.m_str == b.m_str; }
  friend bool operator!=(const OdString& a, const OdString& b) { return a.m_str != b.m_str; }
  friend bool operator<(const OdString& a, const OdString& b) { return a.m_str < b.m_str; }
  friend bool operator==(const OdString& a, const char* b) { return a.m_str == QString::fromUtf8(b); }
  friend bool operator!=(const OdString& a, const char* b) { return !(a == b); }

  // One argument of format(), erased to what the formatter needs.
  struct FormatArg
  {
    enum Kind { kText, kSigned, kUnsigned, kReal } kind;
    QString text;
    long long i = 0;
    unsigned long long u = 0;
    double d = 0.0;
  };

private:
  void formatArgs(const OdString& fmt, const FormatArg* args, int count);

  template <class T>
  static FormatArg toArg(const T& v)
  {
    FormatArg a{FormatArg::kText, {}};
    using D = std::decay_t<T>;
    if constexpr (std::is_array_v<T>) {
      return toArg(static_cast<const std::remove_extent_t<T>*>(v));
    } else if constexpr (std::is_same_v<D, OdString>) {
      a.text = v.m_str;
    } else if constexpr (std::is_same_v<D, QString>) {
      a.text = v;
    } else if constexpr (std::is_same_v<D, std::string>) {
      a.text = QString::fromStdString(v);
    } else if constexpr (std::is_same_v<D, const char*> || std::is_same_v<D, char*>) {
      a.text = QString::fromUtf8(v ? v : "");
    } else if constexpr (std::is_same_v<D, const wchar_t*> || std::is_same_v<D, wchar_t*>) {
      a.text = v ? QString::fromWCharArray(v) : QString();
    } else if constexpr (std::is_same_v<D, const char16_t*> || std::is_same_v<D, char16_t*>) {
      a.text = v ? QString::fromUtf16(v) : QString();
    } else if constexpr (std::is_same_v<D, bool>) {
      a.kind = FormatArg::kSigned; a.i = v ? 1 : 0; a.u = a.i;
    } else if constexpr (std::is_floating_point_v<D>) {
      a.kind = FormatArg::kReal; a.d = double(v);
    } else if constexpr (std::is_enum_v<D>) {
      a.kind = FormatArg::kSigned; a.i = static_cast<long long>(v); a.u = static_cast<unsigned long long>(v);
    } else if constexpr (std::is_signed_v<D>) {
      a.kind = FormatArg::kSigned; a.i = v; a.u = static_cast<unsigned long long>(static_cast<std::make_unsigned_t<D>>(v));
    } else if constexpr (std::is_unsigned_v<D>) {
      a.kind = FormatArg::kUnsigned; a.u = v; a.i = static_cast<long long>(v);
    } else if constexpr (std::is_pointer_v<D>) {
      a.kind = FormatArg::kUnsigned; a.u = reinterpret_cast<std::uintptr_t>(v); a.i = static_cast<long long>(a.u);
    } else {
      static_assert(sizeof(T) == 0, "unsupported format argument");
    }
    return a;
  }

  QString m_str;
};

template <class... Args>
OdString& OdString::format(const OdString& fmt, const Args&... args)
{
  if constexpr (sizeof...(Args) == 0) {
    formatArgs(fmt, nullptr, 0);
  } else {
    const FormatArg list[] = {toArg(args)...};
    formatArgs(fmt, list, int(sizeof...(Args)));
  }
  return *this;
}

size_t qHash(const OdString& s, size_t seed = 0) noexcept;

inline std::ostream& operator<<(std::ostream& os, const OdString& s)
{
  return os << s.toUtf8();
}

namespace std {
template <>
struct hash<OdString>
{
  size_t operator()(const OdString& s) const noexcept { return ::qHash(s.qstring()); }
};
} // namespace std
