// Dynamic blocks: from the anonymous representation back to the definition.
#include "sdk/db/OdDbDynBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDictionary.h"

OdDbDynBlockReference::OdDbDynBlockReference(OdDbObjectId id) : m_ref(OdDbBlockReference::cast(id.openObject())) {}

OdDbDynBlockReference::OdDbDynBlockReference(const OdDbBlockReference* reference) : m_ref(reference) {}

OdDbObjectId OdDbDynBlockReference::representedBlock() const
{
  if (m_ref.isNull())
    return OdDbObjectId();
  OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::cast(m_ref->blockTableRecord().openObject());
  if (block.isNull() || !block->database())
    return OdDbObjectId();
  for (const OdDbDxfPair& p : block->xData("AcDbBlockRepBTag"))
    if (p.code == 1005) {
      const OdDbObjectId id = block->database()->getOdDbObjectId(OdDbHandle::fromText(p.value));
      if (OdDbBlockTableRecord::cast(id.openObject()).get())
        return id;
    }
  return OdDbObjectId();
}

bool OdDbDynBlockReference::isDynamicBlockDefinition(OdDbObjectId blockId)
{
  OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::cast(blockId.openObject());
  if (block.isNull())
    return false;
  if (!block->xData("AcDbDynamicBlockGUID").empty())
    return true;
  OdDbDictionaryPtr ext = OdDbDictionary::cast(block->extensionDictionary().openObject());
  return ext.get() && ext->has("ACAD_ENHANCEDBLOCK");
}

bool OdDbDynBlockReference::isDynamicBlock() const
{
  if (!representedBlock().isNull())
    return true;
  return !m_ref.isNull() && isDynamicBlockDefinition(m_ref->blockTableRecord());
}

OdDbObjectId OdDbDynBlockReference::dynamicBlockTableRecord() const
{
  const OdDbObjectId represented = representedBlock();
  if (!represented.isNull())
    return represented;
  return m_ref.isNull() ? OdDbObjectId() : m_ref->blockTableRecord();
}

OdDbObjectId OdDbDynBlockReference::anonymousBlockTableRecord() const
{
  return representedBlock().isNull() ? OdDbObjectId() : m_ref->blockTableRecord();
}
