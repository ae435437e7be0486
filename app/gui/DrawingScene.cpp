// The scene of a drawing: building, following changes, picking, snapping.
#include "app/gui/DrawingScene.h"

#include "app/gui/SceneBuilder.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

// Above this share of dead primitives the scene is made anew rather than
// carried on with holes.
constexpr double kMaxDeadShare = 0.5;

bool insideRings(const QPointF& p, const QPointF* pts, const std::uint32_t* sizes, std::uint32_t rings)
{
  bool inside = false;
  for (std::uint32_t r = 0; r < rings; ++r) {
    const std::uint32_t n = sizes[r];
    for (std::uint32_t i = 0, j = n - 1; i < n; j = i++) {
      const QPointF& a = pts[i];
      const QPointF& b = pts[j];
      if ((a.y() > p.y()) != (b.y() > p.y()) && p.x() < (b.x() - a.x()) * (p.y() - a.y()) / (b.y() - a.y()) + a.x())
        inside = !inside;
    }
    pts += n;
  }
  return inside;
}

} // namespace

DrawingScene::DrawingScene(QRgb background) : m_background(background)
{
  // Index colour 7 shows dark on a light background and light on a dark one.
  m_foreground = qGray(background) > 128 ? qRgb(0, 0, 0) : qRgb(255, 255, 255);
}

DrawingScene::~DrawingScene() = default;

void DrawingScene::clear()
{
  m_prims.clear();
  m_points.clear();
  m_rings.clear();
  m_fills.clear();
  m_texts.clear();
  m_images.clear();
  m_arcs.clear();
  m_gradients.clear();
  m_styles.clear();
  m_snaps.clear();
  m_entities.clear();
  m_fingerprints.clear();
  m_entityById.clear();
  m_deadPrims = 0;
  m_index = SceneIndex();
}

std::uint16_t DrawingScene::styleIndex(const SceneStyle& style)
{
  for (std::size_t i = 0; i < m_styles.size(); ++i)
    if (m_styles[i] == style)
      return std::uint16_t(i);
  if (m_styles.size() >= 0xFFFF)
    return 0;
  m_styles.push_back(style);
  return std::uint16_t(m_styles.size() - 1);
}

void DrawingScene::build(OdDbDatabase* db)
{
  clear();
  m_db = db;
  if (!db)
    return;
  OdDbBlockTableRecordPtr space = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject());
  if (!space.get())
    return;
  SceneBuilder builder(*this, db);
  for (const OdDbObjectId& id : space->entityIds()) {
    OdDbEntityPtr entity = OdDbEntity::cast(id.openObject());
    if (!entity.get())
      continue;
    m_entityById[id] = std::uint32_t(m_entities.size());
    builder.add(*entity);
  }
  reindex();
}

bool DrawingScene::sync()
{
  if (!m_db)
    return false;
  OdDbBlockTableRecordPtr space = OdDbBlockTableRecord::cast(m_db->getModelSpaceId().openObject());
  if (!space.get())
    return false;
  bool changed = false;
  std::unordered_map<OdDbObjectId, bool> present;
  present.reserve(space->entityIds().size());
  std::vector<OdDbEntityPtr> toAdd;
  for (const OdDbObjectId& id : space->entityIds()) {
    OdDbEntityPtr entity = OdDbEntity::cast(id.openObject());
    if (!entity.get())
      continue;
    present[id] = true;
    auto it = m_entityById.find(id);
    if (it == m_entityById.end()) {
      toAdd.push_back(entity);
    } else if (m_fingerprints[it->second] != SceneBuilder::fingerprint(*entity)) {
      unindexEntity(it->second);
      m_entityById.erase(it);
      toAdd.push_back(entity);
    }
  }
  for (auto it = m_entityById.begin(); it != m_entityById.end();) {
    if (!present.count(it->first)) {
      unindexEntity(it->second);
      it = m_entityById.erase(it);
      changed = true;
    } else {
      ++it;
    }
  }
  if (toAdd.empty())
    return changed;
  if (m_deadPrims > m_prims.size() * kMaxDeadShare) {
    build(m_db);
    return true;
  }
  SceneBuilder builder(*this, m_db);
  bool outside = false;
  for (const OdDbEntityPtr& entity : toAdd) {
    const std::uint32_t index = std::uint32_t(m_entities.size());
    m_entityById[entity->objectId()] = index;
    builder.add(*entity);
    const SceneEntity& e = m_entities.back();
    if (e.hasBox && !m_index.covers(e.box))
      outside = true;
    else
      indexEntity(index);
  }
  if (outside)
    reindex();
  return true;
}

void DrawingScene::indexEntity(std::uint32_t entity)
{
  const SceneEntity& e = m_entities[entity];
  for (std::uint32_t i = e.primFirst; i < e.primFirst + e.primCount; ++i)
    m_index.insert(i, m_prims[i].box);
}

void DrawingScene::unindexEntity(std::uint32_t entity)
{
  SceneEntity& e = m_entities[entity];
  if (!e.alive)
    return;
  for (std::uint32_t i = e.primFirst; i < e.primFirst + e.primCount; ++i)
    m_index.remove(i, m_prims[i].box);
  e.alive = false;
  m_deadPrims += e.primCount;
}

void DrawingScene::reindex()
{
  SceneBoxBuilder all;
  std::size_t alive = 0;
  for (const SceneEntity& e : m_entities)
    if (e.alive && e.primCount) {
      for (std::uint32_t i = e.primFirst; i < e.primFirst + e.primCount; ++i)
        all.add(m_prims[i].box);
      alive += e.primCount;
    }
  QRectF bounds = all.valid() ? all.rect() : QRectF(0, 0, 1, 1);
  // Room around the drawing, so that what is added next to it fits.
  const double margin = std::max({bounds.width(), bounds.height(), 1e-6}) * 0.25;
  bounds.adjust(-margin, -margin, margin, margin);
  m_index.reset(bounds, alive);
  for (std::uint32_t e = 0; e < m_entities.size(); ++e)
    if (m_entities[e].alive)
      indexEntity(e);
}

std::optional<QRectF> DrawingScene::extents() const
{
  SceneBoxBuilder box;
  for (const SceneEntity& e : m_entities)
    if (e.alive && e.hasBox)
      box.add(e.box);
  if (!box.valid())
    return std::nullopt;
  return box.rect();
}

void DrawingScene::primsIn(const QRectF& world, std::vector<std::uint32_t>& out) const
{
  out.clear();
  const QRectF bounds = m_index.bounds();
  const double share = bounds.width() * bounds.height() > 0
                           ? (world & bounds).width() * (world & bounds).height() / (bounds.width() * bounds.height())
                           : 1.0;
  if (share > 0.3 || !m_index.isReady()) {
    // Most of the drawing in sight: a walk over all is cheaper than the
    // grid, and already in drawing order.
    out.reserve(m_prims.size() - m_deadPrims);
    for (std::uint32_t i = 0; i < m_prims.size(); ++i)
      if (m_entities[m_prims[i].entity].alive && SceneBox::touches(m_prims[i].box, world))
        out.push_back(i);
    return;
  }
  m_index.query(world, m_prims, out);
  std::sort(out.begin(), out.end());
}

double DrawingScene::primDistance(std::uint32_t index, const QPointF& p, double tolerance) const
{
  const ScenePrim& prim = m_prims[index];
  double best = 1e300;
  auto polyline = [&](const QPointF* pts, std::uint32_t n, bool closed) {
    for (std::uint32_t i = 1; i < n; ++i)
      best = std::min(best, SceneGeometry::distanceToSegment(p, pts[i - 1], pts[i]));
    if (closed && n > 2)
      best = std::min(best, SceneGeometry::distanceToSegment(p, pts[n - 1], pts[0]));
    if (n == 1)
      best = std::min(best, std::hypot(p.x() - pts[0].x(), p.y() - pts[0].y()));
  };
  switch (prim.kind) {
  case ScenePrimKind::Polyline:
    polyline(&m_points[prim.first], prim.count, prim.flags & ScenePrimFlag::kClosed);
    break;
  case ScenePrimKind::Point:
    polyline(&m_points[prim.first], 1, false);
    break;
  case ScenePrimKind::Segments:
    for (std::uint32_t i = 0; i + 1 < prim.count; i += 2)
      best = std::min(best, SceneGeometry::distanceToSegment(p, m_points[prim.first + i], m_points[prim.first + i + 1]));
    break;
  case ScenePrimKind::Arc: {
    const SceneArc& a = m_arcs[prim.first];
    std::vector<QPointF> pts;
    SceneGeometry::appendEllipse(pts, a.center, a.u, a.v, a.t0, a.t1, 128);
    polyline(pts.data(), std::uint32_t(pts.size()), false);
    break;
  }
  case ScenePrimKind::Fill: {
    const SceneFill& f = m_fills[prim.first];
    if (insideRings(p, &m_points[f.pointFirst], &m_rings[f.ringFirst], f.ringCount))
      return 0.0;
    const QPointF* pts = &m_points[f.pointFirst];
    for (std::uint32_t r = 0; r < f.ringCount; ++r) {
      polyline(pts, m_rings[f.ringFirst + r], true);
      pts += m_rings[f.ringFirst + r];
    }
    break;
  }
  case ScenePrimKind::Text: {
    const SceneText& t = m_texts[prim.first];
    bool invertible = false;
    const QTransform back = t.toWorld.inverted(&invertible);
    if (invertible && back.map(QPolygonF(QRectF(p.x() - tolerance, p.y() - tolerance, 2 * tolerance, 2 * tolerance)))
                          .boundingRect()
                          .intersects(t.box))
      return 0.0;
    break;
  }
  case ScenePrimKind::Image: {
    const SceneImage& img = m_images[prim.first];
    const QPolygonF frame = img.clip.isEmpty() ? img.toWorld.map(QPolygonF(QRectF(QPointF(0, 0), img.image->size())))
                                               : img.clip;
    if (frame.containsPoint(p, Qt::OddEvenFill))
      return 0.0;
    break;
  }
  }
  return best;
}

OdDbObjectId DrawingScene::pick(const QPointF& world, double tolerance) const
{
  std::vector<std::uint32_t> candidates;
  const QRectF around(world.x() - tolerance, world.y() - tolerance, 2 * tolerance, 2 * tolerance);
  m_index.query(around, m_prims, candidates);
  double best = tolerance;
  std::int64_t found = -1;
  for (std::uint32_t i : candidates) {
    const ScenePrim& prim = m_prims[i];
    if ((prim.flags & ScenePrimFlag::kNoPick) || !m_entities[prim.entity].alive)
      continue;
    const double d = primDistance(i, world, tolerance);
    // Of two as near, the one drawn later lies on top.
    if (d < best || (d == best && d <= tolerance && std::int64_t(prim.entity) > found)) {
      best = d;
      found = prim.entity;
    }
  }
  return found < 0 ? OdDbObjectId() : m_entities[std::size_t(found)].id;
}

std::optional<SnapPoint> DrawingScene::snap(const QPointF& world, double aperture) const
{
  std::vector<std::uint32_t> candidates;
  const QRectF around(world.x() - aperture, world.y() - aperture, 2 * aperture, 2 * aperture);
  m_index.query(around, m_prims, candidates);
  std::optional<SnapPoint> best;
  double bestDistance = aperture;
  std::vector<std::uint32_t> seen;
  for (std::uint32_t i : candidates) {
    const std::uint32_t e = m_prims[i].entity;
    if (!m_entities[e].alive || std::find(seen.begin(), seen.end(), e) != seen.end())
      continue;
    seen.push_back(e);
    const SceneEntity& entity = m_entities[e];
    for (std::uint32_t s = entity.snapFirst; s < entity.snapFirst + entity.snapCount; ++s) {
      const double d = std::hypot(m_snaps[s].point.x() - world.x(), m_snaps[s].point.y() - world.y());
      if (d <= bestDistance) {
        bestDistance = d;
        best = m_snaps[s];
      }
    }
  }
  return best;
}

std::vector<std::uint32_t> DrawingScene::primsOf(OdDbObjectId id) const
{
  std::vector<std::uint32_t> out;
  auto it = m_entityById.find(id);
  if (it == m_entityById.end())
    return out;
  const SceneEntity& e = m_entities[it->second];
  for (std::uint32_t i = e.primFirst; i < e.primFirst + e.primCount; ++i)
    out.push_back(i);
  return out;
}

QRectF DrawingScene::boxOf(OdDbObjectId id) const
{
  auto it = m_entityById.find(id);
  return it == m_entityById.end() ? QRectF() : m_entities[it->second].box;
}
