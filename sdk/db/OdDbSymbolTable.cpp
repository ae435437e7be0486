// Symbol tables: records by name, in order, and their iterators.
#include "sdk/db/OdDbSymbolTable.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"

#include "sdk/kernel/OdRxClass.h"

ODRX_NO_CONS_DEFINE_MEMBERS(OdDbSymbolTableRecord, OdDbObject)
ODRX_DEFINE_MEMBERS(OdDbSymbolTable, OdDbObject, ODRX_CREATE_IMPL(OdDbSymbolTable, OdDbSymbolTable))
ODRX_DEFINE_MEMBERS(OdDbBlockTable, OdDbSymbolTable, ODRX_CREATE_IMPL(OdDbBlockTable, OdDbBlockTable))
ODRX_DEFINE_MEMBERS(OdDbLayerTable, OdDbSymbolTable, ODRX_CREATE_IMPL(OdDbLayerTable, OdDbLayerTable))
ODRX_DEFINE_MEMBERS(OdDbLinetypeTable, OdDbSymbolTable, ODRX_CREATE_IMPL(OdDbLinetypeTable, OdDbLinetypeTable))
ODRX_DEFINE_MEMBERS(OdDbTextStyleTable, OdDbSymbolTable, ODRX_CREATE_IMPL(OdDbTextStyleTable, OdDbTextStyleTable))
ODRX_DEFINE_MEMBERS(OdDbDimStyleTable, OdDbSymbolTable, ODRX_CREATE_IMPL(OdDbDimStyleTable, OdDbDimStyleTable))
ODRX_DEFINE_MEMBERS(OdDbRegAppTable, OdDbSymbolTable, ODRX_CREATE_IMPL(OdDbRegAppTable, OdDbRegAppTable))
ODRX_DEFINE_MEMBERS(OdDbViewportTable, OdDbSymbolTable, ODRX_CREATE_IMPL(OdDbViewportTable, OdDbViewportTable))
ODRX_DEFINE_MEMBERS(OdDbViewTable, OdDbSymbolTable, ODRX_CREATE_IMPL(OdDbViewTable, OdDbViewTable))
ODRX_DEFINE_MEMBERS(OdDbUCSTable, OdDbSymbolTable, ODRX_CREATE_IMPL(OdDbUCSTable, OdDbUCSTable))

#define ODDB_DEFINE_PLAIN_RECORD(Name, Type, Sub)                                                   \
  ODRX_DEFINE_MEMBERS(Name, OdDbSymbolTableRecord, ODRX_CREATE_IMPL(Name, Name))                    \
  const char* Name::recordSub() const { return Sub; }                                               \
  Name::Name() { initRecord(Type, Sub, {odPair(2, ""), odPair(70, "0")}); }

ODDB_DEFINE_PLAIN_RECORD(OdDbRegAppTableRecord, "APPID", "AcDbRegAppTableRecord")
ODDB_DEFINE_PLAIN_RECORD(OdDbViewportTableRecord, "VPORT", "AcDbViewportTableRecord")
ODDB_DEFINE_PLAIN_RECORD(OdDbViewTableRecord, "VIEW", "AcDbViewTableRecord")
ODDB_DEFINE_PLAIN_RECORD(OdDbUCSTableRecord, "UCS", "AcDbUCSTableRecord")

void OdDbSymbolTableRecord::initRecord(const char* type, const char* sub, std::initializer_list<OdDbDxfPair> body)
{
  m_type = type;
  m_pairs.clear();
  m_pairs.push_back(odPair(100, kBaseSub));
  m_pairs.push_back(OdDbDxfPair{100, std::string_view(sub)});
  m_pairs.insert(m_pairs.end(), body.begin(), body.end());
}

OdString OdDbSymbolTableRecord::getName() const
{
  return getString(recordSub(), 2);
}

void OdDbSymbolTableRecord::setName(const OdString& name)
{
  setString(recordSub(), 2, name);
  if (OdDbSymbolTablePtr t = OdDbSymbolTable::cast(ownerId().openObject()); t.get())
    t->invalidateIndex();
}

void OdDbSymbolTableIterator::start(bool atBeginning, bool skipDeleted)
{
  m_skipDeleted = skipDeleted;
  m_pos = atBeginning ? 0 : int(m_ids.size()) - 1;
  skip(atBeginning, skipDeleted);
}

void OdDbSymbolTableIterator::skip(bool forward, bool skipDeleted)
{
  while (!done() && skipDeleted && (m_ids[std::size_t(m_pos)].isErased() || !m_ids[std::size_t(m_pos)].isValid()))
    m_pos += forward ? 1 : -1;
}

void OdDbSymbolTableIterator::step(bool forward, bool skipDeleted)
{
  m_pos += forward ? 1 : -1;
  skip(forward, skipDeleted);
}

OdDbSymbolTableRecordPtr OdDbSymbolTableIterator::getRecord(OdDb::OpenMode mode, bool openErased) const
{
  return OdDbSymbolTableRecord::cast(getRecordId().openObject(mode, openErased));
}

bool OdDbSymbolTableIterator::seek(OdDbObjectId id)
{
  for (std::size_t i = 0; i < m_ids.size(); ++i)
    if (m_ids[i] == id) {
      m_pos = int(i);
      return true;
    }
  return false;
}

OdDbSymbolTable::OdDbSymbolTable()
{
  initData("TABLE", {odPair(2, ""), odPair(100, kSub), odPair(70, "0")});
}

void OdDbSymbolTable::buildIndex() const
{
  m_index.clear();
  for (const OdDbObjectId& id : m_records) {
    OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(id.openObject(OdDb::kForRead, true));
    if (r.isNull())
      continue;
    const QString key = r->getName().qstring().toCaseFolded();
    // The first live record of a name wins over erased ones.
    auto it = m_index.find(key);
    if (it == m_index.end() || (it->isErased() && !id.isErased()))
      m_index.insert(key, id);
  }
  m_indexValid = true;
}

OdDbObjectId OdDbSymbolTable::getAt(const OdString& name, bool getErasedRecord) const
{
  if (!m_indexValid)
    buildIndex();
  auto it = m_index.constFind(name.qstring().toCaseFolded());
  if (it == m_index.constEnd() || (it->isErased() && !getErasedRecord))
    return OdDbObjectId();
  return *it;
}

OdDbSymbolTableRecordPtr OdDbSymbolTable::getAt(const OdString& name, OdDb::OpenMode mode, bool getErasedRecord) const
{
  return OdDbSymbolTableRecord::cast(getAt(name, getErasedRecord).openObject(mode, getErasedRecord));
}

bool OdDbSymbolTable::has(const OdDbObjectId& id) const
{
  return std::find(m_records.begin(), m_records.end(), id) != m_records.end() && !id.isErased();
}

OdDbObjectId OdDbSymbolTable::add(OdDbSymbolTableRecord* record)
{
  if (!record)
    throw OdError(eNullPtr, "null record");
  if (record->database())
    throw OdError(eInvalidInput, "the record is already in a database");
  const OdString name = record->getName();
  if (name.isEmpty())
    throw OdError(eInvalidInput, "a record needs a name");
  if (has(name))
    throw OdError(eInvalidInput, OdString("a record of that name exists: ") + name);
  OdDbDatabase* db = database();
  if (!db)
    throw OdError(eNullPtr, "the table is not in a database");
  const OdDbObjectId id = db->addOdDbObject(record, objectId());
  appendLoadedRecord(id);
  return id;
}

void OdDbSymbolTable::appendLoadedRecord(OdDbObjectId id)
{
  m_records.push_back(id);
  if (m_indexValid) {
    OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(id.openObject(OdDb::kForRead, true));
    const QString key = r.isNull() ? QString() : r->getName().qstring().toCaseFolded();
    // A live record takes the name over from an erased one (a record that
    // was undone and then made again).
    auto it = m_index.find(key);
    if (it == m_index.end() || (it->isErased() && !id.isErased()))
      m_index.insert(key, id);
  }
}

void OdDbSymbolTable::removeRecord(OdDbObjectId id)
{
  m_records.erase(std::remove(m_records.begin(), m_records.end(), id), m_records.end());
  m_indexValid = false;
}

OdDbSymbolTableIteratorPtr OdDbSymbolTable::newIterator(bool atBeginning, bool skipDeleted) const
{
  auto it = OdRxObjectImpl<OdDbSymbolTableIterator>::createObject();
  it->m_ids = m_records;
  it->start(atBeginning, skipDeleted);
  return it;
}

OdDbSymbolTableRecord* OdDbSymbolTable::newRecordForTable(const std::string& t)
{
  OdSmartPtr<OdDbSymbolTableRecord> r;
  if (t == "LAYER") r = OdDbLayerTableRecord::createObject();
  else if (t == "LTYPE") r = OdDbLinetypeTableRecord::createObject();
  else if (t == "STYLE") r = OdDbTextStyleTableRecord::createObject();
  else if (t == "DIMSTYLE") r = OdDbDimStyleTableRecord::createObject();
  else if (t == "BLOCK_RECORD") r = OdDbBlockTableRecord::createObject();
  else if (t == "APPID") r = OdDbRegAppTableRecord::createObject();
  else if (t == "VPORT") r = OdDbViewportTableRecord::createObject();
  else if (t == "VIEW") r = OdDbViewTableRecord::createObject();
  else if (t == "UCS") r = OdDbUCSTableRecord::createObject();
  else return nullptr;
  return r.detach();
}
