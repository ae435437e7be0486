// Sub-entity lists of block references and polylines.
#include "sdk/db/OdDbSubEntities.h"
#include "sdk/db/OdDbDatabase.h"

void OdDbSubEntities::ensureSeqEnd()
{
  if (m_seqend.isNull()) {
    m_seqend = OdDbEntity::createObject();
    m_seqend->setDxfData("SEQEND", {odPair(100, "AcDbEntity"), odPair(8, "0")}, nullptr);
  }
}

OdDbObjectId OdDbSubEntities::append(OdDbEntity* parent, OdDbEntity* sub)
{
  if (!sub)
    throw OdError(eNullPtr, "null sub-entity");
  ensureSeqEnd();
  m_items.push_back(sub);
  if (parent->database()) {
    addedToDatabase(parent);
    return sub->objectId();
  }
  return OdDbObjectId();
}

// Sub-entities join the drawing with their parent, and a SEQEND closes
// them, on the parent's layer as drawing programs do.
void OdDbSubEntities::addedToDatabase(OdDbEntity* parent)
{
  OdDbDatabase* db = parent->database();
  if (!db || db->isLoading())
    return;
  if (!m_items.empty())
    ensureSeqEnd();
  for (const OdDbEntityPtr& e : m_items)
    if (e->objectId().isNull())
      db->addOdDbObject(e, parent->objectId());
  if (m_seqend.get() && m_seqend->objectId().isNull()) {
    m_seqend->setLayer(parent->layer());
    db->addOdDbObject(m_seqend, parent->objectId());
  }
}

void OdDbSubEntities::collect(std::vector<OdDbObjectId>& ids) const
{
  for (const OdDbEntityPtr& e : m_items)
    ids.push_back(e->objectId());
  if (m_seqend.get())
    ids.push_back(m_seqend->objectId());
}

std::vector<OdDbObjectId> OdDbSubEntities::ids() const
{
  std::vector<OdDbObjectId> out;
  for (const OdDbEntityPtr& e : m_items)
    out.push_back(e->objectId());
  return out;
}
