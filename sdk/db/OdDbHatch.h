// OdDbHatch: pattern and gradient fills with their boundary loops.
#pragma once

#include "sdk/db/OdCmColor.h"
#include "sdk/db/OdDbEntity.h"

#include <vector>

class OdDbHatch : public OdDbEntity
{
  ODRX_DECLARE_MEMBERS(OdDbHatch);

public:
  static constexpr const char* kSub = "AcDbHatch";
  enum HatchObjectType { kHatchObject = 0, kGradientObject = 1 };
  enum HatchPatternType { kUserDefined = 0, kPreDefined = 1, kCustomDefined = 2 };
  enum HatchStyle { kNormal = 0, kOuter = 1, kIgnore = 2 };
  enum GradientPatternType { kPreDefinedGradient = 0, kUserDefinedGradient = 1 };
  enum HatchLoopType { kDefault = 0, kExternal = 1, kPolyline = 2, kDerived = 4, kTextbox = 8, kOutermost = 16 };
  enum EdgeType { kLine = 1, kCirArc = 2, kEllArc = 3, kSpline = 4 };

  // One boundary edge. Line: p1-p2. Arc: centre p1, radius, angles. Ellipse:
  // centre p1, end of major axis p2 (relative), ratio in radius. Spline:
  // degree, knots, control points (weights when rational), fit data.
  struct Edge
  {
    int type = kLine;
    OdGePoint2d p1, p2;
    double radius = 0.0, startAngle = 0.0, endAngle = 0.0;
    bool ccw = true;
    int degree = 3;
    bool rational = false, periodic = false;
    std::vector<double> knots, weights;
    std::vector<OdGePoint2d> controlPoints, fitPoints;
    bool hasTangents = false;
    OdGeVector2d startTangent, endTangent;
  };
  struct Loop
  {
    int type = kExternal | kPolyline;
    std::vector<OdGePoint2d> vertices; // polyline loops
    std::vector<double> bulges;
    bool closed = true;
    std::vector<Edge> edges; // edge loops
    std::vector<std::string> sourceHandles;
  };
  struct PatternLine
  {
    double angle = 0.0; // degrees, as the file keeps it
    OdGePoint2d base;
    OdGeVector2d offset;
    std::vector<double> dashes;
  };
  struct GradientColor
  {
    double value = 0.0;
    OdCmColor color;
  };
  // Everything of the AcDbHatch section, decoded.
  struct Data
  {
    OdGePoint3d elevationPoint;
    OdGeVector3d normal = OdGeVector3d::kZAxis;
    std::string patternName = "SOLID";
    bool solid = true;
    int associative = 0;
    std::vector<Loop> loops;
    int style = kNormal;
    int patternType = kPreDefined;
    double angle = 0.0, scale = 1.0; // pattern angle in degrees
    bool isDouble = false;
    std::vector<PatternLine> lines;
    bool hasPixelSize = false;
    double pixelSize = 0.0;
    std::vector<OdGePoint2d> seeds;
    bool hasGradient = false;
    int gradientFlag = 0; // 450: 1 for a gradient
    int gradientReserved = 0;
    bool oneColor = false;
    std::vector<GradientColor> colors;
    double gradientAngle = 0.0; // radians
    double gradientShift = 0.0, tint = 0.0;
    std::string gradientName;
    OdDbDxfPairArray extra; // codes of the section this class does not know
  };
  Data data() const;
  void setData(const Data& d);

  // Each operation below decodes the section (data()) and, when it changes
  // something, writes it whole again (setData()).
  HatchObjectType hatchObjectType() const { return data().gradientFlag ? kGradientObject : kHatchObject; }
  void setHatchObjectType(HatchObjectType type);
  bool isGradient() const { return hatchObjectType() == kGradientObject; }
  bool isSolidFill() const { return getInt(kSub, 70, 0) != 0; }
  OdString patternName() const { return getString(kSub, 2); }
  HatchPatternType patternType() const { return HatchPatternType(data().patternType); }
  void setPattern(HatchPatternType type, const OdString& name);
  // Radians; the file keeps degrees.
  double patternAngle() const;
  void setPatternAngle(double angle);
  double patternScale() const { return data().scale; }
  void setPatternScale(double scale);
  // Line spacing of a user-defined pattern (code 41 as well).
  double patternSpace() const { return data().scale; }
  void setPatternSpace(double space) { setPatternScale(space); }
  bool patternDouble() const { return data().isDouble; }
  void setPatternDouble(bool on);
  int numPatternDefinitions() const { return int(data().lines.size()); }
  void getPatternDefinitionAt(int index, double& angle, double& baseX, double& baseY, double& offsetX, double& offsetY,
                              OdGeDoubleArray& dashes) const;
  HatchStyle hatchStyle() const { return HatchStyle(data().style); }
  void setHatchStyle(HatchStyle style);
  bool associative() const { return getInt(kSub, 71, 0) != 0; }
  void setAssociative(bool on) { setInt(kSub, 71, on ? 1 : 0); }
  double elevation() const { return getPoint(kSub, 10).z; }
  OdGeVector3d normal() const { return getVector(kSub, 210, OdGeVector3d::kZAxis); }

  int numLoops() const { return int(data().loops.size()); }
  int loopTypeAt(int index) const { return data().loops.at(std::size_t(index)).type; }
  void getLoopAt(int index, OdGePoint2dArray& vertices, OdGeDoubleArray& bulges) const;
  Loop loopAt(int index) const { return data().loops.at(std::size_t(index)); }
  void appendLoop(int loopType, const OdGePoint2dArray& vertices, const OdGeDoubleArray& bulges);
  void appendLoop(const Loop& loop);

  GradientPatternType gradientType() const { return GradientPatternType(data().gradientReserved); }
  OdString gradientName() const { return OdString(data().gradientName); }
  void setGradient(GradientPatternType type, const OdString& name);
  // Radians, as the file keeps them (unlike pattern angles).
  double gradientAngle() const { return data().gradientAngle; }
  void setGradientAngle(double angle);
  // 0 for a centred gradient.
  double gradientShift() const { return data().gradientShift; }
  void setGradientShift(double shift);
  double getShadeTintValue() const { return data().tint; }
  void setShadeTintValue(double tint);
  bool getGradientOneColorMode() const { return data().oneColor; }
  void setGradientOneColorMode(bool on);
  void getGradientColors(unsigned& count, OdArray<OdCmColor>& colors, OdGeDoubleArray& values) const;
  void setGradientColors(unsigned count, const OdCmColor* colors, const double* values);

protected:
  OdDbHatch();

private:
  template <class F>
  void edit(F f)
  {
    Data d = data();
    f(d);
    setData(d);
  }
};
using OdDbHatchPtr = OdSmartPtr<OdDbHatch>;
