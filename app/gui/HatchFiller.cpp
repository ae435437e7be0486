// Boundary rings and pattern lines of hatches.
#include "app/gui/HatchFiller.h"

#include "app/gui/SceneGeometry.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kDeg = M_PI / 180.0;

bool near(const QPointF& a, const QPointF& b, double tol)
{
  return std::fabs(a.x() - b.x()) <= tol && std::fabs(a.y() - b.y()) <= tol;
}

// The points of one edge in its own direction.
std::vector<QPointF> edgePoints(const OdDbHatch::Edge& e)
{
  std::vector<QPointF> pts;
  const QPointF c(e.p1.x, e.p1.y);
  switch (e.type) {
  case OdDbHatch::kLine:
    pts = {QPointF(e.p1.x, e.p1.y), QPointF(e.p2.x, e.p2.y)};
    break;
  case OdDbHatch::kCirArc: {
    if (e.radius <= 0)
      break;
    // A clockwise arc keeps its angles as 360 minus the real ones.
    double a0 = e.startAngle, a1 = e.endAngle;
    if (!e.ccw) {
      a0 = 360.0 - e.endAngle;
      a1 = 360.0 - e.startAngle;
    }
    while (a1 <= a0)
      a1 += 360.0;
    SceneGeometry::appendArc(pts, c, e.radius, a0 * kDeg, a1 * kDeg, 96);
    if (!e.ccw)
      std::reverse(pts.begin(), pts.end());
    break;
  }
  case OdDbHatch::kEllArc: {
    const QPointF major(e.p2.x, e.p2.y);
    if (major.isNull())
      break;
    const QPointF minor(-major.y() * e.radius, major.x() * e.radius);
    double t0 = e.startAngle, t1 = e.endAngle;
    if (!e.ccw) {
      t0 = 360.0 - e.endAngle;
      t1 = 360.0 - e.startAngle;
    }
    while (t1 <= t0)
      t1 += 360.0;
    const int n = std::max(8, int((t1 - t0) / 360.0 * 96));
    SceneGeometry::appendEllipse(pts, c, major, minor, t0 * kDeg, t1 * kDeg, n);
    if (!e.ccw)
      std::reverse(pts.begin(), pts.end());
    break;
  }
  case OdDbHatch::kSpline: {
    std::vector<OdGePoint3d> cps, fit, curve;
    for (const OdGePoint2d& p : e.controlPoints)
      cps.emplace_back(p.x, p.y, 0);
    for (const OdGePoint2d& p : e.fitPoints)
      fit.emplace_back(p.x, p.y, 0);
    curve = cps.empty() ? SceneGeometry::fitPoints(fit, false)
                        : SceneGeometry::nurbsPoints(e.degree, e.knots, cps, e.rational ? e.weights : std::vector<double>());
    for (const OdGePoint3d& p : curve)
      pts.emplace_back(p.x, p.y);
    break;
  }
  default: break;
  }
  return pts;
}

} // namespace

HatchFiller::Ring HatchFiller::ring(const OdDbHatch::Loop& loop)
{
  Ring out;
  if (loop.type & OdDbHatch::kPolyline) {
    const std::size_t n = loop.vertices.size();
    if (n == 0)
      return out;
    out.emplace_back(loop.vertices[0].x, loop.vertices[0].y);
    for (std::size_t i = 0; i < n; ++i) {
      if (i + 1 == n && !loop.closed)
        break;
      const OdGePoint2d& a = loop.vertices[i];
      const OdGePoint2d& b = loop.vertices[(i + 1) % n];
      const double bulge = i < loop.bulges.size() ? loop.bulges[i] : 0.0;
      SceneGeometry::appendBulge(out, QPointF(a.x, a.y), QPointF(b.x, b.y), bulge, 96);
    }
    return out;
  }
  // Edges: the tolerance for "meets" follows the loop's size.
  double size = 0;
  for (const auto& e : loop.edges)
    size = std::max({size, std::fabs(e.p1.x), std::fabs(e.p1.y), std::fabs(e.p2.x), std::fabs(e.p2.y)});
  const double tol = std::max(1e-9, size * 1e-7);
  for (const auto& e : loop.edges) {
    std::vector<QPointF> pts = edgePoints(e);
    if (pts.empty())
      continue;
    if (out.empty()) {
      out = std::move(pts);
      continue;
    }
    if (!near(out.back(), pts.front(), tol) && near(out.back(), pts.back(), tol))
      std::reverse(pts.begin(), pts.end());
    else if (out.size() == 2 && near(out.front(), pts.front(), tol))
      std::reverse(out.begin(), out.end()); // the first edge ran the other way
    out.insert(out.end(), pts.begin() + (near(out.back(), pts.front(), tol) ? 1 : 0), pts.end());
  }
  return out;
}

std::vector<HatchFiller::Ring> HatchFiller::rings(const OdDbHatch::Data& data)
{
  std::vector<Ring> out;
  for (const auto& loop : data.loops) {
    // Text boxes are left out of the fill by the writer already; their
    // loops hold no area of their own.
    if (loop.type & OdDbHatch::kTextbox)
      continue;
    Ring r = ring(loop);
    if (r.size() >= 3)
      out.push_back(std::move(r));
  }
  return out;
}

bool HatchFiller::patternSegments(const std::vector<Ring>& rings, const std::vector<OdDbHatch::PatternLine>& lines,
                                  std::vector<QPointF>& segments, std::size_t maxSegments)
{
  if (rings.empty())
    return true;
  std::size_t edges = 0;
  for (const Ring& r : rings)
    edges += r.size();
  const std::size_t start = segments.size();
  auto giveUp = [&] {
    segments.resize(start);
    return false;
  };
  std::vector<double> cuts;
  for (const auto& line : lines) {
    const double a = line.angle * kDeg;
    const QPointF d(std::cos(a), std::sin(a)), n(-d.y(), d.x());
    const QPointF base(line.base.x, line.base.y), offset(line.offset.x, line.offset.y);
    const double spacing = QPointF::dotProduct(offset, n);
    if (std::fabs(spacing) < 1e-12)
      continue;
    // Which of the parallel lines cross the rings.
    double lo = 1e300, hi = -1e300;
    for (const Ring& r : rings)
      for (const QPointF& p : r) {
        const double h = QPointF::dotProduct(p - base, n);
        lo = std::min(lo, h);
        hi = std::max(hi, h);
      }
    double k0 = std::floor(lo / spacing), k1 = std::ceil(hi / spacing);
    if (k0 > k1)
      std::swap(k0, k1);
    const double count = k1 - k0 + 1;
    // Each line costs a pass over every edge; a pattern this fine for its
    // area is not drawn line by line.
    if (count > 50000 || count * double(edges) > 5e8)
      return giveUp();

    double patternLength = 0.0;
    for (double dash : line.dashes)
      patternLength += std::fabs(dash);
    const bool dashed = patternLength > 0 && std::any_of(line.dashes.begin(), line.dashes.end(), [](double x) { return x < 0; });

    for (double k = k0; k <= k1; ++k) {
      const QPointF q = base + offset * k;
      cuts.clear();
      for (const Ring& r : rings) {
        for (std::size_t i = 0; i < r.size(); ++i) {
          const QPointF& p1 = r[i];
          const QPointF& p2 = r[(i + 1) % r.size()];
          const double h1 = QPointF::dotProduct(p1 - q, n), h2 = QPointF::dotProduct(p2 - q, n);
          if ((h1 > 0) == (h2 > 0))
            continue;
          const double s1 = QPointF::dotProduct(p1 - q, d), s2 = QPointF::dotProduct(p2 - q, d);
          cuts.push_back(s1 + (s2 - s1) * h1 / (h1 - h2));
        }
      }
      std::sort(cuts.begin(), cuts.end());
      for (std::size_t i = 0; i + 1 < cuts.size(); i += 2) {
        const double sa = cuts[i], sb = cuts[i + 1];
        if (!dashed) {
          segments.push_back(q + d * sa);
          segments.push_back(q + d * sb);
          continue;
        }
        // Dashes run from the line's own origin, whatever the area cuts.
        double s = std::floor(sa / patternLength) * patternLength;
        std::size_t e = 0;
        while (s < sb) {
          const double dash = line.dashes[e];
          const double len = std::fabs(dash);
          if (dash >= 0) {
            const double from = std::max(s, sa), to = std::min(s + (dash == 0 ? patternLength * 1e-3 : len), sb);
            if (to > from) {
              segments.push_back(q + d * from);
              segments.push_back(q + d * to);
            }
          }
          s += len;
          e = (e + 1) % line.dashes.size();
        }
        if (segments.size() - start > 2 * maxSegments)
          return giveUp();
      }
      if (segments.size() - start > 2 * maxSegments)
        return giveUp();
    }
  }
  return true;
}
