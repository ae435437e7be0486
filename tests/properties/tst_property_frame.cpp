// The property frame: the bag and its order, the editing period, the
// record of a value in a file, the forms of booleans.
#include "tests/properties/PropertyTestSupport.h"

#include "properties/OdTcColorPropertyImpl.h"
#include "properties/OdTcPropertyFilterImpl.h"
#include "properties/OdTcPropertyImpl.h"
#include "properties/OdTcRecordPropertyImpls.h"
#include "properties/OdTcScalarPropertyImpls.h"

#include "model/TcValueText.h"

#include <gtest/gtest.h>

using namespace tc;

namespace {

class PropertyFrame : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerPropertyClasses(); }
};

struct BoolCase
{
  const char* text;
  bool value;
};

class BoolReader : public ::testing::TestWithParam<BoolCase>
{
};

} // namespace

TEST(BoolText, threeForms)
{
  EXPECT_EQ(tcBoolText(true, TcBoolForm::kUpperCase), "TRUE");
  EXPECT_EQ(tcBoolText(false, TcBoolForm::kUpperCase), "FALSE");
  EXPECT_EQ(tcBoolText(true, TcBoolForm::kLowerCase), "true");
  EXPECT_EQ(tcBoolText(false, TcBoolForm::kLowerCase), "false");
  EXPECT_EQ(tcBoolText(true, TcBoolForm::kDigits), "1");
  EXPECT_EQ(tcBoolText(false, TcBoolForm::kDigits), "0");
}

TEST_P(BoolReader, readsTrueOnlyForTrueAndOne)
{
  EXPECT_EQ(tcReadBool(GetParam().text), GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Forms, BoolReader,
                         ::testing::Values(BoolCase{"TRUE", true}, BoolCase{"true", true}, BoolCase{"True", true},
                                           BoolCase{"1", true}, BoolCase{"FALSE", false}, BoolCase{"0", false},
                                           BoolCase{"-1", false}, BoolCase{"yes", false}, BoolCase{"", false},
                                           BoolCase{" 1", false}));

TEST(VariantText, eachKind)
{
  EXPECT_EQ(tcVariantText(OdVariant(OdString("Walls"))), "Walls");
  EXPECT_EQ(tcVariantText(OdVariant(true)), "TRUE");
  EXPECT_EQ(tcVariantText(OdVariant(std::int32_t(-7))), "-7");
  EXPECT_EQ(tcVariantText(OdVariant(0.35)), "0.35");
  EXPECT_EQ(tcVariantText(OdVariant(OdRxObjectPtr())), "");
}

TEST_F(PropertyFrame, emptyBag_appliesNothing)
{
  OdTcPropertyBagPtr bag = OdTcPropertyBagImpl::createNew();
  EXPECT_TRUE(bag->isEmpty());
  OdDbDatabasePtr db = odDbCreateDatabase();
  const std::string before = tst::paletteXml(bag);
  OdTcEnumPtr<OdTcProperty> it = bag->newEnumerator();
  EXPECT_EQ(it->next(), nullptr);
  EXPECT_EQ(before, "<Palette><GeneralProperties /></Palette>");
}

TEST_F(PropertyFrame, bag_keepsOrderAndFindsByExactName)
{
  OdTcPropertyBagPtr bag = OdTcPropertyBagImpl::createNew();
  bag->addProperty(OdTcLayerPropertyImpl::createNew());
  bag->addProperty(OdTcColorPropertyImpl::createNew());
  EXPECT_EQ(bag->count(), 2);
  EXPECT_EQ(bag->findByName("General.Color")->tagName(), "Color");
  EXPECT_EQ(bag->findByName("general.color"), nullptr);
  EXPECT_EQ(bag->findByName("General.Nothing"), nullptr);
  EXPECT_EQ(bag->findByDisplayName("GENERAL.LAYER")->tagName(), "Layer");
  EXPECT_EQ(bag->findByName("General.Layer")->parent(), bag.get());

  // The cursor walks a copy: a property added while walking is not met.
  OdTcEnumPtr<OdTcProperty> it = bag->newEnumerator();
  bag->addProperty(OdTcTransparencyPropertyImpl::createNew());
  int seen = 0;
  while (it->next())
    ++seen;
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(bag->count(), 3);
}

TEST_F(PropertyFrame, bag_refusesChildOfAnotherClass)
{
  OdTcPropertyBagPtr bag = OdTcPropertyBagImpl::createNew();
  auto* impl = static_cast<OdTcPropertyBagImpl*>(bag.get());
  EXPECT_THROW(impl->setValue("Anything", OdVariant(OdRxObjectPtr(OdTcPropertyFilterImpl::createNew()))),
               OdError_NotThatKindOfClass);
  EXPECT_FALSE(impl->setValue("Text", OdVariant(OdString("x"))));
  EXPECT_TRUE(bag->isEmpty());
}

TEST_F(PropertyFrame, cloneOfBag_isDeepAndOfTheSameClasses)
{
  OdTcPropertyBagPtr bag = OdTcPropertyBagImpl::createNew();
  auto layer = OdTcLayerPropertyImpl::createNew();
  layer->setValueText("WALLS");
  bag->addProperty(layer);
  OdTcPropertyBagPtr copy(bag->clone());
  auto* copied = dynamic_cast<OdTcLayerPropertyImpl*>(copy->findByName("General.Layer"));
  ASSERT_NE(copied, nullptr);
  EXPECT_NE(copied, layer.get());
  EXPECT_EQ(copied->valueText(), "WALLS");
  EXPECT_EQ(copied->parent(), copy.get());
  layer->setValueText("DOORS");
  EXPECT_EQ(copied->valueText(), "WALLS");
}

TEST_F(PropertyFrame, editing_rollbackPutsBackWhatStoodBeforeTheFirstChange)
{
  auto layer = OdTcLayerPropertyImpl::createNew();
  layer->setValueText("WALLS");
  layer->acceptEdit();
  EXPECT_FALSE(layer->isEdited());

  layer->beginEditTracking();
  layer->setValueText("DOORS");
  EXPECT_TRUE(layer->isEdited());
  layer->setValueText("-- use current");
  layer->rollbackEdit();
  EXPECT_FALSE(layer->isEdited());
  EXPECT_EQ(layer->valueText(), "WALLS");
  EXPECT_FALSE(layer->basicInfo()->isUnspecified());

  // OK keeps what stands.
  layer->setValueText("DOORS");
  layer->acceptEdit();
  layer->rollbackEdit();
  EXPECT_EQ(layer->valueText(), "DOORS");
}

TEST_F(PropertyFrame, editing_cancelWithoutChangeDoesNothing_andUntrackedChangesKeepNoBackup)
{
  auto color = OdTcColorPropertyImpl::createNew();
  OdCmColor red;
  red.setColorIndex(1);
  color->setColor(red);
  color->acceptEdit();
  color->rollbackEdit();
  EXPECT_EQ(color->getColor(), red);

  color->endEditTracking();
  OdCmColor blue;
  blue.setColorIndex(5);
  color->setColor(blue);
  EXPECT_FALSE(color->isEdited());
  color->rollbackEdit();
  EXPECT_EQ(color->getColor(), blue);
}

TEST_F(PropertyFrame, editing_rollbackRestoresTheSnapshotToo)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  auto layer = OdTcLayerPropertyImpl::createNew();
  ASSERT_TRUE(layer->captureRecord(db, "0"));
  layer->acceptEdit();
  layer->setValueText("NEW");
  EXPECT_EQ(layer->snapshot(), nullptr); // a typed name drops the snapshot of another record
  layer->rollbackEdit();
  ASSERT_NE(layer->snapshot(), nullptr);
  EXPECT_EQ(layer->snapshot()->name(), "0");
}

TEST_F(PropertyFrame, basicInfo_writtenForms)
{
  auto plain = OdTcPropertyImpl::createNew();
  EXPECT_EQ(tst::body(tst::paletteXml(plain)), "<OdTcPersist><BasicPropInfo><PropValue unspecified=\"TRUE\" "
                                               "valueType=\"0\" /></BasicPropInfo></OdTcPersist>");
  plain->basicInfo()->setUnspecified(false);
  plain->basicInfo()->setValueType(3);
  plain->basicInfo()->setPropValue(OdVariant(std::int32_t(42)));
  EXPECT_EQ(tst::body(tst::paletteXml(plain)), "<OdTcPersist><BasicPropInfo><PropValue unspecified=\"FALSE\" "
                                               "valueType=\"3\" value=\"42\" /></BasicPropInfo></OdTcPersist>");
  // An empty value text is left out.
  plain->basicInfo()->setPropValue(OdVariant(OdString()));
  EXPECT_EQ(tst::body(tst::paletteXml(plain)).find("value=\""), std::string::npos);
}

TEST_F(PropertyFrame, unspecifiedGeneralProperty_hasNeitherValueNorCreateInfo)
{
  auto layer = OdTcLayerPropertyImpl::createNew();
  OdDbDatabasePtr db = odDbCreateDatabase();
  ASSERT_TRUE(layer->captureRecord(db, "0"));
  layer->setValueText("-- use current");
  EXPECT_EQ(layer->valueText(), "-- use current");
  EXPECT_EQ(tst::body(tst::paletteXml(layer)),
            "<Layer><BasicPropInfo><PropValue unspecified=\"TRUE\" /></BasicPropInfo></Layer>");
}

TEST_F(PropertyFrame, reference_keepsItsAttributes)
{
  const std::string xml = tst::wrap("<Reference idValue=\"{A}\" kind=\"tool\" />");
  auto reference = tst::readOne<OdTcPropertyReferenceImpl>(xml);
  ASSERT_TRUE(reference);
  EXPECT_EQ(reference->attributes().size(), 2u);
  EXPECT_EQ(tst::paletteXml(reference), xml);
}

TEST_F(PropertyFrame, filter_containsExactNames)
{
  OdTcPropertyFilterPtr filter = OdTcPropertyFilterImpl::createNew();
  filter->add("General.Dimstyle");
  EXPECT_TRUE(filter->contains("General.Dimstyle"));
  EXPECT_FALSE(filter->contains("General.dimstyle"));
  OdTcPropertyFilterPtr copy(filter->clone());
  EXPECT_TRUE(copy->contains("General.Dimstyle"));
}

TEST_F(PropertyFrame, classDescriptions_makeTheImplementations)
{
  OdTcPropertyBagPtr bag = OdTcPropertyBag::createObject();
  ASSERT_TRUE(bag);
  EXPECT_EQ(bag->tagName(), "GeneralProperties");
  OdTcDatabasePropertyPtr property = OdTcDatabaseProperty::createObject();
  ASSERT_TRUE(property);
  EXPECT_EQ(property->category(), "General");
  EXPECT_TRUE(OdTcPropertyFilter::createObject());
  EXPECT_TRUE(OdTcProperty::createObject());
  EXPECT_TRUE(OdTcPropertyCreateInfo::createObject());
  EXPECT_TRUE(OdTcSymbolTableRecord::createObject());
  EXPECT_TRUE(OdTcLineTypeElement::createObject());
  EXPECT_TRUE(OdTcComplexLineTypeElement::createObject());
  EXPECT_TRUE(OdTcLineTypeElementsList::createObject());
  EXPECT_TRUE(OdTcTextStyleTableRecordCollection::createObject());
  EXPECT_TRUE(OdTcPropertyReference::createObject());
}
