// CXStringW: the host's wide string, with the path helpers the host offers.
#pragma once

#include "sdk/kernel/OdString.h"

class CXStringW
{
public:
  CXStringW() = default;
  CXStringW(const OdString& s) : m_str(s) {}
  CXStringW(const char* s) : m_str(s) {}
  CXStringW(const wchar_t* s) : m_str(s) {}
  CXStringW(const char16_t* s) : m_str(s) {}

  const OdString& str() const { return m_str; }
  operator const OdString&() const { return m_str; }
  int GetLength() const { return m_str.getLength(); }
  bool IsEmpty() const { return m_str.isEmpty(); }

  // Exact comparison: <0, 0, >0.
  int Compare(const CXStringW& other) const { return m_str.compare(other.m_str); }
  int CompareNoCase(const CXStringW& other) const { return m_str.iCompare(other.m_str); }

  // The folder of a path: everything before the last separator ("/" or
  // "\"), without it. A name without a folder gives the empty text.
  CXStringW FilePath() const;
  // The last component of a path: everything after the last separator.
  CXStringW GetFileName() const;
  // The extension with its dot, or the empty text.
  CXStringW GetFileExt() const;

  friend bool operator==(const CXStringW& a, const CXStringW& b) { return a.m_str == b.m_str; }

private:
  OdString m_str;
};
