// OdResBuf: a typed value with the result code of its kind, as system
// variables and command arguments pass them; resbufs chain into lists.
#pragma once

#include "sdk/db/OdCmColor.h"
#include "sdk/db/OdDbObjectId.h"
#include "sdk/db/OdGeTypes.h"
#include "sdk/kernel/OdRxObject.h"

#include <cstdint>
#include <variant>

class OdResBuf;
using OdResBufPtr = OdSmartPtr<OdResBuf>;

class OdResBuf : public OdRxObject
{
  ODRX_DECLARE_MEMBERS(OdResBuf);

public:
  // The result codes of value kinds. A resbuf may also carry a DXF group
  // code as its type; the code then says the kind of its value.
  enum ValueType
  {
    kRtNone = 5000,
    kRtDouble = 5001,
    kRtPoint2d = 5002,
    kRtInt16 = 5003,
    kRtAngle = 5004, // radians
    kRtString = 5005,
    kRtEntName = 5006,
    kRtOrient = 5008,
    kRtPoint3d = 5009,
    kRtInt32 = 5010,
    kRtColor = 5011,
    kRtVoid = 5014,
    kRtNil = 5019,
    kRtT = 5021,
    kRtInt8 = 5028,
    kRtBool = 5029,
    kRtInt64 = 5031
  };

  // A new resbuf of that type with the type's empty value.
  static OdResBufPtr newRb(int type = kRtNone);
  // A resbuf whose type follows the C++ type of the value: what a caller
  // that writes a value of run-time type T hands over.
  static OdResBufPtr newValue(double value) { return newRb(kRtDouble)->setDouble(value); }
  static OdResBufPtr newValue(std::int16_t value) { return newRb(kRtInt16)->setInt16(value); }
  static OdResBufPtr newValue(std::int32_t value) { return newRb(kRtInt32)->setInt32(value); }
  static OdResBufPtr newValue(bool value) { return newRb(kRtBool)->setBool(value); }
  static OdResBufPtr newValue(const OdString& value) { return newRb(kRtString)->setString(value); }
  static OdResBufPtr newValue(const OdCmColor& value) { return newRb(kRtColor)->setColor(value); }
  static OdResBufPtr newValue(const OdGePoint3d& value) { return newRb(kRtPoint3d)->setPoint3d(value); }

  int restype() const { return m_type; }
  void setRestype(int type) { m_type = type; }

  // The kind of value the type stands for.
  enum Kind
  {
    kNone,
    kReal,    // double (kRtDouble, kRtAngle, kRtOrient, real group codes)
    kInteger, // 8 to 64 bits and bool
    kText,
    kPoint,
    kObjectId,
    kColor
  };
  static Kind kindOf(int type);
  Kind kind() const { return kindOf(m_type); }

  // Getters convert among numbers (a real to an integer rounds toward
  // zero) and give the empty value of their type for anything else.
  double getDouble() const;
  std::int16_t getInt16() const { return std::int16_t(getInt64()); }
  std::int32_t getInt32() const { return std::int32_t(getInt64()); }
  std::int64_t getInt64() const;
  std::uint8_t getInt8() const { return std::uint8_t(getInt64()); }
  bool getBool() const { return getInt64() != 0; }
  OdString getString() const;
  OdGePoint3d getPoint3d() const;
  OdGePoint2d getPoint2d() const;
  OdDbObjectId getObjectId() const;
  OdCmColor getColor() const;

  // Setters keep the type and return the resbuf, for chaining.
  OdResBuf* setDouble(double value);
  OdResBuf* setInt16(std::int16_t value) { return setInt64(value); }
  OdResBuf* setInt32(std::int32_t value) { return setInt64(value); }
  OdResBuf* setInt64(std::int64_t value);
  OdResBuf* setInt8(std::uint8_t value) { return setInt64(value); }
  OdResBuf* setBool(bool value) { return setInt64(value ? 1 : 0); }
  OdResBuf* setString(const OdString& value);
  OdResBuf* setPoint3d(const OdGePoint3d& value);
  OdResBuf* setPoint2d(const OdGePoint2d& value) { return setPoint3d(OdGePoint3d(value.x, value.y, 0.0)); }
  OdResBuf* setObjectId(const OdDbObjectId& value);
  OdResBuf* setColor(const OdCmColor& value);

  // The next resbuf of a list, or null.
  OdResBufPtr next() const { return m_next; }
  OdResBuf* setNext(const OdResBufPtr& next);
  // The last resbuf of the list that starts here.
  OdResBuf* last();

protected:
  OdResBuf() = default;

private:
  int m_type = kRtNone;
  std::variant<std::monostate, double, std::int64_t, OdString, OdGePoint3d, OdDbObjectId, OdCmColor> m_value;
  OdResBufPtr m_next;
};
