// Lineweights as the tool properties show them: the words for the three
// kinds that are no weight, and each weight the host offers in millimetres
// or inches.
#pragma once

#include "sdk/kernel/OdString.h"

#include <vector>

namespace tc {

// The weights the host offers, in hundredths of a millimetre.
const std::vector<int>& tcLineWeights();

// -1 "By Layer", -2 "By Block", -3 "By Default" (translated); a weight as
// "%.2f mm" of its millimetres, or with `lwunits` 0 as "%.3f''" of inches.
OdString tcLineWeightText(int weight, int lwunits);

// The weight of a text: the words above or "ByLayer", "ByBlock",
// "ByDefault" (each also translated), a display text of either unit, or
// the number of hundredths of a weight the host offers. False for anything
// else.
bool tcParseLineWeight(const OdString& text, int& weight);

// The host's LWUNITS, read at the first call and kept (1, millimetres, when
// the host has no such variable).
int tcLwUnits();

} // namespace tc
