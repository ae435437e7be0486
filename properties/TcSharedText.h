// Fixed texts that every property of a kind holds, made once and shared.
#pragma once

#include "sdk/kernel/OdString.h"

namespace tc {

// The same text for every call with the same characters: a catalog holds
// hundreds of thousands of properties, each naming itself.
OdString tcSharedText(const char* text);

// The host's translation of a fixed text, sharing the text itself when there
// is no translation.
OdString tcTranslate(const char* text);

} // namespace tc
