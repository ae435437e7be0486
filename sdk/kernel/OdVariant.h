// OdVariant: a value of one of the SDK's basic types.
#pragma once

#include "sdk/kernel/OdArray.h"
#include "sdk/kernel/OdRxObject.h"

#include <cstdint>
#include <memory>
#include <variant>

class OdVariant
{
public:
  enum Type
  {
    kVoid = 0,
    kString,
    kBool,
    kInt8,
    kInt16,
    kInt32,
    kInt64,
    kDouble,
    kRxObjectPtr,
    kArray
  };

  OdVariant() = default;
  OdVariant(const OdString& v) : m_v(v) {}
  OdVariant(const char* v) : m_v(OdString(v)) {}
  OdVariant(bool v) : m_v(v) {}
  OdVariant(std::uint8_t v) : m_v(v) {}
  OdVariant(std::int16_t v) : m_v(v) {}
  OdVariant(std::int32_t v) : m_v(v) {}
  OdVariant(std::uint32_t v) : m_v(std::int32_t(v)) {}
  OdVariant(std::int64_t v) : m_v(v) {}
  OdVariant(double v) : m_v(v) {}
  OdVariant(const OdRxObjectPtr& v) : m_v(v) {}
  OdVariant(const OdRxObject* v) : m_v(OdRxObjectPtr(v)) {}
  OdVariant(const OdArray<OdVariant>& v);

  Type type() const { return Type(m_v.index()); }
  bool isVoid() const { return type() == kVoid; }

  // Typed access. A getter of the wrong type gives the type's empty value.
  OdString getString() const;
  bool getBool() const;
  std::uint8_t getInt8() const;
  std::int16_t getInt16() const;
  std::int32_t getInt32() const;
  std::int64_t getInt64() const;
  double getDouble() const;
  OdRxObjectPtr getRxObjectPtr() const;
  const OdArray<OdVariant>& getArray() const;

  OdVariant& setString(const OdString& v) { m_v = v; return *this; }
  OdVariant& setBool(bool v) { m_v = v; return *this; }
  OdVariant& setInt8(std::uint8_t v) { m_v = v; return *this; }
  OdVariant& setInt16(std::int16_t v) { m_v = v; return *this; }
  OdVariant& setInt32(std::int32_t v) { m_v = v; return *this; }
  OdVariant& setInt64(std::int64_t v) { m_v = v; return *this; }
  OdVariant& setDouble(double v) { m_v = v; return *this; }
  OdVariant& setRxObjectPtr(const OdRxObjectPtr& v) { m_v = v; return *this; }
  OdVariant& setArray(const OdArray<OdVariant>& v);

  friend bool operator==(const OdVariant& a, const OdVariant& b);

private:
  using Array = std::shared_ptr<const OdArray<OdVariant>>;
  std::variant<std::monostate, OdString, bool, std::uint8_t, std::int16_t, std::int32_t, std::int64_t, double,
               OdRxObjectPtr, Array>
      m_v;
};
