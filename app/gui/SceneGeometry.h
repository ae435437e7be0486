// Geometry for the drawing view: the maps from an entity's plane and from
// a block into the world, and curves made into points.
#pragma once

#include "sdk/db/OdGeTypes.h"

#include <QPointF>
#include <QTransform>

#include <vector>

// A 3-D affine map (a linear part and a translation). Drawing is a view
// from above: after the map, z is dropped.
struct Affine3
{
  double m[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
  double t[3] = {0, 0, 0};

  static Affine3 identity() { return Affine3(); }
  // From the plane of an entity with this normal (its object coordinate
  // system, by the arbitrary axis rule) to the world.
  static Affine3 ocs(const OdGeVector3d& normal);
  static Affine3 translation(double x, double y, double z);
  static Affine3 scaling(double sx, double sy, double sz);
  static Affine3 rotationZ(double angle);

  // This map after `o`.
  Affine3 operator*(const Affine3& o) const;
  OdGePoint3d apply(const OdGePoint3d& p) const;
  OdGeVector3d applyLinear(const OdGeVector3d& v) const;
  QPointF apply2(double x, double y, double z = 0.0) const;
  QPointF apply2(const OdGePoint3d& p) const { return apply2(p.x, p.y, p.z); }
  // The map of the plane z = elevation to the world's x and y.
  QTransform planeTransform(double elevation = 0.0) const;
  bool isIdentity() const;
};

namespace SceneGeometry {

constexpr double kTwoPi = 6.283185307179586;

// Appends the points of a circular arc from angle a0 to a1 (a1 > a0),
// `segmentsPerTurn` to a full circle; the first point only with `withFirst`.
void appendArc(std::vector<QPointF>& out, const QPointF& center, double radius, double a0, double a1,
               int segmentsPerTurn = 64, bool withFirst = true);
// Appends the points after p0 up to p1 of a polyline segment with a bulge
// (tan of a quarter of its angle; 0 is a straight segment).
void appendBulge(std::vector<QPointF>& out, const QPointF& p0, const QPointF& p1, double bulge,
                 int segmentsPerTurn = 64);
// The centre, radius and angles of a bulged segment; false when straight.
bool bulgeArc(const QPointF& p0, const QPointF& p1, double bulge, QPointF& center, double& radius, double& a0,
              double& a1);
// Points of a NURBS curve (weights may be empty), `perSpan` per knot span.
std::vector<OdGePoint3d> nurbsPoints(int degree, const std::vector<double>& knots,
                                     const std::vector<OdGePoint3d>& controlPoints,
                                     const std::vector<double>& weights, int perSpan = 12);
// A smooth curve through fit points (for splines that have no control
// points), as a centripetal Catmull-Rom curve.
std::vector<OdGePoint3d> fitPoints(const std::vector<OdGePoint3d>& fit, bool closed, int perSpan = 12);

// The points of an elliptical arc on screen, as many as its size needs.
void appendEllipse(std::vector<QPointF>& out, const QPointF& center, const QPointF& u, const QPointF& v, double t0,
                   double t1, int segments);
// The box of an elliptical arc.
QRectF ellipseBox(const QPointF& center, const QPointF& u, const QPointF& v, double t0, double t1);

double distanceToSegment(const QPointF& p, const QPointF& a, const QPointF& b);

} // namespace SceneGeometry
