// Drawings written by ezdxf with every table, entity and value the database
// models: what we read is what ezdxf wrote, and what we write ezdxf reads
// back alike; blocks travel between drawings with their records.
#include "tests/sdk/dxf/DxfTestSupport.h"

#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbRasterImage.h"
#include "sdk/db/OdDbText.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"
#include "sdk/db/OdDbXRefMan.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>
#include <gtest/gtest.h>

namespace {

class EzdxfFixture : public testing::Test
{
protected:
  void SetUp() override
  {
    if (!DxfTest::haveEzdxf())
      GTEST_SKIP() << "ezdxf is not installed for /usr/bin/python3";
  }
  static QString fixture(const char* name) { return QDir(DxfTest::fixtureFolder()).filePath(name); }
  static OdDbDatabasePtr read(const char* name) { return odDxfReadFile(OdString(fixture(name))); }
  static QString scratch(const char* name) { return QDir(DxfTest::scratchFolder()).filePath(name); }

  template <class T>
  static OdSmartPtr<T> rec(OdDbObjectId tableId, const OdString& name)
  {
    return T::cast(OdDbSymbolTable::cast(tableId.openObject())->getAt(name, OdDb::kForRead));
  }
  static OdString nameOf(OdDbObjectId id)
  {
    OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(id.openObject());
    return r.isNull() ? OdString() : r->getName();
  }
  template <class T>
  static std::vector<OdSmartPtr<T>> modelSpace(OdDbDatabase* db)
  {
    std::vector<OdSmartPtr<T>> out;
    OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject());
    for (OdDbObjectIteratorPtr it = ms->newIterator(); !it->done(); it->step())
      if (OdSmartPtr<T> e = T::cast(it->entity()); e.get())
        out.push_back(e);
    return out;
  }
  static void expectEzdxfAgrees(OdDbDatabase* db, const QString& original, const char* outName)
  {
    const QString ours = scratch(outName);
    odDxfWriteFile(db, OdString(ours));
    const QJsonObject r = DxfTest::compare(original, ours);
    EXPECT_TRUE(r["audit_errors"].toArray().isEmpty()) << QJsonDocument(r["audit_errors"].toArray()).toJson().toStdString();
    EXPECT_TRUE(r["diffs"].toArray().isEmpty()) << QJsonDocument(r["diffs"].toArray()).toJson().left(3000).toStdString();
  }
};

} // namespace

TEST_F(EzdxfFixture, tables_readAsWritten)
{
  OdDbDatabasePtr db = read("all_r2018.dxf");
  EXPECT_EQ(db->getINSUNITS(), OdDb::kUnitsMillimeters);
  EXPECT_DOUBLE_EQ(db->getDIMSCALE(), 2.5);

  auto walls = rec<OdDbLayerTableRecord>(db->getLayerTableId(), "Walls");
  ASSERT_TRUE(walls.get());
  EXPECT_EQ(walls->color().colorIndex(), 1);
  EXPECT_EQ(walls->linetypeName(), OdString("DASHED"));
  EXPECT_EQ(walls->lineWeight(), OdDb::kLnWt035);
  auto noplot = rec<OdDbLayerTableRecord>(db->getLayerTableId(), "NoPlot");
  EXPECT_FALSE(noplot->isPlottable());
  EXPECT_TRUE(noplot->color().isByColor());
  EXPECT_EQ(noplot->color().rgb(), 0x0A141Eu);
  EXPECT_TRUE(rec<OdDbLayerTableRecord>(db->getLayerTableId(), "Frozen")->isFrozen());
  EXPECT_TRUE(rec<OdDbLayerTableRecord>(db->getLayerTableId(), "Locked")->isLocked());
  EXPECT_TRUE(rec<OdDbLayerTableRecord>(db->getLayerTableId(), "Off")->isOff());
  EXPECT_TRUE(rec<OdDbLayerTableRecord>(db->getLayerTableId(), "КИРИЛЛИЦА").get());

  auto arial = rec<OdDbTextStyleTableRecord>(db->getTextStyleTableId(), "Arial");
  EXPECT_EQ(arial->fileName(), OdString("arial.ttf"));
  OdString face;
  bool bold = false, italic = false;
  int charset = -1, pitch = -1;
  arial->font(face, bold, italic, charset, pitch);
  EXPECT_EQ(face, OdString("Arial"));
  EXPECT_TRUE(bold);
  EXPECT_TRUE(italic);
  EXPECT_TRUE(rec<OdDbTextStyleTableRecord>(db->getTextStyleTableId(), "Shapes")->isShapeFile());

  auto gas = rec<OdDbLinetypeTableRecord>(db->getLinetypeTableId(), "GASLINE");
  ASSERT_TRUE(gas.get());
  EXPECT_EQ(gas->numDashes(), 3);
  EXPECT_DOUBLE_EQ(gas->patternLength(), 0.95);
  EXPECT_EQ(gas->comments(), OdString("Gas line ----GAS----GAS----"));
  EXPECT_EQ(gas->textAt(1), OdString("GAS"));
  EXPECT_EQ(nameOf(gas->shapeStyleAt(1)), OdString("Arial"));
  EXPECT_DOUBLE_EQ(gas->shapeScaleAt(1), 0.1);
  EXPECT_DOUBLE_EQ(gas->shapeOffsetAt(1).x, -0.1);
  auto tracks = rec<OdDbLinetypeTableRecord>(db->getLinetypeTableId(), "TRACKS2");
  EXPECT_EQ(tracks->shapeNumberAt(1), 132);
  EXPECT_TRUE(tracks->shapeStyleAt(1).isValid());

  auto ds = rec<OdDbDimStyleTableRecord>(db->getDimStyleTableId(), "Custom");
  ASSERT_TRUE(ds.get());
  EXPECT_DOUBLE_EQ(ds->dimasz(), 0.25);
  EXPECT_DOUBLE_EQ(ds->dimtxt(), 3.5);
  EXPECT_DOUBLE_EQ(ds->dimscale(), 10.0);
  EXPECT_EQ(ds->dimclrd().colorIndex(), 1);
  EXPECT_EQ(ds->dimclre().colorIndex(), 2);
  EXPECT_EQ(ds->dimclrt().colorIndex(), 3);
  EXPECT_EQ(ds->dimlwd(), OdDb::kLnWt025);
  EXPECT_EQ(ds->dimdec(), 2);
  EXPECT_EQ(ds->dimtad(), 1);
  EXPECT_EQ(nameOf(ds->dimtxsty()), OdString("Arial"));
  EXPECT_TRUE(ds->dimfxlon());
  EXPECT_DOUBLE_EQ(ds->dimfxl(), 1.5);
  EXPECT_DOUBLE_EQ(ds->dimjogang(), 0.5);
  EXPECT_EQ(ds->dimtfill(), 0);

  auto flag = rec<OdDbBlockTableRecord>(db->getBlockTableId(), "FLAG");
  ASSERT_TRUE(flag.get());
  EXPECT_EQ(flag->origin(), OdGePoint3d(1, 2, 0));
  EXPECT_EQ(flag->comments(), OdString("A flag with attributes"));
  EXPECT_EQ(flag->blockInsertUnits(), OdDb::kUnitsMillimeters);
  EXPECT_EQ(flag->blockScaling(), OdDbBlockTableRecord::kUniform);
  EXPECT_EQ(flag->entityIds().size(), 3u);
  EXPECT_FALSE(flag->isAnonymous());
}

TEST_F(EzdxfFixture, entities_readAsWritten)
{
  OdDbDatabasePtr db = read("all_r2018.dxf");
  auto lines = modelSpace<OdDbLine>(db);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0]->layer(), OdString("Walls"));
  EXPECT_EQ(lines[0]->colorIndex(), 1);
  EXPECT_EQ(lines[0]->lineWeight(), OdDb::kLnWt050);
  EXPECT_DOUBLE_EQ(lines[0]->linetypeScale(), 2.0);
  EXPECT_EQ(lines[0]->endPoint(), OdGePoint3d(10, 5, 0));
  auto circles = modelSpace<OdDbCircle>(db);
  ASSERT_EQ(circles.size(), 1u);
  EXPECT_EQ(circles[0]->color().rgb(), 0xC86432u);
  EXPECT_EQ(circles[0]->color().bookName(), OdString("RAL CLASSIC"));
  EXPECT_EQ(circles[0]->color().colorName(), OdString("RAL 2001"));
  EXPECT_EQ(circles[0]->transparency().alpha(), 0x40);
  auto arcs = modelSpace<OdDbArc>(db);
  ASSERT_EQ(arcs.size(), 1u);
  EXPECT_EQ(arcs[0]->linetype(), OdString("GASLINE"));
  EXPECT_NEAR(arcs[0]->endAngle(), 80 * M_PI / 180, 1e-9);
  EXPECT_EQ(modelSpace<OdDbEllipse>(db).size(), 1u);
  auto pl = modelSpace<OdDbPolyline>(db);
  ASSERT_EQ(pl.size(), 1u);
  EXPECT_EQ(pl[0]->numVerts(), 3u);
  EXPECT_TRUE(pl[0]->isClosed());
  EXPECT_DOUBLE_EQ(pl[0]->getBulgeAt(0), 0.5);
  auto pl2 = modelSpace<OdDb2dPolyline>(db);
  ASSERT_EQ(pl2.size(), 1u);
  EXPECT_EQ(pl2[0]->vertexIds().size(), 3u);
  EXPECT_EQ(modelSpace<OdDbSpline>(db).at(0)->numFitPoints(), 4);
  EXPECT_EQ(modelSpace<OdDbPoint>(db).size(), 1u);
  EXPECT_EQ(modelSpace<OdDbSolid>(db).size(), 1u);
  auto texts = modelSpace<OdDbText>(db);
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_EQ(texts[0]->textString(), OdString("Hello Ωmega"));
  EXPECT_EQ(nameOf(texts[0]->textStyle()), OdString("Arial"));
  EXPECT_NEAR(texts[0]->rotation(), M_PI / 6, 1e-9);
  auto mtexts = modelSpace<OdDbMText>(db);
  ASSERT_EQ(mtexts.size(), 1u);
  EXPECT_EQ(mtexts[0]->contents().getLength(), int(QString("Line one\\Pline two ").size()) + 300);

  auto refs = modelSpace<OdDbBlockReference>(db);
  ASSERT_EQ(refs.size(), 1u);
  EXPECT_EQ(nameOf(refs[0]->blockTableRecord()), OdString("FLAG"));
  EXPECT_NEAR(refs[0]->rotation(), M_PI / 4, 1e-9);
  EXPECT_EQ(refs[0]->scaleFactors().sx, 2.0);
  ASSERT_EQ(refs[0]->attributeIds().size(), 1u);
  OdDbAttributePtr att = OdDbAttribute::cast(refs[0]->attributeIds()[0].openObject());
  EXPECT_EQ(att->tag(), OdString("NAME"));
  EXPECT_EQ(att->textString(), OdString("North"));

  auto hatches = modelSpace<OdDbHatch>(db);
  ASSERT_EQ(hatches.size(), 3u);
  EXPECT_EQ(hatches[0]->patternName(), OdString("ANSI31"));
  EXPECT_EQ(hatches[0]->patternType(), OdDbHatch::kPreDefined);
  EXPECT_NEAR(hatches[0]->patternAngle(), M_PI / 4, 1e-9);
  EXPECT_DOUBLE_EQ(hatches[0]->patternScale(), 2.0);
  EXPECT_EQ(hatches[0]->numLoops(), 2);
  EXPECT_GT(hatches[0]->numPatternDefinitions(), 0);
  const OdDbHatch::Loop edgeLoop = hatches[0]->loopAt(1);
  ASSERT_EQ(edgeLoop.edges.size(), 1u);
  EXPECT_EQ(edgeLoop.edges[0].type, OdDbHatch::kCirArc);
  EXPECT_TRUE(hatches[1]->isGradient());
  EXPECT_EQ(hatches[1]->gradientName(), OdString("CYLINDER"));
  EXPECT_NEAR(hatches[1]->gradientAngle(), M_PI / 3, 1e-9);
  unsigned n = 0;
  OdArray<OdCmColor> colors;
  OdGeDoubleArray values;
  hatches[1]->getGradientColors(n, colors, values);
  ASSERT_EQ(n, 2u);
  EXPECT_EQ(colors[0].rgb(), 0xFF0000u);
  EXPECT_EQ(colors[1].rgb(), 0x0000FFu);
  EXPECT_TRUE(hatches[2]->isSolidFill());
  EXPECT_FALSE(hatches[2]->isGradient());

  auto images = modelSpace<OdDbRasterImage>(db);
  ASSERT_EQ(images.size(), 1u);
  OdDbRasterImageDefPtr def = OdDbRasterImageDef::cast(images[0]->imageDefId().openObject());
  ASSERT_TRUE(def.get());
  EXPECT_EQ(def->sourceFileName(), OdString("image.png"));
  EXPECT_EQ(def->size().x, 640.0);

  auto dims = modelSpace<OdDbDimension>(db);
  ASSERT_EQ(dims.size(), 1u);
  EXPECT_EQ(nameOf(dims[0]->dimensionStyle()), OdString("Custom"));
  OdDbBlockTableRecordPtr picture = OdDbBlockTableRecord::cast(dims[0]->dimBlockId().openObject());
  ASSERT_TRUE(picture.get());
  EXPECT_TRUE(picture->isAnonymous());
  EXPECT_FALSE(picture->entityIds().empty());
}

TEST_F(EzdxfFixture, everyFixture_roundTripsThroughEzdxf)
{
  for (const char* name : {"all_r2018.dxf", "small_r2000.dxf", "small_r12.dxf", "cp1251_r2000.dxf",
                           "cp932_r2000.dxf", "escapes_r2000.dxf", "xref_host.dxf"}) {
    SCOPED_TRACE(name);
    OdDbDatabasePtr db = read(name);
    const std::string first = odDxfWriteBuffer(db);
    EXPECT_TRUE(first == odDxfWriteBuffer(odDxfReadBuffer(first)));
    expectEzdxfAgrees(db, fixture(name), name);
  }
}

TEST_F(EzdxfFixture, codePages_areDecoded)
{
  const struct { const char* file; const char* layer; const char* text; } cases[] = {
      {"cp1251_r2000.dxf", "Слой", "Привет, мир"},
      {"cp932_r2000.dxf", "図面", "日本語のテキスト"},
      {"escapes_r2000.dxf", "Ωmega Größe", "Δ = 5 €"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.file);
    OdDbDatabasePtr db = read(c.file);
    EXPECT_TRUE(OdDbSymbolTable::cast(db->getLayerTableId().openObject())->has(OdString(c.layer)));
    auto texts = modelSpace<OdDbText>(db);
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0]->textString(), OdString(c.text));
    EXPECT_EQ(texts[0]->layer(), OdString(c.layer));
  }
}

TEST_F(EzdxfFixture, wblockAndInsert_carryTheBlockWithItsRecords)
{
  OdDbDatabasePtr src = read("all_r2018.dxf");
  OdDbDatabasePtr file = src->wblock(rec<OdDbBlockTableRecord>(src->getBlockTableId(), "FLAG")->objectId());
  const QString blockFile = scratch("flag_wblock.dxf");
  odDxfWriteFile(file, OdString(blockFile));
  const QJsonObject own = DxfTest::compare(blockFile, blockFile);
  EXPECT_TRUE(own["audit_errors"].toArray().isEmpty());

  OdDbDatabasePtr reread = odDxfReadFile(OdString(blockFile));
  EXPECT_EQ(reread->getINSBASE(), OdGePoint3d(1, 2, 0));
  auto tracks = rec<OdDbLinetypeTableRecord>(reread->getLinetypeTableId(), "TRACKS2");
  ASSERT_TRUE(tracks.get()) << "the linetype of an entity of the block";
  EXPECT_EQ(tracks->shapeNumberAt(1), 132);
  EXPECT_TRUE(tracks->shapeStyleAt(1).isValid()) << "with the style of its shape";
  EXPECT_TRUE(rec<OdDbLayerTableRecord>(reread->getLayerTableId(), "Walls").get());
  EXPECT_TRUE(rec<OdDbTextStyleTableRecord>(reread->getTextStyleTableId(), "Arial").get());

  OdDbDatabasePtr target = read("small_r2000.dxf");
  // The target has its own FLAG2 already: inserting under that name keeps it.
  OdDbBlockTableRecordPtr existing = OdDbBlockTableRecord::createObject();
  existing->setName("FLAG2");
  OdDbSymbolTable::cast(target->getBlockTableId().openObject(OdDb::kForWrite))->add(existing);
  EXPECT_EQ(target->insert("FLAG2", reread), existing->objectId());
  EXPECT_TRUE(existing->entityIds().empty());
  const OdDbObjectId id = target->insert("FLAG", reread);
  OdDbBlockTableRecordPtr inserted = OdDbBlockTableRecord::cast(id.openObject());
  EXPECT_EQ(inserted->entityIds().size(), 3u);
  EXPECT_EQ(inserted->origin(), OdGePoint3d(1, 2, 0));
  OdDbBlockReferencePtr ref = OdDbBlockReference::createObject();
  ref->setBlockTableRecord(id);
  OdDbBlockTableRecord::cast(target->getModelSpaceId().openObject(OdDb::kForWrite))->appendOdDbEntity(ref);
  const QString targetFile = scratch("insert_target.dxf");
  odDxfWriteFile(target, OdString(targetFile));
  const QJsonObject r = DxfTest::compare(targetFile, targetFile);
  EXPECT_TRUE(r["audit_errors"].toArray().isEmpty()) << QJsonDocument(r["audit_errors"].toArray()).toJson().toStdString();
  OdDbDatabasePtr back = odDxfReadFile(OdString(targetFile));
  EXPECT_TRUE(rec<OdDbLinetypeTableRecord>(back->getLinetypeTableId(), "TRACKS2").get());
  EXPECT_EQ(rec<OdDbBlockTableRecord>(back->getBlockTableId(), "FLAG")->entityIds().size(), 3u);
}

TEST_F(EzdxfFixture, xrefHost_loadsItsReference)
{
  OdDbDatabasePtr db = read("xref_host.dxf");
  auto xref = rec<OdDbBlockTableRecord>(db->getBlockTableId(), "XREF1");
  ASSERT_TRUE(xref.get());
  EXPECT_TRUE(xref->isFromExternalReference());
  xref->upgradeOpen();
  EXPECT_EQ(OdDbXRefMan::load(xref), eOk);
  ASSERT_EQ(xref->entityIds().size(), 1u);
  EXPECT_EQ(OdDbEntity::cast(xref->entityIds()[0].openObject())->layer(), OdString("GEAR"));
  expectEzdxfAgrees(db, scratch("xref_loaded.dxf"), "xref_loaded.dxf");

  // An attachment made here, as a host's XATTACH does it.
  OdDbDatabasePtr host = odDbCreateDatabase();
  host->setFilename(OdString(fixture("new_host.dxf")));
  const OdDbObjectId id = OdDbXRefManExt::addNewXRefDefBlock(host, "xref_target.dxf", "TARGET", true);
  OdDbBlockTableRecordPtr overlay = OdDbBlockTableRecord::cast(id.openObject(OdDb::kForWrite));
  EXPECT_TRUE(overlay->isFromOverlayReference());
  EXPECT_TRUE(overlay->isUnloaded());
  EXPECT_EQ(OdDbXRefMan::load(overlay), eOk);
  EXPECT_EQ(overlay->entityIds().size(), 1u);
  EXPECT_THROW(OdDbXRefManExt::addNewXRefDefBlock(host, "other.dxf", "target", false), OdError);
}
