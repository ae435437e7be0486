// General entity properties kept in the AcDbEntity section.
#include "sdk/db/OdDbEntity.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbSymbolTable.h"

#include "sdk/kernel/OdRxClass.h"

ODRX_DEFINE_MEMBERS(OdDbEntity, OdDbObject, ODRX_CREATE_IMPL(OdDbEntity, OdDbEntity))
ODRX_NO_CONS_DEFINE_MEMBERS(OdDbCurve, OdDbEntity)

OdDbEntity::OdDbEntity()
{
  static const OdDbDxfPair defaults[] = {odPair(100, kSub), odPair(8, "0")};
  initData("ENTITY", defaults);
}

OdCmColor OdDbEntity::color() const
{
  return colorOf(kSub, std::int16_t(getInt(kSub, 62, 256)));
}

void OdDbEntity::setColor(const OdCmColor& c)
{
  // By layer is the default and is written as nothing at all.
  if (c.isByLayer() && !c.isByColor()) {
    removeCode(kSub, 420);
    removeCode(kSub, 430);
    removeCode(kSub, 62);
    return;
  }
  setColorCodes(kSub, c.colorIndex(), c);
}

void OdDbEntity::setColorIndex(std::int16_t index)
{
  OdCmColor c;
  c.setColorIndex(index);
  setColor(c);
}

OdDbObjectId OdDbEntity::layerId() const
{
  OdDbDatabase* db = database();
  return db ? db->recordId(db->getLayerTableId(), layer()) : OdDbObjectId();
}

void OdDbEntity::setLayer(OdDbObjectId id)
{
  OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(id.openObject());
  if (r.get())
    setLayer(r->getName());
}

// "ByLayer" is the default, kept as the absence of code 6.
void OdDbEntity::setLinetype(const OdString& name)
{
  if (name.iCompare("ByLayer") == 0)
    removeCode(kSub, 6);
  else
    setString(kSub, 6, name);
}

OdDbObjectId OdDbEntity::linetypeId() const
{
  OdDbDatabase* db = database();
  return db ? db->recordId(db->getLinetypeTableId(), linetype()) : OdDbObjectId();
}

void OdDbEntity::setLinetype(OdDbObjectId id)
{
  OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(id.openObject());
  if (r.get())
    setLinetype(r->getName());
}

OdCmTransparency OdDbEntity::transparency() const
{
  OdCmTransparency t;
  t.serializeIn(std::uint32_t(getInt(kSub, 440, 0)));
  return t;
}

void OdDbEntity::setTransparency(const OdCmTransparency& t)
{
  if (t.isByLayer())
    removeCode(kSub, 440);
  else
    setInt(kSub, 440, t.serializeOut());
}

void OdDbEntity::setPropertiesFrom(const OdDbEntity* other)
{
  if (!other)
    return;
  setColor(other->color());
  setLayer(other->layer());
  setLinetype(other->linetype());
  setLinetypeScale(other->linetypeScale());
  setLineWeight(other->lineWeight());
  setTransparency(other->transparency());
}

void OdDbEntity::setDatabaseDefaults(OdDbDatabase* db)
{
  if (!db)
    db = database();
  if (!db)
    return;
  setColor(db->getCECOLOR());
  setLayer(db->getHeaderString("$CLAYER", "0"));
  setLinetype(db->getHeaderString("$CELTYPE", "ByLayer"));
  const double s = db->getCELTSCALE();
  if (s != 1.0)
    setLinetypeScale(s);
  if (db->getCELWEIGHT() != OdDb::kLnWtByLayer)
    setLineWeight(db->getCELWEIGHT());
  setTransparency(db->getCETRANSPARENCY());
}
