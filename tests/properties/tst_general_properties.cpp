// The general properties on a drawing: what apply sets and restore puts
// back, "-- use current", the setters' tests, and the texts of colours and
// lineweights.
#include "tests/properties/PropertyTestSupport.h"

#include "properties/OdTcColorPropertyImpl.h"
#include "properties/OdTcRecordPropertyImpls.h"
#include "properties/OdTcScalarPropertyImpls.h"
#include "properties/TcColorText.h"
#include "properties/TcLineWeightText.h"

#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/dxf/OdDxf.h"

#include <gtest/gtest.h>

using namespace tc;

namespace {

class GeneralProperties : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerPropertyClasses(); }

  // The values a tool must leave as they were.
  struct Current
  {
    OdCmColor color;
    OdDbObjectId layer, linetype, textStyle, dimStyle;
    double linetypeScale;
    OdDb::LineWeight weight;
    OdCmTransparency transparency;
    bool operator==(const Current& o) const
    {
      return color == o.color && layer == o.layer && linetype == o.linetype && textStyle == o.textStyle &&
             dimStyle == o.dimStyle && linetypeScale == o.linetypeScale && weight == o.weight &&
             transparency == o.transparency;
    }
  };
  static Current current(OdDbDatabase* db)
  {
    return {db->getCECOLOR(), db->getCLAYER(),    db->getCELTYPE(),   db->getTEXTSTYLE(),
            db->getDIMSTYLE(), db->getCELTSCALE(), db->getCELWEIGHT(), db->getCETRANSPARENCY()};
  }

  static OdDbObjectId addLayer(OdDbDatabase* db, const OdString& name, std::int16_t colorIndex)
  {
    OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(db->getLayerTableId().openObject(OdDb::kForWrite));
    OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
    layer->setName(name);
    OdCmColor c;
    c.setColorIndex(colorIndex);
    layer->setColor(c);
    return layers->add(layer);
  }

  static void addDashed(OdDbDatabase* db)
  {
    OdDbSymbolTablePtr linetypes = OdDbSymbolTable::cast(db->getLinetypeTableId().openObject(OdDb::kForWrite));
    OdDbLinetypeTableRecordPtr dashed = OdDbLinetypeTableRecord::createObject();
    dashed->setName("DASHED");
    dashed->setComments("Dashed __ __ __");
    dashed->setNumDashes(2);
    dashed->setPatternLength(0.75);
    dashed->setDashLengthAt(0, 0.5);
    dashed->setDashLengthAt(1, -0.25);
    linetypes->add(dashed);
  }

  static void applyAll(OdTcPropertyBag* bag, OdDbDatabase* db)
  {
    OdTcEnumPtr<OdTcProperty> it = bag->newEnumerator();
    while (OdTcProperty* p = it->next())
      p->apply(db);
  }
  static void restoreAll(OdTcPropertyBag* bag, OdDbDatabase* db)
  {
    OdTcEnumPtr<OdTcProperty> it = bag->newEnumerator();
    while (OdTcProperty* p = it->next())
      p->restore(db);
  }

  // The ten properties, as a tool's data makes them.
  static OdTcPropertyBagPtr tenProperties()
  {
    OdTcPropertyBagPtr bag = OdTcPropertyBagImpl::createNew();
    for (const char* tag : {"Color", "Layer", "Linetype", "LinetypeScale", "PlotStyle", "LineWeight", "Transparency",
                            "Textstyle", "Dimstyle", "Tablestyle"})
      bag->addProperty(OdTcPropertyPtr(OdTcTagTable::instance().createByTag(tag)));
    return bag;
  }
};

struct TransparencyCase
{
  const char* text;
  std::uint32_t value;
};

class TransparencyValues : public ::testing::TestWithParam<TransparencyCase>
{
};

struct SetterCase
{
  const char* tag;
  const char* text;
  bool taken;
};

class SetterTests : public GeneralProperties, public ::testing::WithParamInterface<SetterCase>
{
};

} // namespace

TEST_F(GeneralProperties, allUseCurrent_changesNoDrawingValue)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  db->setCEPSNTYPE(OdDb::kPlotStyleNameByBlock);
  OdTcPropertyBagPtr bag = tenProperties();
  const std::string before = odDxfWriteBuffer(db);
  const Current was = current(db);
  applyAll(bag, db);
  EXPECT_TRUE(current(db) == was);
  EXPECT_EQ(db->getCEPSNTYPE(), OdDb::kPlotStyleNameByBlock);
  restoreAll(bag, db);
  EXPECT_EQ(odDxfWriteBuffer(db), before);
}

TEST_F(GeneralProperties, everyKind_appliedThenRestored_plotStyleTypeStays)
{
  OdDbDatabasePtr source = odDbCreateDatabase();
  addDashed(source);
  addLayer(source, "WALLS-NEW", 3);
  OdDbLayerTableRecordPtr walls = OdDbLayerTableRecord::cast(
      source->recordId(source->getLayerTableId(), "WALLS-NEW").openObject(OdDb::kForWrite));
  walls->setLinetypeObjectId(source->recordId(source->getLinetypeTableId(), "DASHED"));

  OdTcPropertyBagPtr bag = tenProperties();
  OdCmColor trueColor;
  trueColor.setRGB(10, 120, 230);
  static_cast<OdTcColorPropertyImpl*>(bag->findByName("General.Color"))->setColor(trueColor);
  ASSERT_TRUE(static_cast<OdTcLayerPropertyImpl*>(bag->findByName("General.Layer"))->captureRecord(source, "WALLS-NEW"));
  ASSERT_TRUE(
      static_cast<OdTcLineTypePropertyImpl*>(bag->findByName("General.Linetype"))->captureRecord(source, "DASHED"));
  ASSERT_TRUE(static_cast<OdTcDatabaseProperty*>(bag->findByName("General.Linetype scale"))->setValueText("2.5"));
  ASSERT_TRUE(static_cast<OdTcDatabaseProperty*>(bag->findByName("General.Plot style"))->setValueText("ByBlock"));
  ASSERT_TRUE(static_cast<OdTcDatabaseProperty*>(bag->findByName("General.Line weight"))->setValueText("35"));
  ASSERT_TRUE(static_cast<OdTcDatabaseProperty*>(bag->findByName("General.Transparency"))->setValueText("40"));

  OdDbDatabasePtr target = odDbCreateDatabase();
  const Current was = current(target);
  applyAll(bag, target);
  EXPECT_EQ(target->getCECOLOR(), trueColor);
  OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::cast(target->getCLAYER().openObject());
  ASSERT_TRUE(layer);
  EXPECT_EQ(layer->getName(), "WALLS-NEW");
  EXPECT_EQ(layer->color().colorIndex(), 3);
  EXPECT_EQ(layer->linetypeName(), "DASHED"); // made first, from the layer's own snapshot
  OdDbLinetypeTableRecordPtr dashed = OdDbLinetypeTableRecord::cast(target->getCELTYPE().openObject());
  ASSERT_TRUE(dashed);
  EXPECT_EQ(dashed->getName(), "DASHED");
  EXPECT_DOUBLE_EQ(target->getCELTSCALE(), 2.5);
  EXPECT_EQ(target->getCELWEIGHT(), OdDb::kLnWt035);
  EXPECT_EQ(target->getCEPSNTYPE(), OdDb::kPlotStyleNameByBlock);
  EXPECT_EQ(target->getCETRANSPARENCY().serializeOut(), 0x2000000u | std::uint32_t(int((100 - 40) * 0.01 * 255)));

  restoreAll(bag, target);
  EXPECT_TRUE(current(target) == was);
  EXPECT_EQ(target->getCEPSNTYPE(), OdDb::kPlotStyleNameByBlock); // saved, never put back
  // What was made stays in the drawing.
  EXPECT_FALSE(target->recordId(target->getLayerTableId(), "WALLS-NEW").isNull());
  EXPECT_FALSE(target->recordId(target->getLinetypeTableId(), "DASHED").isNull());
}

TEST_F(GeneralProperties, recordOfTheSameName_winsUnchanged)
{
  OdDbDatabasePtr source = odDbCreateDatabase();
  addLayer(source, "WALLS", 1);
  auto layer = OdTcLayerPropertyImpl::createNew();
  ASSERT_TRUE(layer->captureRecord(source, "WALLS"));

  OdDbDatabasePtr target = odDbCreateDatabase();
  const OdDbObjectId theirs = addLayer(target, "walls", 5);
  layer->apply(target);
  EXPECT_EQ(target->getCLAYER(), theirs);
  EXPECT_EQ(OdDbLayerTableRecord::cast(theirs.openObject())->color().colorIndex(), 5);
}

TEST_F(GeneralProperties, layerWhoseLinetypeCannotBeMade_takesTheCurrentLinetype)
{
  OdDbDatabasePtr source = odDbCreateDatabase();
  addLayer(source, "PIPES", 2);
  auto layer = OdTcLayerPropertyImpl::createNew();
  ASSERT_TRUE(layer->captureRecord(source, "PIPES"));
  // The linetype's snapshot names one that could not be captured.
  auto* snapshot = static_cast<OdTcLayerTableRecordImpl*>(layer->snapshot());
  snapshot->m_linetype->captureDbRecord(OdDbObjectId());
  EXPECT_EQ(snapshot->m_linetype->name(), "%otherLinetype%");

  OdDbDatabasePtr target = odDbCreateDatabase();
  addDashed(target);
  target->setCELTYPE(target->recordId(target->getLinetypeTableId(), "DASHED"));
  layer->apply(target);
  EXPECT_EQ(OdDbLayerTableRecord::cast(target->getCLAYER().openObject())->linetypeName(), "DASHED");
  EXPECT_TRUE(target->recordId(target->getLinetypeTableId(), "%otherLinetype%").isNull());
}

TEST_F(GeneralProperties, restoreWithoutApply_changesNothing)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdTcPropertyBagPtr bag = tenProperties();
  static_cast<OdTcDatabaseProperty*>(bag->findByName("General.Linetype scale"))->setValueText("3");
  const std::string before = odDxfWriteBuffer(db);
  restoreAll(bag, db);
  EXPECT_EQ(odDxfWriteBuffer(db), before);
}

TEST_F(GeneralProperties, dimensionStyle_variablesOfTheDrawingFollowTheStyle)
{
  OdDbDatabasePtr source = odDbCreateDatabase();
  {
    OdDbSymbolTablePtr dims = OdDbSymbolTable::cast(source->getDimStyleTableId().openObject(OdDb::kForWrite));
    OdDbDimStyleTableRecordPtr dim = OdDbDimStyleTableRecord::createObject();
    dim->setName("BIG");
    dim->setDimasz(7.0);
    dims->add(dim);
  }
  auto property = OdTcDimStylePropertyImpl::createNew();
  ASSERT_TRUE(property->captureRecord(source, "BIG"));
  OdDbDatabasePtr target = odDbCreateDatabase();
  const OdDbObjectId standard = target->getDIMSTYLE();
  property->apply(target);
  EXPECT_DOUBLE_EQ(target->getHeaderDouble("$DIMASZ"), 7.0);
  property->restore(target);
  EXPECT_EQ(target->getDIMSTYLE(), standard);
  EXPECT_DOUBLE_EQ(target->getHeaderDouble("$DIMASZ"),
                   OdDbDimStyleTableRecord::cast(standard.openObject())->dimasz());
}

TEST_P(TransparencyValues, percentToValue)
{
  EXPECT_EQ(OdTcTransparencyPropertyImpl::transparencyValue(GetParam().text), GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Values, TransparencyValues,
    ::testing::Values(TransparencyCase{"ByLayer", 0u}, TransparencyCase{"ByBlock", 0x1000000u},
                      TransparencyCase{"0", 0x20000FFu}, TransparencyCase{"100", 0x2000000u},
                      TransparencyCase{"50", 0x2000000u | 127u}, TransparencyCase{"150", 0x2000000u},
                      TransparencyCase{"-20", 0x20000FFu}, TransparencyCase{"abc", 0x20000FFu}));

TEST_P(SetterTests, characterTests)
{
  OdTcDatabasePropertyPtr property(OdTcTagTable::instance().createByTag(GetParam().tag));
  ASSERT_TRUE(property);
  property->setValueText("1");
  EXPECT_EQ(property->setValueText(GetParam().text), GetParam().taken) << GetParam().tag << " " << GetParam().text;
  EXPECT_EQ(property->basicInfo()->isUnspecified(), !GetParam().taken);
}

INSTANTIATE_TEST_SUITE_P(
    Setters, SetterTests,
    ::testing::Values(SetterCase{"LinetypeScale", "2.5", true}, SetterCase{"LinetypeScale", "2,5", false},
                      SetterCase{"LinetypeScale", "-1", false}, SetterCase{"LinetypeScale", "", false},
                      SetterCase{"LinetypeScale", "-- use current", false}, SetterCase{"Transparency", "40", true},
                      SetterCase{"Transparency", "40.5", false}, SetterCase{"Transparency", "ByLayer", false},
                      SetterCase{"LineWeight", "35", true}, SetterCase{"LineWeight", "0.35 mm", true},
                      SetterCase{"LineWeight", "By Layer", true}, SetterCase{"LineWeight", "33", false},
                      SetterCase{"Layer", "WALLS", true}, SetterCase{"Layer", "-- use current", false},
                      SetterCase{"Color", "red", true}, SetterCase{"Color", "12,34,56", true},
                      SetterCase{"Color", "256", false}, SetterCase{"Color", "purple", false}));

TEST(ColorText, namesOfColours)
{
  struct Case
  {
    OdCmColor color;
    const char* text;
  };
  auto aci = [](int i) {
    OdCmColor c;
    c.setColorIndex(std::int16_t(i));
    return c;
  };
  auto rgb = [](int r, int g, int b) {
    OdCmColor c;
    c.setRGB(std::uint8_t(r), std::uint8_t(g), std::uint8_t(b));
    return c;
  };
  const Case cases[] = {{OdCmColor(OdCmEntityColor::kByLayer), "By Layer"},
                        {OdCmColor(OdCmEntityColor::kByBlock), "By Block"},
                        {OdCmColor(OdCmEntityColor::kForeground), "Foreground"},
                        {OdCmColor(OdCmEntityColor::kNone), "None"},
                        {aci(1), "red"},
                        {aci(2), "yellow"},
                        {aci(3), "green"},
                        {aci(4), "cyan"},
                        {aci(5), "blue"},
                        {aci(6), "magenta"},
                        {aci(7), "white"},
                        {aci(42), "42"},
                        {rgb(255, 0, 255), "magenta"},
                        {rgb(12, 34, 56), "12,34,56"}};
  for (const Case& c : cases) {
    EXPECT_EQ(tcColorText(c.color), c.text);
    OdCmColor back;
    ASSERT_TRUE(tcParseColorText(c.text, back)) << c.text;
    EXPECT_EQ(tcColorText(back), c.text);
  }
}

TEST(LineWeightText, millimetresOrInches)
{
  EXPECT_EQ(tcLineWeightText(35, 1), "0.35 mm");
  EXPECT_EQ(tcLineWeightText(35, 0), "0.014''");
  EXPECT_EQ(tcLineWeightText(211, 1), "2.11 mm");
  EXPECT_EQ(tcLineWeightText(-1, 0), "By Layer");
  EXPECT_EQ(tcLineWeightText(-2, 1), "By Block");
  EXPECT_EQ(tcLineWeightText(-3, 1), "By Default");
  int w = 0;
  ASSERT_TRUE(tcParseLineWeight("0.014''", w));
  EXPECT_EQ(w, 35);
  ASSERT_TRUE(tcParseLineWeight("ByDefault", w));
  EXPECT_EQ(w, -3);
}
