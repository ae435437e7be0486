// One-pixel lines drawn straight into a 32-bit image, without smoothing.
// Qt's painter takes several times as long per segment for the same lines,
// and a moving view draws tens of thousands of them a frame.
#pragma once

#include <QImage>
#include <QLineF>
#include <QPointF>
#include <QRect>

class ThinLines
{
public:
  // Null when the painter's target is not an image this can draw into
  // (another format, a scaled device): the caller then uses the painter.
  static ThinLines* forImage(QImage* image, const QRect& clip, ThinLines& storage);

  void lines(QRgb color, const QLineF* lines, int count);
  void points(QRgb color, const QPointF* points, int count);

private:
  void pixel(int x, int y, QRgb color)
  {
    reinterpret_cast<QRgb*>(m_bits + std::ptrdiff_t(y) * m_stride)[x] = color;
  }

  uchar* m_bits = nullptr;
  qsizetype m_stride = 0;
  QRect m_clip;
};
