// Real drawings written by others: each reads, writes and reads again to
// the same text, and ezdxf finds in what we write what it finds in the
// original and no audit errors.
#include "tests/sdk/dxf/DxfTestSupport.h"

#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDbDynBlockReference.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLayout.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbRasterImage.h"
#include "sdk/db/OdDbXRefMan.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace {

struct ExternalCase
{
  const char* path;
  // False where ezdxf's reading of the original differs on purpose; the
  // reason is given.
  bool compareWithOriginal;
  const char* why;
};

const ExternalCase kCases[] = {
    {"DomCR__ACadSharp/samples/dynamic-blocks/BLOCKVISIBILITYPARAMETER.dxf", true, ""},
    {"DomCR__ACadSharp/samples/sample_AC1009_ascii.dxf", true, ""},
    {"DomCR__ACadSharp/samples/sample_AC1009_binary.dxf", true, ""},
    {"DomCR__ACadSharp/samples/sample_AC1015_ascii.dxf", true, ""},
    {"DomCR__ACadSharp/samples/sample_AC1032_ascii.dxf", true, ""},
    {"Genidiot__dxf_create/Test_xdata_xref.dxf", true, ""},
    {"Genidiot__dxf_create/attach_host_dxf.dxf", true, ""},
    {"Genidiot__dxf_create/xref.dxf", true, ""},
    {"LibreDWG__libredwg/test/test-data/example_r14.dxf", false, "its model space record is named *U"},
    {"LibreDWG__libredwg/test/test-data/r13/v.dxf", true, ""},
    {"LibreDWG__libredwg/test/test-data/r2.10/block.dxf", true, ""},
    {"LibreDWG__libredwg/test/test-data/r9/entities.dxf", false, "ezdxf drops its 3DLINE; we keep it"},
    {"gdsestimating__dxf-parser/test/data/blocks.dxf", true, ""},
    {"gdsestimating__dxf-parser/test/data/blocks2.dxf", false, "no tables: default records differ"},
    {"gdsestimating__dxf-parser/test/data/extendeddata.dxf", true, ""},
    {"gdsestimating__dxf-parser/test/data/tables.dxf", true, ""},
    {"mozman__ezdxf/examples_dxf/Minimal_DXF_AC1009.dxf", false, "no tables: default records differ"},
    {"mozman__ezdxf/examples_dxf/dimension_in_nested_blocks.dxf", true, ""},
    {"mozman__ezdxf/examples_dxf/image/images.dxf", true, ""},
    {"mozman__ezdxf/examples_dxf/insert_bricscad_level_1.dxf", true, ""},
    {"mozman__ezdxf/examples_dxf/multi_insert_with_attribs.dxf", true, ""},
    {"mozman__ezdxf/examples_dxf/transform_hatch_pattern.dxf", true, ""},
    {"mozman__ezdxf/integration_tests/data/ASCII_R12.dxf", true, ""},
    {"mozman__ezdxf/integration_tests/data/POLI-ALL210_12.DXF", true, ""},
    {"mozman__ezdxf/integration_tests/data/R12_with_trash_beyond_EOF.dxf", false, "no tables: default records differ"},
    {"mozman__ezdxf/integration_tests/data/bin_dxf_r14.dxf", true, ""},
    {"mozman__ezdxf/integration_tests/data/cc_dxflib.dxf", true, ""},
    {"mozman__ezdxf/integration_tests/data/small_r13.dxf", true, ""},
    {"qcad__qcad/examples/entities.dxf", true, ""},
    {"qcad__qcad/examples/example00.dxf", true, ""},
    {"qcad__qcad/examples/flange.dxf", true, ""},
    {"qcad__qcad/libraries/default/Architecture/desk.dxf", true, ""},
    {"qcad__qcad/libraries/default/misc/Window 900.dxf", true, ""},
};

void PrintTo(const ExternalCase& c, std::ostream* os)
{
  *os << c.path;
}

class ExternalDrawing : public testing::TestWithParam<ExternalCase>
{
protected:
  void SetUp() override
  {
    m_path = DxfTest::externalFile(GetParam().path);
    if (!QFileInfo::exists(m_path))
      GTEST_SKIP() << "external fixture missing: " << m_path.toStdString();
  }
  QString m_path;
};

std::string caseName(const testing::TestParamInfo<ExternalCase>& info)
{
  std::string n = QFileInfo(info.param.path).completeBaseName().toStdString();
  for (char& c : n)
    if (!isalnum(static_cast<unsigned char>(c)))
      c = '_';
  return n + "_" + std::to_string(info.index);
}

} // namespace

TEST_P(ExternalDrawing, readWriteRead_givesTheSameDrawing)
{
  OdDbDatabasePtr db = odDxfReadFile(OdString(m_path));
  ASSERT_TRUE(db.get());
  EXPECT_TRUE(db->getModelSpaceId().isValid());
  const std::string first = odDxfWriteBuffer(db);
  OdDbDatabasePtr again = odDxfReadBuffer(first, "first write");
  const std::string second = odDxfWriteBuffer(again);
  EXPECT_TRUE(first == second) << "a second round changes the drawing";
  auto live = [](OdDbDatabase* d) {
    const auto ids = d->allObjectIds();
    return std::count_if(ids.begin(), ids.end(), [](const OdDbObjectId& id) { return !id.isErased(); });
  };
  EXPECT_EQ(live(db), live(again));

  if (!DxfTest::haveEzdxf())
    GTEST_SKIP() << "ezdxf is not installed for /usr/bin/python3";
  const QString ours = QDir(DxfTest::scratchFolder()).filePath(QString::fromStdString(caseName({GetParam(), 0})) + ".dxf");
  odDxfWriteFile(db, OdString(ours));
  const QJsonObject result = DxfTest::compare(m_path, ours);
  EXPECT_TRUE(result["audit_errors"].toArray().isEmpty())
      << QJsonDocument(result["audit_errors"].toArray()).toJson().toStdString();
  if (GetParam().compareWithOriginal) {
    EXPECT_TRUE(result["diffs"].toArray().isEmpty())
        << QJsonDocument(result["diffs"].toArray()).toJson().left(3000).toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Files, ExternalDrawing, testing::ValuesIn(kCases), caseName);

TEST(ExternalDrawings, sampleAC1032_tablesHatchesAndImagesAreModelled)
{
  const QString path = DxfTest::externalFile("DomCR__ACadSharp/samples/sample_AC1032_ascii.dxf");
  if (!QFileInfo::exists(path))
    GTEST_SKIP();
  OdDbDatabasePtr db = odDxfReadFile(OdString(path));
  OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(db->getLayerTableId().openObject());
  EXPECT_TRUE(OdDbLayerTableRecord::cast(layers->getAt("Layer_Off", OdDb::kForRead))->isOff());
  EXPECT_TRUE(OdDbLayerTableRecord::cast(layers->getAt("Layer_Freeze", OdDb::kForRead))->isFrozen());
  EXPECT_TRUE(OdDbLayerTableRecord::cast(layers->getAt("Layer_Lock", OdDb::kForRead))->isLocked());
  EXPECT_FALSE(OdDbLayerTableRecord::cast(layers->getAt("Layer_NoPlot", OdDb::kForRead))->isPlottable());

  OdDbSymbolTablePtr ltypes = OdDbSymbolTable::cast(db->getLinetypeTableId().openObject());
  OdDbLinetypeTableRecordPtr gas = OdDbLinetypeTableRecord::cast(ltypes->getAt("GAS_LINE", OdDb::kForRead));
  ASSERT_TRUE(gas.get());
  bool text = false;
  for (int i = 0; i < gas->numDashes(); ++i)
    if (gas->textAt(i) == OdString("GAS")) {
      text = true;
      EXPECT_TRUE(gas->shapeStyleAt(i).isValid()) << "the text element names its style";
    }
  EXPECT_TRUE(text);

  OdDbSymbolTablePtr dims = OdDbSymbolTable::cast(db->getDimStyleTableId().openObject());
  OdDbDimStyleTableRecordPtr ds = OdDbDimStyleTableRecord::cast(dims->getAt("custom_style_ltypes", OdDb::kForRead));
  ASSERT_TRUE(ds.get());
  auto name = [](OdDbObjectId id) { return OdDbSymbolTableRecord::cast(id.openObject())->getName(); };
  EXPECT_EQ(name(ds->dimltype()), OdString("BATTING"));
  EXPECT_EQ(name(ds->dimltex1()), OdString("TRACKS"));
  EXPECT_EQ(name(ds->dimltex2()), OdString("ZIGZAG"));
  EXPECT_EQ(ds->dimclrd().colorIndex(), 4);
  EXPECT_EQ(ds->dimlwd(), OdDb::kLnWt015);

  int hatches = 0, gradients = 0, images = 0;
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject());
  for (OdDbObjectIteratorPtr it = ms->newIterator(); !it->done(); it->step()) {
    if (OdDbHatchPtr h = OdDbHatch::cast(it->entity()); h.get()) {
      ++hatches;
      if (h->isGradient()) {
        ++gradients;
        unsigned n = 0;
        OdArray<OdCmColor> colors;
        OdGeDoubleArray values;
        h->getGradientColors(n, colors, values);
        EXPECT_EQ(n, 2u);
      } else {
        EXPECT_GT(h->numLoops(), 0);
      }
    }
    if (OdDbRasterImagePtr img = OdDbRasterImage::cast(it->entity()); img.get()) {
      ++images;
      OdDbRasterImageDefPtr def = OdDbRasterImageDef::cast(img->imageDefId().openObject());
      ASSERT_TRUE(def.get());
      EXPECT_EQ(def->activeFileName(), OdString(QFileInfo(path).absolutePath() + "/image.JPG"));
    }
  }
  EXPECT_EQ(hatches, 8);
  EXPECT_EQ(gradients, 2);
  EXPECT_EQ(images, 1);
}

TEST(ExternalDrawings, layoutsAndProxies_areFound)
{
  const QString path = DxfTest::externalFile("LibreDWG__libredwg/test/test-data/example_r14.dxf");
  const QString flange = DxfTest::externalFile("qcad__qcad/examples/flange.dxf");
  if (!QFileInfo::exists(path) || !QFileInfo::exists(flange))
    GTEST_SKIP();
  OdDbDatabasePtr db = odDxfReadFile(OdString(path));
  int proxies = 0;
  for (const OdDbObjectId& id : db->allObjectIds())
    proxies += id.openObject()->isAProxy() ? 1 : 0;
  EXPECT_GT(proxies, 0) << "the file holds ACAD_PROXY_ENTITY and ACAD_PROXY_OBJECT";
  EXPECT_TRUE(db->getModelSpaceId().isValid()) << "made, since the file names its own *U";

  OdDbDatabasePtr fl = odDxfReadFile(OdString(flange));
  OdDbLayoutPtr model = OdDbLayout::cast(fl->findLayoutNamed("Model").openObject());
  ASSERT_TRUE(model.get());
  EXPECT_TRUE(model->modelType());
  EXPECT_EQ(model->getBlockTableRecordId(), fl->getModelSpaceId());
  double scale = 0;
  EXPECT_TRUE(model->getStdScale(scale));
  EXPECT_GT(scale, 0.0);
  EXPECT_EQ(fl->currentLayoutId(), model->objectId());
}

TEST(ExternalDrawings, asciiAndBinaryR12_giveTheSameTables)
{
  const QString ascii = DxfTest::externalFile("DomCR__ACadSharp/samples/sample_AC1009_ascii.dxf");
  const QString binary = DxfTest::externalFile("DomCR__ACadSharp/samples/sample_AC1009_binary.dxf");
  if (!QFileInfo::exists(ascii) || !QFileInfo::exists(binary))
    GTEST_SKIP();
  OdDbDatabasePtr a = odDxfReadFile(OdString(ascii));
  OdDbDatabasePtr b = odDxfReadFile(OdString(binary));
  for (auto table : {&OdDbDatabase::getLayerTableId, &OdDbDatabase::getLinetypeTableId, &OdDbDatabase::getBlockTableId}) {
    OdDbSymbolTablePtr ta = OdDbSymbolTable::cast(((*a).*table)().openObject());
    OdDbSymbolTablePtr tb = OdDbSymbolTable::cast(((*b).*table)().openObject());
    ASSERT_EQ(ta->recordIds().size(), tb->recordIds().size());
    for (std::size_t i = 0; i < ta->recordIds().size(); ++i)
      EXPECT_EQ(OdDbSymbolTableRecord::cast(ta->recordIds()[i].openObject())->getName(),
                OdDbSymbolTableRecord::cast(tb->recordIds()[i].openObject())->getName());
  }
}

TEST(ExternalDrawings, unicodeEscapesOfR12_becomeCharacters)
{
  const QString path = DxfTest::externalFile("mozman__ezdxf/integration_tests/data/ASCII_R12.dxf");
  if (!QFileInfo::exists(path))
    GTEST_SKIP();
  OdDbDatabasePtr db = odDxfReadFile(OdString(path));
  OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(db->getLayerTableId().openObject());
  EXPECT_TRUE(layers->has(OdString("ΛΑΓΕΡÄÜÖ")));
}

TEST(ExternalDrawings, xrefOfAHost_loadsFromBesideIt)
{
  const QString host = DxfTest::externalFile("Genidiot__dxf_create/attach_host_dxf.dxf");
  if (!QFileInfo::exists(host))
    GTEST_SKIP();
  OdDbDatabasePtr db = odDxfReadFile(OdString(host));
  OdDbSymbolTablePtr blocks = OdDbSymbolTable::cast(db->getBlockTableId().openObject());
  OdDbBlockTableRecordPtr xref = OdDbBlockTableRecord::cast(blocks->getAt("dxf_xref", OdDb::kForWrite));
  ASSERT_TRUE(xref.get());
  EXPECT_TRUE(xref->isFromExternalReference());
  EXPECT_FALSE(xref->isFromOverlayReference());
  EXPECT_EQ(xref->pathName(), OdString("xref.dxf"));
  EXPECT_EQ(OdDbXRefMan::load(xref), eOk);
  EXPECT_FALSE(xref->entityIds().empty());
  EXPECT_TRUE(xref->isResolved());
  OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(db->getLayerTableId().openObject());
  EXPECT_TRUE(layers->has("GEAR")) << "the referenced drawing's layers come along";
  const std::string text = odDxfWriteBuffer(db);
  EXPECT_NO_THROW(odDxfReadBuffer(text));

  OdDbDatabasePtr dangling = odDxfReadFile(OdString(DxfTest::externalFile("Genidiot__dxf_create/Test_xdata_xref.dxf")));
  OdDbSymbolTablePtr blocks2 = OdDbSymbolTable::cast(dangling->getBlockTableId().openObject());
  EXPECT_EQ(OdDbXRefMan::load(OdDbBlockTableRecord::cast(blocks2->getAt("Wrong", OdDb::kForWrite))), eFileNotFound);
  EXPECT_EQ(OdDbXRefMan::load(OdDbBlockTableRecord::cast(blocks2->getAt("*Model_Space", OdDb::kForWrite))), eInvalidInput);
}

// Every hatch of real drawings decoded and written again from its values
// reads the same, for us and for ezdxf.
TEST(ExternalDrawings, hatchesRewrittenFromTheirValues_readTheSame)
{
  for (const char* file : {"DomCR__ACadSharp/samples/sample_AC1032_ascii.dxf", "qcad__qcad/examples/example00.dxf",
                           "mozman__ezdxf/examples_dxf/transform_hatch_pattern.dxf",
                           "gdsestimating__dxf-parser/test/data/blocks.dxf"}) {
    SCOPED_TRACE(file);
    const QString path = DxfTest::externalFile(file);
    if (!QFileInfo::exists(path))
      continue;
    OdDbDatabasePtr db = odDxfReadFile(OdString(path));
    int hatches = 0;
    for (const OdDbObjectId& id : db->allObjectIds()) {
      OdDbHatchPtr h = OdDbHatch::cast(id.openObject(OdDb::kForWrite));
      if (h.isNull())
        continue;
      ++hatches;
      const OdDbHatch::Data before = h->data();
      h->setData(before);
      const OdDbHatch::Data after = h->data();
      ASSERT_EQ(after.loops.size(), before.loops.size());
      for (std::size_t i = 0; i < before.loops.size(); ++i) {
        EXPECT_EQ(after.loops[i].vertices, before.loops[i].vertices);
        EXPECT_EQ(after.loops[i].edges.size(), before.loops[i].edges.size());
        EXPECT_EQ(after.loops[i].sourceHandles, before.loops[i].sourceHandles);
      }
      EXPECT_EQ(after.lines.size(), before.lines.size());
      EXPECT_EQ(after.colors.size(), before.colors.size());
      EXPECT_EQ(after.patternName, before.patternName);
      EXPECT_EQ(after.gradientName, before.gradientName);
      EXPECT_EQ(after.seeds, before.seeds);
      const OdDbDxfPairArray once = h->dxfPairs();
      h->setData(h->data());
      EXPECT_EQ(h->dxfPairs().size(), once.size()) << "a second rewrite changes nothing";
    }
    EXPECT_GT(hatches, 0);
    if (!DxfTest::haveEzdxf())
      continue;
    const QString ours = QDir(DxfTest::scratchFolder()).filePath("hatches_" + QFileInfo(path).completeBaseName() + ".dxf");
    odDxfWriteFile(db, OdString(ours));
    const QJsonObject result = DxfTest::compare(path, ours);
    EXPECT_TRUE(result["audit_errors"].toArray().isEmpty());
    EXPECT_TRUE(result["diffs"].toArray().isEmpty())
        << QJsonDocument(result["diffs"].toArray()).toJson().left(3000).toStdString();
  }
}

// Every named block of real drawings goes through wblock and insert into a
// new drawing, keeping its entities; ezdxf finds that drawing sound.
TEST(ExternalDrawings, namedBlocks_travelThroughWblockAndInsert)
{
  for (const char* file : {"DomCR__ACadSharp/samples/sample_AC1032_ascii.dxf", "qcad__qcad/examples/entities.dxf",
                           "mozman__ezdxf/examples_dxf/dimension_in_nested_blocks.dxf"}) {
    SCOPED_TRACE(file);
    const QString path = DxfTest::externalFile(file);
    if (!QFileInfo::exists(path))
      continue;
    OdDbDatabasePtr src = odDxfReadFile(OdString(path));
    OdDbDatabasePtr target = odDbCreateDatabase();
    OdDbSymbolTablePtr blocks = OdDbSymbolTable::cast(src->getBlockTableId().openObject());
    int copied = 0;
    for (const OdDbObjectId& id : blocks->recordIds()) {
      OdDbBlockTableRecordPtr b = OdDbBlockTableRecord::cast(id.openObject());
      if (b.isNull() || b->isLayout() || b->isAnonymous())
        continue;
      const OdDbObjectId made = target->insert(b->getName(), src->wblock(id));
      OdDbBlockTableRecordPtr copy = OdDbBlockTableRecord::cast(made.openObject());
      // A nested block may have come before under its own name: it stays.
      EXPECT_EQ(copy->entityIds().size(), b->entityIds().size()) << b->getName().toUtf8();
      EXPECT_EQ(copy->origin(), b->origin());
      ++copied;
    }
    EXPECT_GT(copied, 0);
    if (!DxfTest::haveEzdxf())
      continue;
    const QString out = QDir(DxfTest::scratchFolder()).filePath("blocks_" + QFileInfo(path).completeBaseName() + ".dxf");
    odDxfWriteFile(target, OdString(out));
    EXPECT_TRUE(DxfTest::compare(out, out)["audit_errors"].toArray().isEmpty());
  }
}

TEST(ExternalDrawings, dynamicBlockReferences_leadToTheirDefinition)
{
  const QString path = DxfTest::externalFile("DomCR__ACadSharp/samples/dynamic-blocks/BLOCKVISIBILITYPARAMETER.dxf");
  if (!QFileInfo::exists(path))
    GTEST_SKIP();
  OdDbDatabasePtr db = odDxfReadFile(OdString(path));
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject());
  int refs = 0;
  for (OdDbObjectIteratorPtr it = ms->newIterator(); !it->done(); it->step()) {
    OdDbBlockReferencePtr ref = OdDbBlockReference::cast(it->entity());
    if (ref.isNull())
      continue;
    ++refs;
    OdDbDynBlockReference dyn(ref->objectId());
    EXPECT_TRUE(dyn.isDynamicBlock());
    OdDbBlockTableRecordPtr def = OdDbBlockTableRecord::cast(dyn.dynamicBlockTableRecord().openObject());
    ASSERT_TRUE(def.get());
    EXPECT_EQ(def->getName(), OdString("block_visibility_parameter"));
    EXPECT_TRUE(OdDbDynBlockReference::isDynamicBlockDefinition(def->objectId()));
    if (!dyn.anonymousBlockTableRecord().isNull()) {
      EXPECT_TRUE(OdDbBlockTableRecord::cast(dyn.anonymousBlockTableRecord().openObject())->isAnonymous());
    }
  }
  EXPECT_EQ(refs, 4);
  // A plain reference is its own definition.
  OdDbDatabasePtr plain = odDxfReadFile(OdString(DxfTest::externalFile("mozman__ezdxf/examples_dxf/multi_insert_with_attribs.dxf")));
  OdDbBlockTableRecordPtr pms = OdDbBlockTableRecord::cast(plain->getModelSpaceId().openObject());
  for (OdDbObjectIteratorPtr it = pms->newIterator(); !it->done(); it->step())
    if (OdDbBlockReferencePtr ref = OdDbBlockReference::cast(it->entity()); ref.get()) {
      OdDbDynBlockReference dyn(ref);
      EXPECT_FALSE(dyn.isDynamicBlock());
      EXPECT_EQ(dyn.dynamicBlockTableRecord(), ref->blockTableRecord());
      EXPECT_TRUE(dyn.anonymousBlockTableRecord().isNull());
    }
}
