// Pictures of hatch patterns: the pattern's lines clipped to a square,
// black on white.
#pragma once

#include "hostsdk/patterns/PatPattern.h"

#include <QImage>

class PatPatternImage
{
public:
  // The pattern at a scale that shows a few of its repeats: its largest
  // cell (the spacing of continuous lines, or the area that one dash
  // sequence covers) fits four times across, unless that would put lines
  // closer than two pixels. Null for a size outside 1 to 4096.
  static QImage draw(const PatPattern& pattern, int size);
  // The solid fill: the whole square black.
  static QImage solid(int size);
  // A user-defined hatch: plain parallel lines at 45 degrees.
  static QImage userDefined(int size);

  static constexpr int kMaxSize = 4096;
};
