// CRkVariant: the host's variant, with the type codes the host uses.
#pragma once

#include "sdk/kernel/OdString.h"

#include <cstdint>
#include <string>

class CRkVariant
{
public:
  enum Type : int
  {
    kEmpty = 0,
    kBool = 2,
    kInt32 = 5,     // numbers of the configuration are 32-bit under this code
    kDouble = 7,
    kStringA = 10,  // narrow text (UTF-8)
    kStringW = 19,  // wide text
    kInt64 = 20
  };

  CRkVariant() = default;
  CRkVariant(std::int32_t v) : m_type(kInt32), m_int(v) {}
  CRkVariant(std::int64_t v) : m_type(kInt64), m_int(v) {}
  CRkVariant(bool v) : m_type(kBool), m_int(v ? 1 : 0) {}
  CRkVariant(double v) : m_type(kDouble), m_double(v) {}
  CRkVariant(const char* v) : m_type(kStringA), m_narrow(v ? v : "") {}
  CRkVariant(const std::string& v) : m_type(kStringA), m_narrow(v) {}
  CRkVariant(const OdString& v) : m_type(kStringW), m_wide(v) {}

  Type type() const { return m_type; }
  bool isEmpty() const { return m_type == kEmpty; }
  void clear() { *this = CRkVariant(); }

  std::int32_t toInt32() const;
  std::int64_t toInt64() const;
  double toDouble() const;
  bool toBool() const { return toInt64() != 0; }
  // Text of either string type; numbers in base 10; empty for kEmpty.
  OdString toString() const;
  const std::string& narrow() const { return m_narrow; }
  const OdString& wide() const { return m_wide; }

  friend bool operator==(const CRkVariant& a, const CRkVariant& b);

private:
  Type m_type = kEmpty;
  std::int64_t m_int = 0;
  double m_double = 0.0;
  std::string m_narrow;
  OdString m_wide;
};
