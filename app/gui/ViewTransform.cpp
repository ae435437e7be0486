// The view's map between world and screen.
#include "app/gui/ViewTransform.h"

#include <algorithm>

void ViewTransform::setScale(double pixelsPerUnit)
{
  m_scale = std::clamp(pixelsPerUnit, kMinScale, kMaxScale);
}

QRectF ViewTransform::worldRect(const QRectF& screen) const
{
  const QPointF a = toWorld(screen.topLeft()), b = toWorld(screen.bottomRight());
  return QRectF(QPointF(std::min(a.x(), b.x()), std::min(a.y(), b.y())),
                QPointF(std::max(a.x(), b.x()), std::max(a.y(), b.y())));
}

QTransform ViewTransform::worldToScreen() const
{
  return QTransform(m_scale, 0, 0, -m_scale, m_viewport.width() / 2.0 - m_center.x() * m_scale,
                    m_viewport.height() / 2.0 + m_center.y() * m_scale);
}

void ViewTransform::zoomAt(const QPointF& screen, double factor)
{
  const QPointF anchor = toWorld(screen);
  setScale(m_scale * factor);
  // Move the centre so that the anchor is under the same pixel again.
  const QPointF now = toWorld(screen);
  m_center += anchor - now;
}

void ViewTransform::pan(const QPointF& screenDelta)
{
  m_center -= QPointF(screenDelta.x() / m_scale, -screenDelta.y() / m_scale);
}

void ViewTransform::fit(const QRectF& world, double margin)
{
  const double w = std::max(1.0, m_viewport.width() * (1.0 - 2 * margin));
  const double h = std::max(1.0, m_viewport.height() * (1.0 - 2 * margin));
  const double sx = world.width() > 0 ? w / world.width() : kMaxScale;
  const double sy = world.height() > 0 ? h / world.height() : kMaxScale;
  double s = std::min(sx, sy);
  if (s >= kMaxScale)
    s = m_scale; // a single point: keep the zoom, centre on it
  setScale(s);
  m_center = world.center();
}
