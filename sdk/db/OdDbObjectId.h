// Handles, object ids and the SDK's drawing enums.
#pragma once

#include "sdk/kernel/OdSmartPtr.h"
#include "sdk/kernel/OdString.h"

#include <cstdint>
#include <functional>

class OdDbObject;
class OdDbDatabase;
using OdDbObjectPtr = OdSmartPtr<OdDbObject>;

namespace OdDb {
enum OpenMode { kNotOpen = -1, kForRead = 0, kForWrite = 1, kForNotify = 2 };
enum LineWeight : int
{
  kLnWt000 = 0, kLnWt005 = 5, kLnWt009 = 9, kLnWt013 = 13, kLnWt015 = 15, kLnWt018 = 18,
  kLnWt020 = 20, kLnWt025 = 25, kLnWt030 = 30, kLnWt035 = 35, kLnWt040 = 40, kLnWt050 = 50,
  kLnWt053 = 53, kLnWt060 = 60, kLnWt070 = 70, kLnWt080 = 80, kLnWt090 = 90, kLnWt100 = 100,
  kLnWt106 = 106, kLnWt120 = 120, kLnWt140 = 140, kLnWt158 = 158, kLnWt200 = 200, kLnWt211 = 211,
  kLnWtByLayer = -1, kLnWtByBlock = -2, kLnWtByLwDefault = -3
};
enum PlotStyleNameType
{
  kPlotStyleNameByLayer = 0,
  kPlotStyleNameByBlock = 1,
  kPlotStyleNameIsDictDefault = 2,
  kPlotStyleNameById = 3
};
enum UnitsValue
{
  kUnitsUndefined = 0, kUnitsInches = 1, kUnitsFeet = 2, kUnitsMiles = 3, kUnitsMillimeters = 4,
  kUnitsCentimeters = 5, kUnitsMeters = 6, kUnitsKilometers = 7, kUnitsMicroinches = 8,
  kUnitsMils = 9, kUnitsYards = 10, kUnitsAngstroms = 11, kUnitsNanometers = 12, kUnitsMicrons = 13,
  kUnitsDecimeters = 14, kUnitsDekameters = 15, kUnitsHectometers = 16, kUnitsGigameters = 17,
  kUnitsAstronomical = 18, kUnitsLightYears = 19, kUnitsParsecs = 20, kUnitsMax = kUnitsParsecs
};
enum Visibility { kVisible = 0, kInvisible = 1 };
enum DuplicateRecordCloning { kDrcNotApplicable = 0, kDrcIgnore = 1, kDrcReplace = 2 };
} // namespace OdDb

// A database handle: a 64-bit number written as upper-case hex in files.
class OdDbHandle
{
public:
  OdDbHandle() = default;
  OdDbHandle(std::uint64_t value) : m_value(value) {}
  // Parses hex text; anything that is not hex gives the null handle.
  static OdDbHandle fromText(std::string_view text);
  explicit OdDbHandle(const OdString& hex) : OdDbHandle(fromText(hex.toUtf8())) {}

  bool isNull() const { return m_value == 0; }
  operator std::uint64_t() const { return m_value; }
  std::uint64_t value() const { return m_value; }
  OdString ascii() const;
  std::string text() const;
  OdDbHandle& operator++() { ++m_value; return *this; }

private:
  std::uint64_t m_value = 0;
};

// The database's entry for one handle. The object may be absent: a handle
// that something points at, whose object has not been read (yet).
struct OdDbStub
{
  OdDbHandle handle;
  OdDbDatabase* database = nullptr; // not owned: the database owns its stubs
  OdDbObject* object = nullptr;     // holds one reference
  bool erased = false;
};

// The identity of an object in its database: a pointer to the database's
// stub for a handle. Ids are cheap to copy and compare; they stay valid as
// long as the database lives, also for erased objects.
class OdDbObjectId
{
public:
  OdDbObjectId() = default;
  explicit OdDbObjectId(OdDbStub* stub) : m_stub(stub) {}
  static const OdDbObjectId kNull;

  bool isNull() const { return m_stub == nullptr; }
  // Not null and with an object behind it.
  bool isValid() const { return m_stub && m_stub->object; }
  bool isErased() const { return m_stub && m_stub->erased; }
  bool isEffectivelyErased() const { return isErased(); }
  OdDbHandle getHandle() const { return m_stub ? m_stub->handle : OdDbHandle(); }
  OdDbDatabase* database() const { return m_stub ? m_stub->database : nullptr; }
  OdDbStub* stub() const { return m_stub; }
  void setNull() { m_stub = nullptr; }

  // Null for a null, dangling or (unless asked) erased id.
  OdDbObjectPtr openObject(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;
  // As openObject, but throws OdError (eNullPtr / eKeyNotFound) instead.
  OdDbObjectPtr safeOpenObject(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;

  explicit operator bool() const { return !isNull(); }
  friend bool operator==(const OdDbObjectId& a, const OdDbObjectId& b) { return a.m_stub == b.m_stub; }
  friend bool operator!=(const OdDbObjectId& a, const OdDbObjectId& b) { return a.m_stub != b.m_stub; }
  friend bool operator<(const OdDbObjectId& a, const OdDbObjectId& b) { return std::less<OdDbStub*>()(a.m_stub, b.m_stub); }

private:
  OdDbStub* m_stub = nullptr;
};

template <class T>
class OdArray;
using OdDbObjectIdArray = OdArray<OdDbObjectId>;

namespace std {
template <>
struct hash<OdDbObjectId>
{
  size_t operator()(const OdDbObjectId& id) const noexcept { return std::hash<OdDbStub*>()(id.stub()); }
};
} // namespace std
