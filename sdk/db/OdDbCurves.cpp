// Simple geometric entities over their subclass sections.
#include "sdk/db/OdDbCurves.h"

#include "sdk/kernel/OdRxClass.h"

#include <cmath>

ODRX_DEFINE_MEMBERS(OdDbLine, OdDbCurve, ODRX_CREATE_IMPL(OdDbLine, OdDbLine))
ODRX_DEFINE_MEMBERS(OdDbCircle, OdDbCurve, ODRX_CREATE_IMPL(OdDbCircle, OdDbCircle))
ODRX_DEFINE_MEMBERS(OdDbArc, OdDbCurve, ODRX_CREATE_IMPL(OdDbArc, OdDbArc))
ODRX_DEFINE_MEMBERS(OdDbEllipse, OdDbCurve, ODRX_CREATE_IMPL(OdDbEllipse, OdDbEllipse))
ODRX_DEFINE_MEMBERS(OdDbPoint, OdDbEntity, ODRX_CREATE_IMPL(OdDbPoint, OdDbPoint))
ODRX_DEFINE_MEMBERS(OdDbSolid, OdDbEntity, ODRX_CREATE_IMPL(OdDbSolid, OdDbSolid))
ODRX_DEFINE_MEMBERS(OdDbSpline, OdDbCurve, ODRX_CREATE_IMPL(OdDbSpline, OdDbSpline))

namespace {
constexpr double kDeg = 180.0 / M_PI;
#define ODDB_ENT odPair(100, "AcDbEntity"), odPair(8, "0")
#define ODDB_P3(c) odPair(c, "0.0"), odPair(c + 10, "0.0"), odPair(c + 20, "0.0")
} // namespace

OdDbLine::OdDbLine()
{
  static const OdDbDxfPair defaults[] = {ODDB_ENT, odPair(100, kSub), ODDB_P3(10), ODDB_P3(11)};
  initData("LINE", defaults);
}

OdDbCircle::OdDbCircle()
{
  static const OdDbDxfPair defaults[] = {ODDB_ENT, odPair(100, kSub), ODDB_P3(10), odPair(40, "1.0")};
  initData("CIRCLE", defaults);
}

OdDbArc::OdDbArc()
{
  static const OdDbDxfPair defaults[] = {ODDB_ENT, odPair(100, kSub), ODDB_P3(10), odPair(40, "1.0"),
                                         odPair(100, kArcSub), odPair(50, "0.0"), odPair(51, "90.0")};
  initData("ARC", defaults);
}

double OdDbArc::startAngle() const { return getDouble(kArcSub, 50, 0.0) / kDeg; }
void OdDbArc::setStartAngle(double a) { setDouble(kArcSub, 50, a * kDeg); }
double OdDbArc::endAngle() const { return getDouble(kArcSub, 51, 0.0) / kDeg; }
void OdDbArc::setEndAngle(double a) { setDouble(kArcSub, 51, a * kDeg); }

OdDbEllipse::OdDbEllipse()
{
  static const OdDbDxfPair defaults[] = {ODDB_ENT, odPair(100, kSub), ODDB_P3(10), odPair(11, "1.0"), odPair(21, "0.0"),
                                         odPair(31, "0.0"), odPair(210, "0.0"), odPair(220, "0.0"), odPair(230, "1.0"),
                                         odPair(40, "1.0"), odPair(41, "0.0"), odPair(42, "6.283185307179586")};
  initData("ELLIPSE", defaults);
}

void OdDbEllipse::set(const OdGePoint3d& center, const OdGeVector3d& unitNormal, const OdGeVector3d& majorAxis,
                      double radiusRatio, double startAngle, double endAngle)
{
  setPoint(kSub, 10, center);
  setVector(kSub, 11, majorAxis);
  setVector(kSub, 210, unitNormal);
  setDouble(kSub, 40, radiusRatio);
  setDouble(kSub, 41, startAngle);
  setDouble(kSub, 42, endAngle);
}

OdDbPoint::OdDbPoint()
{
  static const OdDbDxfPair defaults[] = {ODDB_ENT, odPair(100, kSub), ODDB_P3(10)};
  initData("POINT", defaults);
}

OdDbSolid::OdDbSolid()
{
  static const OdDbDxfPair defaults[] = {ODDB_ENT, odPair(100, kSub), ODDB_P3(10), ODDB_P3(11), ODDB_P3(12),
                                         ODDB_P3(13)};
  initData("SOLID", defaults);
}

OdDbSpline::OdDbSpline()
{
  static const OdDbDxfPair defaults[] = {ODDB_ENT, odPair(100, kSub), odPair(70, "8"), odPair(71, "3"), odPair(72, "0"),
                                         odPair(73, "0"), odPair(74, "0")};
  initData("SPLINE", defaults);
}

OdGePoint3dArray OdDbSpline::points(int code) const
{
  OdGePoint3dArray out;
  auto r = sectionRange(kSub);
  for (int i = r.first; i < r.second; ++i) {
    if (m_pairs[std::size_t(i)].code != code)
      continue;
    OdGePoint3d p(OdDxf::toDouble(m_pairs[std::size_t(i)].value), 0, 0);
    if (i + 1 < r.second && m_pairs[std::size_t(i + 1)].code == code + 10)
      p.y = OdDxf::toDouble(m_pairs[std::size_t(++i)].value);
    if (i + 1 < r.second && m_pairs[std::size_t(i + 1)].code == code + 20)
      p.z = OdDxf::toDouble(m_pairs[std::size_t(++i)].value);
    out.append(p);
  }
  return out;
}

OdGeDoubleArray OdDbSpline::values(int code) const
{
  OdGeDoubleArray out;
  auto r = sectionRange(kSub);
  for (int i = r.first; i < r.second; ++i)
    if (m_pairs[std::size_t(i)].code == code)
      out.append(OdDxf::toDouble(m_pairs[std::size_t(i)].value));
  return out;
}

int OdDbSpline::numControlPoints() const { return int(points(10).size()); }
int OdDbSpline::numFitPoints() const { return int(points(11).size()); }

bool OdDbSpline::getControlPointAt(int index, OdGePoint3d& p) const
{
  const auto pts = points(10);
  if (index < 0 || index >= int(pts.size()))
    return false;
  p = pts[unsigned(index)];
  return true;
}

bool OdDbSpline::getFitPointAt(int index, OdGePoint3d& p) const
{
  const auto pts = points(11);
  if (index < 0 || index >= int(pts.size()))
    return false;
  p = pts[unsigned(index)];
  return true;
}

void OdDbSpline::getNurbsData(int& deg, bool& rational, bool& closed, bool& periodic, OdGePoint3dArray& controlPoints,
                              OdGeDoubleArray& knots, OdGeDoubleArray& weights, double& controlPtTol) const
{
  deg = degree();
  rational = isRational();
  closed = isClosed();
  periodic = isPeriodic();
  controlPoints = points(10);
  knots = values(40);
  weights = values(41);
  controlPtTol = getDouble(kSub, 43, 1e-10);
}

void OdDbSpline::getFitData(OdGePoint3dArray& fitPoints, int& deg, double& fitTol, bool& tangentsExist,
                            OdGeVector3d& startTangent, OdGeVector3d& endTangent) const
{
  fitPoints = points(11);
  deg = degree();
  fitTol = getDouble(kSub, 44, 1e-10);
  tangentsExist = findPair(kSub, 12) >= 0;
  startTangent = getVector(kSub, 12);
  endTangent = getVector(kSub, 13);
}

namespace {
void pushPoint(OdDbObject* o, OdDbDxfPairArray& body, int code, const OdGePoint3d& p)
{
  body.push_back({code, o->storeText(OdDxf::fromDouble(p.x))});
  body.push_back({code + 10, o->storeText(OdDxf::fromDouble(p.y))});
  body.push_back({code + 20, o->storeText(OdDxf::fromDouble(p.z))});
}
} // namespace

// The counts (72-74) follow the data; the fit points and tangents stay.
void OdDbSpline::setNurbsData(int deg, bool rational, bool closed, bool periodic, const OdGePoint3dArray& controlPoints,
                              const OdGeDoubleArray& knots, const OdGeDoubleArray& weights, double controlPtTol)
{
  const OdGePoint3dArray fit = points(11);
  OdDbDxfPairArray body;
  auto r = sectionRange(kSub);
  for (int i = r.first; i < r.second; ++i) {
    const int c = m_pairs[std::size_t(i)].code;
    if (c == 210 || c == 220 || c == 230 || c == 12 || c == 22 || c == 32 || c == 13 || c == 23 || c == 33 || c == 44)
      body.push_back(m_pairs[std::size_t(i)]);
  }
  const int flags = (closed ? 1 : 0) | (periodic ? 2 : 0) | (rational ? 4 : 0) | 8;
  body.insert(body.begin(), {OdDbDxfPair{70, storeText(OdDxf::fromInt(flags))}, OdDbDxfPair{71, storeText(OdDxf::fromInt(deg))},
                             OdDbDxfPair{72, storeText(OdDxf::fromInt(knots.size()))},
                             OdDbDxfPair{73, storeText(OdDxf::fromInt(controlPoints.size()))},
                             OdDbDxfPair{74, storeText(OdDxf::fromInt(fit.size()))},
                             OdDbDxfPair{42, "1e-10"}, OdDbDxfPair{43, storeText(OdDxf::fromDouble(controlPtTol))}});
  for (double k : knots)
    body.push_back({40, storeText(OdDxf::fromDouble(k))});
  if (rational)
    for (double w : weights)
      body.push_back({41, storeText(OdDxf::fromDouble(w))});
  for (const OdGePoint3d& p : controlPoints)
    pushPoint(this, body, 10, p);
  for (const OdGePoint3d& p : fit)
    pushPoint(this, body, 11, p);
  replaceSection(kSub, body);
}

void OdDbSpline::setFitData(const OdGePoint3dArray& fitPoints, int deg, double fitTol, const OdGeVector3d& startTangent,
                            const OdGeVector3d& endTangent)
{
  OdDbDxfPairArray body;
  auto r = sectionRange(kSub);
  for (int i = r.first; i < r.second; ++i) {
    const int c = m_pairs[std::size_t(i)].code;
    if (c == 210 || c == 220 || c == 230 || c == 10 || c == 20 || c == 30 || c == 40 || c == 41 || c == 43 || c == 70)
      body.push_back(m_pairs[std::size_t(i)]);
  }
  int k = 0;
  while (k < int(body.size()) && body[std::size_t(k)].code != 40 && body[std::size_t(k)].code != 10 &&
         body[std::size_t(k)].code != 41)
    ++k;
  const int knots = int(values(40).size()), cps = int(points(10).size());
  body.insert(body.begin() + k, {OdDbDxfPair{71, storeText(OdDxf::fromInt(deg))}, OdDbDxfPair{72, storeText(OdDxf::fromInt(knots))},
                                 OdDbDxfPair{73, storeText(OdDxf::fromInt(cps))},
                                 OdDbDxfPair{74, storeText(OdDxf::fromInt(fitPoints.size()))},
                                 OdDbDxfPair{44, storeText(OdDxf::fromDouble(fitTol))}});
  if (findPair(kSub, 70) < 0)
    body.insert(body.begin(), OdDbDxfPair{70, "8"});
  OdDbDxfPairArray tail;
  pushPoint(this, tail, 12, OdGePoint3d(startTangent.x, startTangent.y, startTangent.z));
  pushPoint(this, tail, 13, OdGePoint3d(endTangent.x, endTangent.y, endTangent.z));
  for (const OdGePoint3d& p : fitPoints)
    pushPoint(this, tail, 11, p);
  body.insert(body.end(), tail.begin(), tail.end());
  replaceSection(kSub, body);
}
