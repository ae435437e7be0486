// Where the view looks: a world point at the centre of the viewport and a
// scale in pixels per drawing unit. The world's y axis points up, the
// screen's down.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QTransform>

class ViewTransform
{
public:
  static constexpr double kMinScale = 1e-9;
  static constexpr double kMaxScale = 1e9;

  void setViewport(const QSize& size) { m_viewport = size; }
  QSize viewport() const { return m_viewport; }
  void setCenter(const QPointF& world) { m_center = world; }
  QPointF center() const { return m_center; }
  void setScale(double pixelsPerUnit);
  double scale() const { return m_scale; }

  QPointF toScreen(const QPointF& world) const
  {
    return {(world.x() - m_center.x()) * m_scale + m_viewport.width() / 2.0,
            m_viewport.height() / 2.0 - (world.y() - m_center.y()) * m_scale};
  }
  QPointF toWorld(const QPointF& screen) const
  {
    return {(screen.x() - m_viewport.width() / 2.0) / m_scale + m_center.x(),
            (m_viewport.height() / 2.0 - screen.y()) / m_scale + m_center.y()};
  }
  // The world shown in a rectangle of the viewport (all of it by default).
  QRectF worldRect(const QRectF& screen) const;
  QRectF worldRect() const { return worldRect(QRectF(QPointF(0, 0), QSizeF(m_viewport))); }
  QTransform worldToScreen() const;

  // Zooms by `factor` keeping the world point under `screen` where it is.
  void zoomAt(const QPointF& screen, double factor);
  // Moves the picture by a distance in pixels.
  void pan(const QPointF& screenDelta);
  // Shows all of `world` with a margin (a share of the viewport) around it.
  void fit(const QRectF& world, double margin = 0.05);

  friend bool operator==(const ViewTransform& a, const ViewTransform& b)
  {
    return a.m_viewport == b.m_viewport && a.m_center == b.m_center && a.m_scale == b.m_scale;
  }

private:
  QSize m_viewport{1, 1};
  QPointF m_center;
  double m_scale = 1.0;
};
