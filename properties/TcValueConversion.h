// The texts of the values of editable rows and back: numbers and angles in
// the current drawing's units, and the range a number must keep.
#pragma once

#include "sdk/kernel/OdString.h"

namespace tc {

// The range of the real rows (scales, spacings).
inline constexpr double kTcRealMinimum = 0.0;
inline constexpr double kTcRealMaximum = 1000000.0;

// A double in the host's decimal form with the drawing's precision.
OdString tcRealText(double value);
// An angle (radians) in the drawing's angular units.
OdString tcAngleText(double angle);

// The number of a typed text: in the drawing's units, else through the
// host's expression evaluator when it has one. False for an empty text
// (with no message) and for a text that is no number (with the translated
// "Invalid expression:" and the text).
bool tcTextToReal(const OdString& text, bool angle, double& value, OdString& message);

// Whether `value` lies within the bounds; otherwise the message, with the
// bounds as text ("Value must be between %s and %s", or "more"/"less" where
// a bound is the whole range of an int).
bool tcValidateReal(double value, double minimum, double maximum, OdString& message);

} // namespace tc
