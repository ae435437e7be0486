// How snapshots write and read their values: each a text element under its
// own name, colours as "AcCmColor" with the packed value in "mRGB".
#pragma once

#include "model/OdTcFiler.h"

#include "sdk/db/OdCmColor.h"

namespace tc {

// The marker texts of snapshots: a linetype that could not be captured, and
// a dimension arrow made from a block of the user's, whose geometry a
// snapshot does not carry.
inline constexpr const char* kTcOtherLinetypeMarker = "%otherLinetype%";
inline constexpr const char* kTcUserArrowMarker = "%userArrow%";

void tcWriteText(OdTcFiler* filer, const char* name, const OdString& value);
void tcWriteInt(OdTcFiler* filer, const char* name, long long value);
void tcWriteDouble(OdTcFiler* filer, const char* name, double value);
// Upper case: "TRUE", "FALSE".
void tcWriteBool(OdTcFiler* filer, const char* name, bool value);
void tcWriteObject(OdTcFiler* filer, const char* name, OdTcPersist* object);
void tcWriteColor(OdTcFiler* filer, const OdCmColor& color);

std::int32_t tcReadInt(const OdVariant& value);
double tcReadDouble(const OdVariant& value);
bool tcReadBoolValue(const OdVariant& value);
// The packed value of "mRGB", written unsigned here and signed by others;
// both read.
OdCmColor tcReadColor(const OdVariant& value);
// The text a colour's packed value is written with.
OdString tcPackedColorText(const OdCmColor& color);

} // namespace tc
