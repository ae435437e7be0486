// OdDbObjectIterator: walks the entities of a block or the sub-entities of one.
#pragma once

#include "sdk/db/OdDbEntity.h"

#include <vector>

// Walks the entities of a block, skipping erased ones unless told not to.
class OdDbObjectIterator : public OdRxObject
{
public:
  void start(bool atBeginning = true, bool skipErased = true);
  bool done() const { return m_pos < 0 || m_pos >= int(m_ids.size()); }
  void step(bool forward = true, bool skipErased = true);
  OdDbObjectId objectId() const { return done() ? OdDbObjectId() : m_ids[std::size_t(m_pos)]; }
  OdDbEntityPtr entity(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;
  bool seek(OdDbObjectId id);

  std::vector<OdDbObjectId> m_ids;

private:
  void skip(bool forward, bool skipErased);
  int m_pos = 0;
};
using OdDbObjectIteratorPtr = OdSmartPtr<OdDbObjectIterator>;

