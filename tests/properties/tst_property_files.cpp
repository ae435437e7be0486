// General properties and their snapshots in palette files: what is written,
// what is read, and that a load and a save lose nothing.
#include "tests/properties/PropertyTestSupport.h"

#include "model/OdTcToolImpl.h"
#include "persist/TcFileStore.h"

#include "properties/OdTcColorPropertyImpl.h"
#include "properties/OdTcRecordPropertyImpls.h"
#include "properties/OdTcScalarPropertyImpls.h"

#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"

#include <gtest/gtest.h>

using namespace tc;

namespace {

class PropertyFiles : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerPropertyClasses(); }

  // A drawing with a layer on a complex linetype whose text has a style of
  // its own, and a dimension style with arrows, a text style and linetypes.
  static OdDbDatabasePtr sourceDrawing()
  {
    OdDbDatabasePtr db = odDbCreateDatabase();
    OdDbSymbolTablePtr styles = OdDbSymbolTable::cast(db->getTextStyleTableId().openObject(OdDb::kForWrite));
    OdDbTextStyleTableRecordPtr style = OdDbTextStyleTableRecord::createObject();
    style->setName("LT-TEXT");
    style->setFileName("romans.shx");
    style->setXScale(0.8);
    const OdDbObjectId styleId = styles->add(style);

    OdDbSymbolTablePtr linetypes = OdDbSymbolTable::cast(db->getLinetypeTableId().openObject(OdDb::kForWrite));
    OdDbLinetypeTableRecordPtr gas = OdDbLinetypeTableRecord::createObject();
    gas->setName("GAS_LINE");
    gas->setComments("Gas line ----GAS----GAS----");
    gas->setNumDashes(3);
    gas->setPatternLength(1.25);
    gas->setDashLengthAt(0, 0.5);
    gas->setDashLengthAt(1, -0.2);
    gas->setDashLengthAt(2, -0.55);
    gas->setTextAt(1, "GAS");
    gas->setShapeStyleAt(1, styleId);
    gas->setShapeScaleAt(1, 0.1);
    gas->setShapeRotationAt(1, 0.25);
    gas->setShapeOffsetAt(1, OdGeVector2d(-0.1, -0.05));
    gas->setShapeIsUcsOrientedAt(1, true);
    linetypes->add(gas);

    OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(db->getLayerTableId().openObject(OdDb::kForWrite));
    OdDbLayerTableRecordPtr walls = OdDbLayerTableRecord::createObject();
    walls->setName("WALLS-NEW");
    OdCmColor color;
    color.setRGB(12, 34, 56);
    walls->setColor(color);
    walls->setLineWeight(OdDb::kLnWt035);
    walls->setIsPlottable(false);
    walls->setLinetypeObjectId(db->recordId(db->getLinetypeTableId(), "GAS_LINE"));
    layers->add(walls);

    OdDbSymbolTablePtr dims = OdDbSymbolTable::cast(db->getDimStyleTableId().openObject(OdDb::kForWrite));
    OdDbDimStyleTableRecordPtr dim = OdDbDimStyleTableRecord::createObject();
    dim->setName("ARCH");
    dim->setDimasz(3.5);
    dim->setDimtofl(true);
    dim->setDimdec(2);
    dim->setDimpost("<> mm");
    dims->add(dim);
    dim->setDimblk("_ArchTick");
    dim->setDimtxsty(styleId);
    dim->setDimltype(db->recordId(db->getLinetypeTableId(), "GAS_LINE"));
    return db;
  }

  static OdTcPropertyBagPtr fullBag(OdDbDatabase* db)
  {
    OdTcPropertyBagPtr bag = OdTcPropertyBagImpl::createNew();
    auto color = OdTcColorPropertyImpl::createNew();
    OdCmColor c;
    c.setRGB(200, 100, 50);
    color->setColor(c);
    bag->addProperty(color);
    auto layer = OdTcLayerPropertyImpl::createNew();
    EXPECT_TRUE(layer->captureRecord(db, "WALLS-NEW"));
    bag->addProperty(layer);
    auto linetype = OdTcLineTypePropertyImpl::createNew();
    EXPECT_TRUE(linetype->captureRecord(db, "GAS_LINE"));
    bag->addProperty(linetype);
    auto scale = OdTcLineTypeScalePropertyImpl::createNew();
    scale->setValueText("2.5");
    bag->addProperty(scale);
    auto plot = OdTcPlotStylePropertyImpl::createNew();
    plot->setValueText("ByBlock");
    bag->addProperty(plot);
    auto weight = OdTcLineWeightPropertyImpl::createNew();
    weight->setValueText("35");
    bag->addProperty(weight);
    auto transparency = OdTcTransparencyPropertyImpl::createNew();
    transparency->setValueText("40");
    bag->addProperty(transparency);
    auto text = OdTcTextStylePropertyImpl::createNew();
    EXPECT_TRUE(text->captureRecord(db, "LT-TEXT"));
    bag->addProperty(text);
    auto dim = OdTcDimStylePropertyImpl::createNew();
    EXPECT_TRUE(dim->captureRecord(db, "ARCH"));
    bag->addProperty(dim);
    auto table = OdTcTableStylePropertyImpl::createNew();
    table->basicInfo()->setUnspecified(false);
    table->basicInfo()->setPropValue(OdVariant(OdString("Standard")));
    bag->addProperty(table);
    return bag;
  }
};

} // namespace

TEST_F(PropertyFiles, fullBag_survivesReadAndWriteByteForByte)
{
  OdDbDatabasePtr db = sourceDrawing();
  const std::string first = tst::paletteXml(fullBag(db));
  auto bag = tst::readOne<OdTcPropertyBagImpl>(first);
  ASSERT_TRUE(bag);
  EXPECT_EQ(bag->count(), 10);
  EXPECT_EQ(tst::paletteXml(bag), first);

  // A clone writes the same.
  OdTcPropertyBagPtr copy(bag->clone());
  EXPECT_EQ(tst::paletteXml(copy), first);
}

TEST_F(PropertyFiles, generalProperty_valueFirstThenCreateInfo)
{
  OdDbDatabasePtr db = sourceDrawing();
  auto layer = OdTcLayerPropertyImpl::createNew();
  ASSERT_TRUE(layer->captureRecord(db, "WALLS-NEW"));
  const std::string xml = tst::body(tst::paletteXml(layer));
  EXPECT_EQ(xml.rfind("<Layer><BasicPropInfo><PropValue unspecified=\"FALSE\" value=\"WALLS-NEW\" />"
                      "</BasicPropInfo><CreateInfo><LayerTableRecord><isNotPlotted>TRUE</isNotPlotted>"
                      "<lineWeight>35</lineWeight><SymbolTableNameRecord>WALLS-NEW</SymbolTableNameRecord>"
                      "<Plotstylename></Plotstylename><LinetypeTableRecord><numberOfPatternElements>3",
                      0),
            0u)
      << xml;
  // The layer's colour closes the record, packed and unsigned.
  EXPECT_NE(xml.find("<AcCmColor mRGB=\"3255575096\" /></LayerTableRecord></CreateInfo></Layer>"), std::string::npos)
      << xml;
}

TEST_F(PropertyFiles, recordsEveryDrawingHas_areWrittenWithoutSnapshot)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  struct Case
  {
    OdSmartPtr<OdTcRecordPropertyImplBase> property;
    const char* name;
  };
  const Case cases[] = {{OdTcLayerPropertyImpl::createNew(), "0"},
                        {OdTcLineTypePropertyImpl::createNew(), "ByLayer"},
                        {OdTcLineTypePropertyImpl::createNew(), "ByBlock"},
                        {OdTcLineTypePropertyImpl::createNew(), "Continuous"}};
  for (const Case& c : cases) {
    ASSERT_TRUE(c.property->captureRecord(db, c.name)) << c.name;
    EXPECT_EQ(tst::body(tst::paletteXml(c.property)).find("CreateInfo"), std::string::npos) << c.name;
  }
}

TEST_F(PropertyFiles, currentColourBook_isNeverWritten)
{
  auto color = OdTcColorPropertyImpl::createNew();
  OdCmColor red;
  red.setColorIndex(1);
  color->setColor(red);
  color->setColor(color->getColor()); // still red: a set colour is no "curr_color"
  color->setValueText("-- use current");
  const OdCmColor shown = color->getColor();
  EXPECT_EQ(shown.bookName(), "curr_color");
  color->setColor(shown);
  const std::string xml = tst::paletteXml(color);
  EXPECT_EQ(xml.find("curr_color"), std::string::npos);
  EXPECT_EQ(xml.find("CreateInfo"), std::string::npos);
  EXPECT_TRUE(color->basicInfo()->isUnspecified());
}

TEST_F(PropertyFiles, colour_readsSignedAndUnsignedPackedValues)
{
  for (const char* packed : {"3255575096", "-1039392200"}) {
    const std::string xml = tst::wrap(std::string("<Color><BasicPropInfo><PropValue unspecified=\"FALSE\" />"
                                                  "</BasicPropInfo><CreateInfo><AcCmColor mRGB=\"") +
                                      packed + "\" /></CreateInfo></Color>");
    auto color = tst::readOne<OdTcColorPropertyImpl>(xml);
    ASSERT_TRUE(color) << packed;
    const OdCmColor c = color->getColor();
    EXPECT_TRUE(c.isByColor()) << packed;
    EXPECT_EQ(c.red(), 12);
    EXPECT_EQ(c.green(), 34);
    EXPECT_EQ(c.blue(), 56);
  }
}

TEST_F(PropertyFiles, createInfoUnderOtherParents_isNoSnapshot)
{
  // Under "Tablestyle" the element is nobody's: read as plain values and
  // dropped, the rest of the property read.
  const std::string xml = tst::wrap("<Tablestyle><BasicPropInfo><PropValue unspecified=\"FALSE\" value=\"T1\" />"
                                    "</BasicPropInfo><CreateInfo><X a=\"1\" /></CreateInfo></Tablestyle>");
  auto table = tst::readOne<OdTcTableStylePropertyImpl>(xml);
  ASSERT_TRUE(table);
  EXPECT_EQ(table->valueText(), "T1");
  EXPECT_EQ(tst::body(tst::paletteXml(table)),
            "<Tablestyle><BasicPropInfo><PropValue unspecified=\"FALSE\" value=\"T1\" /></BasicPropInfo></Tablestyle>");
}

TEST_F(PropertyFiles, foreignTextStyleSnapshot_inACollection)
{
  // Another program's form: the style inside its collection.
  const std::string xml = tst::wrap(
      "<Textstyle><BasicPropInfo><PropValue unspecified=\"FALSE\" value=\"NOTES\" valueType=\"8\" />"
      "</BasicPropInfo><CreateInfo><TextstyleTableRecordCollection><TextstyleTableRecord handle=\"2A\">"
      "<isShapeFilePointer>FALSE</isShapeFilePointer><fontOrShapeFile>arial.ttf</fontOrShapeFile>"
      "<widthRatio>0.9</widthRatio><SymbolTableNameRecord>NOTES</SymbolTableNameRecord>"
      "<typeFace>Arial</typeFace><bold>true</bold></TextstyleTableRecord></TextstyleTableRecordCollection>"
      "</CreateInfo></Textstyle>");
  auto text = tst::readOne<OdTcTextStylePropertyImpl>(xml);
  ASSERT_TRUE(text);
  ASSERT_NE(text->snapshot(), nullptr);
  EXPECT_EQ(text->snapshot()->name(), "NOTES");

  OdDbDatabasePtr target = odDbCreateDatabase();
  text->apply(target);
  OdDbTextStyleTableRecordPtr made = OdDbTextStyleTableRecord::cast(target->getTEXTSTYLE().openObject());
  ASSERT_TRUE(made);
  EXPECT_EQ(made->getName(), "NOTES");
  EXPECT_DOUBLE_EQ(made->xScale(), 0.9);
  OdString face;
  bool bold = false, italic = false;
  int charset = 0, pitch = 0;
  made->font(face, bold, italic, charset, pitch);
  EXPECT_EQ(face, "Arial");
  EXPECT_TRUE(bold);

  // Written back with the collection it came with.
  const std::string again = tst::paletteXml(text);
  EXPECT_NE(again.find("<TextstyleTableRecordCollection><TextstyleTableRecord handle=\"2A\">"), std::string::npos);
  EXPECT_EQ(tst::paletteXml(tst::readOne<OdTcTextStylePropertyImpl>(again)), again);
}

TEST_F(PropertyFiles, dimensionSnapshot_everyVariableByNameInOrder)
{
  OdDbDatabasePtr db = sourceDrawing();
  auto dim = OdTcDimStylePropertyImpl::createNew();
  ASSERT_TRUE(dim->captureRecord(db, "ARCH"));
  const std::string xml = tst::paletteXml(dim);
  const char* order[] = {"dimadec",   "dimalt",      "dimaltd",   "dimaltf",         "dimaltrnd",   "dimalttd",
                         "dimalttz",  "dimasz",      "dimatfit",  "dimaunit",        "dimazin",     "dimcen",
                         "dimdec",    "dimdle",      "dimdli",    "dimdsep",         "dimexe",      "dimexo",
                         "dimfrac",   "dimgap",      "dimjust",   "dimlfac",         "dimlim",      "dimlunit",
                         "dimlwd",    "dimlwe",      "dimrnd",    "dimsah",          "dimscale",    "dimsd1",
                         "dimsd2",    "dimse1",      "dimse2",    "dimsoxd",         "dimtad",      "dimtdec",
                         "dimtfac",   "dimtih",      "dimtix",    "dimtm",           "dimtmove",    "dimtofL",
                         "dimtoh",    "dimtoL",      "dimtolj",   "dimtp",           "dimtsz",      "dimtvp",
                         "dimtxt",    "dimtzin",     "dimupt",    "dimzin",          "dimfxlon",    "dimfxl",
                         "dimfixedext", "dimjogang", "dimarcsym", "dimtfill",        "dimtxtdirection", "dimaltz",
                         "dimaltmzf", "dimapost",    "dimpost",   "dimblk",          "dimblk1",     "dimblk2",
                         "dimldrblk", "SymbolTableNameRecord", "Dimclrd", "Dimclre", "Dimclrt",     "dimtfillclr",
                         "Dimtxsty",  "DimLineType"};
  std::size_t at = 0;
  for (const char* name : order) {
    const std::size_t found = xml.find(std::string("<") + name + ">", at);
    ASSERT_NE(found, std::string::npos) << name << " missing or out of order";
    at = found;
  }
  EXPECT_NE(xml.find("<dimasz>3.5</dimasz>"), std::string::npos);
  EXPECT_NE(xml.find("<dimtofL>TRUE</dimtofL>"), std::string::npos);
  EXPECT_NE(xml.find("<dimdec>2</dimdec>"), std::string::npos);
  EXPECT_NE(xml.find("<dimblk>_ArchTick</dimblk>"), std::string::npos);
  EXPECT_NE(xml.find("<dimlwd>-2</dimlwd>"), std::string::npos);
  EXPECT_EQ(tst::paletteXml(tst::readOne<OdTcDimStylePropertyImpl>(xml)), xml);
}

TEST_F(PropertyFiles, toolData_makesTheTenKindsByTheirElementNames_andKeepsAFullBag)
{
  if (!OdTcToolData::desc())
    OdTcToolData::rxInit();
  // The tool's data makes its properties through the module's file store.
  static TcFileStore store;
  odtcSetFileStore(&store);
  auto fresh = OdTcToolDataImpl::createNew();
  OdTcPropertyBag* made = fresh->generalProperties();
  ASSERT_TRUE(made);
  ASSERT_EQ(made->count(), 10);
  const char* names[] = {"General.Color",        "General.Layer",     "General.Linetype",  "General.Linetype scale",
                         "General.Plot style",   "General.Line weight", "General.Transparency",
                         "General.Text style",   "General.Dimstyle",  "Table style"};
  for (const char* name : names) {
    OdTcDatabaseProperty* property = OdTcDatabaseProperty::cast(made->findByName(name)).get();
    ASSERT_TRUE(property) << name;
    EXPECT_TRUE(property->basicInfo()->isUnspecified()) << name;
  }

  // A tool's data with every property set survives its file.
  OdDbDatabasePtr db = sourceDrawing();
  const std::string bagXml = tst::body(tst::paletteXml(fullBag(db)));
  const std::string xml = tst::wrap("<Data>" + bagXml + "</Data>");
  auto data = tst::readOne<OdTcToolDataImpl>(xml);
  ASSERT_TRUE(data);
  ASSERT_TRUE(data->generalProperties());
  EXPECT_EQ(data->generalProperties()->count(), 10);
  EXPECT_EQ(tst::paletteXml(data), xml);
  odtcSetFileStore(nullptr);
}
