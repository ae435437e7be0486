// Moving, turning and scaling entities in their plane: what a block's
// entities undergo when a reference of it is exploded, and where its
// attributes go when it is inserted.
#pragma once

#include "sdk/db/OdDbEntity.h"

// p -> insertion + scale * R(rotation) * (p - base), rotation about Z; Z
// coordinates are scaled from the base's. A negative scale mirrors through
// the base point: it is a half turn in the plane.
struct HostSimilarity
{
  OdGePoint3d base;      // the block's origin
  OdGePoint3d insertion; // where the base goes
  double scale = 1.0;
  double rotation = 0.0; // radians

  OdGePoint3d apply(const OdGePoint3d& p) const;
  OdGePoint2d apply(const OdGePoint2d& p) const;
  // A direction or an extent: turned and scaled, not moved.
  OdGeVector3d applyToVector(const OdGeVector3d& v) const;
  // The turn in the plane, including the half turn of a negative scale.
  double turn() const;
  double factor() const;
};

namespace HostEntityTransform {

// Transforms the entity (a block reference with its attributes). False,
// with the entity untouched, for kinds it cannot transform (dimensions,
// leaders, multi-lines, 3-D solids and the like).
bool transform(OdDbEntity* entity, const HostSimilarity& similarity);

} // namespace HostEntityTransform
