// Where the host's commands put what they make: model space, with the
// drawing's current properties (CLAYER, CECOLOR, CELTYPE, CELTSCALE,
// CELWEIGHT, CETRANSPARENCY, and the current plot style in a drawing that
// uses named plot styles).
#pragma once

#include "sdk/db/OdDbEntity.h"

class OdDbDatabase;

namespace HostModelSpace {

// Gives the entity the drawing's current properties.
void applyCurrentProperties(OdDbDatabase* database, OdDbEntity* entity);
// The same, then appends the entity to model space.
OdDbObjectId addEntity(OdDbDatabase* database, OdDbEntity* entity);
// Erases an entity (with what it owns); false when it is gone already.
bool eraseEntity(const OdDbObjectId& id);

} // namespace HostModelSpace
