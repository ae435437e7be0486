// CRkVariant conversions.
#include "hostsdk/core/CRkVariant.h"

#include "sdk/kernel/OdWcstol.h"

std::int32_t CRkVariant::toInt32() const
{
  return std::int32_t(toInt64());
}

std::int64_t CRkVariant::toInt64() const
{
  switch (m_type) {
  case kBool:
  case kInt32:
  case kInt64: return m_int;
  case kDouble: return std::int64_t(m_double);
  case kStringA:
  case kStringW: return odWcstol(toString());
  default: return 0;
  }
}

double CRkVariant::toDouble() const
{
  switch (m_type) {
  case kDouble: return m_double;
  case kStringA:
  case kStringW: return odWcstod(toString());
  default: return double(toInt64());
  }
}

OdString CRkVariant::toString() const
{
  switch (m_type) {
  case kStringA: return OdString(m_narrow);
  case kStringW: return m_wide;
  case kBool:
  case kInt32:
  case kInt64: return OdString::formatted("%lld", static_cast<long long>(m_int));
  case kDouble: return OdString::formatted("%g", m_double);
  default: return OdString();
  }
}

bool operator==(const CRkVariant& a, const CRkVariant& b)
{
  if (a.m_type != b.m_type)
    return false;
  switch (a.m_type) {
  case CRkVariant::kEmpty: return true;
  case CRkVariant::kDouble: return a.m_double == b.m_double;
  case CRkVariant::kStringA: return a.m_narrow == b.m_narrow;
  case CRkVariant::kStringW: return a.m_wide == b.m_wide;
  default: return a.m_int == b.m_int;
  }
}
