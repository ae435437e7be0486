// What every drawing holds: created for new drawings, and added to drawings
// read from files of versions that lack it (before layouts, or without
// handles), so that what is written is a complete drawing of today.
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLayout.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"

namespace {

OdDbSymbolTable* newTable(const std::string& name)
{
  OdSmartPtr<OdDbSymbolTable> t;
  if (name == "BLOCK_RECORD") t = OdDbBlockTable::createObject();
  else if (name == "LAYER") t = OdDbLayerTable::createObject();
  else if (name == "LTYPE") t = OdDbLinetypeTable::createObject();
  else if (name == "STYLE") t = OdDbTextStyleTable::createObject();
  else if (name == "DIMSTYLE") t = OdDbDimStyleTable::createObject();
  else if (name == "APPID") t = OdDbRegAppTable::createObject();
  else if (name == "VPORT") t = OdDbViewportTable::createObject();
  else if (name == "VIEW") t = OdDbViewTable::createObject();
  else t = OdDbUCSTable::createObject();
  t->setString(nullptr, 2, OdString(name));
  if (name == "DIMSTYLE")
    t->dxfPairs().push_back(odPair(100, "AcDbDimStyleTable"));
  return t.detach();
}

template <class Rec>
OdSmartPtr<Rec> addRecord(OdDbDatabase* db, OdDbObjectId tableId, const char* name)
{
  OdDbSymbolTablePtr t = OdDbSymbolTable::cast(tableId.openObject(OdDb::kForWrite));
  if (t.isNull() || t->has(name))
    return OdSmartPtr<Rec>();
  OdSmartPtr<Rec> r = Rec::createObject();
  r->setName(name);
  t->add(r);
  return r;
}

} // namespace

void OdDbDatabase::initialize()
{
  for (const std::string& name : tableOrder()) {
    if (!tableId(name).isNull())
      continue;
    OdSmartPtr<OdDbSymbolTable> t(newTable(name), kOdRxObjAttach);
    setTableId(name, addOdDbObject(t));
  }
  addRecord<OdDbRegAppTableRecord>(this, getRegAppTableId(), "ACAD");
  if (auto vp = addRecord<OdDbViewportTableRecord>(this, getViewportTableId(), "*Active"); vp.get()) {
    // The view of a new drawing: the usual 12 by 9 at the origin.
    const char* sub = "AcDbViewportTableRecord";
    vp->setPoint(sub, 10, OdGePoint3d(0, 0, 0));
    vp->setPoint(sub, 11, OdGePoint3d(1, 1, 0));
    vp->setPoint(sub, 12, OdGePoint3d(6, 4.5, 0));
    vp->setDouble(sub, 40, 9.0);
    vp->setDouble(sub, 41, 12.0 / 9.0);
  }
  if (auto l = addRecord<OdDbLinetypeTableRecord>(this, getLinetypeTableId(), "ByBlock"); l.get())
    (void)l;
  if (auto l = addRecord<OdDbLinetypeTableRecord>(this, getLinetypeTableId(), "ByLayer"); l.get())
    (void)l;
  if (auto l = addRecord<OdDbLinetypeTableRecord>(this, getLinetypeTableId(), "Continuous"); l.get())
    l->setComments("Solid line");
  addRecord<OdDbLayerTableRecord>(this, getLayerTableId(), "0");
  if (auto s = addRecord<OdDbTextStyleTableRecord>(this, getTextStyleTableId(), "Standard"); s.get())
    s->setFileName("txt");
  addRecord<OdDbDimStyleTableRecord>(this, getDimStyleTableId(), "Standard");
  addRecord<OdDbBlockTableRecord>(this, getBlockTableId(), "*Model_Space");
  addRecord<OdDbBlockTableRecord>(this, getBlockTableId(), "*Paper_Space");

  if (!m_rootDictionary.isValid()) {
    OdDbDictionaryPtr root = OdDbDictionary::createObject();
    m_rootDictionary = addOdDbObject(root);
    // The named object dictionary comes first in the OBJECTS section.
    m_objects.erase(std::remove(m_objects.begin(), m_objects.end(), m_rootDictionary), m_objects.end());
    m_objects.insert(m_objects.begin(), m_rootDictionary);
  }
  namedDictionary("ACAD_GROUP", true);
  if (OdDbDictionaryPtr ps = OdDbDictionary::cast(plotStyleNameDictionaryId(true).openObject(OdDb::kForWrite));
      ps.get() && !ps->has("Normal")) {
    OdDbObjectPtr placeholder = OdDbObject::createObject();
    placeholder->setDxfData("ACDBPLACEHOLDER", {}, nullptr);
    ps->setAt("Normal", placeholder);
  }
  addLayouts();
  if (!headerVar("$ACADVER"))
    setHeaderString("$ACADVER", 1, "AC1032");
  if (!headerVar("$INSBASE"))
    setINSBASE(OdGePoint3d());
}

void OdDbDatabase::addLayouts()
{
  OdDbDictionaryPtr layouts = OdDbDictionary::cast(namedDictionary("ACAD_LAYOUT", true).openObject(OdDb::kForWrite));
  if (layouts.isNull())
    return;
  // Layouts whose block is missing (some writers of old files make them)
  // lead nowhere: they go, and the spaces get layouts of their own below.
  for (const auto& [name, id] : layouts->entries()) {
    OdDbLayoutPtr layout = OdDbLayout::cast(id.openObject(OdDb::kForWrite));
    if (layout.get() && OdDbBlockTableRecord::cast(layout->getBlockTableRecordId().openObject()).isNull()) {
      layouts->remove(name);
      layout->erase();
    }
  }
  const struct { OdDbObjectId block; const char* name; int tab; } spaces[] = {
      {getModelSpaceId(), "Model", 0}, {getPaperSpaceId(), "Layout1", 1}};
  for (const auto& s : spaces) {
    OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::cast(s.block.openObject(OdDb::kForWrite));
    if (block.isNull())
      continue;
    OdDbLayoutPtr existing = OdDbLayout::cast(block->getLayoutId().openObject());
    if (existing.get())
      continue;
    OdString name = s.name;
    for (int k = 2; layouts->has(name); ++k)
      name = OdString::formatted("Layout%d", k);
    OdDbLayoutPtr layout = OdDbLayout::createObject();
    layout->setLayoutName(name);
    layout->setTabOrder(s.tab);
    if (s.tab == 0) {
      layout->setInt(OdDbLayout::kPlotSub, 70, 1712);
      layout->setString(OdDbLayout::kPlotSub, 1, "");
    }
    const OdDbObjectId id = layouts->setAt(name, layout);
    layout->setBlockTableRecordId(block->objectId());
    block->setLayoutId(id);
  }
}
