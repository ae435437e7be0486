// Dimension style variables: by group code, or as extended data by name.
#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDmUtil.h"

#include "sdk/kernel/OdRxClass.h"

ODRX_DEFINE_MEMBERS(OdDbDimStyleTableRecord, OdDbSymbolTableRecord,
                    ODRX_CREATE_IMPL(OdDbDimStyleTableRecord, OdDbDimStyleTableRecord))

OdDbDimStyleTableRecord::OdDbDimStyleTableRecord()
{
  initRecord("DIMSTYLE", kSub, {odPair(2, ""), odPair(70, "0")});
}

std::string_view OdDbDimStyleTableRecord::extraValue(const char* name) const
{
  const OdDbDxfPairArray x = xData(kDimVarsApp);
  for (std::size_t i = 0; i + 1 < x.size(); ++i)
    if (x[i].code == 1000 && x[i].value == name)
      return x[i + 1].value;
  return std::string_view();
}

void OdDbDimStyleTableRecord::setExtraValue(const char* name, int valueCode, std::string_view value)
{
  OdDbDxfPairArray x = xData(kDimVarsApp);
  bool found = false;
  for (std::size_t i = 0; i + 1 < x.size(); ++i)
    if (x[i].code == 1000 && x[i].value == name) {
      x[i + 1] = OdDbDxfPair{valueCode, value};
      found = true;
    }
  if (!found) {
    x.push_back(OdDbDxfPair{1000, std::string_view(name)});
    x.push_back(OdDbDxfPair{valueCode, value});
  }
  setXData(kDimVarsApp, x);
}

double OdDbDimStyleTableRecord::dimDouble(int code, const char* name, double def) const
{
  if (code < 0) {
    const auto v = extraValue(name);
    return v.empty() ? def : OdDxf::toDouble(v, def);
  }
  return getDouble(kSub, code, def);
}

void OdDbDimStyleTableRecord::setDimDouble(int code, const char* name, double v)
{
  if (code < 0)
    setExtraValue(name, 1040, OdDxf::fromDouble(v));
  else
    setDouble(kSub, code, v);
}

long long OdDbDimStyleTableRecord::dimInt(int code, const char* name, long long def) const
{
  if (code < 0) {
    const auto v = extraValue(name);
    return v.empty() ? def : OdDxf::toInt(v, def);
  }
  return getInt(kSub, code, def);
}

void OdDbDimStyleTableRecord::setDimInt(int code, const char* name, long long v)
{
  if (code < 0)
    setExtraValue(name, 1071, OdDxf::fromInt(v));
  else
    setInt(kSub, code, v);
}

OdString OdDbDimStyleTableRecord::dimString(int code, const char* name) const
{
  if (code < 0)
    return OdDxf::toOdString(extraValue(name));
  return getString(kSub, code);
}

void OdDbDimStyleTableRecord::setDimString(int code, const char* name, const OdString& v)
{
  if (code < 0)
    setExtraValue(name, 1000, OdDxf::fromOdString(v));
  else
    setString(kSub, code, v);
}

OdCmColor OdDbDimStyleTableRecord::dimColor(int code, const char* name) const
{
  OdCmColor c;
  if (code < 0) {
    // The packed colour value, so that RGB colours survive too.
    const auto v = extraValue(name);
    if (v.empty())
      c.setColorIndex(0);
    else
      c.setColor(std::uint32_t(OdDxf::toInt(v)));
    return c;
  }
  c.setColorIndex(std::int16_t(getInt(kSub, code, 0)));
  return c;
}

void OdDbDimStyleTableRecord::setDimColor(int code, const char* name, const OdCmColor& v)
{
  if (code < 0)
    setExtraValue(name, 1071, OdDxf::fromInt(std::int32_t(v.color())));
  else
    setInt(kSub, code, v.colorIndex());
}

void OdDbDimStyleTableRecord::setRef(int code, OdDbObjectId id)
{
  if (id.isNull())
    removeCode(kSub, code);
  else
    setId(kSub, code, id);
}

void OdDbDimStyleTableRecord::setArrow(int code, const OdString& arrowName)
{
  if (arrowName.isEmpty()) {
    removeCode(kSub, code);
    return;
  }
  OdDbDatabase* db = database();
  if (!db)
    throw OdError(eNullPtr, "arrow blocks need the style to be in a database");
  setId(kSub, code, OdDmUtil::getArrowId(arrowName, db, true));
}

OdString OdDbDimStyleTableRecord::arrowName(OdDbObjectId blockId) const
{
  OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(blockId.openObject());
  return r.isNull() ? OdString() : r->getName();
}

bool OdDbDimStyleTableRecord::getVarText(const char* name, OdString& value) const
{
  const std::string n(name);
#define ODDB_GV_D(v, V, c, d) if (n == #v) { value = OdString(OdDxf::fromDouble(v())); return true; }
#define ODDB_GV_I(v, V, c, d) if (n == #v) { value = OdString(OdDxf::fromInt(v())); return true; }
#define ODDB_GV_S(v, V, c) if (n == #v) { value = v(); return true; }
#define ODDB_GV_C(v, V, c) if (n == #v) { value = OdString(OdDxf::fromInt(v().color())); return true; }
#define ODDB_GV_L(v, V, c) if (n == #v) { value = OdString(OdDxf::fromInt(int(v()))); return true; }
#define ODDB_GV_K(v, V, c) if (n == #v) { value = arrowName(v()); return true; }
  ODDB_DIMVARS_DOUBLE(ODDB_GV_D)
  ODDB_DIMVARS_INT(ODDB_GV_I)
  ODDB_DIMVARS_BOOL(ODDB_GV_I)
  ODDB_DIMVARS_STRING(ODDB_GV_S)
  ODDB_DIMVARS_COLOR(ODDB_GV_C)
  ODDB_DIMVARS_LWEIGHT(ODDB_GV_L)
  ODDB_DIMVARS_BLOCK(ODDB_GV_K)
  ODDB_DIMVARS_REF(ODDB_GV_K)
  return false;
}
