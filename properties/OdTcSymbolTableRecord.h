// OdTcSymbolTableRecord: the snapshot of a drawing's table record (layer,
// linetype, text style, dimension style), taken from one drawing and made
// again in another.
#pragma once

#include "properties/TcDelivered.h"

#include "model/OdTcPersistImpl.h"

#include "sdk/db/OdDbSymbolTable.h"

namespace tc {

class OdTcSymbolTableRecord : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcSymbolTableRecord);

public:
  virtual OdString name() const = 0;
  virtual void setName(const OdString& name) = 0;
  // A new record, in no table yet, filled from the snapshot. What it names
  // in other tables (a layer's linetype, a linetype's text styles) is found
  // or made in `target` already. Null when the snapshot cannot make one.
  virtual OdDbSymbolTableRecordPtr createDbRecord(OdDbDatabase* target) const = 0;
  // What needs the record to stand in its table first (a dimension style's
  // arrow blocks, text style and linetypes).
  virtual void completeDbRecord(OdDbSymbolTableRecord* record) const = 0;
  // Fills the snapshot from the record of that id; false when the id is no
  // record of the kind.
  virtual bool captureDbRecord(OdDbObjectId id) = 0;
};
using OdTcSymbolTableRecordPtr = OdSmartPtr<OdTcSymbolTableRecord>;

template <class I>
class OdTcSymbolTableRecordImplBase : public OdTcPersistImpl<I>
{
public:
  OdString name() const override { return m_name; }
  void setName(const OdString& name) override { m_name = name; }
  OdString displayName() const override { return m_name; }
  OdDbSymbolTableRecordPtr createDbRecord(OdDbDatabase*) const override { return OdDbSymbolTableRecordPtr(); }
  void completeDbRecord(OdDbSymbolTableRecord*) const override {}
  bool captureDbRecord(OdDbObjectId) override { return false; }

  bool setValue(const OdString& name, const OdVariant& value) override
  {
    if (name != "SymbolTableNameRecord")
      return false;
    m_name = value.getString();
    return true;
  }
  void copyFrom(const OdRxObject* source) override
  {
    OdTcPersistImpl<I>::copyFrom(source);
    if (auto* src = dynamic_cast<const OdTcSymbolTableRecordImplBase*>(source))
      m_name = src->m_name;
  }

protected:
  OdString m_name;
};

// The plain snapshot: a name and nothing to make; what the class
// description makes.
class OdTcSymbolTableRecordImpl : public OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>
{
public:
  static OdTcSymbolTableRecordPtr createNew();
  OdRxObjectPtr clone() const override;
};

// The record of the snapshot's name in the target's table if there is one,
// which wins whatever its settings; otherwise a record made from the
// snapshot, added and completed. Null when neither stands.
OdDbObjectId tcFindOrCreateRecord(OdDbDatabase* target, OdDbObjectId tableId, const OdString& name,
                                  const OdTcSymbolTableRecord* snapshot);

} // namespace tc
