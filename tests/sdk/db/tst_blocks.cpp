// Block definitions, and carrying them between drawings with wblock and
// insert: the records they use come along, the target's own records win.
#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbText.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"

#include <gtest/gtest.h>

namespace {

OdDbObjectId addRecord(OdDbObjectId tableId, OdDbSymbolTableRecord* rec, const OdString& name)
{
  rec->setName(name);
  return OdDbSymbolTable::cast(tableId.openObject(OdDb::kForWrite))->add(rec);
}

// A drawing with block "DOOR": a line on layer "Doors" (red, linetype
// "Hidden"), a text in style "Labels", and a nested block "HINGE".
OdDbDatabasePtr sourceDrawing()
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbLinetypeTableRecordPtr lt = OdDbLinetypeTableRecord::createObject();
  addRecord(db->getLinetypeTableId(), lt, "Hidden");
  lt->setNumDashes(2);
  lt->setDashLengthAt(0, 0.25);
  lt->setDashLengthAt(1, -0.125);
  OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
  addRecord(db->getLayerTableId(), layer, "Doors");
  OdCmColor red;
  red.setColorIndex(1);
  layer->setColor(red);
  layer->setLinetypeObjectId(lt->objectId());
  OdDbTextStyleTableRecordPtr style = OdDbTextStyleTableRecord::createObject();
  addRecord(db->getTextStyleTableId(), style, "Labels");
  style->setFileName("romans.shx");

  OdDbBlockTableRecordPtr hinge = OdDbBlockTableRecord::createObject();
  addRecord(db->getBlockTableId(), hinge, "HINGE");
  OdDbCirclePtr c = OdDbCircle::createObject();
  c->setLayer("Doors");
  hinge->appendOdDbEntity(c);

  OdDbBlockTableRecordPtr door = OdDbBlockTableRecord::createObject();
  addRecord(db->getBlockTableId(), door, "DOOR");
  door->setOrigin(OdGePoint3d(5, 5, 0));
  door->setComments("A door");
  door->setBlockInsertUnits(OdDb::kUnitsMillimeters);
  OdDbLinePtr l = OdDbLine::createObject();
  l->setLayer("Doors");
  l->setEndPoint(OdGePoint3d(10, 0, 0));
  door->appendOdDbEntity(l);
  OdDbTextPtr t = OdDbText::createObject();
  t->setTextStyle(style->objectId());
  t->setTextString("D1");
  door->appendOdDbEntity(t);
  OdDbBlockReferencePtr nested = OdDbBlockReference::createObject();
  nested->setBlockTableRecord(hinge->objectId());
  door->appendOdDbEntity(nested);
  return db;
}

OdDbBlockTableRecordPtr block(OdDbDatabase* db, const OdString& name)
{
  OdDbSymbolTablePtr t = OdDbSymbolTable::cast(db->getBlockTableId().openObject());
  return OdDbBlockTableRecord::cast(t->getAt(name, OdDb::kForRead));
}

OdDbSymbolTableRecordPtr record(OdDbObjectId tableId, const OdString& name)
{
  return OdDbSymbolTable::cast(tableId.openObject())->getAt(name, OdDb::kForRead);
}

} // namespace

TEST(OdDbBlockTableRecord, definitionValues_areKept)
{
  OdDbDatabasePtr db = sourceDrawing();
  OdDbBlockTableRecordPtr door = block(db, "DOOR");
  EXPECT_EQ(door->origin(), OdGePoint3d(5, 5, 0));
  EXPECT_EQ(door->comments(), OdString("A door"));
  EXPECT_EQ(door->blockInsertUnits(), OdDb::kUnitsMillimeters);
  EXPECT_FALSE(door->isAnonymous());
  EXPECT_FALSE(door->isLayout());
  EXPECT_FALSE(door->isFromExternalReference());
  door->upgradeOpen();
  door->setBlockScaling(OdDbBlockTableRecord::kUniform);
  door->setIsFromOverlayReference(true);
  EXPECT_EQ(door->blockScaling(), OdDbBlockTableRecord::kUniform);
  EXPECT_TRUE(door->isFromExternalReference()) << "an overlay is an external reference too";
  EXPECT_TRUE(door->isFromOverlayReference());
  int n = 0;
  for (OdDbObjectIteratorPtr it = door->newIterator(); !it->done(); it->step())
    ++n;
  EXPECT_EQ(n, 3);
  door->setName("*U7");
  EXPECT_TRUE(door->isAnonymous());
  EXPECT_EQ(door->blockBegin()->getString("AcDbBlockBegin", 2), OdString("*U7"));
}

TEST(OdDbBlockTableRecord, erase_takesTheEntitiesAlong)
{
  OdDbDatabasePtr db = sourceDrawing();
  OdDbBlockTableRecordPtr door = block(db, "DOOR");
  const auto ids = door->entityIds();
  door->upgradeOpen();
  door->erase();
  EXPECT_TRUE(door->isEraseStatusToggled());
  for (const OdDbObjectId& id : ids)
    EXPECT_TRUE(id.isErased());
  EXPECT_TRUE(block(db, "DOOR").isNull());
}

TEST(OdDbDatabase, wblockOfABlock_carriesItsRecords)
{
  OdDbDatabasePtr src = sourceDrawing();
  OdDbDatabasePtr out = src->wblock(block(src, "DOOR")->objectId());
  EXPECT_EQ(out->getINSBASE(), OdGePoint3d(5, 5, 0));
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(out->getModelSpaceId().openObject());
  EXPECT_EQ(ms->entityIds().size(), 3u);
  OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::cast(record(out->getLayerTableId(), "Doors"));
  ASSERT_TRUE(layer.get());
  EXPECT_EQ(layer->color().colorIndex(), 1);
  EXPECT_TRUE(layer->linetypeObjectId().isValid()) << "the layer's linetype comes too";
  EXPECT_EQ(layer->linetypeObjectId().database(), out.get());
  EXPECT_TRUE(record(out->getTextStyleTableId(), "Labels").get());
  EXPECT_TRUE(block(out, "HINGE").get()) << "nested blocks come too";
  EXPECT_EQ(block(out, "HINGE")->entityIds().size(), 1u);
  for (const OdDbObjectId& id : ms->entityIds())
    EXPECT_EQ(id.database(), out.get());
}

TEST(OdDbDatabase, wblockOfChosenObjects_usesTheBasePoint)
{
  OdDbDatabasePtr src = sourceDrawing();
  const auto ids = block(src, "DOOR")->entityIds();
  OdDbDatabasePtr out = src->wblock(OdArray<OdDbObjectId>{ids[0]}, OdGePoint3d(1, 2, 3));
  EXPECT_EQ(out->getINSBASE(), OdGePoint3d(1, 2, 3));
  EXPECT_EQ(OdDbBlockTableRecord::cast(out->getModelSpaceId().openObject())->entityIds().size(), 1u);
  EXPECT_TRUE(record(out->getLayerTableId(), "Doors").get());
  EXPECT_TRUE(record(out->getTextStyleTableId(), "Labels").isNull()) << "only what the chosen objects use";
}

TEST(OdDbDatabase, insert_keepsRecordsAndDefinitionsOfTheTarget)
{
  OdDbDatabasePtr src = sourceDrawing();
  OdDbDatabasePtr file = src->wblock(block(src, "DOOR")->objectId());
  OdDbDatabasePtr target = odDbCreateDatabase();
  OdDbLayerTableRecordPtr own = OdDbLayerTableRecord::createObject();
  addRecord(target->getLayerTableId(), own, "DOORS");
  OdCmColor green;
  green.setColorIndex(3);
  own->setColor(green);
  OdDbBlockTableRecordPtr ownHinge = OdDbBlockTableRecord::createObject();
  addRecord(target->getBlockTableId(), ownHinge, "Hinge");

  const OdDbObjectId id = target->insert("DOOR", file, true);
  OdDbBlockTableRecordPtr door = OdDbBlockTableRecord::cast(id.openObject());
  ASSERT_TRUE(door.get());
  EXPECT_EQ(door->getName(), OdString("DOOR"));
  EXPECT_EQ(door->origin(), OdGePoint3d(5, 5, 0));
  EXPECT_EQ(door->entityIds().size(), 3u);
  EXPECT_EQ(OdDbLayerTableRecord::cast(record(target->getLayerTableId(), "Doors"))->color().colorIndex(), 3)
      << "the target's layer of the same name stays as it is";
  EXPECT_TRUE(block(target, "Hinge")->entityIds().empty()) << "so does its block of the same name";
  EXPECT_TRUE(record(target->getLinetypeTableId(), "Hidden").isNull())
      << "the linetype of a layer that was not copied does not come";
  EXPECT_TRUE(record(target->getTextStyleTableId(), "Labels").get());

  // A second insert of the same name gives the definition that is there.
  EXPECT_EQ(target->insert("door", src, true), id);
  EXPECT_EQ(door->entityIds().size(), 3u);
  EXPECT_THROW(target->insert("X", target, true), OdError);
}

TEST(OdDbDatabase, insert_givesAnonymousBlocksFreshNames)
{
  OdDbDatabasePtr src = odDbCreateDatabase();
  OdDbBlockTableRecordPtr anon = OdDbBlockTableRecord::createObject();
  addRecord(src->getBlockTableId(), anon, "*U1");
  anon->appendOdDbEntity(OdDbLine::createObject());
  OdDbBlockReferencePtr ref = OdDbBlockReference::createObject();
  ref->setBlockTableRecord(anon->objectId());
  OdDbBlockTableRecord::cast(src->getModelSpaceId().openObject(OdDb::kForWrite))->appendOdDbEntity(ref);

  OdDbDatabasePtr target = odDbCreateDatabase();
  OdDbBlockTableRecordPtr taken = OdDbBlockTableRecord::createObject();
  addRecord(target->getBlockTableId(), taken, "*U1");
  const OdDbObjectId id = target->insert("WRAP", src);
  OdDbBlockReferencePtr copy = OdDbBlockReference::cast(
      OdDbBlockTableRecord::cast(id.openObject())->entityIds().at(0).openObject());
  EXPECT_NE(copy->blockName(), OdString("*U1"));
  OdDbBlockTableRecordPtr target2 = OdDbBlockTableRecord::cast(copy->blockTableRecord().openObject());
  ASSERT_TRUE(target2.get());
  EXPECT_EQ(target2->entityIds().size(), 1u);
  EXPECT_TRUE(taken->entityIds().empty());
}
