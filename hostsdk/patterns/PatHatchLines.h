// The pattern definition lines that a hatch entity stores, computed from a
// pattern and the hatch's angle, scale, spacing and doubling.
#pragma once

#include "hostsdk/patterns/PatPattern.h"
#include "sdk/db/OdDbHatch.h"

#include <vector>

struct PatHatchSettings
{
  double angle = 0.0;   // radians, as HPANG
  double scale = 1.0;   // HPSCALE; applies to a pattern
  double spacing = 1.0; // HPSPACE; applies to user-defined lines
  bool doubled = false; // HPDOUBLE; applies to user-defined lines
};

// With a pattern: its families turned by the angle and scaled, each line
// as a hatch keeps it (angle in degrees, base point and offset in drawing
// units, the offset turned into drawing axes, dashes scaled). Doubling
// belongs to user-defined hatches, as in CAD programs: a HPDOUBLE left on by
// an earlier user-defined hatch does not change a pattern.
// Without a pattern (a user-defined hatch): continuous lines `spacing`
// apart at the angle, and with `doubled` a second family at 90 degrees.
// A scale or spacing that is not a positive number counts as 1.
std::vector<OdDbHatch::PatternLine> patHatchDefinitionLines(const PatPattern* pattern,
                                                            const PatHatchSettings& settings);
