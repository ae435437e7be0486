// Layer records: colour sign for off, plot style through its dictionary.
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDictionary.h"

#include "sdk/kernel/OdRxClass.h"

ODRX_DEFINE_MEMBERS(OdDbLayerTableRecord, OdDbSymbolTableRecord, ODRX_CREATE_IMPL(OdDbLayerTableRecord, OdDbLayerTableRecord))

OdDbLayerTableRecord::OdDbLayerTableRecord()
{
  initRecord("LAYER", kSub, {odPair(2, ""), odPair(70, "0"), odPair(62, "7"), odPair(6, "Continuous"), odPair(370, "-3")});
}

OdCmColor OdDbLayerTableRecord::color() const
{
  long long aci = getInt(kSub, 62, 7);
  if (aci < -255 || aci > 256)
    aci = 7; // nonsense from a damaged file
  return colorOf(kSub, std::int16_t(aci < 0 ? -aci : aci));
}

void OdDbLayerTableRecord::setColor(const OdCmColor& c)
{
  // The sign of the index carries on/off, so the state survives a new colour.
  int aci = c.colorIndex();
  if (aci <= 0 || aci > 255)
    aci = 7; // a layer has a real colour
  setColorCodes(kSub, isOff() ? -aci : aci, c);
}

void OdDbLayerTableRecord::setIsOff(bool off)
{
  long long aci = getInt(kSub, 62, 7);
  if (aci < 0)
    aci = -aci;
  if (aci == 0 || aci > 255)
    aci = 7;
  setInt(kSub, 62, off ? -aci : aci);
}

OdDbObjectId OdDbLayerTableRecord::linetypeObjectId() const
{
  OdDbDatabase* db = database();
  return db ? db->recordId(db->getLinetypeTableId(), linetypeName()) : OdDbObjectId();
}

void OdDbLayerTableRecord::setLinetypeObjectId(OdDbObjectId id)
{
  OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(id.openObject());
  if (r.get())
    setString(kSub, 6, r->getName());
}

// Code 390 points at a placeholder object; its key in ACAD_PLOTSTYLENAME is
// the name.
OdString OdDbLayerTableRecord::plotStyleName() const
{
  OdDbDatabase* db = database();
  const OdDbObjectId id = getId(kSub, 390);
  if (!db || id.isNull())
    return OdString();
  OdDbDictionaryPtr dict = OdDbDictionary::cast(db->plotStyleNameDictionaryId().openObject());
  return dict.isNull() ? OdString() : dict->nameAt(id);
}

OdResult OdDbLayerTableRecord::setPlotStyleName(const OdString& name)
{
  OdDbDatabase* db = database();
  if (!db)
    return eNullPtr;
  OdDbDictionaryPtr dict = OdDbDictionary::cast(db->plotStyleNameDictionaryId(true).openObject(OdDb::kForWrite));
  if (dict.isNull())
    return eNullPtr;
  OdDbObjectId id = dict->getAt(name);
  if (id.isNull()) {
    OdDbObjectPtr placeholder = OdDbObject::createObject();
    placeholder->setDxfData("ACDBPLACEHOLDER", {}, nullptr);
    id = dict->setAt(name, placeholder);
  }
  setId(kSub, 390, id);
  return eOk;
}

// Layers have no code for transparency: drawing programs keep it as
// extended data of "AcCmTransparency", and so do we.
OdCmTransparency OdDbLayerTableRecord::transparency() const
{
  OdCmTransparency t;
  for (const OdDbDxfPair& p : xData("AcCmTransparency"))
    if (p.code == 1071)
      t.serializeIn(std::uint32_t(OdDxf::toInt(p.value)));
  return t;
}

void OdDbLayerTableRecord::setTransparency(const OdCmTransparency& t)
{
  if (t.isByLayer()) {
    setXData("AcCmTransparency", {});
    return;
  }
  const std::string v = OdDxf::fromInt(t.serializeOut());
  setXData("AcCmTransparency", {OdDbDxfPair{1071, v}});
}

OdString OdDbLayerTableRecord::description() const
{
  const OdDbDxfPairArray x = xData("AcAecLayerStandard");
  return x.size() >= 2 ? OdDxf::toOdString(x[1].value) : OdString();
}

void OdDbLayerTableRecord::setDescription(const OdString& text)
{
  const std::string v = OdDxf::fromOdString(text);
  setXData("AcAecLayerStandard", text.isEmpty() ? OdDbDxfPairArray{} : OdDbDxfPairArray{{1000, ""}, {1000, v}});
}
