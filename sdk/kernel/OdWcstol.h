// Number parsing with the semantics that catalog files were written for:
// a 32-bit result, leading blanks and a sign accepted, parsing stops at the
// first character that is not a digit, and overflow clamps.
#pragma once

#include "sdk/kernel/OdString.h"

#include <cstdint>

// Returns the value and, through `end` when given, the index of the first
// character not used. No digits give 0 and `end` 0.
std::int32_t odWcstol(const OdString& text, int* end = nullptr, int base = 10);

// The same for a double; a text without a number gives 0.0.
double odWcstod(const OdString& text, int* end = nullptr);
