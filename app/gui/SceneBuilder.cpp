// Entities into primitives.
#include "app/gui/SceneBuilder.h"

#include "app/gui/DrawingScene.h"
#include "app/gui/HatchFiller.h"
#include "app/gui/ImageCache.h"
#include "app/gui/LinetypeDasher.h"
#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbRasterImage.h"
#include "sdk/db/OdDbText.h"

#include <QHash>

#include <cmath>

namespace {

constexpr int kMaxBlockDepth = 16;
constexpr double kDeg = M_PI / 180.0;

template <class T>
const T* as(const OdDbEntity& e)
{
  return e.isKindOf(T::desc()) ? static_cast<const T*>(&e) : nullptr;
}

QPointF toQ(const OdGePoint2d& p)
{
  return QPointF(p.x, p.y);
}

SceneGradient::Shape gradientShape(const std::string& name)
{
  static const QHash<QString, SceneGradient::Shape> shapes = {
      {"LINEAR", SceneGradient::Linear},
      {"CYLINDER", SceneGradient::Cylinder},
      {"INVCYLINDER", SceneGradient::InvCylinder},
      {"SPHERICAL", SceneGradient::Spherical},
      {"INVSPHERICAL", SceneGradient::InvSpherical},
      {"HEMISPHERICAL", SceneGradient::Hemispherical},
      {"INVHEMISPHERICAL", SceneGradient::InvHemispherical},
      {"CURVED", SceneGradient::Curved},
      {"INVCURVED", SceneGradient::InvCurved}};
  return shapes.value(QString::fromStdString(name).toUpper(), SceneGradient::Linear);
}

// The second colour of a one-colour gradient: the colour shaded to black
// (tint 0) or tinted to white (tint 1).
QRgb tinted(QRgb c, double tint)
{
  const double t = std::clamp(tint, 0.0, 1.0);
  auto mix = [&](int v) { return t < 0.5 ? int(v * t * 2) : int(v + (255 - v) * (t - 0.5) * 2); };
  return qRgb(mix(qRed(c)), mix(qGreen(c)), mix(qBlue(c)));
}

} // namespace

SceneBuilder::SceneBuilder(DrawingScene& scene, OdDbDatabase* db)
    : m_scene(scene), m_db(db), m_resolver(db, scene.foreground()), m_shaper(db)
{
}

std::uint64_t SceneBuilder::fingerprint(const OdDbEntity& entity)
{
  // Every change of an object's data stores new texts for its pairs, so
  // the pairs' addresses tell a changed object from the same one.
  std::uint64_t h = 1469598103934665603ull;
  auto mix = [&h](std::uint64_t v) {
    h ^= v;
    h *= 1099511628211ull;
  };
  auto object = [&](const OdDbObject& o) {
    mix(o.dxfPairs().size());
    for (const OdDbDxfPair& p : o.dxfPairs()) {
      mix(std::uint64_t(p.code));
      mix(reinterpret_cast<std::uintptr_t>(p.value.data()));
      mix(p.value.size());
    }
    mix(o.isErased() ? 1 : 0);
  };
  object(entity);
  std::vector<OdDbObjectId> owned;
  entity.ownedSubObjects(owned);
  for (const OdDbObjectId& id : owned)
    if (OdDbObjectPtr sub = id.openObject(OdDb::kForRead, true); sub.get())
      object(*sub);
  return h;
}

void SceneBuilder::add(const OdDbEntity& entity)
{
  SceneEntity record;
  record.id = entity.objectId();
  record.primFirst = std::uint32_t(m_scene.m_prims.size());
  record.snapFirst = std::uint32_t(m_scene.m_snaps.size());
  m_entity = std::uint32_t(m_scene.m_entities.size());
  m_scene.m_entities.push_back(record);
  m_box = SceneBoxBuilder();
  try {
    draw(entity, Context());
  } catch (const std::exception&) {
    // An entity whose data cannot be read shows what was made of it so far.
  }
  SceneEntity& done = m_scene.m_entities.back();
  done.primCount = std::uint32_t(m_scene.m_prims.size()) - done.primFirst;
  done.snapCount = std::uint32_t(m_scene.m_snaps.size()) - done.snapFirst;
  done.box = m_box.rect();
  done.hasBox = m_box.valid();
  m_scene.m_fingerprints.push_back(fingerprint(entity));
}

void SceneBuilder::draw(const OdDbEntity& e, const Context& c)
{
  const std::string& type = e.dxfType();
  const SceneLook look = m_resolver.look(e, c.inherit);
  // A block reference is left out as a whole only when frozen: on a layer
  // that is merely off, its entities on other layers still show.
  if (type == "INSERT" || type == "DIMENSION" || type == "ACAD_TABLE") {
    if (look.frozen() || e.visibility() != OdDb::kVisible || c.depth >= kMaxBlockDepth)
      return;
    if (type == "DIMENSION")
      dimension(e, look, c);
    else
      blockReference(e, look, c);
    return;
  }
  if (!look.visible)
    return;
  if (type == "LINE")
    line(e, look, c);
  else if (type == "CIRCLE")
    circleOrArc(e, look, c, false);
  else if (type == "ARC")
    circleOrArc(e, look, c, true);
  else if (type == "ELLIPSE")
    ellipse(e, look, c);
  else if (type == "LWPOLYLINE")
    lightPolyline(e, look, c);
  else if (type == "POLYLINE")
    polyline(e, look, c);
  else if (type == "SPLINE")
    spline(e, look, c);
  else if (type == "POINT")
    point(e, look, c);
  else if (type == "SOLID" || type == "TRACE")
    solid(e, look, c);
  else if (type == "3DFACE")
    face(e, look, c);
  else if (type == "TEXT" || type == "ATTRIB" || type == "ATTDEF")
    text(e, look, c);
  else if (type == "MTEXT")
    mtext(e, look, c);
  else if (type == "HATCH")
    hatch(e, look, c);
  else if (type == "IMAGE")
    image(e, look, c, false);
  else if (type == "WIPEOUT")
    image(e, look, c, true);
  else if (type == "LEADER")
    leader(e, look, c);
}

std::uint16_t SceneBuilder::style(const SceneLook& look)
{
  return m_scene.styleIndex(SceneStyle{look.color, SceneStyleResolver::widthPixels(look.lineWeight)});
}

double SceneBuilder::lengthScale(const Affine3& m)
{
  const double det = std::fabs(m.m[0][0] * m.m[1][1] - m.m[0][1] * m.m[1][0]);
  if (det > 1e-24)
    return std::sqrt(det);
  return std::max(std::hypot(m.m[0][0], m.m[1][0]), std::hypot(m.m[0][1], m.m[1][1]));
}

void SceneBuilder::pushPrim(ScenePrim prim)
{
  prim.entity = m_entity;
  if (!(prim.flags & ScenePrimFlag::kPickOnly))
    m_box.add(prim.box);
  m_scene.m_prims.push_back(prim);
}

void SceneBuilder::addSnap(const QPointF& p, SnapKind kind)
{
  m_scene.m_snaps.push_back(SnapPoint{p, kind});
}

void SceneBuilder::emitPoint(const QPointF& p, std::uint16_t st)
{
  ScenePrim prim;
  prim.kind = ScenePrimKind::Point;
  prim.first = std::uint32_t(m_scene.m_points.size());
  prim.count = 1;
  prim.box = QRectF(p, p);
  prim.style = st;
  m_scene.m_points.push_back(p);
  pushPrim(prim);
}

void SceneBuilder::emitSegments(const std::vector<QPointF>& pairs, std::uint16_t st, std::uint8_t flags)
{
  if (pairs.size() < 2)
    return;
  ScenePrim prim;
  prim.kind = ScenePrimKind::Segments;
  prim.first = std::uint32_t(m_scene.m_points.size());
  prim.count = std::uint32_t(pairs.size() & ~std::size_t(1));
  prim.style = st;
  prim.flags = flags;
  SceneBoxBuilder box;
  for (std::size_t i = 0; i < prim.count; ++i) {
    m_scene.m_points.push_back(pairs[i]);
    box.add(pairs[i]);
  }
  prim.box = box.rect();
  pushPrim(prim);
}

void SceneBuilder::emitCurve(const std::vector<QPointF>& world, bool closed, const SceneLook& look, const Context& c,
                             std::uint8_t flags)
{
  if (world.empty())
    return;
  const std::uint16_t st = style(look);
  if (world.size() == 1) {
    emitPoint(world[0], st);
    return;
  }
  if (look.pattern && !look.pattern->empty() && !(flags & ScenePrimFlag::kPickOnly)) {
    const double k = look.linetypeScale * lengthScale(c.toWorld);
    std::vector<double> scaled;
    for (double d : *look.pattern)
      scaled.push_back(d * k);
    std::vector<QPointF> dashes;
    if (LinetypeDasher(scaled).dash(world, closed, dashes)) {
      // The dashes show the curve; the whole curve is what a pick finds.
      emitSegments(dashes, st, flags | ScenePrimFlag::kNoPick);
      flags |= ScenePrimFlag::kPickOnly;
    }
  }
  ScenePrim prim;
  prim.kind = ScenePrimKind::Polyline;
  prim.first = std::uint32_t(m_scene.m_points.size());
  prim.count = std::uint32_t(world.size());
  prim.style = st;
  prim.flags = flags | (closed ? ScenePrimFlag::kClosed : 0);
  SceneBoxBuilder box;
  for (const QPointF& p : world)
    box.add(p);
  m_scene.m_points.insert(m_scene.m_points.end(), world.begin(), world.end());
  prim.box = box.rect();
  pushPrim(prim);
}

void SceneBuilder::emitArc(const QPointF& center, const QPointF& u, const QPointF& v, double t0, double t1,
                           const SceneLook& look, const Context& c)
{
  if (look.pattern && !look.pattern->empty()) {
    std::vector<QPointF> pts;
    const int n = std::max(8, int(std::ceil((t1 - t0) / SceneGeometry::kTwoPi * 96)));
    SceneGeometry::appendEllipse(pts, center, u, v, t0, t1, n);
    emitCurve(pts, false, look, c);
    return;
  }
  ScenePrim prim;
  prim.kind = ScenePrimKind::Arc;
  prim.first = std::uint32_t(m_scene.m_arcs.size());
  prim.style = style(look);
  prim.box = SceneGeometry::ellipseBox(center, u, v, t0, t1);
  m_scene.m_arcs.push_back(SceneArc{center, u, v, t0, t1});
  pushPrim(prim);
}

void SceneBuilder::emitFill(const std::vector<std::vector<QPointF>>& rings, std::uint16_t st, int gradient,
                            bool background, bool faint, std::uint8_t flags)
{
  SceneFill fill;
  fill.pointFirst = std::uint32_t(m_scene.m_points.size());
  fill.ringFirst = std::uint32_t(m_scene.m_rings.size());
  fill.gradient = gradient;
  fill.background = background;
  fill.faint = faint;
  SceneBoxBuilder box;
  for (const auto& ring : rings) {
    if (ring.size() < 3)
      continue;
    m_scene.m_points.insert(m_scene.m_points.end(), ring.begin(), ring.end());
    m_scene.m_rings.push_back(std::uint32_t(ring.size()));
    ++fill.ringCount;
    for (const QPointF& p : ring)
      box.add(p);
  }
  if (!fill.ringCount)
    return;
  ScenePrim prim;
  prim.kind = ScenePrimKind::Fill;
  prim.first = std::uint32_t(m_scene.m_fills.size());
  prim.style = st;
  prim.flags = flags;
  prim.box = box.rect();
  m_scene.m_fills.push_back(fill);
  pushPrim(prim);
}

void SceneBuilder::emitWidePolyline(const std::vector<QPointF>& centre, const std::vector<double>& w0,
                                    const std::vector<double>& w1, bool closed, std::uint16_t st)
{
  // One quadrilateral a segment; filled each on its own, so that the
  // overlaps at the joints stay filled.
  const std::size_t n = centre.size();
  const std::size_t segments = closed ? n : n - 1;
  for (std::size_t i = 0; i < segments; ++i) {
    const QPointF a = centre[i], b = centre[(i + 1) % n];
    const double len = std::hypot(b.x() - a.x(), b.y() - a.y());
    if (len <= 0)
      continue;
    const QPointF normal(-(b.y() - a.y()) / len, (b.x() - a.x()) / len);
    const QPointF na = normal * (w0[i] / 2), nb = normal * (w1[i] / 2);
    emitFill({{a + na, b + nb, b - nb, a - na}}, st, -1, false, false);
  }
}

void SceneBuilder::line(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  const auto* l = as<OdDbLine>(e);
  if (!l)
    return;
  const QPointF a = c.toWorld.apply2(l->startPoint()), b = c.toWorld.apply2(l->endPoint());
  emitCurve({a, b}, false, look, c);
  addSnap(a, SnapKind::End);
  addSnap(b, SnapKind::End);
}

void SceneBuilder::circleOrArc(const OdDbEntity& e, const SceneLook& look, const Context& c, bool isArc)
{
  OdGePoint3d center;
  double r = 0, a0 = 0, a1 = SceneGeometry::kTwoPi;
  OdGeVector3d normal;
  if (isArc) {
    const auto* arc = as<OdDbArc>(e);
    if (!arc)
      return;
    center = arc->center();
    r = arc->radius();
    a0 = arc->startAngle();
    a1 = arc->endAngle();
    normal = arc->normal();
    while (a1 <= a0)
      a1 += SceneGeometry::kTwoPi;
  } else {
    const auto* circle = as<OdDbCircle>(e);
    if (!circle)
      return;
    center = circle->center();
    r = circle->radius();
    normal = circle->normal();
  }
  if (r <= 0)
    return;
  const Affine3 plane = c.toWorld * Affine3::ocs(normal);
  const QPointF cw = plane.apply2(center);
  const QPointF u = plane.apply2(center.x + r, center.y, center.z) - cw;
  const QPointF v = plane.apply2(center.x, center.y + r, center.z) - cw;
  emitArc(cw, u, v, a0, a1, look, c);
  addSnap(cw, SnapKind::Center);
  if (isArc) {
    addSnap(cw + u * std::cos(a0) + v * std::sin(a0), SnapKind::End);
    addSnap(cw + u * std::cos(a1) + v * std::sin(a1), SnapKind::End);
  }
}

void SceneBuilder::ellipse(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  const auto* el = as<OdDbEllipse>(e);
  if (!el)
    return;
  const OdGeVector3d major = el->majorAxis(), n = el->normal();
  const double nl = n.length();
  const OdGeVector3d un = nl > 0 ? n * (1 / nl) : OdGeVector3d::kZAxis;
  const OdGeVector3d minor(un.y * major.z - un.z * major.y, un.z * major.x - un.x * major.z,
                           un.x * major.y - un.y * major.x);
  const OdGePoint3d center = el->center();
  const QPointF cw = c.toWorld.apply2(center);
  const QPointF u = c.toWorld.apply2(center + major) - cw;
  const QPointF v = c.toWorld.apply2(center + minor * el->radiusRatio()) - cw;
  double t0 = el->startAngle(), t1 = el->endAngle();
  while (t1 <= t0)
    t1 += SceneGeometry::kTwoPi;
  emitArc(cw, u, v, t0, t1, look, c);
  addSnap(cw, SnapKind::Center);
  if (t1 - t0 < SceneGeometry::kTwoPi - 1e-9) {
    addSnap(cw + u * std::cos(t0) + v * std::sin(t0), SnapKind::End);
    addSnap(cw + u * std::cos(t1) + v * std::sin(t1), SnapKind::End);
  }
}

void SceneBuilder::lightPolyline(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  const auto* pl = as<OdDbPolyline>(e);
  if (!pl)
    return;
  const auto vertices = pl->vertices();
  if (vertices.empty())
    return;
  const bool closed = pl->isClosed();
  const double constant = pl->getConstantWidth();
  const Affine3 plane = c.toWorld * Affine3::ocs(pl->normal());
  const double z = pl->elevation();

  // The outline in the plane, each bulge made into an arc, and the widths
  // along it.
  std::vector<QPointF> local{toQ(vertices[0].point)};
  std::vector<double> w0, w1;
  bool wide = constant > 0;
  const std::size_t n = vertices.size();
  for (std::size_t i = 0; i < n; ++i) {
    if (i + 1 == n && !closed)
      break;
    const auto& a = vertices[i];
    const auto& b = vertices[(i + 1) % n];
    const std::size_t before = local.size();
    SceneGeometry::appendBulge(local, toQ(a.point), toQ(b.point), a.bulge, 72);
    const double s = constant > 0 ? constant : a.startWidth, t = constant > 0 ? constant : a.endWidth;
    wide = wide || s > 0 || t > 0;
    const std::size_t steps = local.size() - before;
    for (std::size_t k = 0; k < steps; ++k) {
      w0.push_back(s + (t - s) * double(k) / double(steps));
      w1.push_back(s + (t - s) * double(k + 1) / double(steps));
    }
  }
  std::vector<QPointF> world;
  world.reserve(local.size());
  for (const QPointF& p : local)
    world.push_back(plane.apply2(p.x(), p.y(), z));
  for (const auto& v : vertices)
    addSnap(plane.apply2(v.point.x, v.point.y, z), SnapKind::End);

  if (wide && world.size() >= 2) {
    const double k = lengthScale(plane);
    for (double& w : w0)
      w *= k;
    for (double& w : w1)
      w *= k;
    std::vector<QPointF> centre = world;
    if (closed && centre.size() > 1)
      centre.pop_back(); // the last point repeats the first
    emitWidePolyline(centre, w0, w1, closed, style(look));
    emitCurve(world, false, look, c, ScenePrimFlag::kPickOnly);
    return;
  }
  emitCurve(world, closed && world.size() > 2, look, c);
}

void SceneBuilder::polyline(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  const auto* pl = as<OdDb2dPolyline>(e);
  if (!pl)
    return;
  const int flags = pl->polyFlags();
  struct Vertex
  {
    OdGePoint3d p;
    double bulge = 0, w0 = 0, w1 = 0;
    int flags = 0;
    int face[4] = {0, 0, 0, 0};
  };
  std::vector<Vertex> vertices;
  for (const OdDbObjectId& id : pl->vertexIds()) {
    OdDbEntityPtr v = OdDbEntity::cast(id.openObject());
    if (!v.get())
      continue;
    Vertex x;
    x.p = v->getPoint(nullptr, 10);
    x.bulge = v->getDouble(nullptr, 42, 0.0);
    x.w0 = v->getDouble(nullptr, 40, pl->defaultStartWidth());
    x.w1 = v->getDouble(nullptr, 41, pl->defaultEndWidth());
    x.flags = int(v->getInt(nullptr, 70, 0));
    for (int k = 0; k < 4; ++k)
      x.face[k] = int(v->getInt(nullptr, 71 + k, 0));
    vertices.push_back(x);
  }
  if (vertices.empty())
    return;

  if (flags & 64) {
    // A polyface mesh: vertices first, then faces naming them by number
    // (negative for an edge that is not shown).
    std::vector<QPointF> points;
    for (const Vertex& v : vertices)
      if (!((v.flags & 128) && !(v.flags & 64)))
        points.push_back(c.toWorld.apply2(v.p));
    std::vector<QPointF> edges;
    for (const Vertex& v : vertices) {
      if (!((v.flags & 128) && !(v.flags & 64)))
        continue;
      int count = 0;
      while (count < 4 && v.face[count] != 0)
        ++count;
      for (int k = 0; k < count; ++k) {
        const int a = v.face[k], b = v.face[(k + 1) % count];
        if (a <= 0)
          continue;
        const std::size_t ia = std::size_t(std::abs(a) - 1), ib = std::size_t(std::abs(b) - 1);
        if (ia < points.size() && ib < points.size()) {
          edges.push_back(points[ia]);
          edges.push_back(points[ib]);
        }
      }
    }
    emitSegments(edges, style(look), 0);
    return;
  }
  if (flags & 16) {
    // A polygon mesh: M rows of N vertices, lines along both.
    const int m = int(pl->getInt(nullptr, 71, 0)), nn = int(pl->getInt(nullptr, 72, 0));
    if (m <= 0 || nn <= 0 || std::size_t(m) * std::size_t(nn) > vertices.size())
      return;
    auto at = [&](int i, int j) { return c.toWorld.apply2(vertices[std::size_t(i * nn + j)].p); };
    std::vector<QPointF> edges;
    for (int i = 0; i < m; ++i)
      for (int j = 0; j < nn; ++j) {
        if (j + 1 < nn || (flags & 32)) {
          edges.push_back(at(i, j));
          edges.push_back(at(i, (j + 1) % nn));
        }
        if (i + 1 < m || (flags & 1)) {
          edges.push_back(at(i, j));
          edges.push_back(at((i + 1) % m, j));
        }
      }
    emitSegments(edges, style(look), 0);
    return;
  }
  // A spline-fit polyline keeps its frame's control points as vertices
  // that are not drawn.
  std::erase_if(vertices, [](const Vertex& v) { return (v.flags & 16) != 0; });
  if (vertices.empty())
    return;
  const bool closed = (flags & 1) != 0;
  const bool is3d = (flags & 8) != 0;
  const Affine3 plane = is3d ? c.toWorld : c.toWorld * Affine3::ocs(pl->getVector(nullptr, 210, OdGeVector3d::kZAxis));
  const double z = is3d ? 0.0 : pl->elevation();
  std::vector<QPointF> world;
  std::vector<double> w0, w1;
  bool wide = false;
  auto project = [&](const OdGePoint3d& p) { return is3d ? plane.apply2(p) : plane.apply2(p.x, p.y, z); };
  if (is3d) {
    for (const Vertex& v : vertices)
      world.push_back(project(v.p));
    if (closed && world.size() > 2)
      world.push_back(world.front());
  } else {
    std::vector<QPointF> local{QPointF(vertices[0].p.x, vertices[0].p.y)};
    const std::size_t n = vertices.size();
    for (std::size_t i = 0; i < n; ++i) {
      if (i + 1 == n && !closed)
        break;
      const Vertex& a = vertices[i];
      const Vertex& b = vertices[(i + 1) % n];
      const std::size_t before = local.size();
      SceneGeometry::appendBulge(local, QPointF(a.p.x, a.p.y), QPointF(b.p.x, b.p.y), a.bulge, 72);
      wide = wide || a.w0 > 0 || a.w1 > 0;
      const std::size_t steps = local.size() - before;
      for (std::size_t k = 0; k < steps; ++k) {
        w0.push_back(a.w0 + (a.w1 - a.w0) * double(k) / double(steps));
        w1.push_back(a.w0 + (a.w1 - a.w0) * double(k + 1) / double(steps));
      }
    }
    for (const QPointF& p : local)
      world.push_back(plane.apply2(p.x(), p.y(), z));
  }
  for (const Vertex& v : vertices)
    addSnap(project(v.p), SnapKind::End);
  if (wide && world.size() >= 2) {
    const double k = lengthScale(plane);
    for (double& w : w0)
      w *= k;
    for (double& w : w1)
      w *= k;
    std::vector<QPointF> centre = world;
    if (closed && centre.size() > 1)
      centre.pop_back();
    emitWidePolyline(centre, w0, w1, closed, style(look));
    emitCurve(world, false, look, c, ScenePrimFlag::kPickOnly);
    return;
  }
  emitCurve(world, false, look, c);
}

void SceneBuilder::spline(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  const auto* sp = as<OdDbSpline>(e);
  if (!sp)
    return;
  int degree = 3;
  bool rational = false, closed = false, periodic = false;
  OdGePoint3dArray cps;
  OdGeDoubleArray knots, weights;
  double tol = 0;
  sp->getNurbsData(degree, rational, closed, periodic, cps, knots, weights, tol);
  std::vector<OdGePoint3d> curve;
  if (cps.size() >= 2) {
    std::vector<OdGePoint3d> c3(cps.begin(), cps.end());
    // Few spans get more points each, so that long single spans stay round.
    const int spans = std::max(1, int(cps.size()) - degree);
    curve = SceneGeometry::nurbsPoints(degree, std::vector<double>(knots.begin(), knots.end()), c3,
                                       rational ? std::vector<double>(weights.begin(), weights.end())
                                                : std::vector<double>(),
                                       std::clamp(256 / spans, 12, 64));
  } else {
    OdGePoint3dArray fit;
    int d = 3;
    double fitTol = 0;
    bool tangents = false;
    OdGeVector3d t0, t1;
    sp->getFitData(fit, d, fitTol, tangents, t0, t1);
    curve = SceneGeometry::fitPoints(std::vector<OdGePoint3d>(fit.begin(), fit.end()), closed, 24);
  }
  std::vector<QPointF> world;
  for (const OdGePoint3d& p : curve)
    world.push_back(c.toWorld.apply2(p));
  emitCurve(world, false, look, c);
  if (!world.empty()) {
    addSnap(world.front(), SnapKind::End);
    addSnap(world.back(), SnapKind::End);
  }
}

void SceneBuilder::point(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  const QPointF p = c.toWorld.apply2(e.getPoint(nullptr, 10));
  emitPoint(p, style(look));
  addSnap(p, SnapKind::End);
}

void SceneBuilder::solid(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  // Corners in the order 1, 2, 4, 3 make the outline; a triangle repeats
  // its third corner.
  const Affine3 plane = c.toWorld * Affine3::ocs(e.getVector(nullptr, 210, OdGeVector3d::kZAxis));
  OdGePoint3d p[4];
  for (int i = 0; i < 4; ++i)
    p[i] = e.getPoint(nullptr, 10 + i, i == 3 ? e.getPoint(nullptr, 12) : OdGePoint3d());
  std::vector<QPointF> ring{plane.apply2(p[0]), plane.apply2(p[1]), plane.apply2(p[3]), plane.apply2(p[2])};
  if (ring[2] == ring[3])
    ring.pop_back();
  emitFill({ring}, style(look), -1, false, false);
  for (const QPointF& q : ring)
    addSnap(q, SnapKind::End);
}

void SceneBuilder::face(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  QPointF p[4];
  for (int i = 0; i < 4; ++i)
    p[i] = c.toWorld.apply2(e.getPoint(nullptr, 10 + i, e.getPoint(nullptr, 12)));
  const int hidden = int(e.getInt(nullptr, 70, 0));
  std::vector<QPointF> edges;
  for (int i = 0; i < 4; ++i) {
    if (hidden & (1 << i))
      continue;
    edges.push_back(p[i]);
    edges.push_back(p[(i + 1) % 4]);
  }
  emitSegments(edges, style(look), 0);
  for (const QPointF& q : p)
    addSnap(q, SnapKind::End);
}

void SceneBuilder::text(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  const auto* t = as<OdDbText>(e);
  if (!t)
    return;
  if (const auto* def = as<OdDbAttributeDefinition>(e)) {
    // In a block, a definition shows only when it is constant; its
    // references show the values. On its own it shows its tag.
    if (c.inherit.inBlock && !def->isConstant())
      return;
    if (def->isInvisible())
      return;
  }
  if (const auto* att = as<OdDbAttribute>(e); att && att->isInvisible())
    return;
  const auto* def = as<OdDbAttributeDefinition>(e);
  const QString tag = def && !c.inherit.inBlock ? def->tag().qstring() : QString();
  for (const ShapedText& s : m_shaper.text(*t, c.toWorld, def && !c.inherit.inBlock ? &tag : nullptr)) {
    m_scene.m_texts.push_back(s.run);
    ScenePrim prim;
    prim.kind = ScenePrimKind::Text;
    prim.first = std::uint32_t(m_scene.m_texts.size() - 1);
    prim.style = style(look);
    prim.box = s.run.toWorld.mapRect(s.run.box);
    pushPrim(prim);
  }
  addSnap(c.toWorld.apply2((Affine3::ocs(t->normal())).apply(t->position())), SnapKind::End);
}

void SceneBuilder::mtext(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  const auto* t = as<OdDbMText>(e);
  if (!t)
    return;
  for (const ShapedText& s : m_shaper.mtext(*t, c.toWorld)) {
    SceneLook runLook = look;
    if (s.color) {
      if (s.color->isByBlock())
        runLook.color = c.inherit.inBlock ? c.inherit.color : m_resolver.foreground();
      else if (!s.color->isByLayer())
        runLook.color = m_resolver.rgb(*s.color);
    }
    m_scene.m_texts.push_back(s.run);
    ScenePrim prim;
    prim.kind = ScenePrimKind::Text;
    prim.first = std::uint32_t(m_scene.m_texts.size() - 1);
    prim.style = style(runLook);
    prim.box = s.run.toWorld.mapRect(s.run.box);
    pushPrim(prim);
  }
  addSnap(c.toWorld.apply2(t->location()), SnapKind::End);
}

void SceneBuilder::block(OdDbObjectId blockId, const Affine3& toWorld, const SceneLook& look, const Context& c)
{
  OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::cast(blockId.openObject());
  if (!block.get() || std::find(m_blockStack.begin(), m_blockStack.end(), blockId.stub()) != m_blockStack.end())
    return;
  Context inner;
  inner.toWorld = toWorld;
  inner.depth = c.depth + 1;
  inner.inherit = look.handedDown();
  m_blockStack.push_back(blockId.stub());
  for (const OdDbObjectId& id : block->entityIds()) {
    OdDbEntityPtr child = OdDbEntity::cast(id.openObject());
    if (child.get())
      draw(*child, inner);
  }
  m_blockStack.pop_back();
}

void SceneBuilder::blockReference(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  OdDbObjectId blockId;
  OdGePoint3d position;
  OdGeScale3d scale(1, 1, 1);
  double rotation = 0;
  OdGeVector3d normal = OdGeVector3d::kZAxis;
  int columns = 1, rows = 1;
  double columnSpacing = 0, rowSpacing = 0;
  const auto* ref = as<OdDbBlockReference>(e);
  if (ref) {
    blockId = ref->blockTableRecord();
    position = ref->position();
    scale = ref->scaleFactors();
    rotation = ref->rotation();
    normal = ref->normal();
    columns = std::max(1, int(ref->getInt(OdDbBlockReference::kSub, 70, 1)));
    rows = std::max(1, int(ref->getInt(OdDbBlockReference::kSub, 71, 1)));
    columnSpacing = ref->getDouble(OdDbBlockReference::kSub, 44, 0);
    rowSpacing = ref->getDouble(OdDbBlockReference::kSub, 45, 0);
  } else if (m_db) {
    // Tables keep their picture as a block too, named and placed alike.
    blockId = m_db->recordId(m_db->getBlockTableId(), e.getString("AcDbBlockReference", 2));
    position = e.getPoint("AcDbBlockReference", 10);
  }
  if (blockId.isNull())
    return;
  OdDbBlockTableRecordPtr definition = OdDbBlockTableRecord::cast(blockId.openObject());
  const OdGePoint3d base = definition.get() ? definition->origin() : OdGePoint3d();
  const Affine3 placed = c.toWorld * Affine3::ocs(normal) * Affine3::translation(position.x, position.y, position.z) *
                         Affine3::rotationZ(rotation);
  // A reference repeated in columns and rows places copies in its own
  // rotated axes, spaced without its scale.
  if (columns * rows > 10000)
    columns = rows = 1;
  for (int row = 0; row < rows; ++row)
    for (int col = 0; col < columns; ++col) {
      const Affine3 toWorld = placed * Affine3::translation(col * columnSpacing, row * rowSpacing, 0) *
                              Affine3::scaling(scale.sx, scale.sy, scale.sz) *
                              Affine3::translation(-base.x, -base.y, -base.z);
      block(blockId, toWorld, look, c);
    }
  const QPointF insertion = placed.apply2(0, 0, 0);
  addSnap(insertion, SnapKind::End);
  if (!ref)
    return;
  // Attributes are entities of their own, in the space of the reference.
  Context attributes = c;
  attributes.inherit = look.handedDown();
  for (const OdDbObjectId& id : ref->attributeIds()) {
    OdDbEntityPtr att = OdDbEntity::cast(id.openObject());
    if (att.get())
      draw(*att, attributes);
  }
}

void SceneBuilder::dimension(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  const auto* dim = as<OdDbDimension>(e);
  if (!dim)
    return;
  const OdDbObjectId blockId = dim->dimBlockId();
  if (blockId.isNull())
    return;
  // The picture's block is in world coordinates, moved only by the
  // dimension's insertion point when there is one.
  Affine3 toWorld = c.toWorld;
  if (dim->findPair(OdDbDimension::kSub, 12) >= 0) {
    const OdGePoint3d at = Affine3::ocs(dim->getVector(OdDbDimension::kSub, 210, OdGeVector3d::kZAxis))
                               .apply(dim->getPoint(OdDbDimension::kSub, 12));
    toWorld = toWorld * Affine3::translation(at.x, at.y, at.z);
  }
  block(blockId, toWorld, look, c);
}

void SceneBuilder::hatch(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  const auto* h = as<OdDbHatch>(e);
  if (!h)
    return;
  const OdDbHatch::Data data = h->data();
  const std::vector<HatchFiller::Ring> rings = HatchFiller::rings(data);
  if (rings.empty())
    return;
  const Affine3 plane = c.toWorld * Affine3::ocs(data.normal);
  const double z = data.elevationPoint.z;
  auto toWorld = [&](const QPointF& p) { return plane.apply2(p.x(), p.y(), z); };
  std::vector<std::vector<QPointF>> worldRings;
  for (const auto& ring : rings) {
    std::vector<QPointF> w;
    w.reserve(ring.size());
    for (const QPointF& p : ring)
      w.push_back(toWorld(p));
    worldRings.push_back(std::move(w));
  }
  const std::uint16_t st = style(look);
  if (data.gradientFlag) {
    SceneGradient g;
    g.shape = gradientShape(data.gradientName);
    g.color1 = data.colors.size() > 0 ? m_resolver.rgb(data.colors[0].color) : look.color;
    g.color2 = data.oneColor || data.colors.size() < 2 ? tinted(g.color1, data.tint)
                                                        : m_resolver.rgb(data.colors[1].color);
    const QPointF dir = toWorld(QPointF(std::cos(data.gradientAngle), std::sin(data.gradientAngle))) - toWorld(QPointF());
    g.angle = std::atan2(dir.y(), dir.x());
    g.centered = data.gradientShift == 0.0;
    m_scene.m_gradients.push_back(g);
    emitFill(worldRings, st, int(m_scene.m_gradients.size() - 1), false, false);
  } else if (data.solid || data.patternName == "SOLID") {
    emitFill(worldRings, st, -1, false, false);
  } else {
    std::vector<QPointF> segments;
    if (HatchFiller::patternSegments(rings, data.lines, segments)) {
      for (QPointF& p : segments)
        p = toWorld(p);
      emitSegments(segments, st, ScenePrimFlag::kNoPick);
    } else {
      emitFill(worldRings, st, -1, false, true);
    }
  }
  // The boundary is what picks a hatch.
  for (const auto& ring : worldRings)
    emitCurve(ring, true, look, c, ScenePrimFlag::kPickOnly);
}

void SceneBuilder::image(const OdDbEntity& e, const SceneLook& look, const Context& c, bool wipeout)
{
  const char* sub = wipeout ? "AcDbWipeout" : OdDbRasterImage::kSub;
  if (e.findPair(sub, 10) < 0)
    sub = OdDbRasterImage::kSub;
  const OdGePoint3d origin = e.getPoint(sub, 10);
  const OdGeVector3d uPixel = e.getVector(sub, 11), vPixel = e.getVector(sub, 12);
  const OdGePoint3d size = e.getPoint(sub, 13, OdGePoint3d(1, 1, 0));
  if (size.x <= 0 || size.y <= 0)
    return;
  // Pixels from the top left corner: (x, y) lies at origin + u x + v (h - y).
  const QPointF o = c.toWorld.apply2(origin);
  const QPointF u = c.toWorld.apply2(origin + uPixel) - o, v = c.toWorld.apply2(origin + vPixel) - o;
  const QTransform pixelsToWorld(u.x(), u.y(), -v.x(), -v.y(), o.x() + v.x() * size.y, o.y() + v.y() * size.y);

  // The clip boundary is kept in pixels with (-0.5, -0.5) at the top left.
  QPolygonF clip;
  std::vector<QPointF> boundary;
  const auto& pairs = e.dxfPairs();
  const auto range = e.sectionRange(sub);
  for (int i = range.first; i + 1 < range.second; ++i)
    if (pairs[std::size_t(i)].code == 14 && pairs[std::size_t(i + 1)].code == 24)
      boundary.emplace_back(OdDxf::toDouble(pairs[std::size_t(i)].value) + 0.5,
                            OdDxf::toDouble(pairs[std::size_t(i + 1)].value) + 0.5);
  const bool clipped = wipeout || e.getInt(sub, 280, 0) != 0;
  if (clipped && boundary.size() == 2) {
    const QPointF a = boundary[0], b = boundary[1];
    boundary = {a, QPointF(b.x(), a.y()), b, QPointF(a.x(), b.y())};
  }
  if (clipped && boundary.size() >= 3)
    for (const QPointF& p : boundary)
      clip << pixelsToWorld.map(p);
  const QPolygonF frame = clip.isEmpty() ? pixelsToWorld.map(QPolygonF(QRectF(0, 0, size.x, size.y))) : clip;
  std::vector<QPointF> outline(frame.begin(), frame.end());

  if (wipeout) {
    emitFill({outline}, style(look), -1, true, false);
    return;
  }
  OdDbRasterImageDefPtr def = OdDbRasterImageDef::cast(e.getId(sub, 340).openObject());
  const QString file = def.get() ? def->activeFileName().qstring() : QString();
  std::shared_ptr<const QImage> picture = file.isEmpty() ? nullptr : ImageCache::instance().image(file);
  if (!picture) {
    // A missing file shows its frame, as the place where it would be.
    outline.push_back(outline.front());
    emitCurve(outline, true, look, c);
    return;
  }
  SceneImage img;
  img.image = picture;
  img.fileName = file;
  img.pixels = QSizeF(size.x, size.y);
  // The file's pixels may differ in number from what the drawing says.
  img.toWorld = QTransform::fromScale(size.x / picture->width(), size.y / picture->height()) * pixelsToWorld;
  img.clip = clip;
  img.fade = int(e.getInt(sub, 283, 0));
  m_scene.m_images.push_back(img);
  ScenePrim prim;
  prim.kind = ScenePrimKind::Image;
  prim.first = std::uint32_t(m_scene.m_images.size() - 1);
  prim.style = style(look);
  prim.box = frame.boundingRect();
  pushPrim(prim);
  for (const QPointF& p : outline)
    addSnap(p, SnapKind::End);
}

void SceneBuilder::leader(const OdDbEntity& e, const SceneLook& look, const Context& c)
{
  std::vector<QPointF> points;
  const auto& pairs = e.dxfPairs();
  const auto range = e.sectionRange("AcDbLeader");
  for (int i = range.first; i + 1 < range.second; ++i)
    if (pairs[std::size_t(i)].code == 10 && pairs[std::size_t(i + 1)].code == 20)
      points.push_back(c.toWorld.apply2(OdDxf::toDouble(pairs[std::size_t(i)].value),
                                        OdDxf::toDouble(pairs[std::size_t(i + 1)].value),
                                        i + 2 < range.second && pairs[std::size_t(i + 2)].code == 30
                                            ? OdDxf::toDouble(pairs[std::size_t(i + 2)].value)
                                            : 0.0));
  emitCurve(points, false, look, c);
  for (const QPointF& p : points)
    addSnap(p, SnapKind::End);
}
