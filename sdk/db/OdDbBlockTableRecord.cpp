// Block definitions: the record, its BLOCK/ENDBLK frame and its entities.
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"

#include "sdk/kernel/OdRxClass.h"

ODRX_DEFINE_MEMBERS(OdDbBlockTableRecord, OdDbSymbolTableRecord, ODRX_CREATE_IMPL(OdDbBlockTableRecord, OdDbBlockTableRecord))

const OdString& OdDbBlockTableRecord::modelSpaceStr()
{
  static const OdString s("*Model_Space");
  return s;
}

const OdString& OdDbBlockTableRecord::paperSpaceStr()
{
  static const OdString s("*Paper_Space");
  return s;
}

OdDbBlockTableRecord::OdDbBlockTableRecord()
{
  initRecord("BLOCK_RECORD", kSub, {odPair(2, ""), odPair(340, "0"), odPair(70, "0"), odPair(280, "1"), odPair(281, "0")});
  // The frame exists from the start, so that origin, description and
  // flags can be set before the record joins a drawing.
  m_begin = OdDbEntity::createObject();
  m_begin->setDxfData("BLOCK", {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, kBeginSub), odPair(2, ""),
                                odPair(70, "0"), odPair(10, "0.0"), odPair(20, "0.0"), odPair(30, "0.0"),
                                odPair(3, ""), odPair(1, "")},
                      nullptr);
  m_end = OdDbEntity::createObject();
  m_end->setDxfData("ENDBLK", {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, "AcDbBlockEnd")}, nullptr);
}

void OdDbBlockTableRecord::setName(const OdString& name)
{
  OdDbSymbolTableRecord::setName(name);
  m_begin->setString(kBeginSub, 2, name);
  m_begin->setString(kBeginSub, 3, name);
  const bool anonymous = name.left(1) == "*" && !isLayout();
  setBlockFlags(anonymous ? (blockFlags() | 1) : (blockFlags() & ~1));
}

void OdDbBlockTableRecord::setComments(const OdString& text)
{
  if (text.isEmpty())
    m_begin->removeCode(kBeginSub, 4);
  else
    m_begin->setString(kBeginSub, 4, text);
}

bool OdDbBlockTableRecord::isAnonymous() const
{
  return (blockFlags() & 1) != 0;
}

bool OdDbBlockTableRecord::isLayout() const
{
  const QString n = getName().qstring();
  return n.startsWith(modelSpaceStr().qstring(), Qt::CaseInsensitive) ||
         n.startsWith(paperSpaceStr().qstring(), Qt::CaseInsensitive);
}

void OdDbBlockTableRecord::setBlockBeginEnd(OdDbEntity* begin, OdDbEntity* end)
{
  if (begin)
    m_begin = begin;
  if (end)
    m_end = end;
}

OdDbObjectId OdDbBlockTableRecord::appendOdDbEntity(OdDbEntity* entity)
{
  if (!entity)
    throw OdError(eNullPtr, "null entity");
  OdDbDatabase* db = database();
  if (!db)
    throw OdError(eNullPtr, "the block is not in a database");
  OdDbObjectId id = entity->objectId();
  if (id.isNull())
    id = db->addOdDbObject(entity, objectId());
  else
    entity->setOwnerId(objectId());
  m_entities.push_back(id);
  return id;
}

void OdDbBlockTableRecord::removeEntity(OdDbObjectId id)
{
  m_entities.erase(std::remove(m_entities.begin(), m_entities.end(), id), m_entities.end());
}

OdDbObjectIteratorPtr OdDbBlockTableRecord::newIterator(bool atBeginning, bool skipErased) const
{
  return OdDbIdIterator::create<OdDbObjectIterator>(m_entities, atBeginning, skipErased);
}

// The frame joins the drawing with the record; while a file is read the
// file's own BLOCK and ENDBLK (with their handles) take its place instead.
void OdDbBlockTableRecord::subAddedToDatabase()
{
  OdDbDatabase* db = database();
  if (db->isLoading())
    return;
  if (m_begin->objectId().isNull())
    db->addOdDbObject(m_begin, objectId());
  if (m_end->objectId().isNull())
    db->addOdDbObject(m_end, objectId());
}

void OdDbBlockTableRecord::ownedSubObjects(std::vector<OdDbObjectId>& ids) const
{
  ids.push_back(m_begin->objectId());
  ids.push_back(m_end->objectId());
}

// A definition goes with everything in it; the entities stay in the list,
// erased, so that un-erasing brings them back.
OdResult OdDbBlockTableRecord::erase(bool erasing)
{
  const OdResult r = OdDbObject::erase(erasing);
  if (r != eOk)
    return r;
  m_begin->erase(erasing);
  m_end->erase(erasing);
  for (const OdDbObjectId& id : m_entities)
    if (OdDbObjectPtr e = id.openObject(OdDb::kForWrite, true); e.get())
      e->erase(erasing);
  return eOk;
}
