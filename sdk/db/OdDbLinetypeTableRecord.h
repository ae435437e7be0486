// OdDbLinetypeTableRecord: a linetype, its dashes and their shapes or texts.
#pragma once

#include "sdk/db/OdDbSymbolTable.h"

#include <vector>

class OdDbLinetypeTableRecord : public OdDbSymbolTableRecord
{
  ODRX_DECLARE_MEMBERS(OdDbLinetypeTableRecord);

public:
  static constexpr const char* kSub = "AcDbLinetypeTableRecord";
  const char* recordSub() const override { return kSub; }

  OdString comments() const { return getString(kSub, 3); }
  void setComments(const OdString& text) { setString(kSub, 3, text); }
  double patternLength() const { return getDouble(kSub, 40, 0.0); }
  void setPatternLength(double length) { setDouble(kSub, 40, length); }
  bool isScaledToFit() const { return getInt(kSub, 72, 65) == 'S'; }
  void setIsScaledToFit(bool fit) { setInt(kSub, 72, fit ? 'S' : 'A'); }

  int numDashes() const { return int(dashes().size()); }
  // Keeps the first dashes, adds plain zero-length ones.
  void setNumDashes(int count);
  double dashLengthAt(int i) const { return dash(i).length; }
  void setDashLengthAt(int i, double length);
  // The text style of a text element, or the shape file of a shape.
  OdDbObjectId shapeStyleAt(int i) const;
  void setShapeStyleAt(int i, OdDbObjectId styleId);
  int shapeNumberAt(int i) const { return dash(i).shapeNumber; }
  void setShapeNumberAt(int i, int number);
  OdGeVector2d shapeOffsetAt(int i) const { return {dash(i).offsetX, dash(i).offsetY}; }
  void setShapeOffsetAt(int i, const OdGeVector2d& offset);
  double shapeScaleAt(int i) const { return dash(i).scale; }
  void setShapeScaleAt(int i, double scale);
  // Radians, as the file keeps them.
  double shapeRotationAt(int i) const { return dash(i).rotation; }
  void setShapeRotationAt(int i, double rotation);
  // True when the rotation is absolute (upright in the coordinate system).
  bool shapeIsUcsOrientedAt(int i) const { return (dash(i).flags & 1) != 0; }
  void setShapeIsUcsOrientedAt(int i, bool oriented);
  OdString textAt(int i) const { return dash(i).text; }
  void setTextAt(int i, const OdString& text);

  // One dash as the file holds it (codes 49, 74, 75, 340, 46, 50, 44, 45, 9).
  struct Dash
  {
    double length = 0.0;
    int flags = 0; // 1 absolute rotation, 2 text, 4 shape
    int shapeNumber = 0;
    std::string style; // handle text of the style, empty for none
    double scale = 1.0, rotation = 0.0, offsetX = 0.0, offsetY = 0.0;
    OdString text;
    bool isComplex() const { return (flags & 6) != 0; }
  };
  std::vector<Dash> dashes() const;
  void setDashes(const std::vector<Dash>& dashes);

protected:
  OdDbLinetypeTableRecord();

private:
  Dash dash(int i) const;
  template <class F>
  void editDash(int i, F f);
};
using OdDbLinetypeTableRecordPtr = OdSmartPtr<OdDbLinetypeTableRecord>;
