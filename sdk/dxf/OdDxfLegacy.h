// Drawings of R12 and before keep no subclass markers; today's form needs them.
#pragma once

#include "sdk/db/OdDbDxfPairs.h"

#include <string>

namespace OdDxfLegacy {
// True when the pairs carry no subclass marker at all.
bool lacksMarkers(const OdDbDxfPairArray& pairs);
// Rebuilds the pairs of an object of `type` with the subclass markers of
// today's form: the common entity values under AcDbEntity, the rest under
// the class's own marker(s). `inTable` names the table of a record.
OdDbDxfPairArray addMarkers(const std::string& type, const OdDbDxfPairArray& pairs, bool isEntity);
} // namespace OdDxfLegacy
