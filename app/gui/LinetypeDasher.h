// Linetypes as dash patterns: a polyline cut into the dashes of a pattern
// (positive lengths are dashes, negative ones gaps, zero a dot).
#pragma once

#include <QPointF>

#include <vector>

class LinetypeDasher
{
public:
  // `pattern` already scaled to drawing units.
  explicit LinetypeDasher(std::vector<double> pattern);

  // A continuous line: no pattern, or a pattern of dashes only.
  bool isContinuous() const { return m_length <= 0.0 || !m_hasGaps; }
  double patternLength() const { return m_length; }

  // Appends the dashes of the polyline to `segments` as pairs of points.
  // False (nothing appended) when the pattern would repeat more than
  // `maxRepeats` times: the line is then drawn continuous, as a pattern that
  // fine shows as one anyway.
  bool dash(const std::vector<QPointF>& points, bool closed, std::vector<QPointF>& segments,
            int maxRepeats = 2000) const;

private:
  std::vector<double> m_pattern;
  double m_length = 0.0;
  bool m_hasGaps = false;
};
