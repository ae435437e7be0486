// The plain snapshot, and how the snapshots' records come into a drawing.
#include "properties/OdTcSymbolTableRecord.h"

#include "sdk/kernel/OdRxClass.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcSymbolTableRecord, OdTcPersist, return OdRxObjectPtr(OdTcSymbolTableRecordImpl::createNew());)

OdTcSymbolTableRecordPtr OdTcSymbolTableRecordImpl::createNew()
{
  return OdRxObjectImpl<OdTcSymbolTableRecordImpl, OdTcSymbolTableRecord>::createObject();
}

OdRxObjectPtr OdTcSymbolTableRecordImpl::clone() const
{
  return tcCloneAs<OdTcSymbolTableRecordImpl, OdTcSymbolTableRecord>(this);
}

OdDbObjectId tcFindOrCreateRecord(OdDbDatabase* target, OdDbObjectId tableId, const OdString& name,
                                  const OdTcSymbolTableRecord* snapshot)
{
  OdDbSymbolTablePtr table = OdDbSymbolTable::cast(tableId.openObject());
  if (table.isNull())
    throw OdError_NotThatKindOfClass();
  const OdString wanted = name.isEmpty() && snapshot ? snapshot->name() : name;
  if (!wanted.isEmpty()) {
    const OdDbObjectId existing = table->getAt(wanted);
    if (!existing.isNull())
      return existing;
  }
  if (!snapshot)
    return OdDbObjectId();
  OdDbSymbolTableRecordPtr record = snapshot->createDbRecord(target);
  if (record.isNull())
    return OdDbObjectId();
  if (!wanted.isEmpty())
    record->setName(wanted);
  if (record->getName().isEmpty() || table->has(record->getName()))
    return OdDbObjectId();
  table->upgradeOpen();
  const OdDbObjectId id = table->add(record);
  table->downgradeOpen();
  snapshot->completeDbRecord(record);
  return id;
}

} // namespace tc
