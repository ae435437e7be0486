// Reading typed values the way CAD command lines take them: points
// ("x,y", "x,y,z", "@dx,dy", "@dist<angle", "dist<angle"), numbers, angles
// in degrees, keywords by their shortcut; and writing values back as text.
#pragma once

#include "sdk/db/OdCmColor.h"
#include "sdk/db/OdGeTypes.h"

#include <optional>
#include <vector>

namespace HostInputParser {

// A real number in the C locale ("2.5", "-1e3", "+.5"); no NaN or infinity.
std::optional<double> parseReal(const OdString& text);
std::optional<int> parseInteger(const OdString& text);
// Degrees typed, radians given; "45", "-90", "12.5d".
std::optional<double> parseAngleDegrees(const OdString& text);

// A point; "@" forms are relative to `lastPoint`, and "@" alone is the
// last point itself. Polar forms take the angle in degrees. A point typed
// with two coordinates takes its Z from `lastPoint`'s plane, 0.
std::optional<OdGePoint3d> parsePoint(const OdString& text, const OdGePoint3d& lastPoint);
// Whether the text looks like a point (has a comma, a "<" or starts with
// "@"), as opposed to a handle or a keyword.
bool looksLikePoint(const OdString& text);

// The keyword that the text chooses: the keyword itself or a beginning of
// it, ignoring case; when several begin so, the one whose capital letters
// (its shortcut) are the text. Empty when none or still ambiguous.
OdString matchKeyword(const OdString& text, const std::vector<OdString>& keywords);

// A colour as variables take it typed: "BYLAYER", "BYBLOCK", "NONE", an
// index 0..256, "RGB:r,g,b" (or "RGB r,g,b", "r,g,b").
std::optional<OdCmColor> parseColor(const OdString& text);
OdString formatColor(const OdCmColor& color);

// Shortest text of a number that reads back as it ("2.5", "1000", "0.1").
OdString formatReal(double value);
OdString formatPoint(const OdGePoint3d& point);
// Radians shown in degrees.
OdString formatAngle(double radians);

// "Prompt [A/B] <default>: ".
OdString composePrompt(const OdString& message, const std::vector<OdString>& keywords, const OdString& defaultText);

} // namespace HostInputParser
