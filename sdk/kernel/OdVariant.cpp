// OdVariant accessors.
#include "sdk/kernel/OdVariant.h"

OdVariant::OdVariant(const OdArray<OdVariant>& v) : m_v(std::make_shared<const OdArray<OdVariant>>(v))
{
}

OdVariant& OdVariant::setArray(const OdArray<OdVariant>& v)
{
  m_v = std::make_shared<const OdArray<OdVariant>>(v);
  return *this;
}

namespace {
template <class T, class V>
T valueOr(const V& v, T fallback = T())
{
  if (auto p = std::get_if<T>(&v))
    return *p;
  return fallback;
}
} // namespace

OdString OdVariant::getString() const { return valueOr<OdString>(m_v); }
bool OdVariant::getBool() const { return valueOr<bool>(m_v, false); }
std::uint8_t OdVariant::getInt8() const { return valueOr<std::uint8_t>(m_v, 0); }
std::int16_t OdVariant::getInt16() const { return valueOr<std::int16_t>(m_v, 0); }
std::int32_t OdVariant::getInt32() const { return valueOr<std::int32_t>(m_v, 0); }
std::int64_t OdVariant::getInt64() const { return valueOr<std::int64_t>(m_v, 0); }
double OdVariant::getDouble() const { return valueOr<double>(m_v, 0.0); }
OdRxObjectPtr OdVariant::getRxObjectPtr() const { return valueOr<OdRxObjectPtr>(m_v); }

const OdArray<OdVariant>& OdVariant::getArray() const
{
  static const OdArray<OdVariant> none;
  if (auto p = std::get_if<Array>(&m_v))
    return **p;
  return none;
}

bool operator==(const OdVariant& a, const OdVariant& b)
{
  if (a.type() != b.type())
    return false;
  if (a.type() == OdVariant::kArray)
    return a.getArray() == b.getArray();
  if (a.type() == OdVariant::kRxObjectPtr)
    return a.getRxObjectPtr().get() == b.getRxObjectPtr().get();
  return a.m_v == b.m_v;
}
