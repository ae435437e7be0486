// OdDbObjectIterator: walks the entities of a block or the sub-entities of one.
#pragma once

#include "sdk/db/OdDbEntity.h"
#include "sdk/db/OdDbIdIterator.h"

class OdDbObjectIterator : public OdDbIdIterator
{
public:
  OdDbObjectId objectId() const { return currentId(); }
  OdDbEntityPtr entity(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const
  {
    return OdDbEntity::cast(currentId().openObject(mode, openErased));
  }
};
using OdDbObjectIteratorPtr = OdSmartPtr<OdDbObjectIterator>;
