// Drawing thin lines into an image.
#include "app/gui/ThinLines.h"

#include <cmath>
#include <cstdlib>

ThinLines* ThinLines::forImage(QImage* image, const QRect& clip, ThinLines& storage)
{
  if (!image || image->devicePixelRatio() != 1.0 ||
      (image->format() != QImage::Format_ARGB32_Premultiplied && image->format() != QImage::Format_RGB32))
    return nullptr;
  storage.m_bits = image->bits();
  storage.m_stride = image->bytesPerLine();
  storage.m_clip = clip & image->rect();
  return storage.m_clip.isEmpty() ? nullptr : &storage;
}

void ThinLines::lines(QRgb color, const QLineF* list, int count)
{
  const QRgb c = color | 0xFF000000u; // opaque: premultiplied and plain are one
  // Pixel centres lie at .5; a line is cut to the clip's centres first.
  const double x0c = m_clip.left(), y0c = m_clip.top(), x1c = m_clip.right(), y1c = m_clip.bottom();
  for (int i = 0; i < count; ++i) {
    double ax = list[i].x1() - 0.5, ay = list[i].y1() - 0.5, bx = list[i].x2() - 0.5, by = list[i].y2() - 0.5;
    // Liang-Barsky against the clip.
    double t0 = 0, t1 = 1;
    const double dx = bx - ax, dy = by - ay;
    const double p[4] = {-dx, dx, -dy, dy};
    const double q[4] = {ax - x0c, x1c - ax, ay - y0c, y1c - ay};
    bool visible = true;
    for (int k = 0; k < 4 && visible; ++k) {
      if (p[k] == 0) {
        visible = q[k] >= 0;
        continue;
      }
      const double t = q[k] / p[k];
      if (p[k] < 0)
        t0 = std::max(t0, t);
      else
        t1 = std::min(t1, t);
      visible = t0 <= t1;
    }
    if (!visible)
      continue;
    int x = int(std::lround(ax + dx * t0)), y = int(std::lround(ay + dy * t0));
    const int xe = int(std::lround(ax + dx * t1)), ye = int(std::lround(ay + dy * t1));
    // Bresenham.
    const int sx = x < xe ? 1 : -1, sy = y < ye ? 1 : -1;
    const int ddx = std::abs(xe - x), ddy = -std::abs(ye - y);
    int err = ddx + ddy;
    for (;;) {
      pixel(x, y, c);
      if (x == xe && y == ye)
        break;
      const int e2 = 2 * err;
      if (e2 >= ddy) {
        err += ddy;
        x += sx;
      }
      if (e2 <= ddx) {
        err += ddx;
        y += sy;
      }
    }
  }
}

void ThinLines::points(QRgb color, const QPointF* list, int count)
{
  const QRgb c = color | 0xFF000000u;
  for (int i = 0; i < count; ++i) {
    const int x = int(std::floor(list[i].x())), y = int(std::floor(list[i].y()));
    if (m_clip.contains(x, y))
      pixel(x, y, c);
  }
}
