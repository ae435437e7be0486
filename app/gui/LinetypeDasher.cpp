// Cutting lines into dashes.
#include "app/gui/LinetypeDasher.h"

#include <cmath>

LinetypeDasher::LinetypeDasher(std::vector<double> pattern) : m_pattern(std::move(pattern))
{
  for (double d : m_pattern) {
    m_length += std::fabs(d);
    m_hasGaps = m_hasGaps || d < 0;
  }
}

bool LinetypeDasher::dash(const std::vector<QPointF>& points, bool closed, std::vector<QPointF>& segments,
                          int maxRepeats) const
{
  if (points.size() < 2 || isContinuous())
    return false;
  std::vector<QPointF> path = points;
  if (closed && !(path.front() == path.back()))
    path.push_back(path.front());
  double total = 0.0;
  for (std::size_t i = 1; i < path.size(); ++i)
    total += std::hypot(path[i].x() - path[i - 1].x(), path[i].y() - path[i - 1].y());
  if (total <= 0.0 || total / m_length > maxRepeats)
    return false;

  // Walks the path and the pattern together: `pos` is the distance along
  // the path, `element` the pattern element in progress, `left` what
  // remains of it.
  std::size_t element = 0;
  double left = std::fabs(m_pattern[0]);
  bool drawing = m_pattern[0] >= 0;
  // A dot is a dash of a tiny length, so that it shows.
  const double dot = m_length * 1e-3;
  if (m_pattern[0] == 0.0)
    left = dot;
  QPointF dashStart = path[0];
  auto nextElement = [&] {
    element = (element + 1) % m_pattern.size();
    const double d = m_pattern[element];
    drawing = d >= 0;
    left = d == 0.0 ? dot : std::fabs(d);
  };
  for (std::size_t i = 1; i < path.size(); ++i) {
    const QPointF a = path[i - 1], b = path[i];
    const double len = std::hypot(b.x() - a.x(), b.y() - a.y());
    double at = 0.0;
    while (len - at > left) {
      at += left;
      const QPointF p = a + (b - a) * (at / len);
      if (drawing) {
        segments.push_back(dashStart);
        segments.push_back(p);
      }
      dashStart = p;
      nextElement();
    }
    left -= len - at;
    if (drawing && i + 1 < path.size()) {
      // The dash goes round the corner: its part up to the corner now.
      segments.push_back(dashStart);
      segments.push_back(b);
      dashStart = b;
    }
  }
  if (drawing) {
    segments.push_back(dashStart);
    segments.push_back(path.back());
  }
  return true;
}
