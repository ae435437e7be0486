// Copying objects between drawings: the cloner, wblock and insert.
// An object is copied through its pairs: handles are mapped to the copies
// (made when first needed), names of records to the target's records, where
// a record of the same name in the target wins.
#include "sdk/db/OdDbCloner.h"
#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbRasterImage.h"

#include "sdk/kernel/OdRxClass.h"

#include <QFileInfo>
#include <unordered_map>

class OdDbCloner
{
public:
  OdDbCloner(OdDbDatabase* source, OdDbDatabase* target) : m_src(source), m_dst(target) {}

  // Copies an entity (with its sub-entities) into a block of the target.
  void copyEntityInto(const OdDbEntity* e, OdDbBlockTableRecord* owner)
  {
    OdDbObjectPtr copy = copyObject(e);
    if (copy.isNull())
      return;
    mapTo(e->objectId(), owner->appendOdDbEntity(OdDbEntity::cast(copy)));
    copySubIds(e, copy);
  }

  OdDbObjectId mapId(OdDbObjectId srcId, int code)
  {
    if (srcId.isNull() || !srcId.isValid())
      return OdDbObjectId();
    auto it = m_map.find(srcId.stub());
    if (it != m_map.end())
      return it->second;
    OdDbObjectPtr obj = srcId.openObject(OdDb::kForRead, true);
    if (OdDbSymbolTableRecordPtr rec = OdDbSymbolTableRecord::cast(obj); rec.get())
      return recordByName(rec->ownerId(), rec->getName());
    if (OdDbSymbolTablePtr table = OdDbSymbolTable::cast(obj); table.get())
      return m_dst->tableId(OdDxf::fromOdString(table->tableName()));
    if (OdDbRasterImageDefPtr def = OdDbRasterImageDef::cast(obj); def.get())
      return copyImageDef(def);
    if ((code >= 340 && code <= 349) || (code >= 360 && code <= 369)) {
      const OdDbObjectId named = mapNamedObject(obj);
      if (!named.isNull())
        return named;
    }
    // Owned or hard-referenced objects are copied; soft links to objects
    // that were not copied lead nowhere in the target.
    if ((code >= 340 && code <= 349) || (code >= 360 && code <= 369)) {
      OdDbObjectPtr copy = copyObject(obj);
      if (copy.isNull())
        return OdDbObjectId();
      const OdDbObjectId id = m_dst->addOdDbObject(copy);
      mapTo(srcId, id);
      return id;
    }
    return OdDbObjectId();
  }

  // The target's record of a table by name; copied from the source first
  // when the target has none.
  OdDbObjectId recordByName(OdDbObjectId srcTableId, const OdString& name)
  {
    OdDbSymbolTablePtr srcTable = OdDbSymbolTable::cast(srcTableId.openObject());
    if (srcTable.isNull() || name.isEmpty())
      return OdDbObjectId();
    const std::string tableName = OdDxf::fromOdString(srcTable->tableName());
    OdDbSymbolTablePtr dstTable = OdDbSymbolTable::cast(m_dst->tableId(tableName).openObject(OdDb::kForWrite));
    const OdDbObjectId srcRec = srcTable->getAt(name);
    if (dstTable.isNull())
      return OdDbObjectId();
    OdDbBlockTableRecordPtr srcBlock = OdDbBlockTableRecord::cast(srcRec.openObject());
    const bool anonymous = srcBlock.get() && srcBlock->isAnonymous() && !srcBlock->isLayout();
    if (!anonymous) {
      const OdDbObjectId existing = dstTable->getAt(name);
      if (!existing.isNull()) {
        if (!srcRec.isNull())
          mapTo(srcRec, existing);
        return existing;
      }
    }
    if (srcRec.isNull())
      return OdDbObjectId();
    auto done = m_map.find(srcRec.stub());
    if (done != m_map.end())
      return done->second;
    OdDbObjectPtr srcObj = srcRec.openObject();
    OdDbSymbolTableRecordPtr copy = OdDbSymbolTableRecord::cast(copyObject(srcObj));
    if (copy.isNull())
      return OdDbObjectId();
    OdString newName = name;
    if (anonymous) {
      // Anonymous blocks get a fresh name of their kind (*U, *D, ...).
      const OdString prefix = name.left(2);
      for (int k = 1; dstTable->has(newName); ++k)
        newName = prefix + OdString::formatted("%d", k);
    }
    OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::cast(copy);
    if (block.get()) {
      block->setString(OdDbBlockTableRecord::kSub, 2, newName);
      block->setLayoutId(OdDbObjectId());
      copyBlockFrame(srcBlock, block);
      block->setName(newName);
    } else {
      copy->setName(newName);
    }
    const OdDbObjectId id = dstTable->add(copy);
    mapTo(srcRec, id);
    if (block.get())
      for (const OdDbObjectId& eid : srcBlock->entityIds())
        if (OdDbEntityPtr e = OdDbEntity::cast(eid.openObject()); e.get())
          copyEntityInto(e, block);
    return id;
  }

  void mapTo(OdDbObjectId src, OdDbObjectId dst) { m_map[src.stub()] = dst; }

private:
  // Objects that an entry of the named object dictionary keeps (materials,
  // visual styles, multi-leader styles) are the target's of the same name
  // when it has one, and otherwise join its dictionary of that name: a
  // copy without an owner would be an orphan in the target.
  OdDbObjectId mapNamedObject(const OdDbObject* obj)
  {
    OdDbDictionaryPtr owner = OdDbDictionary::cast(obj->ownerId().openObject());
    OdDbDictionaryPtr root = OdDbDictionary::cast(m_src->getNamedObjectsDictionaryId().openObject());
    if (owner.isNull() || root.isNull() || owner->ownerId() != root->objectId())
      return OdDbObjectId();
    const OdString dictionary = root->nameAt(owner->objectId());
    const OdString entry = owner->nameAt(obj->objectId());
    if (dictionary.isEmpty() || entry.isEmpty())
      return OdDbObjectId();
    const std::string key = OdDxf::fromOdString(dictionary);
    OdDbDictionaryPtr target = OdDbDictionary::cast(m_dst->namedDictionary(key.c_str(), true).openObject(OdDb::kForWrite));
    if (target.isNull())
      return OdDbObjectId();
    OdDbObjectId id = target->getAt(entry);
    if (id.isNull()) {
      OdDbObjectPtr copy = copyObject(obj);
      if (copy.isNull())
        return OdDbObjectId();
      id = target->setAt(entry, copy);
      copy->addPersistentReactor(target->objectId());
    }
    mapTo(obj->objectId(), id);
    return id;
  }

  void copyBlockFrame(const OdDbBlockTableRecord* src, OdDbBlockTableRecord* dst)
  {
    OdDbEntityPtr begin = OdDbEntity::cast(copyObject(src->blockBegin()));
    OdDbEntityPtr end = OdDbEntity::cast(copyObject(src->blockEnd()));
    dst->setBlockBeginEnd(begin, end);
  }

  OdDbObjectId copyImageDef(const OdDbRasterImageDef* def)
  {
    OdDbDictionaryPtr srcDict = OdDbDictionary::cast(m_src->imageDictionaryId().openObject());
    OdString name = srcDict.isNull() ? OdString() : srcDict->nameAt(def->objectId());
    if (name.isEmpty())
      name = QFileInfo(def->sourceFileName().qstring().replace('\\', '/')).completeBaseName();
    OdDbDictionaryPtr dstDict = OdDbDictionary::cast(m_dst->imageDictionaryId(true).openObject(OdDb::kForWrite));
    OdDbRasterImageDefPtr existing = OdDbRasterImageDef::cast(dstDict->getAt(name).openObject());
    if (existing.get() && existing->sourceFileName() == def->sourceFileName()) {
      mapTo(def->objectId(), existing->objectId());
      return existing->objectId();
    }
    for (int k = 2; dstDict->has(name); ++k)
      name = name + OdString::formatted("_%d", k);
    OdDbObjectPtr copy = copyObject(def);
    const OdDbObjectId id = dstDict->setAt(name, copy);
    mapTo(def->objectId(), id);
    return id;
  }

  void copySubIds(const OdDbEntity* src, OdDbObjectPtr copy)
  {
    std::vector<OdDbObjectId> subs;
    src->ownedSubObjects(subs);
    if (subs.empty())
      return;
    OdDbSubEntities* list = nullptr;
    if (OdDbBlockReferencePtr ref = OdDbBlockReference::cast(copy); ref.get())
      list = &ref->subEntities();
    else if (OdDb2dPolylinePtr pl = OdDb2dPolyline::cast(copy); pl.get())
      list = &pl->subEntities();
    if (!list)
      return;
    for (std::size_t i = 0; i < subs.size(); ++i) {
      OdDbObjectPtr s = subs[i].openObject(OdDb::kForRead, true);
      if (s.isNull())
        continue;
      OdDbEntityPtr sc = OdDbEntity::cast(copyObject(s));
      const OdDbObjectId id = m_dst->addOdDbObject(sc, copy->objectId());
      mapTo(subs[i], id);
      if (i + 1 == subs.size() && s->dxfType() == "SEQEND")
        list->setSeqEnd(sc);
      else
        list->appendLoaded(sc);
    }
  }

  // A new object of the same class with the pairs mapped into the target.
  OdDbObjectPtr copyObject(const OdDbObject* src)
  {
    if (!src)
      return OdDbObjectPtr();
    OdDbObjectPtr copy = OdDbObject::cast(src->isA()->create());
    if (copy.isNull())
      return copy;
    OdDbDxfPairArray pairs;
    const OdDbDxfPairArray& in = src->dxfPairs();
    pairs.reserve(in.size());
    const OdDbStringArenaPtr& arena = m_dst->arena();
    std::string sub;
    bool inReactors = false;
    for (const OdDbDxfPair& p : in) {
      if (p.code == 100)
        sub = std::string(p.value);
      if (p.code == 102)
        inReactors = p.value == "{ACAD_REACTORS";
      std::string_view v = p.value;
      std::string mapped;
      if (OdDxf::isHandleRef(p.code)) {
        const OdDbObjectId target = mapId(m_src->getOdDbObjectId(OdDbHandle::fromText(v)), p.code);
        // A reactor that was not copied has nothing to react to here.
        if (target.isNull() && inReactors)
          continue;
        mapped = target.isNull() ? std::string("0") : target.getHandle().text();
        v = mapped;
      } else if (p.code == 1001) {
        m_dst->newRegApp(OdDxf::toOdString(v));
      } else {
        mapNameRef(sub, p.code, v, mapped);
      }
      pairs.push_back({p.code, arena->store(v)});
    }
    copy->setDxfData(src->dxfType(), std::move(pairs), arena);
    return copy;
  }

  // Names that stand for records: layer, linetype, text style, block, style.
  void mapNameRef(const std::string& sub, int code, std::string_view& v, std::string& out)
  {
    OdDbObjectId table;
    if (code == 8 && sub == "AcDbEntity")
      table = m_src->getLayerTableId();
    else if (code == 6 && (sub == "AcDbEntity" || sub == "AcDbLayerTableRecord"))
      table = m_src->getLinetypeTableId();
    else if (code == 7 && (sub == "AcDbText" || sub == "AcDbMText"))
      table = m_src->getTextStyleTableId();
    else if (code == 2 && (sub == "AcDbBlockReference" || sub == "AcDbDimension"))
      table = m_src->getBlockTableId();
    else if (code == 3 && sub == "AcDbDimension")
      table = m_src->getDimStyleTableId();
    else
      return;
    const OdDbObjectId id = recordByName(table, OdDxf::toOdString(v));
    OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(id.openObject());
    if (r.get()) {
      out = OdDxf::fromOdString(r->getName());
      v = out;
    }
  }

  OdDbDatabase* m_src;
  OdDbDatabase* m_dst;
  std::unordered_map<OdDbStub*, OdDbObjectId> m_map;
};

void odDbCopyEntities(OdDbDatabase* src, OdDbDatabase* dst, const std::vector<OdDbObjectId>& ids, OdDbBlockTableRecord* into)
{
  OdDbCloner cloner(src, dst);
  for (const OdDbObjectId& id : ids)
    if (OdDbEntityPtr e = OdDbEntity::cast(id.openObject()); e.get())
      cloner.copyEntityInto(e, into);
}

OdDbDatabasePtr OdDbDatabase::wblock(OdDbObjectId blockId) const
{
  OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::cast(blockId.openObject());
  if (block.isNull())
    throw OdError(eInvalidInput, "wblock needs a block definition");
  OdDbDatabasePtr out = odDbCreateDatabase();
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(out->getModelSpaceId().openObject(OdDb::kForWrite));
  odDbCopyEntities(const_cast<OdDbDatabase*>(this), out, block->entityIds(), ms);
  out->setINSBASE(block->origin());
  out->setINSUNITS(getINSUNITS());
  return out;
}

OdDbDatabasePtr OdDbDatabase::wblock(const OdArray<OdDbObjectId>& objectIds, const OdGePoint3d& basePoint) const
{
  OdDbDatabasePtr out = odDbCreateDatabase();
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(out->getModelSpaceId().openObject(OdDb::kForWrite));
  odDbCopyEntities(const_cast<OdDbDatabase*>(this), out, std::vector<OdDbObjectId>(objectIds.begin(), objectIds.end()), ms);
  out->setINSBASE(basePoint);
  out->setINSUNITS(getINSUNITS());
  return out;
}

OdDbObjectId OdDbDatabase::insert(const OdString& blockName, OdDbDatabase* source, bool preserveSourceDatabase)
{
  (void)preserveSourceDatabase; // the source is only read, always
  if (!source)
    throw OdError(eNullPtr, "no source drawing");
  if (source == this)
    throw OdError(eInvalidInput, "a drawing cannot be inserted into itself");
  OdDbSymbolTablePtr blocks = OdDbSymbolTable::cast(getBlockTableId().openObject(OdDb::kForWrite));
  if (blocks.isNull())
    throw OdError(eNullPtr, "the drawing has no block table");
  const OdDbObjectId existing = blocks->getAt(blockName);
  if (!existing.isNull())
    return existing;
  OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::createObject();
  block->setName(blockName);
  const OdDbObjectId id = blocks->add(block);
  block->setOrigin(source->getINSBASE());
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(source->getModelSpaceId().openObject());
  if (ms.get())
    odDbCopyEntities(source, this, ms->entityIds(), block);
  return id;
}

