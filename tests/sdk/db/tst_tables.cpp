// Symbol tables and their records in a new drawing: names, lookups, the
// drawing's current values, and the values records keep.
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"
#include "sdk/db/OdDmUtil.h"

#include <gtest/gtest.h>

namespace {

template <class Rec>
OdDbObjectId addNamed(OdDbObjectId tableId, const OdString& name)
{
  OdDbSymbolTablePtr t = OdDbSymbolTable::cast(tableId.openObject(OdDb::kForWrite));
  OdSmartPtr<Rec> r = Rec::createObject();
  r->setName(name);
  return t->add(r);
}

} // namespace

TEST(OdDbDatabase, newDrawing_hasStandardRecords)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  EXPECT_TRUE(db->getLayerZeroId().isValid());
  EXPECT_TRUE(db->getLinetypeByLayerId().isValid());
  EXPECT_TRUE(db->getLinetypeByBlockId().isValid());
  EXPECT_TRUE(db->getLinetypeContinuousId().isValid());
  EXPECT_TRUE(db->getTextStyleStandardId().isValid());
  EXPECT_TRUE(db->getDimStyleStandardId().isValid());
  EXPECT_TRUE(db->getModelSpaceId().isValid());
  EXPECT_TRUE(db->getPaperSpaceId().isValid());
  EXPECT_TRUE(db->findLayoutNamed("Model").isValid());
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject());
  EXPECT_TRUE(ms->isLayout());
  EXPECT_EQ(ms->getLayoutId(), db->findLayoutNamed("Model"));
  EXPECT_EQ(db->currentLayoutId(), db->findLayoutNamed("Model"));
}

TEST(OdDbSymbolTable, getAt_ignoresCaseAlsoForCyrillic)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  const OdDbObjectId id = addNamed<OdDbLayerTableRecord>(db->getLayerTableId(), "Стены");
  OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(db->getLayerTableId().openObject());
  EXPECT_EQ(layers->getAt("СТЕНЫ"), id);
  EXPECT_TRUE(layers->has("стены"));
  EXPECT_FALSE(layers->has("Стена"));
}

TEST(OdDbSymbolTable, add_refusesTakenAndEmptyNames)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(db->getLayerTableId().openObject(OdDb::kForWrite));
  OdDbLayerTableRecordPtr dup = OdDbLayerTableRecord::createObject();
  dup->setName("0");
  EXPECT_THROW(layers->add(dup), OdError);
  OdDbLayerTableRecordPtr unnamed = OdDbLayerTableRecord::createObject();
  EXPECT_THROW(layers->add(unnamed), OdError);
}

TEST(OdDbSymbolTable, renamedRecord_isFoundUnderItsNewName)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  const OdDbObjectId id = addNamed<OdDbLayerTableRecord>(db->getLayerTableId(), "Old");
  OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(db->getLayerTableId().openObject());
  ASSERT_EQ(layers->getAt("Old"), id);
  OdDbLayerTableRecord::cast(id.openObject(OdDb::kForWrite))->setName("New");
  EXPECT_TRUE(layers->getAt("Old").isNull());
  EXPECT_EQ(layers->getAt("New"), id);
}

TEST(OdDbSymbolTable, iterator_skipsErasedRecords)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  const OdDbObjectId a = addNamed<OdDbLayerTableRecord>(db->getLayerTableId(), "A");
  addNamed<OdDbLayerTableRecord>(db->getLayerTableId(), "B");
  a.openObject(OdDb::kForWrite)->erase();
  OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(db->getLayerTableId().openObject());
  int seen = 0;
  for (OdDbSymbolTableIteratorPtr it = layers->newIterator(); !it->done(); it->step()) {
    EXPECT_NE(it->getRecordId(), a);
    ++seen;
  }
  EXPECT_EQ(seen, 2) << "layer 0 and B";
  EXPECT_FALSE(layers->has("A"));
  EXPECT_EQ(layers->getAt("A", true), a);
}

TEST(OdDbObject, upgradeAndDowngradeOpen_changeTheMode)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbObjectPtr t = db->getLayerTableId().openObject(OdDb::kForRead);
  EXPECT_FALSE(t->isWriteEnabled());
  t->upgradeOpen();
  EXPECT_TRUE(t->isWriteEnabled());
  t->downgradeOpen();
  EXPECT_TRUE(t->isReadEnabled());
  EXPECT_FALSE(t->isWriteEnabled());
}

TEST(OdDbDatabase, currentValues_followTheRecordsSet)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  const OdDbObjectId layer = addNamed<OdDbLayerTableRecord>(db->getLayerTableId(), "Walls");
  const OdDbObjectId ltype = addNamed<OdDbLinetypeTableRecord>(db->getLinetypeTableId(), "Dashed");
  const OdDbObjectId style = addNamed<OdDbTextStyleTableRecord>(db->getTextStyleTableId(), "Notes");
  const OdDbObjectId dim = addNamed<OdDbDimStyleTableRecord>(db->getDimStyleTableId(), "ISO");
  db->setCLAYER(layer);
  db->setCELTYPE(ltype);
  db->setTEXTSTYLE(style);
  db->setDIMSTYLE(dim);
  OdCmColor c;
  c.setRGB(10, 20, 30);
  c.setNames("Teal", "Book");
  db->setCECOLOR(c);
  db->setCELWEIGHT(OdDb::kLnWt035);
  db->setCELTSCALE(2.5);
  db->setCEPSNTYPE(OdDb::kPlotStyleNameByBlock);
  db->setCETRANSPARENCY(OdCmTransparency(std::uint8_t(100)));
  EXPECT_EQ(db->getCLAYER(), layer);
  EXPECT_EQ(db->getCELTYPE(), ltype);
  EXPECT_EQ(db->getTEXTSTYLE(), style);
  EXPECT_EQ(db->getDIMSTYLE(), dim);
  EXPECT_EQ(db->getCECOLOR(), c);
  EXPECT_EQ(db->getCELWEIGHT(), OdDb::kLnWt035);
  EXPECT_DOUBLE_EQ(db->getCELTSCALE(), 2.5);
  EXPECT_EQ(db->getCEPSNTYPE(), OdDb::kPlotStyleNameByBlock);
  EXPECT_EQ(db->getCETRANSPARENCY().alpha(), 100);
  db->setCETRANSPARENCY(OdCmTransparency());
  EXPECT_TRUE(db->getCETRANSPARENCY().isByLayer());
}

TEST(OdDbLayerTableRecord, stateFlags_areIndependent)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbLayerTableRecordPtr l = OdDbLayerTableRecord::cast(
      addNamed<OdDbLayerTableRecord>(db->getLayerTableId(), "L").openObject(OdDb::kForWrite));
  OdCmColor red;
  red.setColorIndex(1);
  l->setColor(red);
  l->setIsOff(true);
  EXPECT_TRUE(l->isOff());
  EXPECT_EQ(l->color().colorIndex(), 1) << "off keeps the colour";
  l->setColor(red);
  EXPECT_TRUE(l->isOff()) << "a new colour keeps the layer off";
  l->setIsFrozen(true);
  l->setIsLocked(true);
  l->setIsFrozen(false);
  EXPECT_TRUE(l->isLocked());
  EXPECT_FALSE(l->isFrozen());
  l->setIsPlottable(false);
  EXPECT_FALSE(l->isPlottable());
  l->setTransparency(OdCmTransparency(std::uint8_t(64)));
  EXPECT_EQ(l->transparency().alpha(), 64);
  l->setLinetypeObjectId(db->getLinetypeByBlockId());
  EXPECT_EQ(l->linetypeObjectId(), db->getLinetypeByBlockId());
  EXPECT_EQ(l->setPlotStyleName("Screened"), eOk);
  EXPECT_EQ(l->plotStyleName(), OdString("Screened"));
}

TEST(OdDbLinetypeTableRecord, complexElements_keepShapeAndText)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  const OdDbObjectId style = addNamed<OdDbTextStyleTableRecord>(db->getTextStyleTableId(), "LtText");
  OdDbLinetypeTableRecordPtr lt = OdDbLinetypeTableRecord::cast(
      addNamed<OdDbLinetypeTableRecord>(db->getLinetypeTableId(), "GAS").openObject(OdDb::kForWrite));
  lt->setComments("Gas ---- GAS ----");
  lt->setNumDashes(3);
  lt->setPatternLength(1.5);
  lt->setDashLengthAt(0, 1.0);
  lt->setDashLengthAt(1, -0.25);
  lt->setTextAt(1, "GAS");
  lt->setShapeStyleAt(1, style);
  lt->setShapeScaleAt(1, 0.1);
  lt->setShapeRotationAt(1, 0.5);
  lt->setShapeOffsetAt(1, OdGeVector2d(-0.1, -0.05));
  lt->setShapeIsUcsOrientedAt(1, true);
  lt->setDashLengthAt(2, -0.25);
  lt->setShapeNumberAt(2, 132);
  EXPECT_EQ(lt->numDashes(), 3);
  EXPECT_DOUBLE_EQ(lt->patternLength(), 1.5);
  EXPECT_EQ(lt->textAt(1), OdString("GAS"));
  EXPECT_EQ(lt->shapeStyleAt(1), style);
  EXPECT_DOUBLE_EQ(lt->shapeScaleAt(1), 0.1);
  EXPECT_DOUBLE_EQ(lt->shapeRotationAt(1), 0.5);
  EXPECT_DOUBLE_EQ(lt->shapeOffsetAt(1).y, -0.05);
  EXPECT_TRUE(lt->shapeIsUcsOrientedAt(1));
  EXPECT_FALSE(lt->shapeIsUcsOrientedAt(2));
  EXPECT_EQ(lt->shapeNumberAt(2), 132);
  EXPECT_TRUE(lt->textAt(2).isEmpty());
  EXPECT_DOUBLE_EQ(lt->dashLengthAt(0), 1.0);
  EXPECT_EQ(lt->comments(), OdString("Gas ---- GAS ----"));
  EXPECT_THROW(lt->dashLengthAt(3), OdError);
}

TEST(OdDbTextStyleTableRecord, fontAndFlags_areKept)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbTextStyleTableRecordPtr s = OdDbTextStyleTableRecord::cast(
      addNamed<OdDbTextStyleTableRecord>(db->getTextStyleTableId(), "T").openObject(OdDb::kForWrite));
  s->setFont("Arial Narrow", true, false, 204, 34);
  s->setObliquingAngle(0.25);
  s->setIsBackwards(true);
  s->setIsUpsideDown(true);
  s->setIsBackwards(false);
  s->setIsVertical(true);
  OdString face;
  bool bold = false, italic = true;
  int charset = 0, pitch = 0;
  s->font(face, bold, italic, charset, pitch);
  EXPECT_EQ(face, OdString("Arial Narrow"));
  EXPECT_TRUE(bold);
  EXPECT_FALSE(italic);
  EXPECT_EQ(charset, 204);
  EXPECT_EQ(pitch, 34);
  EXPECT_NEAR(s->obliquingAngle(), 0.25, 1e-12);
  EXPECT_FALSE(s->isBackwards());
  EXPECT_TRUE(s->isUpsideDown());
  EXPECT_TRUE(s->isVertical());
  EXPECT_FALSE(s->isShapeFile());
}

TEST(OdDbDimStyleTableRecord, variables_haveDefaultsAndKeepWhatIsSet)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbDimStyleTableRecordPtr d = OdDbDimStyleTableRecord::cast(db->getDimStyleStandardId().openObject(OdDb::kForWrite));
  EXPECT_DOUBLE_EQ(d->dimasz(), 0.18);
  EXPECT_TRUE(d->dimtih());
  EXPECT_FALSE(d->dimfxlon());
  EXPECT_EQ(d->findPair(OdDbDimStyleTableRecord::kSub, 49), -1) << "dimfxl is not stored until set";
  d->setDimasz(2.5);
  d->setDimtfillclr(OdCmColor(OdCmEntityColor::kByLayer));
  d->setDimaltmzf(50.0);
  d->setDimmzs("cm");
  d->setDimtxtdirection(true);
  d->setDimlwd(OdDb::kLnWt050);
  OdCmColor blue;
  blue.setColorIndex(5);
  d->setDimclrt(blue);
  d->setDimtxsty(db->getTextStyleStandardId());
  d->setDimltype(db->getLinetypeContinuousId());
  d->setDimblk("_Open");
  d->setDimblk1("ArchTick");
  EXPECT_DOUBLE_EQ(d->dimasz(), 2.5);
  EXPECT_TRUE(d->dimtfillclr().isByLayer());
  EXPECT_DOUBLE_EQ(d->dimaltmzf(), 50.0);
  EXPECT_EQ(d->dimmzs(), OdString("cm"));
  EXPECT_TRUE(d->dimtxtdirection());
  EXPECT_EQ(d->dimlwd(), OdDb::kLnWt050);
  EXPECT_EQ(d->dimclrt().colorIndex(), 5);
  EXPECT_EQ(d->dimtxsty(), db->getTextStyleStandardId());
  EXPECT_EQ(d->dimltype(), db->getLinetypeContinuousId());
  EXPECT_EQ(d->arrowName(d->dimblk()), OdString("_Open"));
  EXPECT_EQ(d->arrowName(d->dimblk1()), OdString("_ArchTick")) << "built-in arrows get their block name";
  OdString text;
  ASSERT_TRUE(d->getVarText("dimasz", text));
  EXPECT_EQ(text, OdString("2.5"));
  EXPECT_FALSE(d->getVarText("dimnothing", text));
}

TEST(OdDbDatabase, setDimstyleData_copiesTheStyleIntoTheHeader)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  const OdDbObjectId id = addNamed<OdDbDimStyleTableRecord>(db->getDimStyleTableId(), "Big");
  OdDbDimStyleTableRecordPtr d = OdDbDimStyleTableRecord::cast(id.openObject(OdDb::kForWrite));
  d->setDimscale(40.0);
  d->setDimtad(1);
  d->setDimpost("<> m");
  d->setDimtxsty(db->getTextStyleStandardId());
  db->setDimstyleData(id);
  EXPECT_DOUBLE_EQ(db->getDIMSCALE(), 40.0);
  EXPECT_EQ(db->getHeaderInt("$DIMTAD"), 1);
  EXPECT_EQ(db->getHeaderString("$DIMPOST"), OdString("<> m"));
  EXPECT_EQ(db->getHeaderString("$DIMTXSTY"), OdString("Standard"));
  EXPECT_THROW(db->setDimstyleData(db->getLayerZeroId()), OdError);
}

// A style without a text style or linetypes of its own puts the defaults
// into the header, not leaving the previous style's there.
TEST(OdDbDatabase, setDimstyleData_clearsReferencesTheStyleLacks)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  const OdDbObjectId dashedId = addNamed<OdDbLinetypeTableRecord>(db->getLinetypeTableId(), "DASHED");
  const OdDbObjectId notesId = addNamed<OdDbTextStyleTableRecord>(db->getTextStyleTableId(), "NOTES");
  const OdDbObjectId fullId = addNamed<OdDbDimStyleTableRecord>(db->getDimStyleTableId(), "Full");
  OdDbDimStyleTableRecordPtr full = OdDbDimStyleTableRecord::cast(fullId.openObject(OdDb::kForWrite));
  full->setDimtxsty(notesId);
  full->setDimltype(dashedId);
  full->setDimltex1(dashedId);
  full->setDimltex2(dashedId);
  const OdDbObjectId bareId = addNamed<OdDbDimStyleTableRecord>(db->getDimStyleTableId(), "Bare");
  db->setDimstyleData(fullId);
  EXPECT_EQ(db->getHeaderString("$DIMTXSTY"), OdString("NOTES"));
  EXPECT_EQ(db->getHeaderString("$DIMLTEX2"), OdString("DASHED"));
  db->setDimstyleData(bareId);
  EXPECT_EQ(db->getHeaderString("$DIMTXSTY"), OdString("Standard"));
  for (const char* var : {"$DIMLTYPE", "$DIMLTEX1", "$DIMLTEX2"})
    EXPECT_EQ(db->getHeaderString(var, "unset"), OdString()) << var;
}

// The header holds built-in arrows as drawing programs write them, without
// the underscore of the block, and keeps a spelling of the same arrow that
// it already has; a block of the user's is named as it stands.
TEST(OdDbDatabase, setDimstyleData_writesArrowsAsDrawingProgramsDo)
{
  struct Row
  {
    const char* arrow;
    const char* before;
    const char* header;
  };
  const Row rows[] = {{"_BoxBlank", "", "BoxBlank"},
                      {"_BoxBlank", "BoxBlank", "BoxBlank"},
                      {"_BoxBlank", "BOXBLANK", "BOXBLANK"},
                      {"_BoxBlank", "_BoxBlank", "_BoxBlank"},
                      {"_BoxBlank", "Dot", "BoxBlank"},
                      {"Oblique", "", "Oblique"},
                      {"", "Dot", ""}};
  for (const Row& row : rows) {
    OdDbDatabasePtr db = odDbCreateDatabase();
    const OdDbObjectId id = addNamed<OdDbDimStyleTableRecord>(db->getDimStyleTableId(), "Arrows");
    OdDbDimStyleTableRecordPtr d = OdDbDimStyleTableRecord::cast(id.openObject(OdDb::kForWrite));
    d->setDimblk(OdString(row.arrow));
    db->setHeaderString("$DIMBLK", 1, row.before);
    db->setDimstyleData(id);
    EXPECT_EQ(db->getHeaderString("$DIMBLK"), OdString(row.header)) << row.arrow << " over " << row.before;
  }
  // A block of the user's whose name looks like no arrow keeps its name.
  OdDbDatabasePtr db = odDbCreateDatabase();
  addNamed<OdDbBlockTableRecord>(db->getBlockTableId(), "_MyTick");
  const OdDbObjectId id = addNamed<OdDbDimStyleTableRecord>(db->getDimStyleTableId(), "Own");
  OdDbDimStyleTableRecordPtr d = OdDbDimStyleTableRecord::cast(id.openObject(OdDb::kForWrite));
  d->setDimblk(db->recordId(db->getBlockTableId(), "_MyTick"));
  db->setDimstyleData(id);
  EXPECT_EQ(db->getHeaderString("$DIMBLK"), OdString("_MyTick"));
}

TEST(OdDmUtil, isBuiltInArrow_knowsNamesWithAndWithoutUnderscore)
{
  EXPECT_TRUE(OdDmUtil::isBuiltInArrow("_ArchTick"));
  EXPECT_TRUE(OdDmUtil::isBuiltInArrow("oblique"));
  EXPECT_TRUE(OdDmUtil::isBuiltInArrow(""));
  EXPECT_FALSE(OdDmUtil::isBuiltInArrow("MyArrow"));
  EXPECT_FALSE(OdDmUtil::isBuiltInArrow("_Door"));
}
