// Simple geometric entities: line, circle, arc, ellipse, point, solid, spline.
#pragma once

#include "sdk/db/OdDbEntity.h"

#define ODDB_THICK_NORMAL(Sub)                                                    \
  double thickness() const { return getDouble(Sub, 39, 0.0); }                     \
  void setThickness(double t) { setDouble(Sub, 39, t); }                           \
  OdGeVector3d normal() const { return getVector(Sub, 210, OdGeVector3d::kZAxis); } \
  void setNormal(const OdGeVector3d& n) { setVector(Sub, 210, n); }

class OdDbLine : public OdDbCurve
{
  ODRX_DECLARE_MEMBERS(OdDbLine);

public:
  static constexpr const char* kSub = "AcDbLine";
  OdGePoint3d startPoint() const { return getPoint(kSub, 10); }
  void setStartPoint(const OdGePoint3d& p) { setPoint(kSub, 10, p); }
  OdGePoint3d endPoint() const { return getPoint(kSub, 11); }
  void setEndPoint(const OdGePoint3d& p) { setPoint(kSub, 11, p); }
  ODDB_THICK_NORMAL(kSub)

protected:
  OdDbLine();
};
using OdDbLinePtr = OdSmartPtr<OdDbLine>;

class OdDbCircle : public OdDbCurve
{
  ODRX_DECLARE_MEMBERS(OdDbCircle);

public:
  static constexpr const char* kSub = "AcDbCircle";
  OdGePoint3d center() const { return getPoint(kSub, 10); }
  void setCenter(const OdGePoint3d& p) { setPoint(kSub, 10, p); }
  double radius() const { return getDouble(kSub, 40, 0.0); }
  void setRadius(double r) { setDouble(kSub, 40, r); }
  ODDB_THICK_NORMAL(kSub)

protected:
  OdDbCircle();
};
using OdDbCirclePtr = OdSmartPtr<OdDbCircle>;

class OdDbArc : public OdDbCurve
{
  ODRX_DECLARE_MEMBERS(OdDbArc);

public:
  static constexpr const char* kSub = "AcDbCircle";
  static constexpr const char* kArcSub = "AcDbArc";
  OdGePoint3d center() const { return getPoint(kSub, 10); }
  void setCenter(const OdGePoint3d& p) { setPoint(kSub, 10, p); }
  double radius() const { return getDouble(kSub, 40, 0.0); }
  void setRadius(double r) { setDouble(kSub, 40, r); }
  // Radians; the file keeps degrees.
  double startAngle() const;
  void setStartAngle(double a);
  double endAngle() const;
  void setEndAngle(double a);
  ODDB_THICK_NORMAL(kSub)

protected:
  OdDbArc();
};
using OdDbArcPtr = OdSmartPtr<OdDbArc>;

// Major axis relative to the centre; start and end as parameters (radians).
class OdDbEllipse : public OdDbCurve
{
  ODRX_DECLARE_MEMBERS(OdDbEllipse);

public:
  static constexpr const char* kSub = "AcDbEllipse";
  OdGePoint3d center() const { return getPoint(kSub, 10); }
  OdGeVector3d majorAxis() const { return getVector(kSub, 11, OdGeVector3d::kXAxis); }
  OdGeVector3d normal() const { return getVector(kSub, 210, OdGeVector3d::kZAxis); }
  double radiusRatio() const { return getDouble(kSub, 40, 1.0); }
  double startAngle() const { return getDouble(kSub, 41, 0.0); }
  double endAngle() const { return getDouble(kSub, 42, 6.283185307179586); }
  void set(const OdGePoint3d& center, const OdGeVector3d& unitNormal, const OdGeVector3d& majorAxis,
           double radiusRatio, double startAngle = 0.0, double endAngle = 6.283185307179586);

protected:
  OdDbEllipse();
};
using OdDbEllipsePtr = OdSmartPtr<OdDbEllipse>;

class OdDbPoint : public OdDbEntity
{
  ODRX_DECLARE_MEMBERS(OdDbPoint);

public:
  static constexpr const char* kSub = "AcDbPoint";
  OdGePoint3d position() const { return getPoint(kSub, 10); }
  void setPosition(const OdGePoint3d& p) { setPoint(kSub, 10, p); }
  ODDB_THICK_NORMAL(kSub)

protected:
  OdDbPoint();
};
using OdDbPointPtr = OdSmartPtr<OdDbPoint>;

// A filled triangle or quadrilateral (points in the file's 1-2-4-3 order).
class OdDbSolid : public OdDbEntity
{
  ODRX_DECLARE_MEMBERS(OdDbSolid);

public:
  static constexpr const char* kSub = "AcDbTrace";
  void getPointAt(int index, OdGePoint3d& p) const { p = getPoint(kSub, 10 + index); }
  void setPointAt(int index, const OdGePoint3d& p) { setPoint(kSub, 10 + index, p); }
  ODDB_THICK_NORMAL(kSub)

protected:
  OdDbSolid();
};
using OdDbSolidPtr = OdSmartPtr<OdDbSolid>;

// NURBS data (control points, knots, weights) and/or fit data; setting
// one keeps the other as it was.
class OdDbSpline : public OdDbCurve
{
  ODRX_DECLARE_MEMBERS(OdDbSpline);

public:
  static constexpr const char* kSub = "AcDbSpline";
  int degree() const { return int(getInt(kSub, 71, 3)); }
  bool isRational() const { return (getInt(kSub, 70, 0) & 4) != 0; }
  bool isClosed() const { return (getInt(kSub, 70, 0) & 1) != 0; }
  bool isPeriodic() const { return (getInt(kSub, 70, 0) & 2) != 0; }
  int numControlPoints() const;
  int numFitPoints() const;
  bool getControlPointAt(int index, OdGePoint3d& p) const;
  bool getFitPointAt(int index, OdGePoint3d& p) const;
  void getNurbsData(int& degree, bool& rational, bool& closed, bool& periodic, OdGePoint3dArray& controlPoints,
                    OdGeDoubleArray& knots, OdGeDoubleArray& weights, double& controlPtTol) const;
  void setNurbsData(int degree, bool rational, bool closed, bool periodic, const OdGePoint3dArray& controlPoints,
                    const OdGeDoubleArray& knots, const OdGeDoubleArray& weights, double controlPtTol = 1e-10);
  void getFitData(OdGePoint3dArray& fitPoints, int& degree, double& fitTol, bool& tangentsExist,
                  OdGeVector3d& startTangent, OdGeVector3d& endTangent) const;
  void setFitData(const OdGePoint3dArray& fitPoints, int degree, double fitTol, const OdGeVector3d& startTangent,
                  const OdGeVector3d& endTangent);

protected:
  OdDbSpline();

private:
  OdGePoint3dArray points(int code) const;
  OdGeDoubleArray values(int code) const;
};
using OdDbSplinePtr = OdSmartPtr<OdDbSpline>;
