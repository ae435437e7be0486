// Sub-entities that follow an entity in a file: attributes of a block
// reference and vertices of a polyline, closed by a SEQEND.
#pragma once

#include "sdk/db/OdDbEntity.h"
#include "sdk/db/OdDbObjectIterator.h"

#include <vector>

class OdDbSubEntities
{
public:
  // Adds the sub-entity under `parent` (and to the database when the parent
  // is in one); returns its id, null while the parent is not in a database.
  OdDbObjectId append(OdDbEntity* parent, OdDbEntity* sub);
  // For readers: the entities are in the database already.
  void appendLoaded(OdDbEntity* sub) { m_items.push_back(sub); }
  void setSeqEnd(OdDbEntity* seqend) { m_seqend = seqend; }
  void addedToDatabase(OdDbEntity* parent);
  void collect(std::vector<OdDbObjectId>& ids) const;
  std::vector<OdDbObjectId> ids() const;
  bool empty() const { return m_items.empty(); }

private:
  void ensureSeqEnd();
  std::vector<OdDbEntityPtr> m_items;
  OdDbEntityPtr m_seqend;
};
