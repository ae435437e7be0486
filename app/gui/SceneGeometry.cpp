// Maps and curves.
#include "app/gui/SceneGeometry.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

namespace {

OdGeVector3d cross(const OdGeVector3d& a, const OdGeVector3d& b)
{
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

OdGeVector3d normalized(const OdGeVector3d& v)
{
  const double l = v.length();
  return l > 0 ? v * (1.0 / l) : OdGeVector3d::kZAxis;
}

} // namespace

Affine3 Affine3::ocs(const OdGeVector3d& normal)
{
  const OdGeVector3d n = normalized(normal);
  Affine3 a;
  if (std::fabs(n.x) < 1e-12 && std::fabs(n.y) < 1e-12 && n.z > 0)
    return a;
  // The arbitrary axis rule of the drawing format.
  const OdGeVector3d ax = normalized(std::fabs(n.x) < 1.0 / 64 && std::fabs(n.y) < 1.0 / 64
                                         ? cross(OdGeVector3d::kYAxis, n)
                                         : cross(OdGeVector3d::kZAxis, n));
  const OdGeVector3d ay = normalized(cross(n, ax));
  const OdGeVector3d cols[3] = {ax, ay, n};
  for (int c = 0; c < 3; ++c) {
    a.m[0][c] = cols[c].x;
    a.m[1][c] = cols[c].y;
    a.m[2][c] = cols[c].z;
  }
  return a;
}

Affine3 Affine3::translation(double x, double y, double z)
{
  Affine3 a;
  a.t[0] = x;
  a.t[1] = y;
  a.t[2] = z;
  return a;
}

Affine3 Affine3::scaling(double sx, double sy, double sz)
{
  Affine3 a;
  a.m[0][0] = sx;
  a.m[1][1] = sy;
  a.m[2][2] = sz;
  return a;
}

Affine3 Affine3::rotationZ(double angle)
{
  Affine3 a;
  const double c = std::cos(angle), s = std::sin(angle);
  a.m[0][0] = c;
  a.m[0][1] = -s;
  a.m[1][0] = s;
  a.m[1][1] = c;
  return a;
}

Affine3 Affine3::operator*(const Affine3& o) const
{
  Affine3 r;
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j)
      r.m[i][j] = m[i][0] * o.m[0][j] + m[i][1] * o.m[1][j] + m[i][2] * o.m[2][j];
    r.t[i] = m[i][0] * o.t[0] + m[i][1] * o.t[1] + m[i][2] * o.t[2] + t[i];
  }
  return r;
}

OdGePoint3d Affine3::apply(const OdGePoint3d& p) const
{
  return {m[0][0] * p.x + m[0][1] * p.y + m[0][2] * p.z + t[0], m[1][0] * p.x + m[1][1] * p.y + m[1][2] * p.z + t[1],
          m[2][0] * p.x + m[2][1] * p.y + m[2][2] * p.z + t[2]};
}

OdGeVector3d Affine3::applyLinear(const OdGeVector3d& v) const
{
  return {m[0][0] * v.x + m[0][1] * v.y + m[0][2] * v.z, m[1][0] * v.x + m[1][1] * v.y + m[1][2] * v.z,
          m[2][0] * v.x + m[2][1] * v.y + m[2][2] * v.z};
}

QPointF Affine3::apply2(double x, double y, double z) const
{
  return {m[0][0] * x + m[0][1] * y + m[0][2] * z + t[0], m[1][0] * x + m[1][1] * y + m[1][2] * z + t[1]};
}

QTransform Affine3::planeTransform(double elevation) const
{
  const QPointF origin = apply2(0, 0, elevation);
  return QTransform(m[0][0], m[1][0], m[0][1], m[1][1], origin.x(), origin.y());
}

bool Affine3::isIdentity() const
{
  for (int i = 0; i < 3; ++i) {
    if (t[i] != 0)
      return false;
    for (int j = 0; j < 3; ++j)
      if (m[i][j] != (i == j ? 1.0 : 0.0))
        return false;
  }
  return true;
}

namespace SceneGeometry {

void appendArc(std::vector<QPointF>& out, const QPointF& center, double radius, double a0, double a1,
               int segmentsPerTurn, bool withFirst)
{
  const double sweep = a1 - a0;
  const int n = std::max(1, int(std::ceil(std::fabs(sweep) / kTwoPi * segmentsPerTurn)));
  for (int i = withFirst ? 0 : 1; i <= n; ++i) {
    const double a = a0 + sweep * i / n;
    out.emplace_back(center.x() + radius * std::cos(a), center.y() + radius * std::sin(a));
  }
}

bool bulgeArc(const QPointF& p0, const QPointF& p1, double bulge, QPointF& center, double& radius, double& a0,
              double& a1)
{
  const double dx = p1.x() - p0.x(), dy = p1.y() - p0.y();
  const double chord = std::hypot(dx, dy);
  if (std::fabs(bulge) < 1e-12 || chord < 1e-15)
    return false;
  // The centre is off the chord's midpoint along its left normal, by
  // (chord / 2) (1 - b^2) / (2 b): the sign of b picks the side.
  const double half = chord / 2.0;
  const double offset = half * (1.0 - bulge * bulge) / (2.0 * bulge);
  center = QPointF((p0.x() + p1.x()) / 2 - dy / chord * offset, (p0.y() + p1.y()) / 2 + dx / chord * offset);
  radius = half * (1.0 + bulge * bulge) / (2.0 * std::fabs(bulge));
  const double angle = 4.0 * std::atan(bulge); // signed included angle
  a0 = std::atan2(p0.y() - center.y(), p0.x() - center.x());
  a1 = a0 + angle;
  return true;
}

void appendBulge(std::vector<QPointF>& out, const QPointF& p0, const QPointF& p1, double bulge, int segmentsPerTurn)
{
  QPointF c;
  double r = 0, a0 = 0, a1 = 0;
  if (!bulgeArc(p0, p1, bulge, c, r, a0, a1)) {
    out.push_back(p1);
    return;
  }
  const double sweep = a1 - a0;
  const int n = std::max(2, int(std::ceil(std::fabs(sweep) / kTwoPi * segmentsPerTurn)));
  for (int i = 1; i < n; ++i) {
    const double a = a0 + sweep * i / n;
    out.emplace_back(c.x() + r * std::cos(a), c.y() + r * std::sin(a));
  }
  out.push_back(p1); // exactly, so that segments meet
}

std::vector<OdGePoint3d> nurbsPoints(int degree, const std::vector<double>& knots,
                                     const std::vector<OdGePoint3d>& cps, const std::vector<double>& weights,
                                     int perSpan)
{
  std::vector<OdGePoint3d> out;
  const int n = int(cps.size());
  const int p = degree;
  if (n == 0)
    return out;
  if (p < 1 || int(knots.size()) != n + p + 1) {
    out = cps; // no usable knot vector: the control polygon
    return out;
  }
  const bool rational = weights.size() == cps.size();
  auto point = [&](double u) {
    // de Boor on homogeneous points.
    int k = p;
    while (k < n - 1 && knots[std::size_t(k + 1)] <= u)
      ++k;
    std::vector<double> dx(std::size_t(p + 1)), dy(dx.size()), dz(dx.size()), dw(dx.size());
    for (int j = 0; j <= p; ++j) {
      const int i = std::clamp(j + k - p, 0, n - 1);
      const double w = rational ? weights[std::size_t(i)] : 1.0;
      dx[std::size_t(j)] = cps[std::size_t(i)].x * w;
      dy[std::size_t(j)] = cps[std::size_t(i)].y * w;
      dz[std::size_t(j)] = cps[std::size_t(i)].z * w;
      dw[std::size_t(j)] = w;
    }
    for (int r = 1; r <= p; ++r) {
      for (int j = p; j >= r; --j) {
        const int i = j + k - p;
        const double den = knots[std::size_t(i + p - r + 1)] - knots[std::size_t(i)];
        const double a = den != 0 ? (u - knots[std::size_t(i)]) / den : 0.0;
        const std::size_t J = std::size_t(j);
        dx[J] = (1 - a) * dx[J - 1] + a * dx[J];
        dy[J] = (1 - a) * dy[J - 1] + a * dy[J];
        dz[J] = (1 - a) * dz[J - 1] + a * dz[J];
        dw[J] = (1 - a) * dw[J - 1] + a * dw[J];
      }
    }
    const double w = dw[std::size_t(p)] != 0 ? dw[std::size_t(p)] : 1.0;
    return OdGePoint3d(dx[std::size_t(p)] / w, dy[std::size_t(p)] / w, dz[std::size_t(p)] / w);
  };
  const double u0 = knots[std::size_t(p)], u1 = knots[std::size_t(n)];
  for (int span = p; span < n; ++span) {
    const double a = knots[std::size_t(span)], b = knots[std::size_t(span + 1)];
    if (b <= a)
      continue;
    for (int i = 0; i < perSpan; ++i)
      out.push_back(point(a + (b - a) * i / perSpan));
  }
  out.push_back(point(u1 > u0 ? u1 - (u1 - u0) * 1e-12 : u1));
  return out;
}

std::vector<OdGePoint3d> fitPoints(const std::vector<OdGePoint3d>& fit, bool closed, int perSpan)
{
  const int n = int(fit.size());
  if (n < 3)
    return fit;
  auto at = [&](int i) {
    if (closed)
      return fit[std::size_t((i % n + n) % n)];
    return fit[std::size_t(std::clamp(i, 0, n - 1))];
  };
  std::vector<OdGePoint3d> out;
  const int spans = closed ? n : n - 1;
  for (int s = 0; s < spans; ++s) {
    const OdGePoint3d p0 = at(s - 1), p1 = at(s), p2 = at(s + 1), p3 = at(s + 2);
    // Centripetal parameters keep the curve from looping between close points.
    auto knot = [](const OdGePoint3d& a, const OdGePoint3d& b, double t) {
      return t + std::max(std::sqrt(a.distanceTo(b)), 1e-9);
    };
    const double t0 = 0, t1 = knot(p0, p1, t0), t2 = knot(p1, p2, t1), t3 = knot(p2, p3, t2);
    auto lerp = [](const OdGePoint3d& a, const OdGePoint3d& b, double ta, double tb, double t) {
      const double w = (t - ta) / (tb - ta);
      return OdGePoint3d(a.x + (b.x - a.x) * w, a.y + (b.y - a.y) * w, a.z + (b.z - a.z) * w);
    };
    for (int i = 0; i < perSpan; ++i) {
      const double t = t1 + (t2 - t1) * i / perSpan;
      const OdGePoint3d a1 = lerp(p0, p1, t0, t1, t), a2 = lerp(p1, p2, t1, t2, t), a3 = lerp(p2, p3, t2, t3, t);
      const OdGePoint3d b1 = lerp(a1, a2, t0, t2, t), b2 = lerp(a2, a3, t1, t3, t);
      out.push_back(lerp(b1, b2, t1, t2, t));
    }
  }
  out.push_back(closed ? fit.front() : fit.back());
  return out;
}

void appendEllipse(std::vector<QPointF>& out, const QPointF& c, const QPointF& u, const QPointF& v, double t0, double t1,
                   int segments)
{
  const double step = (t1 - t0) / segments;
  // Rotating (cos, sin) by a fixed step: no trigonometry per point.
  const double cs = std::cos(step), sn = std::sin(step);
  double co = std::cos(t0), si = std::sin(t0);
  for (int i = 0; i <= segments; ++i) {
    out.emplace_back(c.x() + u.x() * co + v.x() * si, c.y() + u.y() * co + v.y() * si);
    const double nc = co * cs - si * sn;
    si = si * cs + co * sn;
    co = nc;
  }
}

QRectF ellipseBox(const QPointF& c, const QPointF& u, const QPointF& v, double t0, double t1)
{
  if (t1 - t0 >= kTwoPi - 1e-9) {
    const double hx = std::hypot(u.x(), v.x()), hy = std::hypot(u.y(), v.y());
    return QRectF(c.x() - hx, c.y() - hy, 2 * hx, 2 * hy);
  }
  std::vector<QPointF> pts;
  appendEllipse(pts, c, u, v, t0, t1, 64);
  double x0 = pts[0].x(), x1 = x0, y0 = pts[0].y(), y1 = y0;
  for (const QPointF& p : pts) {
    x0 = std::min(x0, p.x());
    x1 = std::max(x1, p.x());
    y0 = std::min(y0, p.y());
    y1 = std::max(y1, p.y());
  }
  return QRectF(QPointF(x0, y0), QPointF(x1, y1));
}

double distanceToSegment(const QPointF& p, const QPointF& a, const QPointF& b)
{
  const double dx = b.x() - a.x(), dy = b.y() - a.y();
  const double len2 = dx * dx + dy * dy;
  double t = len2 > 0 ? ((p.x() - a.x()) * dx + (p.y() - a.y()) * dy) / len2 : 0.0;
  t = std::clamp(t, 0.0, 1.0);
  return std::hypot(p.x() - (a.x() + t * dx), p.y() - (a.y() + t * dy));
}

} // namespace SceneGeometry
