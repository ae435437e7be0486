// Snapshots of table records: taken from every real drawing we have,
// written, read and made again in another drawing, the records compared
// field by field with the ones they were taken from; and the rules of
// making them (the target's record of a name wins).
#include "tests/properties/PropertyTestSupport.h"

#include "properties/OdTcDimStyleTableRecordImpl.h"
#include "properties/OdTcLayerTableRecordImpl.h"

#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"
#include "sdk/db/OdDmUtil.h"
#include "sdk/dxf/OdDxf.h"

#include <QDirIterator>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

using namespace tc;

namespace {

// Doubles pass through files as "%g", six significant digits.
bool near(double a, double b)
{
  return std::fabs(a - b) <= 1e-5 * std::max(1.0, std::fabs(a));
}

OdString nameOf(OdDbObjectId id)
{
  OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(id.openObject());
  return r.isNull() ? OdString() : r->getName();
}

void expectSameTextStyle(const OdDbTextStyleTableRecord& a, const OdDbTextStyleTableRecord& b, const std::string& where)
{
  EXPECT_EQ(a.fileName(), b.fileName()) << where;
  EXPECT_TRUE(near(a.textSize(), b.textSize())) << where;
  EXPECT_TRUE(near(a.xScale(), b.xScale())) << where;
  EXPECT_TRUE(near(a.obliquingAngle(), b.obliquingAngle())) << where;
  EXPECT_TRUE(near(a.priorSize(), b.priorSize())) << where;
  EXPECT_EQ(a.isShapeFile(), b.isShapeFile()) << where;
  EXPECT_EQ(a.isVertical(), b.isVertical()) << where;
  EXPECT_EQ(a.isBackwards(), b.isBackwards()) << where;
  EXPECT_EQ(a.isUpsideDown(), b.isUpsideDown()) << where;
  if (a.isShapeFile())
    return;
  OdString faceA, faceB;
  bool boldA, boldB, italicA, italicB;
  int charsetA, charsetB, pitchA, pitchB;
  a.font(faceA, boldA, italicA, charsetA, pitchA);
  b.font(faceB, boldB, italicB, charsetB, pitchB);
  EXPECT_EQ(faceA, faceB) << where;
  if (!faceA.isEmpty()) {
    EXPECT_EQ(boldA, boldB) << where;
    EXPECT_EQ(italicA, italicB) << where;
    EXPECT_EQ(charsetA, charsetB) << where;
    EXPECT_EQ(pitchA, pitchB) << where;
  }
}

void expectSameLinetype(const OdDbLinetypeTableRecord& a, const OdDbLinetypeTableRecord& b, const std::string& where)
{
  EXPECT_EQ(a.comments(), b.comments()) << where;
  EXPECT_TRUE(near(a.patternLength(), b.patternLength())) << where;
  const auto da = a.dashes();
  const auto db = b.dashes();
  ASSERT_EQ(da.size(), db.size()) << where;
  for (int i = 0; i < int(da.size()); ++i) {
    const std::string at = where + " dash " + std::to_string(i);
    EXPECT_TRUE(near(da[std::size_t(i)].length, db[std::size_t(i)].length)) << at;
    EXPECT_EQ(da[std::size_t(i)].flags & 7, db[std::size_t(i)].flags & 7) << at;
    if (!da[std::size_t(i)].isComplex())
      continue;
    EXPECT_EQ(a.textAt(i), b.textAt(i)) << at;
    if (!(da[std::size_t(i)].flags & 2)) {
      EXPECT_EQ(a.shapeNumberAt(i), b.shapeNumberAt(i)) << at;
    }
    EXPECT_TRUE(near(a.shapeScaleAt(i), b.shapeScaleAt(i))) << at;
    EXPECT_TRUE(near(a.shapeRotationAt(i), b.shapeRotationAt(i))) << at;
    EXPECT_TRUE(near(a.shapeOffsetAt(i).x, b.shapeOffsetAt(i).x)) << at;
    EXPECT_TRUE(near(a.shapeOffsetAt(i).y, b.shapeOffsetAt(i).y)) << at;
    // By name: a style of that name in the target stands for it.
    EXPECT_EQ(nameOf(a.shapeStyleAt(i)).iCompare(nameOf(b.shapeStyleAt(i))), 0) << at;
  }
}

void expectSameLayer(const OdDbLayerTableRecord& a, const OdDbLayerTableRecord& b, const std::string& where)
{
  EXPECT_EQ(a.color().color(), b.color().color()) << where;
  EXPECT_EQ(a.lineWeight(), b.lineWeight()) << where;
  EXPECT_EQ(a.isPlottable(), b.isPlottable()) << where;
  EXPECT_EQ(a.linetypeName().iCompare(b.linetypeName()), 0) << where;
  EXPECT_EQ(a.plotStyleName(), b.plotStyleName()) << where;
}

// Every dimension variable the snapshot carries, by the drawing SDK's names.
const char* const kDimVariables[] = {
    "dimadec", "dimalt",  "dimaltd",  "dimaltf",   "dimaltrnd", "dimalttd", "dimalttz",  "dimasz",   "dimatfit",
    "dimaunit", "dimazin", "dimcen",  "dimdec",    "dimdle",    "dimdli",   "dimdsep",   "dimexe",   "dimexo",
    "dimfrac", "dimgap",  "dimjust",  "dimlfac",   "dimlim",    "dimlunit", "dimlwd",    "dimlwe",   "dimrnd",
    "dimsah",  "dimscale", "dimsd1",  "dimsd2",    "dimse1",    "dimse2",   "dimsoxd",   "dimtad",   "dimtdec",
    "dimtfac", "dimtih",  "dimtix",   "dimtm",     "dimtmove",  "dimtofl",  "dimtoh",    "dimtol",   "dimtolj",
    "dimtp",   "dimtsz",  "dimtvp",   "dimtxt",    "dimtzin",   "dimupt",   "dimzin",    "dimfxlon", "dimfxl",
    "dimjogang", "dimarcsym", "dimtfill", "dimtxtdirection", "dimaltz", "dimaltmzf", "dimapost", "dimpost",
    "dimclrd", "dimclre", "dimclrt",  "dimtfillclr", "dimtxsty", "dimltype", "dimltex1",  "dimltex2"};

void expectSameDimStyle(const OdDbDimStyleTableRecord& a, const OdDbDimStyleTableRecord& b, const std::string& where)
{
  for (const char* name : kDimVariables) {
    if (std::string(name) == "dimfxl" && !a.dimfxlon())
      continue; // not set while the fixed extension lines are off
    OdString va, vb;
    ASSERT_TRUE(a.getVarText(name, va)) << name;
    ASSERT_TRUE(b.getVarText(name, vb)) << name;
    bool okA = false, okB = false;
    const double na = va.qstring().toDouble(&okA), nb = vb.qstring().toDouble(&okB);
    if (okA && okB)
      EXPECT_TRUE(near(na, nb)) << where << " " << name << ": " << va << " / " << vb;
    else
      EXPECT_EQ(va.iCompare(vb), 0) << where << " " << name << ": " << va << " / " << vb;
  }
  const std::pair<OdDbObjectId, OdDbObjectId> arrows[] = {{a.dimblk(), b.dimblk()},
                                                          {a.dimblk1(), b.dimblk1()},
                                                          {a.dimblk2(), b.dimblk2()},
                                                          {a.dimldrblk(), b.dimldrblk()}};
  for (const auto& [from, to] : arrows) {
    const OdString arrow = nameOf(from);
    // Arrows of the user's blocks do not travel: their geometry is not in
    // a snapshot.
    if (from.isNull() || OdDmUtil::isBuiltInArrow(arrow)) {
      EXPECT_EQ(arrow.iCompare(nameOf(to)), 0) << where << " arrow " << arrow;
    }
  }
}

std::vector<QString> externalDrawings()
{
  std::vector<QString> files;
  QDirIterator it(VERDANI_EXTERNAL_DATA, {"*.dxf", "*.DXF"}, QDir::Files, QDirIterator::Subdirectories);
  while (it.hasNext())
    files.push_back(it.next());
  std::sort(files.begin(), files.end());
  return files;
}

class Snapshots : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerPropertyClasses(); }

  // Captures the record, writes and reads the snapshot, makes it in
  // `target` under a name of its own, and compares.
  template <class Snapshot, class Record>
  static int roundTrip(OdDbDatabase* source, OdDbObjectId tableId, OdDbDatabase* target, const std::string& file,
                       const std::function<void(const Record&, const Record&, const std::string&)>& compare)
  {
    int count = 0;
    OdDbSymbolTablePtr table = OdDbSymbolTable::cast(tableId.openObject());
    if (table.isNull())
      return 0;
    for (OdDbObjectId id : table->recordIds()) {
      OdSmartPtr<Record> record = Record::cast(id.openObject());
      if (record.isNull() || record->isDependent())
        continue;
      const std::string where = file + ": " + record->getName().toUtf8();
      auto snapshot = Snapshot::createNew();
      EXPECT_TRUE(snapshot->captureDbRecord(id)) << where;
      const std::string xml = tst::paletteXml(snapshot);
      auto back = tst::readOne<Snapshot>(xml);
      EXPECT_TRUE(back) << where;
      if (!back)
        continue;
      EXPECT_EQ(tst::paletteXml(back), xml) << where;
      const OdString copyName = record->getName() + "~" + OdString::formatted("%d", ++count);
      back->setName(copyName);
      OdDbSymbolTablePtr targetTable = OdDbSymbolTable::cast(
          target->tableId(OdDbSymbolTable::cast(tableId.openObject())->tableName().toUtf8()).openObject());
      const OdDbObjectId made = tcFindOrCreateRecord(target, targetTable->objectId(), OdString(), back);
      OdSmartPtr<Record> created = Record::cast(made.openObject());
      EXPECT_TRUE(created) << where;
      if (created)
        compare(*record, *created, where);
    }
    return count;
  }
};

} // namespace

TEST_F(Snapshots, everyExternalDrawing_captureWriteReadCreate_givesEqualRecords)
{
  const auto files = externalDrawings();
  if (files.empty())
    GTEST_SKIP() << "no external drawings at " << VERDANI_EXTERNAL_DATA;
  int drawings = 0, layers = 0, linetypes = 0, styles = 0, dimstyles = 0;
  for (const QString& path : files) {
    OdDbDatabasePtr source;
    try {
      source = odDxfReadFile(path);
    } catch (const OdError&) {
      continue; // broken on purpose: the DXF reader's tests cover those
    }
    const std::string file = QFileInfo(path).fileName().toStdString();
    OdDbDatabasePtr target = odDbCreateDatabase();
    ++drawings;
    layers += roundTrip<OdTcLayerTableRecordImpl, OdDbLayerTableRecord>(source, source->getLayerTableId(), target,
                                                                        file, expectSameLayer);
    linetypes += roundTrip<OdTcLineTypeTableRecordImpl, OdDbLinetypeTableRecord>(
        source, source->getLinetypeTableId(), target, file, expectSameLinetype);
    styles += roundTrip<OdTcTextStyleTableRecordImpl, OdDbTextStyleTableRecord>(
        source, source->getTextStyleTableId(), target, file, expectSameTextStyle);
    dimstyles += roundTrip<OdTcDimStyleTableRecordImpl, OdDbDimStyleTableRecord>(
        source, source->getDimStyleTableId(), target, file, expectSameDimStyle);
  }
  EXPECT_GT(drawings, 20);
  EXPECT_GT(layers, 100);
  EXPECT_GT(linetypes, 300);
  EXPECT_GT(styles, 50);
  EXPECT_GT(dimstyles, 20);
}

TEST_F(Snapshots, complexLinetype_travelsWithItsTextStyle_andATargetStyleOfTheSameNameWins)
{
  OdDbDatabasePtr source = odDxfReadFile(QString(VERDANI_EXTERNAL_DATA) + "/qcad__qcad/examples/flange.dxf");
  const OdDbObjectId gasId = source->recordId(source->getLinetypeTableId(), "GAS_LINE");
  ASSERT_FALSE(gasId.isNull());
  auto snapshot = OdTcLineTypeTableRecordImpl::createNew();
  ASSERT_TRUE(snapshot->captureDbRecord(gasId));
  ASSERT_GT(snapshot->m_styles->count(), 0);
  const OdString styleName = snapshot->m_styles->at(0)->name();

  // Into a drawing without the style: made from the collection.
  OdDbDatabasePtr bare = odDbCreateDatabase();
  const OdDbObjectId made = tcFindOrCreateRecord(bare, bare->getLinetypeTableId(), OdString(), snapshot);
  OdDbLinetypeTableRecordPtr gas = OdDbLinetypeTableRecord::cast(made.openObject());
  ASSERT_TRUE(gas);
  int textDash = -1;
  for (int i = 0; i < gas->numDashes(); ++i)
    if (!gas->textAt(i).isEmpty())
      textDash = i;
  ASSERT_GE(textDash, 0);
  EXPECT_EQ(gas->textAt(textDash), "GAS");
  EXPECT_EQ(nameOf(gas->shapeStyleAt(textDash)).iCompare(styleName), 0);

  // Into a drawing with a style of that name but other settings: it stays.
  OdDbDatabasePtr other = odDbCreateDatabase();
  OdDbObjectId theirs = other->recordId(other->getTextStyleTableId(), styleName);
  if (theirs.isNull()) {
    OdDbSymbolTablePtr styles = OdDbSymbolTable::cast(other->getTextStyleTableId().openObject(OdDb::kForWrite));
    OdDbTextStyleTableRecordPtr style = OdDbTextStyleTableRecord::createObject();
    style->setName(styleName);
    style->setFileName("theirs.shx");
    theirs = styles->add(style);
  }
  const OdString theirFile = OdDbTextStyleTableRecord::cast(theirs.openObject())->fileName();
  const OdDbObjectId again = tcFindOrCreateRecord(other, other->getLinetypeTableId(), OdString(), snapshot);
  OdDbLinetypeTableRecordPtr gas2 = OdDbLinetypeTableRecord::cast(again.openObject());
  ASSERT_TRUE(gas2);
  EXPECT_EQ(gas2->shapeStyleAt(textDash), theirs);
  EXPECT_EQ(OdDbTextStyleTableRecord::cast(theirs.openObject())->fileName(), theirFile);
}

TEST_F(Snapshots, dimensionStyle_fixedLengthOnlyWhileFixedExtensionLinesAreOn)
{
  auto snapshot = OdTcDimStyleTableRecordImpl::createNew();
  snapshot->setName("FXL");
  snapshot->setVariable("dimfxl", OdVariant(9.5));
  snapshot->setVariable("dimfxlon", OdVariant(std::int64_t(0)));
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbDimStyleTableRecordPtr off = OdDbDimStyleTableRecord::cast(snapshot->createDbRecord(db).get());
  ASSERT_TRUE(off);
  EXPECT_FALSE(off->dimfxlon());
  EXPECT_EQ(off->findPair(OdDbDimStyleTableRecord::kSub, 49), -1); // never written

  snapshot->setVariable("dimfxlon", OdVariant(std::int64_t(1)));
  OdDbDimStyleTableRecordPtr on = OdDbDimStyleTableRecord::cast(snapshot->createDbRecord(db).get());
  EXPECT_TRUE(on->dimfxlon());
  EXPECT_DOUBLE_EQ(on->dimfxl(), 9.5);
}

TEST_F(Snapshots, dimensionStyle_bringsArrowsTextStyleAndLinetypes)
{
  OdDbDatabasePtr source = odDxfReadFile(QString(VERDANI_EXTERNAL_DATA) + "/DomCR__ACadSharp/samples/sample_AC1032_ascii.dxf");
  const OdDbObjectId id = source->recordId(source->getDimStyleTableId(), "custom_style_ltypes");
  ASSERT_FALSE(id.isNull());
  OdDbDimStyleTableRecordPtr from = OdDbDimStyleTableRecord::cast(id.openObject());
  auto snapshot = OdTcDimStyleTableRecordImpl::createNew();
  ASSERT_TRUE(snapshot->captureDbRecord(id));
  auto back = tst::readOne<OdTcDimStyleTableRecordImpl>(tst::paletteXml(snapshot));
  ASSERT_TRUE(back);

  OdDbDatabasePtr target = odDbCreateDatabase();
  const OdDbObjectId made = tcFindOrCreateRecord(target, target->getDimStyleTableId(), OdString(), back);
  OdDbDimStyleTableRecordPtr to = OdDbDimStyleTableRecord::cast(made.openObject());
  ASSERT_TRUE(to);
  expectSameDimStyle(*from, *to, "custom_style_ltypes");
  // Its linetypes were made in the target, each with its own dashes.
  for (const auto& [a, b] : {std::pair{from->dimltype(), to->dimltype()}, std::pair{from->dimltex1(), to->dimltex1()},
                             std::pair{from->dimltex2(), to->dimltex2()}}) {
    if (a.isNull())
      continue;
    ASSERT_FALSE(b.isNull());
    EXPECT_EQ(b.database(), target.get());
    expectSameLinetype(*OdDbLinetypeTableRecord::cast(a.openObject()), *OdDbLinetypeTableRecord::cast(b.openObject()),
                       nameOf(a).toUtf8());
  }
}

TEST_F(Snapshots, userArrow_travelsAsTheMarkerAndIsLeftUnsetWhereItCannotBeMade)
{
  OdDbDatabasePtr source = odDbCreateDatabase();
  OdDbSymbolTablePtr blocks = OdDbSymbolTable::cast(source->getBlockTableId().openObject(OdDb::kForWrite));
  OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::createObject();
  block->setName("MY_ARROW");
  const OdDbObjectId blockId = blocks->add(block);
  OdDbSymbolTablePtr styles = OdDbSymbolTable::cast(source->getDimStyleTableId().openObject(OdDb::kForWrite));
  OdDbDimStyleTableRecordPtr style = OdDbDimStyleTableRecord::createObject();
  style->setName("USER");
  const OdDbObjectId styleId = styles->add(style);
  style->setDimblk(blockId);
  style->setDimldrblk(OdDmUtil::getArrowId("_Dot", source, true));

  auto snapshot = OdTcDimStyleTableRecordImpl::createNew();
  ASSERT_TRUE(snapshot->captureDbRecord(styleId));
  const std::string xml = tst::paletteXml(snapshot);
  EXPECT_NE(xml.find("<dimblk>%userArrow%</dimblk>"), std::string::npos);
  EXPECT_NE(xml.find("<dimldrblk>_Dot</dimldrblk>"), std::string::npos);

  OdDbDatabasePtr target = odDbCreateDatabase();
  auto back = tst::readOne<OdTcDimStyleTableRecordImpl>(xml);
  ASSERT_TRUE(back);
  OdDbDimStyleTableRecordPtr made = OdDbDimStyleTableRecord::cast(
      tcFindOrCreateRecord(target, target->getDimStyleTableId(), OdString(), back).openObject());
  ASSERT_TRUE(made);
  EXPECT_TRUE(made->dimblk().isNull());
  EXPECT_EQ(nameOf(made->dimldrblk()).iCompare("_Dot"), 0);
  EXPECT_TRUE(target->recordId(target->getBlockTableId(), "%userArrow%").isNull());
}
