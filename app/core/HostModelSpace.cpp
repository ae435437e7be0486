// New entities in model space with the current properties.
#include "app/core/HostModelSpace.h"

#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"

namespace HostModelSpace {

void applyCurrentProperties(OdDbDatabase* db, OdDbEntity* entity)
{
  if (!db || !entity)
    return;
  entity->setDatabaseDefaults(db);
  // By id, so that a current layer or linetype the drawing lacks falls
  // back to "0" and "ByLayer" as the drawing's getters do.
  entity->setLayer(db->getCLAYER());
  entity->setLinetype(db->getCELTYPE());
  // Named plot styles: the entity points at its style; colour-dependent
  // ones ($PSTYLEMODE 1, the default) have nothing to point at.
  if (db->getHeaderInt("$PSTYLEMODE", 1) == 0 && db->getCEPSNTYPE() == OdDb::kPlotStyleNameById) {
    const OdString handle = db->getHeaderString("$CEPSNID");
    if (!db->getOdDbObjectId(OdDbHandle(handle)).isNull())
      entity->setString(OdDbEntity::kSub, 390, handle);
  }
}

OdDbObjectId addEntity(OdDbDatabase* db, OdDbEntity* entity)
{
  if (!db || !entity)
    throw OdError(eNullPtr, "no drawing to add the object to");
  applyCurrentProperties(db, entity);
  OdDbBlockTableRecordPtr modelSpace = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite));
  if (modelSpace.isNull())
    throw OdError(eNullPtr, "the drawing has no model space");
  return modelSpace->appendOdDbEntity(entity);
}

bool eraseEntity(const OdDbObjectId& id)
{
  OdDbObjectPtr object = id.openObject(OdDb::kForWrite);
  if (object.isNull())
    return false;
  return object->erase(true) == eOk;
}

} // namespace HostModelSpace
