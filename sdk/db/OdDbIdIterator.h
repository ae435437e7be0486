// OdDbIdIterator: a cursor over a list of object ids, the common part of the
// entity and table record iterators.
#pragma once

#include "sdk/db/OdDbObjectId.h"
#include "sdk/kernel/OdRxObject.h"

#include <vector>

// Walks a copy of the list it was given, so that adding to the list while
// walking is safe. Erased ids, and ids whose object is gone, are skipped
// unless the caller asks for them.
class OdDbIdIterator : public OdRxObject
{
public:
  // A new iterator of the class T over `ids`, at the first (or last) id.
  template <class T>
  static OdSmartPtr<T> create(std::vector<OdDbObjectId> ids, bool atBeginning = true, bool skipErased = true)
  {
    OdSmartPtr<T> it = OdRxObjectImpl<T>::createObject();
    it->m_ids = std::move(ids);
    it->start(atBeginning, skipErased);
    return it;
  }

  void start(bool atBeginning = true, bool skipErased = true);
  bool done() const { return m_pos < 0 || m_pos >= int(m_ids.size()); }
  void step(bool forward = true, bool skipErased = true);
  // Goes to `id` wherever it is, erased or not; false when it is not listed.
  bool seek(OdDbObjectId id);

protected:
  OdDbIdIterator() = default;
  OdDbObjectId currentId() const { return done() ? OdDbObjectId() : m_ids[std::size_t(m_pos)]; }

private:
  void skip(bool forward, bool skipErased);

  std::vector<OdDbObjectId> m_ids;
  int m_pos = 0;
};
