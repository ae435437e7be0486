// Plain geometry values of the drawing SDK: points, vectors and scales.
#pragma once

#include "sdk/kernel/OdArray.h"

#include <cmath>

class OdGeVector3d
{
public:
  double x = 0.0, y = 0.0, z = 0.0;
  OdGeVector3d() = default;
  OdGeVector3d(double ax, double ay, double az) : x(ax), y(ay), z(az) {}
  static const OdGeVector3d kXAxis, kYAxis, kZAxis;
  double length() const { return std::sqrt(x * x + y * y + z * z); }
  OdGeVector3d operator*(double s) const { return {x * s, y * s, z * s}; }
  OdGeVector3d operator+(const OdGeVector3d& o) const { return {x + o.x, y + o.y, z + o.z}; }
  OdGeVector3d operator-(const OdGeVector3d& o) const { return {x - o.x, y - o.y, z - o.z}; }
  bool isEqualTo(const OdGeVector3d& o, double tol = 1e-10) const
  {
    return std::fabs(x - o.x) <= tol && std::fabs(y - o.y) <= tol && std::fabs(z - o.z) <= tol;
  }
  friend bool operator==(const OdGeVector3d& a, const OdGeVector3d& b) { return a.x == b.x && a.y == b.y && a.z == b.z; }
};

class OdGePoint3d
{
public:
  double x = 0.0, y = 0.0, z = 0.0;
  OdGePoint3d() = default;
  OdGePoint3d(double ax, double ay, double az) : x(ax), y(ay), z(az) {}
  static const OdGePoint3d kOrigin;
  OdGePoint3d operator+(const OdGeVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
  OdGePoint3d operator-(const OdGeVector3d& v) const { return {x - v.x, y - v.y, z - v.z}; }
  OdGeVector3d operator-(const OdGePoint3d& p) const { return {x - p.x, y - p.y, z - p.z}; }
  OdGeVector3d asVector() const { return {x, y, z}; }
  double distanceTo(const OdGePoint3d& p) const { return (*this - p).length(); }
  bool isEqualTo(const OdGePoint3d& o, double tol = 1e-10) const
  {
    return std::fabs(x - o.x) <= tol && std::fabs(y - o.y) <= tol && std::fabs(z - o.z) <= tol;
  }
  friend bool operator==(const OdGePoint3d& a, const OdGePoint3d& b) { return a.x == b.x && a.y == b.y && a.z == b.z; }
};

class OdGePoint2d
{
public:
  double x = 0.0, y = 0.0;
  OdGePoint2d() = default;
  OdGePoint2d(double ax, double ay) : x(ax), y(ay) {}
  friend bool operator==(const OdGePoint2d& a, const OdGePoint2d& b) { return a.x == b.x && a.y == b.y; }
};

class OdGeVector2d
{
public:
  double x = 0.0, y = 0.0;
  OdGeVector2d() = default;
  OdGeVector2d(double ax, double ay) : x(ax), y(ay) {}
  friend bool operator==(const OdGeVector2d& a, const OdGeVector2d& b) { return a.x == b.x && a.y == b.y; }
};

class OdGeScale3d
{
public:
  double sx = 1.0, sy = 1.0, sz = 1.0;
  OdGeScale3d() = default;
  OdGeScale3d(double x, double y, double z) : sx(x), sy(y), sz(z) {}
  explicit OdGeScale3d(double s) : sx(s), sy(s), sz(s) {}
  friend bool operator==(const OdGeScale3d& a, const OdGeScale3d& b) { return a.sx == b.sx && a.sy == b.sy && a.sz == b.sz; }
};

using OdGePoint3dArray = OdArray<OdGePoint3d>;
using OdGePoint2dArray = OdArray<OdGePoint2d>;
using OdGeDoubleArray = OdArray<double>;

inline const OdGePoint3d OdGePoint3d::kOrigin{};
inline const OdGeVector3d OdGeVector3d::kXAxis{1, 0, 0};
inline const OdGeVector3d OdGeVector3d::kYAxis{0, 1, 0};
inline const OdGeVector3d OdGeVector3d::kZAxis{0, 0, 1};
