// Symbol tables (layers, linetypes, styles, blocks, ...) and their records.
#pragma once

#include "sdk/db/OdDbIdIterator.h"
#include "sdk/db/OdDbObject.h"

#include <QHash>
#include <vector>

// A named record of a table. A new record (createObject) lives outside any
// drawing until OdDbSymbolTable::add puts it in.
class OdDbSymbolTableRecord : public OdDbObject
{
  ODRX_DECLARE_MEMBERS(OdDbSymbolTableRecord);

public:
  static constexpr const char* kBaseSub = "AcDbSymbolTableRecord";

  OdString getName() const;
  virtual void setName(const OdString& name);
  // Standard flags (code 70): 16 dependent on an external reference, 32 resolved.
  bool isDependent() const { return (flags() & 16) != 0; }
  bool isResolved() const { return (flags() & 32) != 0; }
  // The subclass marker of the record's own data ("AcDbLayerTableRecord").
  virtual const char* recordSub() const { return nullptr; }

protected:
  OdDbSymbolTableRecord() = default;
  virtual int flags() const { return int(getInt(recordSub(), 70, 0)); }
  void initRecord(const char* type, const char* sub, std::initializer_list<OdDbDxfPair> body);
};
using OdDbSymbolTableRecordPtr = OdSmartPtr<OdDbSymbolTableRecord>;

// Walks the records of a table in their order.
class OdDbSymbolTableIterator : public OdDbIdIterator
{
public:
  OdDbObjectId getRecordId() const { return currentId(); }
  OdDbSymbolTableRecordPtr getRecord(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const
  {
    return OdDbSymbolTableRecord::cast(currentId().openObject(mode, openErased));
  }
};
using OdDbSymbolTableIteratorPtr = OdSmartPtr<OdDbSymbolTableIterator>;

class OdDbSymbolTable : public OdDbObject
{
  ODRX_DECLARE_MEMBERS(OdDbSymbolTable);

public:
  static constexpr const char* kSub = "AcDbSymbolTable";

  // The record of that name (compared ignoring case), or null.
  OdDbObjectId getAt(const OdString& name, bool getErasedRecord = false) const;
  OdDbSymbolTableRecordPtr getAt(const OdString& name, OdDb::OpenMode mode, bool getErasedRecord = false) const;
  bool has(const OdString& name) const { return !getAt(name).isNull(); }
  bool has(const OdDbObjectId& id) const;
  // Adds a record to the table and the database; throws OdError when the
  // name is empty or taken, or the record is already in a database.
  OdDbObjectId add(OdDbSymbolTableRecord* record);
  OdDbSymbolTableIteratorPtr newIterator(bool atBeginning = true, bool skipDeleted = true) const;

  OdString tableName() const { return getString(nullptr, 2); }
  // Records in their order; erased ones included.
  const std::vector<OdDbObjectId>& recordIds() const { return m_records; }
  // For readers: takes a record that is already in the database.
  void appendLoadedRecord(OdDbObjectId id);
  void removeRecord(OdDbObjectId id);
  void invalidateIndex() { m_indexValid = false; }
  // The class of record this table holds, for creating one by table name.
  static OdDbSymbolTableRecord* newRecordForTable(const std::string& tableName);

protected:
  OdDbSymbolTable();

private:
  void buildIndex() const;

  std::vector<OdDbObjectId> m_records;
  // Case-folded name to record; rebuilt after a rename or removal.
  mutable QHash<QString, OdDbObjectId> m_index;
  mutable bool m_indexValid = false;
};
using OdDbSymbolTablePtr = OdSmartPtr<OdDbSymbolTable>;

#define ODDB_DECLARE_TABLE(Name)             \
  class Name : public OdDbSymbolTable        \
  {                                          \
    ODRX_DECLARE_MEMBERS(Name);              \
  };                                         \
  using Name##Ptr = OdSmartPtr<Name>;

ODDB_DECLARE_TABLE(OdDbBlockTable)
ODDB_DECLARE_TABLE(OdDbLayerTable)
ODDB_DECLARE_TABLE(OdDbLinetypeTable)
ODDB_DECLARE_TABLE(OdDbTextStyleTable)
ODDB_DECLARE_TABLE(OdDbDimStyleTable)
ODDB_DECLARE_TABLE(OdDbRegAppTable)
ODDB_DECLARE_TABLE(OdDbViewportTable)
ODDB_DECLARE_TABLE(OdDbViewTable)
ODDB_DECLARE_TABLE(OdDbUCSTable)

// Records that this SDK keeps but does not interpret beyond their name.
#define ODDB_DECLARE_PLAIN_RECORD(Name)                           \
  class Name : public OdDbSymbolTableRecord                       \
  {                                                               \
    ODRX_DECLARE_MEMBERS(Name);                                   \
                                                                  \
  public:                                                         \
    const char* recordSub() const override;                       \
                                                                  \
  protected:                                                      \
    Name();                                                       \
  };                                                              \
  using Name##Ptr = OdSmartPtr<Name>;

ODDB_DECLARE_PLAIN_RECORD(OdDbRegAppTableRecord)
ODDB_DECLARE_PLAIN_RECORD(OdDbViewportTableRecord)
ODDB_DECLARE_PLAIN_RECORD(OdDbViewTableRecord)
ODDB_DECLARE_PLAIN_RECORD(OdDbUCSTableRecord)
