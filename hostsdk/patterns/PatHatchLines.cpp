// Pattern definition lines of a hatch.
#include "hostsdk/patterns/PatHatchLines.h"

#include <cmath>
#include <numbers>

namespace {

double positiveOr1(double value)
{
  return std::isfinite(value) && value > 0.0 ? value : 1.0;
}

// Turning by multiples of 90 degrees leaves rounding noise such as 6e-17
// where a zero belongs; it would show in every DXF file written.
double clean(double value, double magnitude)
{
  return std::fabs(value) <= magnitude * 1e-14 ? 0.0 : value;
}

OdGeVector2d rotated(double x, double y, double radians)
{
  const double c = std::cos(radians), s = std::sin(radians);
  const double magnitude = std::fabs(x) + std::fabs(y);
  return OdGeVector2d(clean(x * c - y * s, magnitude), clean(x * s + y * c, magnitude));
}

OdDbHatch::PatternLine lineOf(const PatLineFamily& family, double angle, double scale)
{
  constexpr double kDegree = std::numbers::pi / 180.0;
  OdDbHatch::PatternLine line;
  line.angle = family.angle + angle / kDegree;
  const OdGeVector2d base = rotated(family.origin.x * scale, family.origin.y * scale, angle);
  line.base = OdGePoint2d(base.x, base.y);
  line.offset = rotated(family.delta.x * scale, family.delta.y * scale, line.angle * kDegree);
  line.dashes.reserve(family.dashes.size());
  for (double dash : family.dashes)
    line.dashes.push_back(dash * scale);
  return line;
}

} // namespace

std::vector<OdDbHatch::PatternLine> patHatchDefinitionLines(const PatPattern* pattern,
                                                            const PatHatchSettings& settings)
{
  const double angle = std::isfinite(settings.angle) ? settings.angle : 0.0;
  std::vector<OdDbHatch::PatternLine> lines;
  if (pattern) {
    const double scale = positiveOr1(settings.scale);
    for (const PatLineFamily& family : pattern->families())
      lines.push_back(lineOf(family, angle, scale));
    return lines;
  }
  PatLineFamily user;
  user.delta = OdGeVector2d(0.0, positiveOr1(settings.spacing));
  lines.push_back(lineOf(user, angle, 1.0));
  if (settings.doubled) {
    user.angle = 90.0;
    lines.push_back(lineOf(user, angle, 1.0));
  }
  return lines;
}
