// The id cursor shared by the entity and table record iterators.
#include "sdk/db/OdDbIdIterator.h"

#include <algorithm>

void OdDbIdIterator::start(bool atBeginning, bool skipErased)
{
  m_pos = atBeginning ? 0 : int(m_ids.size()) - 1;
  skip(atBeginning, skipErased);
}

void OdDbIdIterator::skip(bool forward, bool skipErased)
{
  while (!done() && skipErased && (m_ids[std::size_t(m_pos)].isErased() || !m_ids[std::size_t(m_pos)].isValid()))
    m_pos += forward ? 1 : -1;
}

void OdDbIdIterator::step(bool forward, bool skipErased)
{
  m_pos += forward ? 1 : -1;
  skip(forward, skipErased);
}

bool OdDbIdIterator::seek(OdDbObjectId id)
{
  const auto it = std::find(m_ids.begin(), m_ids.end(), id);
  if (it == m_ids.end())
    return false;
  m_pos = int(it - m_ids.begin());
  return true;
}
