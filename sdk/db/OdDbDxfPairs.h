// Conversions between the texts of group-code pairs and values.
#pragma once

#include "sdk/db/OdCmColor.h"
#include "sdk/db/OdDbDxfPairArray.h"
#include "sdk/db/OdDbStringArena.h"
#include "sdk/kernel/OdString.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// Conversions between pair texts and values. Numbers are written in their
// shortest exact form, so that a value read and written again is the same
// text, and a drawing written twice gives the same file.
namespace OdDxf {
enum ValueType { kString, kDouble, kInt16, kInt32, kInt64, kBool, kHandle, kBinary };
// The value type of a group code, as the DXF reference assigns it.
ValueType codeType(int code);
// Handles that point at other objects (soft/hard pointers and owners).
inline bool isHandleRef(int code)
{
  return (code >= 320 && code <= 369) || (code >= 390 && code <= 399) || code == 480 || code == 481 || code == 1005;
}

double toDouble(std::string_view text, double fallback = 0.0);
long long toInt(std::string_view text, long long fallback = 0);
std::string_view trim(std::string_view text);
// Shortest text that reads back as the same double.
std::string fromDouble(double value);
std::string fromInt(long long value);
OdString toOdString(std::string_view utf8);
std::string fromOdString(const OdString& text);

// Colours are kept as code 62 (the index), 420 (the RGB of a true colour)
// and 430 ("BOOK$NAME" of a named true colour). The colour of an index and
// the pairs 420 and 430 that go with it (null when absent).
OdCmColor toColor(std::int16_t index, const OdDbDxfPair* rgb, const OdDbDxfPair* names);
// Appends 420, and 430 for a named colour, when the colour is a true colour;
// their texts are stored in `arena`.
void appendTrueColor(const OdCmColor& color, OdDbDxfPairArray& out, OdDbStringArena& arena);
} // namespace OdDxf
