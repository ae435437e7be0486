// Block references and dimensions: definitions and styles found by name.
#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"

#include "sdk/kernel/OdRxClass.h"

#include <cmath>

ODRX_DEFINE_MEMBERS(OdDbBlockReference, OdDbEntity, ODRX_CREATE_IMPL(OdDbBlockReference, OdDbBlockReference))
ODRX_DEFINE_MEMBERS(OdDbDimension, OdDbEntity, ODRX_CREATE_IMPL(OdDbDimension, OdDbDimension))

namespace {
OdString recordName(OdDbObjectId id)
{
  OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(id.openObject());
  if (r.isNull())
    throw OdError(eInvalidInput, "not a table record");
  return r->getName();
}
} // namespace

OdDbBlockReference::OdDbBlockReference()
{
  initData("INSERT", {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, kSub), odPair(2, ""), odPair(10, "0.0"),
                      odPair(20, "0.0"), odPair(30, "0.0")});
}

OdDbObjectId OdDbBlockReference::blockTableRecord() const
{
  OdDbDatabase* db = database();
  return db ? db->recordId(db->getBlockTableId(), blockName()) : OdDbObjectId();
}

void OdDbBlockReference::setBlockTableRecord(OdDbObjectId id)
{
  setString(kSub, 2, recordName(id));
}

OdGeScale3d OdDbBlockReference::scaleFactors() const
{
  return OdGeScale3d(getDouble(kSub, 41, 1.0), getDouble(kSub, 42, 1.0), getDouble(kSub, 43, 1.0));
}

void OdDbBlockReference::setScaleFactors(const OdGeScale3d& s)
{
  setDouble(kSub, 41, s.sx);
  setDouble(kSub, 42, s.sy);
  setDouble(kSub, 43, s.sz);
}

double OdDbBlockReference::rotation() const { return getDouble(kSub, 50, 0.0) * M_PI / 180.0; }
void OdDbBlockReference::setRotation(double a) { setDouble(kSub, 50, a * 180.0 / M_PI); }

OdDbObjectId OdDbBlockReference::appendAttribute(OdDbAttribute* attribute)
{
  // Code 66 tells readers that attributes and a SEQEND follow.
  if (findPair(kSub, 66) < 0) {
    assertWriteEnabled();
    const int at = findPair(kSub, 2);
    m_pairs.insert(m_pairs.begin() + (at < 0 ? ensureSection(kSub) : at), OdDbDxfPair{66, "1"});
  }
  if (attribute && attribute->layer() == "0")
    attribute->setLayer(layer());
  return m_attributes.append(this, attribute);
}

OdDbObjectIteratorPtr OdDbBlockReference::attributeIterator() const
{
  auto it = OdRxObjectImpl<OdDbObjectIterator>::createObject();
  it->m_ids = m_attributes.ids();
  it->start();
  return it;
}

OdResult OdDbBlockReference::erase(bool erasing)
{
  const OdResult r = OdDbObject::erase(erasing);
  if (r != eOk)
    return r;
  std::vector<OdDbObjectId> ids;
  m_attributes.collect(ids);
  for (const OdDbObjectId& id : ids)
    if (OdDbObjectPtr o = id.openObject(OdDb::kForWrite, true); o.get())
      o->erase(erasing);
  return eOk;
}

OdDbDimension::OdDbDimension()
{
  initData("DIMENSION", {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, kSub), odPair(2, ""), odPair(10, "0.0"),
                         odPair(20, "0.0"), odPair(30, "0.0"), odPair(11, "0.0"), odPair(21, "0.0"), odPair(31, "0.0"),
                         odPair(70, "32"), odPair(3, "Standard")});
}

OdDbObjectId OdDbDimension::dimBlockId() const
{
  OdDbDatabase* db = database();
  return db ? db->recordId(db->getBlockTableId(), dimBlockName()) : OdDbObjectId();
}

void OdDbDimension::setDimBlockId(OdDbObjectId id) { setString(kSub, 2, recordName(id)); }

OdDbObjectId OdDbDimension::dimensionStyle() const
{
  OdDbDatabase* db = database();
  return db ? db->recordId(db->getDimStyleTableId(), getString(kSub, 3, "Standard")) : OdDbObjectId();
}

void OdDbDimension::setDimensionStyle(OdDbObjectId id) { setString(kSub, 3, recordName(id)); }
