// Drawing a pattern's line families into a square picture.
#include "hostsdk/patterns/PatPatternImage.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

// Beyond these a family is finer than the picture can show; it is drawn as
// what it looks like from afar, or left out.
constexpr double kMaxLinesPerPixel = 4.0;
constexpr long kMaxDashes = 200000;

double dashPeriod(const PatLineFamily& family)
{
  double period = 0.0;
  for (double dash : family.dashes)
    period += std::fabs(dash);
  return period;
}

// The side of the cell in which a family repeats: the spacing of
// continuous lines, or the square of the area one dash sequence covers.
double cellSize(const PatLineFamily& family)
{
  const double spacing = std::fabs(family.delta.y);
  const double period = dashPeriod(family);
  if (period <= 0.0)
    return spacing;
  return spacing > 0.0 ? std::sqrt(period * spacing) : period;
}

double pixelsPerUnit(const PatPattern& pattern, int size)
{
  double cell = 0.0, spacing = 0.0;
  for (const PatLineFamily& family : pattern.families()) {
    cell = std::max(cell, cellSize(family));
    const double s = std::fabs(family.delta.y);
    if (s > 0.0 && (spacing == 0.0 || s < spacing))
      spacing = s;
  }
  if (cell <= 0.0)
    return 1.0;
  double scale = size / (4.0 * cell);
  if (spacing > 0.0 && spacing * scale < 2.0)
    scale = std::min(2.0 / spacing, size / cell);
  return scale;
}

class FamilyPainter
{
public:
  FamilyPainter(QPainter& painter, double extent) : m_painter(painter), m_extent(extent) {}

  // Dots are drawn last, all at once, with a pen of their own.
  const QList<QPointF>& dots() const { return m_dots; }

  void draw(const PatLineFamily& family, double pixelsPerUnit)
  {
    const double a = family.angle * std::numbers::pi / 180.0;
    const QPointF u(std::cos(a), std::sin(a)), v(-u.y(), u.x());
    const QPointF origin(family.origin.x, family.origin.y);
    const QPointF step = family.delta.x * u + family.delta.y * v;
    double vMin = 0.0, vMax = 0.0, uMin = 0.0, uMax = 0.0;
    rangeAlong(v, vMin, vMax);
    rangeAlong(u, uMin, uMax);

    const double spacing = family.delta.y;
    const double across = dot(origin, v);
    long first = 0, last = 0;
    if (std::fabs(spacing) * pixelsPerUnit * kMaxLinesPerPixel < 1.0) {
      if (std::fabs(spacing) > 0.0)
        return; // lines that close together would only blacken the picture
      if (across < vMin || across > vMax)
        return;
    } else {
      double lo = (vMin - across) / spacing, hi = (vMax - across) / spacing;
      if (lo > hi)
        std::swap(lo, hi);
      first = long(std::ceil(lo));
      last = long(std::floor(hi));
    }
    const auto& dashes = family.dashes;
    if (!dashes.empty() && std::none_of(dashes.begin(), dashes.end(), [](double d) { return d >= 0.0; }))
      return; // the pen never goes down
    const double period = dashPeriod(family);
    const bool continuous = dashes.empty() || period * pixelsPerUnit < 1.0;
    for (long n = first; n <= last; ++n) {
      const QPointF base = origin + double(n) * step;
      const double t0 = uMin - dot(base, u), t1 = uMax - dot(base, u);
      if (continuous)
        m_painter.drawLine(base + t0 * u, base + t1 * u);
      else
        drawDashes(dashes, period, base, u, t0, t1);
    }
  }

private:
  static double dot(const QPointF& a, const QPointF& b) { return a.x() * b.x() + a.y() * b.y(); }

  // The projections of the square's corners on a direction.
  void rangeAlong(const QPointF& direction, double& lo, double& hi) const
  {
    const QPointF corners[] = {{0, 0}, {m_extent, 0}, {0, m_extent}, {m_extent, m_extent}};
    lo = hi = dot(corners[0], direction);
    for (const QPointF& c : corners) {
      lo = std::min(lo, dot(c, direction));
      hi = std::max(hi, dot(c, direction));
    }
  }

  void drawDashes(const std::vector<double>& dashes, double period, const QPointF& base, const QPointF& u, double t0,
                  double t1)
  {
    long count = 0;
    for (double t = std::floor(t0 / period) * period; t < t1 && count < kMaxDashes; ++count) {
      for (double dash : dashes) {
        if (dash > 0.0)
          m_painter.drawLine(base + t * u, base + (t + dash) * u);
        else if (dash == 0.0)
          m_dots.append(base + t * u);
        t += std::fabs(dash);
      }
    }
  }

  QPainter& m_painter;
  double m_extent;
  QList<QPointF> m_dots;
};

QImage blank(int size)
{
  if (size < 1 || size > PatPatternImage::kMaxSize)
    return QImage();
  QImage image(size, size, QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

} // namespace

QImage PatPatternImage::draw(const PatPattern& pattern, int size)
{
  QImage image = blank(size);
  if (image.isNull())
    return image;
  const double scale = pixelsPerUnit(pattern, size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing, false);
  // Cosmetic pens: one pixel wide whatever the scale; dots grow with the
  // picture, or a dotted pattern would look empty at 64 pixels.
  painter.setPen(QPen(Qt::black, 0));
  // Pattern units with Y up; the picture shows the square from the origin.
  painter.translate(0.0, size);
  painter.scale(scale, -scale);
  FamilyPainter families(painter, size / scale);
  for (const PatLineFamily& family : pattern.families())
    families.draw(family, scale);
  QPen dotPen(Qt::black, std::max(1, size / 32));
  dotPen.setCosmetic(true);
  painter.setPen(dotPen);
  painter.drawPoints(families.dots().constData(), int(families.dots().size()));
  return image;
}

QImage PatPatternImage::solid(int size)
{
  QImage image = blank(size);
  if (!image.isNull())
    image.fill(Qt::black);
  return image;
}

QImage PatPatternImage::userDefined(int size)
{
  PatLineFamily lines;
  lines.angle = 45.0;
  lines.delta = OdGeVector2d(0.0, 1.0);
  return draw(PatPattern(OdString("_USER"), OdString(), {lines}), size);
}
