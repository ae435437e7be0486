// Hatches in the plane of the hatch: boundary loops made into rings of
// points, and pattern lines cut to the area inside the rings (odd-even,
// so islands stay empty) and into their dashes.
#pragma once

#include "sdk/db/OdDbHatch.h"

#include <QPointF>

#include <vector>

class HatchFiller
{
public:
  using Ring = std::vector<QPointF>;

  // One closed ring per loop; loops of edges are chained end to start, an
  // edge turned round where that makes them meet.
  static std::vector<Ring> rings(const OdDbHatch::Data& data);
  static Ring ring(const OdDbHatch::Loop& loop);

  // The pattern lines inside the rings as pairs of points. False when the
  // pattern is so fine against the area that it would take more than
  // `maxSegments` pieces: the caller shows a faint fill instead.
  static bool patternSegments(const std::vector<Ring>& rings, const std::vector<OdDbHatch::PatternLine>& lines,
                              std::vector<QPointF>& segments, std::size_t maxSegments = 400000);
};
