// Copies of entities from one drawing into a block of another, with the
// records they use (a record of the same name in the target wins).
#pragma once

#include "sdk/db/OdDbObjectId.h"

#include <vector>

class OdDbBlockTableRecord;

void odDbCopyEntities(OdDbDatabase* source, OdDbDatabase* target, const std::vector<OdDbObjectId>& ids,
                      OdDbBlockTableRecord* into);
