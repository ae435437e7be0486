// The drawing view.
#include "app/gui/DrawingView.h"

#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDatabaseReactor.h"
#include "sdk/db/OdDbEntity.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr double kWheelStep = 1.2; // zoom factor of one notch of the wheel
constexpr int kDragThreshold = 4;  // pixels a press moves before it is a drag
constexpr int kSmoothDelay = 250;  // milliseconds of rest before a smooth frame

QColor overlayColor(QRgb background)
{
  return qGray(background) > 128 ? QColor(0, 0, 0, 200) : QColor(255, 255, 255, 200);
}

} // namespace

// Marks the view's scene stale when the drawing changes; the scene follows
// at the next sync, once for however many changes.
class DrawingView::DrawingListener : public OdDbDatabaseReactor
{
public:
  explicit DrawingListener(DrawingView& view) : m_view(view) {}
  void objectAppended(const OdDbDatabase* db, const OdDbObject* object) override { changed(db, object); }
  void objectOpenedForModify(const OdDbDatabase* db, const OdDbObject* object) override { changed(db, object); }
  void headerSysVarChanged(const OdDbDatabase*, const OdString& name) override
  {
    ++m_view.m_changes;
    // The global linetype scale changes how every dashed line looks.
    if (name.iCompare("LTSCALE") == 0)
      m_view.m_drawingChanged = true;
  }

private:
  // Entities of model space (and what they own) are followed one by one;
  // a change elsewhere (a layer, a linetype, a block's definition) may
  // change how anything looks, and the scene is made anew.
  void changed(const OdDbDatabase* db, const OdDbObject* object)
  {
    ++m_view.m_changes;
    m_view.m_drawingChanged = true;
    if (m_view.m_rebuildScene || !object)
      return;
    const OdDbObjectId space = db->getModelSpaceId();
    if (object->objectId() == space)
      return;
    const bool entity = object->isKindOf(OdDbEntity::desc());
    OdDbObjectId owner = object->ownerId();
    if (entity && owner != space)
      if (OdDbObjectPtr parent = owner.openObject(OdDb::kForRead, true); parent.get())
        owner = parent->ownerId();
    if (!entity || owner != space)
      m_view.m_rebuildScene = true;
  }

  DrawingView& m_view;
};

DrawingView::DrawingView(QWidget* parent) : QWidget(parent), m_listener(std::make_unique<DrawingListener>(*this))
{
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::BlankCursor);
  setMinimumSize(100, 100);
  m_view.setViewport(size());
  m_smoothTimer = new QTimer(this);
  m_smoothTimer->setSingleShot(true);
  m_smoothTimer->setInterval(kSmoothDelay);
  connect(m_smoothTimer, &QTimer::timeout, this, [this] {
    if (m_frameDraft) {
      m_frameView.reset();
      update();
    }
  });
}

DrawingView::~DrawingView()
{
  if (m_scene.database())
    m_scene.database()->removeReactor(m_listener.get());
}

void DrawingView::setDatabase(OdDbDatabase* db)
{
  if (m_scene.database())
    m_scene.database()->removeReactor(m_listener.get());
  m_selection.clear();
  m_scene.build(db);
  m_drawingChanged = m_rebuildScene = false;
  m_changes = 0;
  if (db)
    db->addReactor(m_listener.get());
  zoomExtents();
  m_keepFramed = true;
}

bool DrawingView::syncWithDrawing()
{
  if (!m_drawingChanged)
    return false;
  m_drawingChanged = false;
  if (m_rebuildScene) {
    m_rebuildScene = false;
    m_scene.build(m_scene.database());
  } else if (!m_scene.sync()) {
    return false;
  }
  // What was selected and is gone stays no longer selected.
  std::erase_if(m_selection, [this](const OdDbObjectId& id) { return m_scene.primsOf(id).empty(); });
  m_frameView.reset();
  update();
  return true;
}

void DrawingView::setView(const ViewTransform& view)
{
  m_keepFramed = false;
  m_view = view;
  m_view.setViewport(size());
  viewMoved();
}

void DrawingView::viewMoved()
{
  update();
  emit viewChanged();
}

void DrawingView::zoomExtents()
{
  m_view.setViewport(size());
  // An empty drawing shows a sheet's worth around the origin.
  m_view.fit(m_scene.extents().value_or(QRectF(0, 0, 420, 297)));
  viewMoved();
}

void DrawingView::startZoomWindow()
{
  m_zoomWindow = true;
  m_windowCorner.reset();
  update();
}

bool DrawingView::cancelViewAction()
{
  if (!m_zoomWindow)
    return false;
  m_zoomWindow = false;
  m_windowCorner.reset();
  update();
  return true;
}

void DrawingView::zoomAt(const QPointF& screen, double factor)
{
  m_keepFramed = false;
  m_view.zoomAt(screen, factor);
  viewMoved();
}

void DrawingView::pan(const QPointF& screenDelta)
{
  m_keepFramed = false;
  m_view.pan(screenDelta);
  viewMoved();
}

void DrawingView::setInputWanted(const InputWanted& wanted)
{
  m_wanted = wanted;
  if (!wanted.point)
    m_snap.reset();
  update();
}

QPointF DrawingView::pointAt(const QPointF& screen, std::optional<SnapPoint>* snapped) const
{
  // Far finer than a pixel, without the noise of the screen's arithmetic:
  // a click at 10,10 gives 10,10 and not 9.9999999999972.
  const double step = std::pow(10.0, std::floor(std::log10(1.0 / m_view.scale())) - 3);
  const QPointF raw = m_view.toWorld(screen);
  const QPointF world(std::round(raw.x() / step) * step, std::round(raw.y() / step) * step);
  if (m_snapEnabled) {
    if (auto s = m_scene.snap(world, kAperture / m_view.scale())) {
      if (snapped)
        *snapped = s;
      return s->point;
    }
  }
  if (snapped)
    snapped->reset();
  return world;
}

void DrawingView::setSelection(const std::vector<OdDbObjectId>& ids)
{
  if (ids == m_selection)
    return;
  m_selection = ids;
  update();
  emit selectionChanged();
}

void DrawingView::setAntialiased(bool on)
{
  m_options.antialiased = on;
  m_frameView.reset();
  update();
}

QImage DrawingView::renderImage(const ViewTransform& view) const
{
  QImage image(view.viewport(), QImage::Format_ARGB32_Premultiplied);
  image.fill(m_scene.background());
  QPainter p(&image);
  SceneRenderer::render(p, m_scene, view, image.rect(), m_options);
  return image;
}

void DrawingView::renderFull(bool draft)
{
  SceneRenderer::Options options = m_options;
  options.antialiased = m_options.antialiased && !draft;
  options.draft = draft;
  const qreal dpr = devicePixelRatioF();
  m_frame = QImage(size() * dpr, QImage::Format_ARGB32_Premultiplied);
  m_frame.setDevicePixelRatio(dpr);
  m_frame.fill(m_scene.background());
  QPainter p(&m_frame);
  SceneRenderer::render(p, m_scene, m_view, rect(), options);
  m_frameView = m_view;
  m_frameDraft = draft;
  if (m_frameDraft)
    m_smoothTimer->start();
}

void DrawingView::updateFrame()
{
  if (m_frameView && *m_frameView == m_view)
    return;
  // The frame is drawn again because the view moved (not because the
  // drawing or the window changed): a draft, smoothed once it rests.
  const bool moving = m_frameView && m_frameView->viewport() == m_view.viewport();
  SceneRenderer::Options strips = m_options;
  strips.antialiased = m_options.antialiased && !m_frameDraft;
  strips.draft = m_frameDraft;
  // A pan by whole pixels keeps the picture: it moves, and only the strips
  // that came into sight are drawn.
  if (m_frameView && m_frameView->scale() == m_view.scale() && m_frameView->viewport() == m_view.viewport() &&
      devicePixelRatioF() == 1.0) {
    const double dx = (m_frameView->center().x() - m_view.center().x()) * m_view.scale();
    const double dy = -(m_frameView->center().y() - m_view.center().y()) * m_view.scale();
    const int ix = int(std::lround(dx)), iy = int(std::lround(dy));
    if (std::fabs(dx - ix) < 0.01 && std::fabs(dy - iy) < 0.01 && std::abs(ix) < width() && std::abs(iy) < height()) {
      QImage moved(m_frame.size(), m_frame.format());
      moved.fill(m_scene.background());
      QPainter p(&moved);
      p.drawImage(QPoint(ix, iy), m_frame);
      if (ix > 0)
        SceneRenderer::render(p, m_scene, m_view, QRect(0, 0, ix, height()), strips);
      else if (ix < 0)
        SceneRenderer::render(p, m_scene, m_view, QRect(width() + ix, 0, -ix, height()), strips);
      if (iy > 0)
        SceneRenderer::render(p, m_scene, m_view, QRect(0, 0, width(), iy), strips);
      else if (iy < 0)
        SceneRenderer::render(p, m_scene, m_view, QRect(0, height() + iy, width(), -iy), strips);
      p.end();
      m_frame = std::move(moved);
      m_frameView = m_view;
      return;
    }
  }
  renderFull(moving);
}

void DrawingView::paintEvent(QPaintEvent*)
{
  updateFrame();
  QPainter p(this);
  p.drawImage(QPoint(0, 0), m_frame);
  drawOverlay(p);
}

void DrawingView::drawOverlay(QPainter& p)
{
  if (!m_selection.empty()) {
    std::vector<std::uint32_t> prims;
    for (const OdDbObjectId& id : m_selection) {
      const auto more = m_scene.primsOf(id);
      prims.insert(prims.end(), more.begin(), more.end());
    }
    SceneRenderer::renderPrims(p, m_scene, m_view, prims, QColor(30, 144, 255), 2.0f, m_options);
  }
  const QColor ink = overlayColor(m_scene.background());
  if (m_zoomWindow && m_windowCorner && m_cursor) {
    p.setPen(QPen(ink, 1, Qt::DashLine));
    p.setBrush(QColor(30, 144, 255, 40));
    p.drawRect(QRectF(m_view.toScreen(*m_windowCorner), *m_cursor).normalized());
  }
  if (!m_cursor)
    return;
  // The cross-hair across the view, with the pick box at its centre.
  const QPointF c = *m_cursor;
  p.setRenderHint(QPainter::Antialiasing, false);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(ink, 1));
  p.drawLine(QPointF(0, c.y()), QPointF(width(), c.y()));
  p.drawLine(QPointF(c.x(), 0), QPointF(c.x(), height()));
  if (!m_wanted.point || m_wanted.entity)
    p.drawRect(QRectF(c.x() - kPickBox, c.y() - kPickBox, 2 * kPickBox, 2 * kPickBox));
  if (m_wanted.point && m_wanted.basePoint) {
    // The rubber band from the base point to where a click would land.
    p.setPen(QPen(ink, 1, Qt::DashLine));
    p.drawLine(m_view.toScreen(*m_wanted.basePoint), m_snap ? m_view.toScreen(m_snap->point) : c);
  }
  if (m_snap) {
    // A square marks an end point, a circle a centre.
    const QPointF s = m_view.toScreen(m_snap->point);
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(QPen(QColor(255, 200, 0), 2));
    if (m_snap->kind == SnapKind::Center)
      p.drawEllipse(s, 6, 6);
    else
      p.drawRect(QRectF(s.x() - 6, s.y() - 6, 12, 12));
  }
}

void DrawingView::resizeEvent(QResizeEvent*)
{
  m_frameView.reset();
  if (m_keepFramed) {
    zoomExtents();
    return;
  }
  // Otherwise the same world point stays in the middle.
  m_view.setViewport(size());
  emit viewChanged();
}

void DrawingView::wheelEvent(QWheelEvent* event)
{
  const double notches = event->angleDelta().y() / 120.0;
  if (notches != 0)
    zoomAt(event->position(), std::pow(kWheelStep, notches));
  event->accept();
}

void DrawingView::mousePressEvent(QMouseEvent* event)
{
  if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton) {
    m_pressAt = event->position();
    m_lastDrag = event->position();
    m_pressButton = event->button();
    // The middle button always pans; no click comes of it.
    m_dragging = event->button() == Qt::MiddleButton;
    if (m_dragging)
      setCursor(Qt::ClosedHandCursor);
  }
  event->accept();
}

void DrawingView::mouseMoveEvent(QMouseEvent* event)
{
  const QPointF at = event->position();
  if (m_pressAt && !m_dragging && (at - *m_pressAt).manhattanLength() > kDragThreshold) {
    m_dragging = true;
    setCursor(Qt::ClosedHandCursor);
  }
  if (m_dragging) {
    const QPointF delta = at - m_lastDrag;
    m_lastDrag = at;
    pan(QPointF(std::round(delta.x()), std::round(delta.y())));
    m_lastDrag -= delta - QPointF(std::round(delta.x()), std::round(delta.y()));
  }
  m_cursor = at;
  if (m_wanted.point || m_zoomWindow)
    pointAt(at, &m_snap);
  else
    m_snap.reset();
  emit cursorMoved(m_snap ? m_snap->point : m_view.toWorld(at));
  update();
}

void DrawingView::mouseReleaseEvent(QMouseEvent* event)
{
  if (event->button() != m_pressButton || !m_pressAt)
    return;
  const bool wasDrag = m_dragging;
  m_pressAt.reset();
  m_dragging = false;
  m_pressButton = Qt::NoButton;
  setCursor(Qt::BlankCursor);
  if (!wasDrag && event->button() == Qt::LeftButton)
    click(event->position(), event->modifiers());
  event->accept();
}

void DrawingView::click(const QPointF& screen, Qt::KeyboardModifiers modifiers)
{
  if (m_zoomWindow) {
    const QPointF world = pointAt(screen);
    if (!m_windowCorner) {
      m_windowCorner = world;
    } else {
      const QRectF area = QRectF(*m_windowCorner, world).normalized();
      m_zoomWindow = false;
      m_windowCorner.reset();
      if (area.width() > 0 || area.height() > 0) {
        m_keepFramed = false;
        m_view.fit(area, 0.0);
        viewMoved();
      }
    }
    update();
    return;
  }
  const OdDbObjectId hit = m_scene.pick(m_view.toWorld(screen), kPickBox / m_view.scale());
  // An object prompt takes what is under the pick box; one that also takes
  // points takes the point when nothing is there.
  if (m_wanted.entity && !hit.isNull()) {
    emit entityPicked(hit);
    return;
  }
  if (m_wanted.point) {
    emit pointPicked(pointAt(screen));
    return;
  }
  if (m_wanted.entity)
    return;
  std::vector<OdDbObjectId> selection = (modifiers & Qt::ShiftModifier) ? m_selection : std::vector<OdDbObjectId>();
  if (!hit.isNull()) {
    auto it = std::find(selection.begin(), selection.end(), hit);
    if (it != selection.end())
      selection.erase(it); // a second pick with Shift takes it out again
    else
      selection.push_back(hit);
  }
  setSelection(selection);
}

void DrawingView::leaveEvent(QEvent*)
{
  m_cursor.reset();
  m_snap.reset();
  update();
}

void DrawingView::keyPressEvent(QKeyEvent* event)
{
  if (event->key() == Qt::Key_Escape) {
    if (!cancelViewAction())
      clearSelection();
    emit cancelRequested();
    return;
  }
  if (!event->text().isEmpty() || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    emit keyTyped(event);
    return;
  }
  QWidget::keyPressEvent(event);
}
