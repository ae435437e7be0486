// OdDbTextStyleTableRecord: a text style (font or shape file and its look).
#pragma once

#include "sdk/db/OdDbSymbolTable.h"

class OdDbTextStyleTableRecord : public OdDbSymbolTableRecord
{
  ODRX_DECLARE_MEMBERS(OdDbTextStyleTableRecord);

public:
  static constexpr const char* kSub = "AcDbTextStyleTableRecord";
  const char* recordSub() const override { return kSub; }

  OdString fileName() const { return getString(kSub, 3); }
  void setFileName(const OdString& name) { setString(kSub, 3, name); }
  OdString bigFontFileName() const { return getString(kSub, 4); }
  void setBigFontFileName(const OdString& name) { setString(kSub, 4, name); }
  double textSize() const { return getDouble(kSub, 40, 0.0); }
  void setTextSize(double size) { setDouble(kSub, 40, size); }
  double xScale() const { return getDouble(kSub, 41, 1.0); }
  void setXScale(double scale) { setDouble(kSub, 41, scale); }
  // Radians; the file keeps degrees.
  double obliquingAngle() const;
  void setObliquingAngle(double angle);
  double priorSize() const { return getDouble(kSub, 42, 0.2); }
  void setPriorSize(double size) { setDouble(kSub, 42, size); }
  bool isShapeFile() const { return (flags() & 1) != 0; }
  void setIsShapeFile(bool on) { setBit(70, 1, on); }
  bool isVertical() const { return (flags() & 4) != 0; }
  void setIsVertical(bool on) { setBit(70, 4, on); }
  bool isBackwards() const { return (getInt(kSub, 71, 0) & 2) != 0; }
  void setIsBackwards(bool on) { setBit(71, 2, on); }
  bool isUpsideDown() const { return (getInt(kSub, 71, 0) & 4) != 0; }
  void setIsUpsideDown(bool on) { setBit(71, 4, on); }

  // The TrueType face, kept as extended data of the application "ACAD".
  void font(OdString& typeface, bool& bold, bool& italic, int& charset, int& pitchAndFamily) const;
  void setFont(const OdString& typeface, bool bold, bool italic, int charset, int pitchAndFamily);

protected:
  OdDbTextStyleTableRecord();

private:
  void setBit(int code, int bit, bool on);
};
using OdDbTextStyleTableRecordPtr = OdSmartPtr<OdDbTextStyleTableRecord>;
