// Hatch data: the AcDbHatch section decoded in its order, and written back.
#include "sdk/db/OdDbHatch.h"

#include "sdk/kernel/OdRxClass.h"

#include <cmath>

ODRX_DEFINE_MEMBERS(OdDbHatch, OdDbEntity, ODRX_CREATE_IMPL(OdDbHatch, OdDbHatch))

OdDbHatch::OdDbHatch()
{
  static const OdDbDxfPair defaults[] = {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, kSub),
                                         odPair(10, "0.0"), odPair(20, "0.0"), odPair(30, "0.0"), odPair(210, "0.0"),
                                         odPair(220, "0.0"), odPair(230, "1.0"), odPair(2, "SOLID"), odPair(70, "1"),
                                         odPair(71, "0"), odPair(91, "0"), odPair(75, "0"), odPair(76, "1"),
                                         odPair(98, "0")};
  initData("HATCH", defaults);
}

namespace {

// A cursor over the section that reads values by expected code and stops
// being "ok" at the first surprise, so that odd files never crash it.
struct Cursor
{
  const OdDbDxfPairArray& p;
  int i, end;
  bool ok = true;
  bool at(int code) const { return i < end && p[std::size_t(i)].code == code; }
  double d(int code, double def = 0.0)
  {
    if (!at(code)) { ok = false; return def; }
    return OdDxf::toDouble(p[std::size_t(i++)].value, def);
  }
  long long n(int code, long long def = 0)
  {
    if (!at(code)) { ok = false; return def; }
    return OdDxf::toInt(p[std::size_t(i++)].value, def);
  }
  OdGePoint2d pt(int code)
  {
    const double x = d(code);
    return OdGePoint2d(x, d(code + 10));
  }
};

void readEdge(Cursor& c, OdDbHatch::Edge& e)
{
  e.type = int(c.n(72, 1));
  switch (e.type) {
  case OdDbHatch::kLine:
    e.p1 = c.pt(10);
    e.p2 = c.pt(11);
    break;
  case OdDbHatch::kCirArc:
    e.p1 = c.pt(10);
    e.radius = c.d(40);
    e.startAngle = c.d(50);
    e.endAngle = c.d(51);
    e.ccw = c.n(73, 1) != 0;
    break;
  case OdDbHatch::kEllArc:
    e.p1 = c.pt(10);
    e.p2 = c.pt(11);
    e.radius = c.d(40);
    e.startAngle = c.d(50);
    e.endAngle = c.d(51);
    e.ccw = c.n(73, 1) != 0;
    break;
  case OdDbHatch::kSpline: {
    e.degree = int(c.n(94, 3));
    e.rational = c.n(73, 0) != 0;
    e.periodic = c.n(74, 0) != 0;
    const long long nk = c.n(95, 0), ncp = c.n(96, 0);
    for (long long k = 0; k < nk && c.ok; ++k)
      e.knots.push_back(c.d(40));
    for (long long k = 0; k < ncp && c.ok; ++k) {
      e.controlPoints.push_back(c.pt(10));
      if (c.at(42))
        e.weights.push_back(c.d(42));
    }
    if (c.at(97)) {
      const long long nf = c.n(97, 0);
      for (long long k = 0; k < nf && c.ok; ++k)
        e.fitPoints.push_back(c.pt(11));
      if (c.at(12)) {
        e.hasTangents = true;
        const OdGePoint2d s = c.pt(12);
        const OdGePoint2d t = c.pt(13);
        e.startTangent = OdGeVector2d(s.x, s.y);
        e.endTangent = OdGeVector2d(t.x, t.y);
      }
    }
    break;
  }
  default: c.ok = false; break;
  }
}

struct Out
{
  OdDbObject* o;
  OdDbDxfPairArray body;
  void s(int code, std::string_view v) { body.push_back({code, o->storeText(v)}); }
  void d(int code, double v) { s(code, OdDxf::fromDouble(v)); }
  void n(int code, long long v) { s(code, OdDxf::fromInt(v)); }
  void pt(int code, const OdGePoint2d& p) { d(code, p.x); d(code + 10, p.y); }
};

} // namespace

// The loops are read in their order: their codes repeat and only the
// counts (91, 93, 95-97) say where one ends. Values after the loops are read
// by code, since writers order them differently.
OdDbHatch::Data OdDbHatch::data() const
{
  Data d;
  auto r = sectionRange(kSub);
  Cursor c{m_pairs, r.first, r.second};
  // Values before the loops, in any order.
  while (c.i < c.end && !c.at(91)) {
    const OdDbDxfPair& p = m_pairs[std::size_t(c.i)];
    switch (p.code) {
    case 10: d.elevationPoint.x = OdDxf::toDouble(p.value); break;
    case 20: d.elevationPoint.y = OdDxf::toDouble(p.value); break;
    case 30: d.elevationPoint.z = OdDxf::toDouble(p.value); break;
    case 210: d.normal.x = OdDxf::toDouble(p.value); break;
    case 220: d.normal.y = OdDxf::toDouble(p.value); break;
    case 230: d.normal.z = OdDxf::toDouble(p.value); break;
    case 2: d.patternName = std::string(p.value); break;
    case 70: d.solid = OdDxf::toInt(p.value) != 0; break;
    case 71: d.associative = int(OdDxf::toInt(p.value)); break;
    default: d.extra.push_back(p); break;
    }
    ++c.i;
  }
  const long long nloops = c.at(91) ? c.n(91) : 0;
  for (long long l = 0; l < nloops && c.ok; ++l) {
    Loop loop;
    loop.type = int(c.n(92, 0));
    if (loop.type & kPolyline) {
      const bool hasBulge = c.n(72, 0) != 0;
      loop.closed = c.n(73, 1) != 0;
      const long long nv = c.n(93, 0);
      for (long long k = 0; k < nv && c.ok; ++k) {
        loop.vertices.push_back(c.pt(10));
        loop.bulges.push_back(hasBulge && c.at(42) ? c.d(42) : 0.0);
      }
    } else {
      const long long ne = c.n(93, 0);
      for (long long k = 0; k < ne && c.ok; ++k) {
        loop.edges.emplace_back();
        readEdge(c, loop.edges.back());
      }
    }
    if (c.at(97)) {
      const long long ns = c.n(97, 0);
      for (long long k = 0; k < ns && c.at(330); ++k)
        loop.sourceHandles.emplace_back(m_pairs[std::size_t(c.i++)].value);
    }
    d.loops.push_back(std::move(loop));
  }
  // Values after the loops, by code; some carry lists behind them.
  c.ok = true;
  while (c.i < c.end) {
    const OdDbDxfPair& p = m_pairs[std::size_t(c.i)];
    switch (p.code) {
    case 75: d.style = int(c.n(75)); continue;
    case 76: d.patternType = int(c.n(76)); continue;
    case 52: d.angle = c.d(52); continue;
    case 41: d.scale = c.d(41, 1.0); continue;
    case 77: d.isDouble = c.n(77) != 0; continue;
    case 78: {
      const long long nl = c.n(78);
      for (long long k = 0; k < nl && c.at(53); ++k) {
        // 43/44 base and 45/46 offset: not the usual x/y+10 layout.
        PatternLine line;
        line.angle = c.d(53);
        line.base.x = c.d(43);
        line.base.y = c.d(44);
        line.offset.x = c.d(45);
        line.offset.y = c.d(46);
        const long long nd = c.at(79) ? c.n(79) : 0;
        for (long long j = 0; j < nd && c.at(49); ++j)
          line.dashes.push_back(c.d(49));
        d.lines.push_back(std::move(line));
      }
      c.ok = true;
      continue;
    }
    case 47: d.hasPixelSize = true; d.pixelSize = c.d(47); continue;
    case 98: {
      const long long ns = c.n(98);
      for (long long k = 0; k < ns && c.at(10); ++k)
        d.seeds.push_back(c.pt(10));
      continue;
    }
    case 450: d.hasGradient = true; d.gradientFlag = int(c.n(450)); continue;
    case 451: d.gradientReserved = int(c.n(451)); continue;
    case 452: d.oneColor = c.n(452) != 0; continue;
    case 453: c.n(453); continue;
    case 460: d.gradientAngle = c.d(460); continue;
    case 461: d.gradientShift = c.d(461); continue;
    case 462: d.tint = c.d(462); continue;
    case 463: d.colors.emplace_back(); d.colors.back().value = c.d(463); continue;
    case 63:
      if (!d.colors.empty())
        d.colors.back().color.setColorIndex(std::int16_t(c.n(63)));
      else
        d.extra.push_back(m_pairs[std::size_t(c.i++)]);
      continue;
    case 421:
      if (!d.colors.empty()) {
        const auto v = std::uint32_t(c.n(421));
        d.colors.back().color.setRGB(std::uint8_t(v >> 16), std::uint8_t(v >> 8), std::uint8_t(v));
      } else {
        d.extra.push_back(m_pairs[std::size_t(c.i++)]);
      }
      continue;
    case 470: d.gradientName = std::string(p.value); ++c.i; continue;
    default: d.extra.push_back(p); ++c.i; continue;
    }
  }
  return d;
}

// Written in the order drawing programs write it; unknown codes go last.
void OdDbHatch::setData(const Data& d)
{
  Out o{this, {}};
  o.d(10, d.elevationPoint.x);
  o.d(20, d.elevationPoint.y);
  o.d(30, d.elevationPoint.z);
  o.d(210, d.normal.x);
  o.d(220, d.normal.y);
  o.d(230, d.normal.z);
  o.s(2, d.patternName);
  o.n(70, d.solid ? 1 : 0);
  o.n(71, d.associative);
  o.n(91, long(d.loops.size()));
  for (const Loop& loop : d.loops) {
    o.n(92, loop.type);
    if (loop.type & kPolyline) {
      bool hasBulge = false;
      for (double b : loop.bulges)
        hasBulge = hasBulge || b != 0.0;
      o.n(72, hasBulge ? 1 : 0);
      o.n(73, loop.closed ? 1 : 0);
      o.n(93, long(loop.vertices.size()));
      for (std::size_t k = 0; k < loop.vertices.size(); ++k) {
        o.pt(10, loop.vertices[k]);
        if (hasBulge)
          o.d(42, k < loop.bulges.size() ? loop.bulges[k] : 0.0);
      }
    } else {
      o.n(93, long(loop.edges.size()));
      for (const Edge& e : loop.edges) {
        o.n(72, e.type);
        switch (e.type) {
        case kLine: o.pt(10, e.p1); o.pt(11, e.p2); break;
        case kCirArc:
          o.pt(10, e.p1); o.d(40, e.radius); o.d(50, e.startAngle); o.d(51, e.endAngle); o.n(73, e.ccw ? 1 : 0);
          break;
        case kEllArc:
          o.pt(10, e.p1); o.pt(11, e.p2); o.d(40, e.radius); o.d(50, e.startAngle); o.d(51, e.endAngle);
          o.n(73, e.ccw ? 1 : 0);
          break;
        default:
          o.n(94, e.degree);
          o.n(73, e.rational ? 1 : 0);
          o.n(74, e.periodic ? 1 : 0);
          o.n(95, long(e.knots.size()));
          o.n(96, long(e.controlPoints.size()));
          for (double k : e.knots)
            o.d(40, k);
          for (std::size_t k = 0; k < e.controlPoints.size(); ++k) {
            o.pt(10, e.controlPoints[k]);
            if (e.rational)
              o.d(42, k < e.weights.size() ? e.weights[k] : 1.0);
          }
          o.n(97, long(e.fitPoints.size()));
          for (const OdGePoint2d& p : e.fitPoints)
            o.pt(11, p);
          if (e.hasTangents) {
            o.pt(12, OdGePoint2d(e.startTangent.x, e.startTangent.y));
            o.pt(13, OdGePoint2d(e.endTangent.x, e.endTangent.y));
          }
          break;
        }
      }
    }
    o.n(97, long(loop.sourceHandles.size()));
    for (const std::string& h : loop.sourceHandles)
      o.s(330, h);
  }
  o.n(75, d.style);
  o.n(76, d.patternType);
  if (!d.solid) {
    o.d(52, d.angle);
    o.d(41, d.scale);
    o.n(77, d.isDouble ? 1 : 0);
    o.n(78, long(d.lines.size()));
    for (const PatternLine& l : d.lines) {
      o.d(53, l.angle);
      o.d(43, l.base.x);
      o.d(44, l.base.y);
      o.d(45, l.offset.x);
      o.d(46, l.offset.y);
      o.n(79, long(l.dashes.size()));
      for (double dash : l.dashes)
        o.d(49, dash);
    }
  }
  if (d.hasPixelSize)
    o.d(47, d.pixelSize);
  o.n(98, long(d.seeds.size()));
  for (const OdGePoint2d& p : d.seeds)
    o.pt(10, p);
  if (d.hasGradient) {
    o.n(450, d.gradientFlag);
    o.n(451, d.gradientReserved);
    o.d(460, d.gradientAngle);
    o.d(461, d.gradientShift);
    o.n(452, d.oneColor ? 1 : 0);
    o.d(462, d.tint);
    o.n(453, long(d.colors.size()));
    for (const GradientColor& gc : d.colors) {
      o.d(463, gc.value);
      o.n(63, gc.color.colorIndex());
      o.n(421, long(gc.color.rgb()));
    }
    o.s(470, d.gradientName);
  }
  for (const OdDbDxfPair& p : d.extra)
    o.s(p.code, p.value);
  replaceSection(kSub, o.body);
}

void OdDbHatch::setHatchObjectType(HatchObjectType type)
{
  edit([&](Data& d) {
    d.hasGradient = true;
    d.gradientFlag = type == kGradientObject ? 1 : 0;
    if (type == kGradientObject) {
      d.solid = true;
      d.patternName = "SOLID";
      if (d.gradientName.empty())
        d.gradientName = "LINEAR";
      if (d.colors.empty()) {
        d.colors.resize(2);
        d.colors[0].color.setColorIndex(5);
        d.colors[1].color.setColorIndex(2);
        d.colors[1].value = 1.0;
      }
    }
  });
}

void OdDbHatch::setPattern(HatchPatternType type, const OdString& name)
{
  edit([&](Data& d) {
    d.patternType = type;
    d.patternName = OdDxf::fromOdString(name);
    d.solid = name.iCompare("SOLID") == 0;
    // A user-defined pattern is one line family (two when doubled).
    if (type == kUserDefined) {
      d.lines.clear();
      PatternLine l;
      l.angle = d.angle;
      l.offset = OdGeVector2d(-std::sin(d.angle * M_PI / 180) * d.scale, std::cos(d.angle * M_PI / 180) * d.scale);
      d.lines.push_back(l);
    }
  });
}

double OdDbHatch::patternAngle() const { return data().angle * M_PI / 180.0; }
void OdDbHatch::setPatternAngle(double a) { edit([&](Data& d) { d.angle = a * 180.0 / M_PI; }); }
void OdDbHatch::setPatternScale(double s) { edit([&](Data& d) { d.scale = s; }); }
void OdDbHatch::setPatternDouble(bool on) { edit([&](Data& d) { d.isDouble = on; }); }
void OdDbHatch::setHatchStyle(HatchStyle s) { edit([&](Data& d) { d.style = s; }); }

void OdDbHatch::getPatternDefinitionAt(int index, double& angle, double& baseX, double& baseY, double& offsetX,
                                       double& offsetY, OdGeDoubleArray& dashes) const
{
  const PatternLine l = data().lines.at(std::size_t(index));
  angle = l.angle * M_PI / 180.0;
  baseX = l.base.x;
  baseY = l.base.y;
  offsetX = l.offset.x;
  offsetY = l.offset.y;
  dashes = OdGeDoubleArray(l.dashes);
}

void OdDbHatch::getLoopAt(int index, OdGePoint2dArray& vertices, OdGeDoubleArray& bulges) const
{
  const Loop l = loopAt(index);
  vertices = OdGePoint2dArray(l.vertices);
  bulges = OdGeDoubleArray(l.bulges);
}

void OdDbHatch::appendLoop(int loopType, const OdGePoint2dArray& vertices, const OdGeDoubleArray& bulges)
{
  Loop l;
  l.type = loopType | kPolyline;
  l.vertices.assign(vertices.begin(), vertices.end());
  l.bulges.assign(bulges.begin(), bulges.end());
  l.bulges.resize(l.vertices.size(), 0.0);
  appendLoop(l);
}

void OdDbHatch::appendLoop(const Loop& loop)
{
  edit([&](Data& d) { d.loops.push_back(loop); });
}

void OdDbHatch::setGradient(GradientPatternType type, const OdString& name)
{
  setHatchObjectType(kGradientObject);
  edit([&](Data& d) {
    d.gradientReserved = type;
    d.gradientName = OdDxf::fromOdString(name);
  });
}

void OdDbHatch::setGradientAngle(double a) { edit([&](Data& d) { d.gradientAngle = a; }); }
void OdDbHatch::setGradientShift(double s) { edit([&](Data& d) { d.gradientShift = s; }); }
void OdDbHatch::setShadeTintValue(double t) { edit([&](Data& d) { d.tint = t; }); }
void OdDbHatch::setGradientOneColorMode(bool on) { edit([&](Data& d) { d.oneColor = on; }); }

void OdDbHatch::getGradientColors(unsigned& count, OdArray<OdCmColor>& colors, OdGeDoubleArray& values) const
{
  const Data d = data();
  colors.clear();
  values.clear();
  for (const GradientColor& gc : d.colors) {
    colors.append(gc.color);
    values.append(gc.value);
  }
  count = unsigned(d.colors.size());
}

void OdDbHatch::setGradientColors(unsigned count, const OdCmColor* colors, const double* values)
{
  edit([&](Data& d) {
    d.colors.resize(count);
    for (unsigned k = 0; k < count; ++k) {
      d.colors[k].color = colors[k];
      d.colors[k].value = values ? values[k] : double(k);
    }
  });
}
