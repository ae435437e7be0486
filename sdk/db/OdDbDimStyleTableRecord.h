// OdDbDimStyleTableRecord: a dimension style, every dimension variable.
#pragma once

#include "sdk/db/OdCmColor.h"
#include "sdk/db/OdDbSymbolTable.h"

// Every variable: name, group code (negative: kept as extended data of
// kDimVarsApp, since the file format gives it no code of its own), C++ type,
// default (the drawing format's imperial defaults).
#define ODDB_DIMVARS_DOUBLE(X)                                                                    \
  X(dimaltf, Dimaltf, 143, 25.4) X(dimaltrnd, Dimaltrnd, 148, 0.0) X(dimasz, Dimasz, 41, 0.18) X(dimcen, Dimcen, 141, 0.09)            \
  X(dimdle, Dimdle, 46, 0.0) X(dimdli, Dimdli, 43, 0.38) X(dimexe, Dimexe, 44, 0.18) X(dimexo, Dimexo, 42, 0.0625)                 \
  X(dimgap, Dimgap, 147, 0.09) X(dimlfac, Dimlfac, 144, 1.0) X(dimrnd, Dimrnd, 45, 0.0) X(dimscale, Dimscale, 40, 1.0)                \
  X(dimtfac, Dimtfac, 146, 1.0) X(dimtm, Dimtm, 48, 0.0) X(dimtp, Dimtp, 47, 0.0) X(dimtsz, Dimtsz, 142, 0.0)                     \
  X(dimtvp, Dimtvp, 145, 0.0) X(dimtxt, Dimtxt, 140, 0.18) X(dimfxl, Dimfxl, 49, 1.0) X(dimjogang, Dimjogang, 50, 0.7853981633974483) \
  X(dimaltmzf, Dimaltmzf, -1, 100.0) X(dimmzf, Dimmzf, -2, 100.0)
#define ODDB_DIMVARS_INT(X)                                                                       \
  X(dimadec, Dimadec, 179, 0) X(dimaltd, Dimaltd, 171, 2) X(dimalttd, Dimalttd, 274, 2) X(dimaltu, Dimaltu, 273, 2) X(dimatfit, Dimatfit, 289, 3) \
  X(dimaunit, Dimaunit, 275, 0) X(dimazin, Dimazin, 79, 0) X(dimdec, Dimdec, 271, 4) X(dimdsep, Dimdsep, 278, 46) X(dimfrac, Dimfrac, 276, 0)   \
  X(dimjust, Dimjust, 280, 0) X(dimlunit, Dimlunit, 277, 2) X(dimtad, Dimtad, 77, 0) X(dimtdec, Dimtdec, 272, 4) X(dimtmove, Dimtmove, 279, 0)   \
  X(dimarcsym, Dimarcsym, 90, 0) X(dimtfill, Dimtfill, 69, 0) X(dimalttz, Dimalttz, 286, 0) X(dimtolj, Dimtolj, 283, 1) X(dimtzin, Dimtzin, 284, 0)  \
  X(dimzin, Dimzin, 78, 0) X(dimaltz, Dimaltz, 285, 0)
#define ODDB_DIMVARS_BOOL(X)                                                                      \
  X(dimalt, Dimalt, 170, false) X(dimlim, Dimlim, 72, false) X(dimsah, Dimsah, 173, false) X(dimsd1, Dimsd1, 281, false)           \
  X(dimsd2, Dimsd2, 282, false) X(dimse1, Dimse1, 75, false) X(dimse2, Dimse2, 76, false) X(dimsoxd, Dimsoxd, 175, false)           \
  X(dimtih, Dimtih, 73, true) X(dimtix, Dimtix, 174, false) X(dimtofl, Dimtofl, 172, false) X(dimtoh, Dimtoh, 74, true)             \
  X(dimtol, Dimtol, 71, false) X(dimupt, Dimupt, 288, false) X(dimtxtdirection, Dimtxtdirection, 294, false) X(dimfxlon, Dimfxlon, 290, false)
#define ODDB_DIMVARS_STRING(X) X(dimapost, Dimapost, 4) X(dimpost, Dimpost, 3) X(dimaltmzs, Dimaltmzs, -3) X(dimmzs, Dimmzs, -4)
#define ODDB_DIMVARS_COLOR(X) X(dimclrd, Dimclrd, 176) X(dimclre, Dimclre, 177) X(dimclrt, Dimclrt, 178) X(dimtfillclr, Dimtfillclr, -5)
#define ODDB_DIMVARS_LWEIGHT(X) X(dimlwd, Dimlwd, 371) X(dimlwe, Dimlwe, 372)
// References to records: arrow blocks, the text style and the linetypes.
#define ODDB_DIMVARS_BLOCK(X) X(dimblk, Dimblk, 342) X(dimblk1, Dimblk1, 343) X(dimblk2, Dimblk2, 344) X(dimldrblk, Dimldrblk, 341)
#define ODDB_DIMVARS_REF(X) X(dimtxsty, Dimtxsty, 340) X(dimltype, Dimltype, 345) X(dimltex1, Dimltex1, 346) X(dimltex2, Dimltex2, 347)

class OdDbDimStyleTableRecord : public OdDbSymbolTableRecord
{
  ODRX_DECLARE_MEMBERS(OdDbDimStyleTableRecord);

public:
  static constexpr const char* kSub = "AcDbDimStyleTableRecord";
  static constexpr const char* kDimVarsApp = "VERDANI_DIMVARS";
  const char* recordSub() const override { return kSub; }

#define ODDB_DV_D(n, N, c, d) double n() const { return dimDouble(c, #n, d); } void set##N(double v) { setDimDouble(c, #n, v); }
#define ODDB_DV_I(n, N, c, d) int n() const { return int(dimInt(c, #n, d)); } void set##N(int v) { setDimInt(c, #n, v); }
#define ODDB_DV_B(n, N, c, d) bool n() const { return dimInt(c, #n, d) != 0; } void set##N(bool v) { setDimInt(c, #n, v ? 1 : 0); }
#define ODDB_DV_S(n, N, c) OdString n() const { return dimString(c, #n); } void set##N(const OdString& v) { setDimString(c, #n, v); }
#define ODDB_DV_C(n, N, c) OdCmColor n() const { return dimColor(c, #n); } void set##N(const OdCmColor& v) { setDimColor(c, #n, v); }
#define ODDB_DV_L(n, N, c) OdDb::LineWeight n() const { return OdDb::LineWeight(dimInt(c, #n, OdDb::kLnWtByBlock)); } \
  void set##N(OdDb::LineWeight v) { setDimInt(c, #n, v); }
#define ODDB_DV_K(n, N, c) OdDbObjectId n() const { return getId(kSub, c); } void set##N(OdDbObjectId id) { setRef(c, id); }
#define ODDB_DV_A(n, N, c) ODDB_DV_K(n, N, c) void set##N(const OdString& arrowName) { setArrow(c, arrowName); }
  ODDB_DIMVARS_DOUBLE(ODDB_DV_D)
  ODDB_DIMVARS_INT(ODDB_DV_I)
  ODDB_DIMVARS_BOOL(ODDB_DV_B)
  ODDB_DIMVARS_STRING(ODDB_DV_S)
  ODDB_DIMVARS_COLOR(ODDB_DV_C)
  ODDB_DIMVARS_LWEIGHT(ODDB_DV_L)
  ODDB_DIMVARS_BLOCK(ODDB_DV_A)
  ODDB_DIMVARS_REF(ODDB_DV_K)
#undef ODDB_DV_D
#undef ODDB_DV_I
#undef ODDB_DV_B
#undef ODDB_DV_S
#undef ODDB_DV_C
#undef ODDB_DV_L
#undef ODDB_DV_K
#undef ODDB_DV_A

  // Fixed-length extension lines under the name the palette files use.
  bool dimfixedext() const { return dimfxlon(); }
  void setDimfixedext(bool on) { setDimfxlon(on); }

  // The name of an arrow block ("" for the default closed filled arrow).
  OdString arrowName(OdDbObjectId blockId) const;

  // Generic access by variable name ("dimasz"), as text; false when unknown.
  bool getVarText(const char* name, OdString& value) const;

protected:
  OdDbDimStyleTableRecord();

public:
  double dimDouble(int code, const char* name, double def) const;
  void setDimDouble(int code, const char* name, double v);
  long long dimInt(int code, const char* name, long long def) const;
  void setDimInt(int code, const char* name, long long v);
  OdString dimString(int code, const char* name) const;
  void setDimString(int code, const char* name, const OdString& v);
  OdCmColor dimColor(int code, const char* name) const;
  void setDimColor(int code, const char* name, const OdCmColor& v);
  void setRef(int code, OdDbObjectId id);
  void setArrow(int code, const OdString& arrowName);

private:
  std::string_view extraValue(const char* name) const;
  void setExtraValue(const char* name, int valueCode, std::string_view value);
};
using OdDbDimStyleTableRecordPtr = OdSmartPtr<OdDbDimStyleTableRecord>;
