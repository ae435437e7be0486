// Drawing a scene.
#include "app/gui/SceneRenderer.h"

#include "app/gui/SceneGeometry.h"
#include "app/gui/ThinLines.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>

#include <cmath>

namespace {

// World to device, written out: this runs for every point drawn.
struct Mapper
{
  double s, ox, oy;
  explicit Mapper(const ViewTransform& v)
      : s(v.scale()), ox(v.viewport().width() / 2.0 - v.center().x() * v.scale()),
        oy(v.viewport().height() / 2.0 + v.center().y() * v.scale())
  {
  }
  QPointF operator()(const QPointF& w) const { return {w.x() * s + ox, oy - w.y() * s}; }
  QRectF operator()(const QRectF& w) const
  {
    return QRectF(QPointF(w.left() * s + ox, oy - w.bottom() * s), QPointF(w.right() * s + ox, oy - w.top() * s));
  }
};

// Cuts a segment to a rectangle (Liang-Barsky); false when nothing is left.
// Points far off screen would overflow the rasterizer's fixed point.
bool clipSegment(QPointF& a, QPointF& b, const QRectF& r)
{
  double t0 = 0, t1 = 1;
  const double dx = b.x() - a.x(), dy = b.y() - a.y();
  const double p[4] = {-dx, dx, -dy, dy};
  const double q[4] = {a.x() - r.left(), r.right() - a.x(), a.y() - r.top(), r.bottom() - a.y()};
  for (int i = 0; i < 4; ++i) {
    if (p[i] == 0) {
      if (q[i] < 0)
        return false;
      continue;
    }
    const double t = q[i] / p[i];
    if (p[i] < 0)
      t0 = std::max(t0, t);
    else
      t1 = std::min(t1, t);
    if (t0 > t1)
      return false;
  }
  const QPointF a0 = a;
  a = a0 + QPointF(dx, dy) * t0;
  b = a0 + QPointF(dx, dy) * t1;
  return true;
}

// Lines and dots gathered per style and drawn with one call each. The
// buffers stay between frames, so that drawing allocates nothing once warm.
class Batch
{
public:
  Batch(std::size_t styles, const QRectF& safe) : m_safe(safe)
  {
    static thread_local std::vector<std::vector<QLineF>> lines;
    static thread_local std::vector<std::vector<QPointF>> dots;
    // A batch inside a batch (a highlight drawn while a frame draws) gets
    // buffers of its own.
    static thread_local bool busy = false;
    m_owner = !busy;
    busy = true;
    m_lines = m_owner ? &lines : &m_ownLines;
    m_dots = m_owner ? &dots : &m_ownDots;
    if (m_lines->size() < styles) {
      m_lines->resize(styles);
      m_dots->resize(styles);
    }
    m_busy = &busy;
  }
  ~Batch()
  {
    if (m_owner)
      *m_busy = false;
  }
  Batch(const Batch&) = delete;
  Batch& operator=(const Batch&) = delete;

  void line(std::uint16_t style, QPointF a, QPointF b)
  {
    if (!inside(a) || !inside(b)) {
      if (!clipSegment(a, b, m_safe))
        return;
    }
    (*m_lines)[style].emplace_back(a, b);
  }
  void dot(std::uint16_t style, const QPointF& p) { (*m_dots)[style].push_back(p); }

  void polyline(std::uint16_t style, const QPointF* pts, std::uint32_t n, bool closed, const Mapper& m)
  {
    if (n == 0)
      return;
    const QPointF first = m(pts[0]);
    QPointF last = first;
    for (std::uint32_t i = 1; i < n; ++i) {
      const QPointF q = m(pts[i]);
      // Points closer than a pixel to the last one drawn add nothing.
      if (i + 1 < n && std::fabs(q.x() - last.x()) < 0.75 && std::fabs(q.y() - last.y()) < 0.75)
        continue;
      line(style, last, q);
      last = q;
    }
    if (closed)
      line(style, last, first);
  }

  // `thin`, when given, draws the one-pixel lines of unsmoothed frames.
  void flush(QPainter& p, const std::vector<SceneStyle>& styles, const QColor* color, float width, ThinLines* thin)
  {
    for (std::size_t s = 0; s < styles.size() && s < m_lines->size(); ++s) {
      auto& lines = (*m_lines)[s];
      auto& dots = (*m_dots)[s];
      if (lines.empty() && dots.empty())
        continue;
      const QColor c = color ? *color : QColor::fromRgb(styles[s].color);
      const float w = color ? width : styles[s].widthPx;
      if (thin && w <= 1 && c.alpha() == 255) {
        thin->lines(c.rgb(), lines.data(), int(lines.size()));
        thin->points(c.rgb(), dots.data(), int(dots.size()));
        lines.clear();
        dots.clear();
        continue;
      }
      QPen pen(c, w);
      pen.setCosmetic(true);
      pen.setCapStyle(w > 1 ? Qt::RoundCap : Qt::SquareCap);
      pen.setJoinStyle(Qt::RoundJoin);
      p.setPen(pen);
      if (!lines.empty())
        p.drawLines(lines.data(), int(lines.size()));
      if (!dots.empty())
        p.drawPoints(dots.data(), int(dots.size()));
      lines.clear();
      dots.clear();
    }
  }

  // A buffer for the points of one curve, reused from curve to curve.
  std::vector<QPointF>& scratch()
  {
    m_scratch.clear();
    return m_scratch;
  }

private:
  bool inside(const QPointF& p) const
  {
    return p.x() >= m_safe.left() && p.x() <= m_safe.right() && p.y() >= m_safe.top() && p.y() <= m_safe.bottom();
  }

  std::vector<std::vector<QLineF>>* m_lines;
  std::vector<std::vector<QPointF>>* m_dots;
  std::vector<std::vector<QLineF>> m_ownLines;
  std::vector<std::vector<QPointF>> m_ownDots;
  std::vector<QPointF> m_scratch;
  bool m_owner = false;
  bool* m_busy = nullptr;
  QRectF m_safe;
};

bool tiny(const QRectF& device)
{
  return device.width() < 1.0 && device.height() < 1.0;
}

QPainterPath fillPath(const DrawingScene& scene, const SceneFill& f, const Mapper& m)
{
  QPainterPath path;
  path.setFillRule(Qt::OddEvenFill);
  const QPointF* pts = &scene.points()[f.pointFirst];
  for (std::uint32_t r = 0; r < f.ringCount; ++r) {
    const std::uint32_t n = scene.rings()[f.ringFirst + r];
    QPolygonF ring;
    ring.reserve(qsizetype(n));
    for (std::uint32_t i = 0; i < n; ++i)
      ring << m(pts[i]);
    path.addPolygon(ring);
    path.closeSubpath();
    pts += n;
  }
  return path;
}

QBrush gradientBrush(const SceneGradient& g, const QRectF& box)
{
  const QColor c1 = QColor::fromRgb(g.color1), c2 = QColor::fromRgb(g.color2);
  const QPointF centre = box.center();
  const double radius = std::hypot(box.width(), box.height()) / 2;
  // The screen's y points down: the angle turns the other way there.
  const QPointF dir(std::cos(g.angle), -std::sin(g.angle));
  const double half = std::fabs(dir.x()) * box.width() / 2 + std::fabs(dir.y()) * box.height() / 2;
  switch (g.shape) {
  case SceneGradient::Spherical:
  case SceneGradient::InvSpherical:
  case SceneGradient::Hemispherical:
  case SceneGradient::InvHemispherical: {
    const bool hemi = g.shape == SceneGradient::Hemispherical || g.shape == SceneGradient::InvHemispherical;
    const QPointF focus = hemi ? centre - dir * half : centre;
    QRadialGradient r(focus, hemi ? radius * 2 : radius);
    const bool inverted = g.shape == SceneGradient::InvSpherical || g.shape == SceneGradient::InvHemispherical;
    r.setColorAt(0, inverted ? c1 : c2);
    r.setColorAt(1, inverted ? c2 : c1);
    return QBrush(r);
  }
  default: {
    QLinearGradient l(centre - dir * half, centre + dir * half);
    switch (g.shape) {
    case SceneGradient::Cylinder:
      l.setColorAt(0, c1);
      l.setColorAt(0.5, c2);
      l.setColorAt(1, c1);
      break;
    case SceneGradient::InvCylinder:
      l.setColorAt(0, c2);
      l.setColorAt(0.5, c1);
      l.setColorAt(1, c2);
      break;
    case SceneGradient::Curved:
    case SceneGradient::InvCurved: {
      const bool inverted = g.shape == SceneGradient::InvCurved;
      for (int i = 0; i <= 8; ++i) {
        const double t = i / 8.0, k = std::sqrt(t);
        QColor c = QColor::fromRgbF(c1.redF() + (c2.redF() - c1.redF()) * k, c1.greenF() + (c2.greenF() - c1.greenF()) * k,
                                    c1.blueF() + (c2.blueF() - c1.blueF()) * k);
        l.setColorAt(inverted ? 1 - t : t, c);
      }
      break;
    }
    default:
      l.setColorAt(0, c1);
      l.setColorAt(1, c2);
      break;
    }
    return QBrush(l);
  }
  }
}

struct Pass
{
  QPainter& painter;
  const DrawingScene& scene;
  const ViewTransform& view;
  Mapper map;
  Batch batch;
  const QColor* overrideColor;
  bool draft;
  ThinLines* thin; // null: every line through the painter
};

void drawArc(Pass& pass, const ScenePrim& prim, std::uint16_t style)
{
  const SceneArc& a = pass.scene.arcs()[prim.first];
  const double s = pass.map.s;
  const QPointF c = pass.map(a.center);
  const QPointF u(a.u.x() * s, -a.u.y() * s), v(a.v.x() * s, -a.v.y() * s);
  const double r = std::max(std::hypot(u.x(), u.y()), std::hypot(v.x(), v.y()));
  if (r < 0.75) {
    pass.batch.dot(style, c);
    return;
  }
  // Segments short enough to stay within a quarter pixel of the curve.
  const double step = 2.0 * std::acos(std::max(0.0, 1.0 - 0.25 / r));
  const int n = std::clamp(int(std::ceil((a.t1 - a.t0) / std::max(step, 1e-3))), 4, 1440);
  std::vector<QPointF>& pts = pass.batch.scratch();
  SceneGeometry::appendEllipse(pts, c, u, v, a.t0, a.t1, n);
  for (std::size_t i = 1; i < pts.size(); ++i)
    pass.batch.line(style, pts[i - 1], pts[i]);
}

void drawText(Pass& pass, const ScenePrim& prim, std::uint16_t style, const QRectF& device)
{
  const SceneText& t = pass.scene.texts()[prim.first];
  const QTransform m = t.toWorld * pass.view.worldToScreen();
  const QPointF base = m.map(QPointF(0, 0)), top = m.map(QPointF(0, -t.capHeight));
  const double capPx = std::hypot(top.x() - base.x(), top.y() - base.y());
  if (capPx < 2.5 || (pass.draft && !t.outline)) {
    // Too small to read: a stroke where the text runs.
    if (tiny(device))
      pass.batch.dot(style, device.center());
    else
      pass.batch.line(style, m.map(QPointF(0, -t.capHeight / 2)), m.map(QPointF(t.box.width(), -t.capHeight / 2)));
    return;
  }
  if (!t.outline) {
    auto path = std::make_shared<QPainterPath>();
    path->addText(0, 0, t.font, t.text);
    if (t.underline)
      path->addRect(QRectF(0, t.box.bottom() * 0.3, t.box.width(), t.capHeight * 0.06));
    t.outline = path;
  }
  const QColor c = pass.overrideColor ? *pass.overrideColor : QColor::fromRgb(pass.scene.styles()[style].color);
  pass.painter.save();
  pass.painter.setTransform(m, true);
  pass.painter.fillPath(*t.outline, c);
  pass.painter.restore();
}

void drawImage(Pass& pass, const ScenePrim& prim)
{
  const SceneImage& img = pass.scene.images()[prim.first];
  pass.painter.save();
  if (!img.clip.isEmpty()) {
    QPolygonF clip;
    for (const QPointF& p : img.clip)
      clip << pass.map(p);
    QPainterPath path;
    path.addPolygon(clip);
    pass.painter.setClipPath(path, Qt::IntersectClip);
  }
  pass.painter.setTransform(img.toWorld * pass.view.worldToScreen(), true);
  if (img.fade > 0)
    pass.painter.setOpacity(std::clamp(1.0 - img.fade / 100.0, 0.05, 1.0));
  pass.painter.drawImage(QPointF(0, 0), *img.image);
  pass.painter.restore();
}

void drawFill(Pass& pass, const ScenePrim& prim, std::uint16_t style, const QRectF& device, bool outlineOnly)
{
  const SceneFill& f = pass.scene.fills()[prim.first];
  if (tiny(device) && !outlineOnly) {
    pass.batch.dot(style, device.center());
    return;
  }
  if (outlineOnly) {
    const QPointF* pts = &pass.scene.points()[f.pointFirst];
    for (std::uint32_t r = 0; r < f.ringCount; ++r) {
      const std::uint32_t n = pass.scene.rings()[f.ringFirst + r];
      pass.batch.polyline(style, pts, n, true, pass.map);
      pts += n;
    }
    return;
  }
  const QPainterPath path = fillPath(pass.scene, f, pass.map);
  QBrush brush;
  if (f.gradient >= 0)
    brush = gradientBrush(pass.scene.gradients()[std::size_t(f.gradient)], path.boundingRect());
  else if (f.background)
    brush = QBrush(QColor::fromRgb(pass.scene.background()));
  else {
    QColor c = QColor::fromRgb(pass.scene.styles()[style].color);
    if (f.faint)
      c.setAlpha(90);
    brush = QBrush(c);
  }
  pass.painter.fillPath(path, brush);
}

void drawStroke(Pass& pass, const ScenePrim& prim, std::uint16_t style, const QRectF& device)
{
  const auto& points = pass.scene.points();
  switch (prim.kind) {
  case ScenePrimKind::Polyline:
    if (tiny(device))
      pass.batch.dot(style, device.center());
    else
      pass.batch.polyline(style, &points[prim.first], prim.count, prim.flags & ScenePrimFlag::kClosed, pass.map);
    break;
  case ScenePrimKind::Segments:
    if (tiny(device)) {
      pass.batch.dot(style, device.center());
      break;
    }
    for (std::uint32_t i = 0; i + 1 < prim.count; i += 2) {
      const QPointF a = pass.map(points[prim.first + i]), b = pass.map(points[prim.first + i + 1]);
      if (std::fabs(a.x() - b.x()) < 0.5 && std::fabs(a.y() - b.y()) < 0.5)
        pass.batch.dot(style, a);
      else
        pass.batch.line(style, a, b);
    }
    break;
  case ScenePrimKind::Point:
    pass.batch.dot(style, pass.map(points[prim.first]));
    break;
  case ScenePrimKind::Arc:
    drawArc(pass, prim, style);
    break;
  default: break;
  }
}

} // namespace

void SceneRenderer::render(QPainter& painter, const DrawingScene& scene, const ViewTransform& view,
                           const QRect& deviceRect, const Options& options)
{
  const Mapper map(view);
  // Thick lines reach beyond their boxes by half their width.
  float widest = 0;
  for (const SceneStyle& s : scene.styles())
    widest = std::max(widest, s.widthPx);
  const QRectF world = view.worldRect(QRectF(deviceRect).adjusted(-widest, -widest, widest, widest));
  std::vector<std::uint32_t> visible;
  scene.primsIn(world, visible);

  painter.save();
  painter.setClipRect(deviceRect);
  painter.setRenderHint(QPainter::Antialiasing, options.antialiased);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, options.antialiased);
  Pass pass{painter, scene, view, map, Batch(scene.styles().size(), QRectF(deviceRect).adjusted(-2000, -2000, 2000, 2000)),
            nullptr, options.draft, nullptr};
  ThinLines thinStorage;
  if (!options.antialiased && painter.transform().isIdentity())
    pass.thin = ThinLines::forImage(dynamic_cast<QImage*>(painter.device()), deviceRect, thinStorage);
  const auto& prims = scene.prims();
  // Pictures and areas first, lines over them, text on top.
  for (std::uint32_t i : visible) {
    const ScenePrim& prim = prims[i];
    if (prim.flags & ScenePrimFlag::kPickOnly)
      continue;
    if (prim.kind == ScenePrimKind::Image)
      drawImage(pass, prim);
    else if (prim.kind == ScenePrimKind::Fill)
      drawFill(pass, prim, prim.style, map(prim.box), false);
  }
  for (std::uint32_t i : visible) {
    const ScenePrim& prim = prims[i];
    if (prim.flags & ScenePrimFlag::kPickOnly)
      continue;
    drawStroke(pass, prim, prim.style, map(prim.box));
  }
  pass.batch.flush(painter, scene.styles(), nullptr, 0, pass.thin);
  for (std::uint32_t i : visible) {
    const ScenePrim& prim = prims[i];
    if (prim.kind == ScenePrimKind::Text && !(prim.flags & ScenePrimFlag::kPickOnly))
      drawText(pass, prim, prim.style, map(prim.box));
  }
  pass.batch.flush(painter, scene.styles(), nullptr, 0, pass.thin);
  painter.restore();
}

void SceneRenderer::renderPrims(QPainter& painter, const DrawingScene& scene, const ViewTransform& view,
                                const std::vector<std::uint32_t>& list, const QColor& color, float widthPx,
                                const Options& options)
{
  const Mapper map(view);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, options.antialiased);
  const QRect device(QPoint(0, 0), view.viewport());
  Pass pass{painter, scene, view, map, Batch(1, QRectF(device).adjusted(-2000, -2000, 2000, 2000)), &color, options.draft, nullptr};
  const auto& prims = scene.prims();
  for (std::uint32_t i : list) {
    const ScenePrim& prim = prims[i];
    // What picks an entity is what shows it picked: a hatch's boundary,
    // not its pattern.
    if (prim.flags & ScenePrimFlag::kNoPick)
      continue;
    switch (prim.kind) {
    case ScenePrimKind::Fill: drawFill(pass, prim, 0, map(prim.box), true); break;
    case ScenePrimKind::Text: drawText(pass, prim, 0, map(prim.box)); break;
    case ScenePrimKind::Image: {
      const SceneImage& img = scene.images()[prim.first];
      const QPolygonF frame = img.clip.isEmpty() ? img.toWorld.map(QPolygonF(QRectF(QPointF(0, 0), img.image->size())))
                                                 : img.clip;
      pass.batch.polyline(0, frame.constData(), std::uint32_t(frame.size()), true, map);
      break;
    }
    default: drawStroke(pass, prim, 0, map(prim.box)); break;
    }
  }
  const std::vector<SceneStyle> one{SceneStyle{color.rgba(), widthPx}};
  pass.batch.flush(painter, one, &color, widthPx, nullptr);
  painter.restore();
}
