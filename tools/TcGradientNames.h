// The host's gradients: each key with the number GFNAME gives it and the
// name shown for it.
#pragma once

#include "sdk/kernel/OdString.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace tc {

// Keys and shown names (untranslated) in the host's order; a key's number
// is its place, counted from 1.
const std::vector<std::pair<const char*, const char*>>& gradientNames();

// The number of GFNAME for the key; 1 for a key the host does not have.
std::int32_t gradientNumber(const OdString& key);

} // namespace tc
