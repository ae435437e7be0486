// Colours and transparency: packing, methods, names and the index table,
// and the codes 62, 420 and 430 that keep a colour in entities, layers and
// the drawing's current colour.
#include "sdk/db/OdCmColor.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbLayerTableRecord.h"

#include <gtest/gtest.h>

#include <functional>

TEST(OdCmColor, packedValue_keepsMethodInHighByte)
{
  OdCmColor c;
  EXPECT_TRUE(c.isByLayer());
  EXPECT_EQ(c.colorIndex(), 256);
  c.setRGB(255, 0, 0);
  EXPECT_EQ(c.color(), 0xC2FF0000u);
  EXPECT_TRUE(c.isByColor());
  EXPECT_EQ(c.colorIndex(), 1) << "an RGB colour maps to its nearest index";
  c.setColorIndex(0);
  EXPECT_TRUE(c.isByBlock());
  c.setColorIndex(5);
  EXPECT_EQ(c.color(), 0xC3000005u);
  EXPECT_EQ(c.rgb(), 0x0000FFu) << "an index colour answers with the RGB of its index";
  OdCmColor copy;
  copy.setColor(c.color());
  EXPECT_EQ(copy, c);
}

TEST(OdCmColor, namesFromDxf_splitBookAndName)
{
  OdCmColor c;
  c.setRGB(1, 2, 3);
  c.setNamesFromDxf("RAL CLASSIC$RAL 1000");
  EXPECT_EQ(c.bookName(), OdString("RAL CLASSIC"));
  EXPECT_EQ(c.colorName(), OdString("RAL 1000"));
  EXPECT_EQ(c.colorNameForDxf(), OdString("RAL CLASSIC$RAL 1000"));
  c.setNamesFromDxf("plain");
  EXPECT_TRUE(c.bookName().isEmpty());
  EXPECT_EQ(c.colorName(), OdString("plain"));
}

TEST(OdCmColor, methodsWithoutColour_giveDescriptions)
{
  EXPECT_EQ(OdCmColor(OdCmEntityColor::kByBlock).getDescription(), OdString("BYBLOCK"));
  EXPECT_EQ(OdCmColor(OdCmEntityColor::kNone).getDescription(), OdString("NONE"));
  OdCmColor f(OdCmEntityColor::kForeground);
  EXPECT_TRUE(f.isForeground());
  EXPECT_EQ(f.colorIndex(), 7);
}

TEST(OdCmColor, indexTable_hasTheBasicColours)
{
  EXPECT_EQ(OdCmEntityColor::lookUpRGB(1), 0xFF0000u);
  EXPECT_EQ(OdCmEntityColor::lookUpRGB(3), 0x00FF00u);
  EXPECT_EQ(OdCmEntityColor::lookUpRGB(10), 0xFF0000u);
  EXPECT_EQ(OdCmEntityColor::lookUpRGB(11), 0xFF7F7Fu);
  EXPECT_EQ(OdCmEntityColor::lookUpACI(0, 0, 255), 5);
}

TEST(OdCmTransparency, serialize_roundTripsEveryMethod)
{
  for (std::uint32_t v : {0u, 0x1000000u, 0x2000000u, 0x2000040u, 0x20000FFu}) {
    OdCmTransparency t;
    t.serializeIn(v);
    EXPECT_EQ(t.serializeOut(), v);
  }
  OdCmTransparency half(0.5);
  EXPECT_EQ(half.alpha(), 128);
  EXPECT_TRUE(OdCmTransparency(std::uint8_t(0)).isClear());
}

namespace {

OdCmColor indexColor(int index)
{
  OdCmColor c;
  c.setColorIndex(std::int16_t(index));
  return c;
}

OdCmColor trueColor(std::uint8_t r, std::uint8_t g, std::uint8_t b, const char* name = "", const char* book = "")
{
  OdCmColor c;
  c.setRGB(r, g, b);
  c.setNames(name, book);
  return c;
}

// Where a colour is kept: its getter and setter, and the pairs it is kept in.
struct Holder
{
  const char* name;
  std::function<OdCmColor()> get;
  std::function<void(const OdCmColor&)> set;
  std::function<const OdDbDxfPairArray&()> pairs;
};

std::vector<Holder> holders(OdDbDatabase* db, OdDbLine* line, OdDbLayerTableRecord* layer)
{
  return {
      {"entity", [=] { return line->color(); }, [=](const OdCmColor& c) { line->setColor(c); },
       [=]() -> const OdDbDxfPairArray& { return line->dxfPairs(); }},
      {"layer", [=] { return layer->color(); }, [=](const OdCmColor& c) { layer->setColor(c); },
       [=]() -> const OdDbDxfPairArray& { return layer->dxfPairs(); }},
      {"currentColour", [=] { return db->getCECOLOR(); }, [=](const OdCmColor& c) { db->setCECOLOR(c); },
       [=]() -> const OdDbDxfPairArray& { return db->headerVar("$CECOLOR")->pairs; }},
  };
}

// Colours set one after the other on the same holder: each must read back
// as set, with no code of the one before left over.
const std::vector<OdCmColor> kSequence = {
    trueColor(200, 100, 50, "Rust", "Metals"), indexColor(3), trueColor(1, 2, 3, "Plain"),
    trueColor(0, 0, 0), trueColor(255, 128, 0, "Orange", "RAL CLASSIC"), indexColor(250),
};

std::vector<int> codes(const OdDbDxfPairArray& pairs)
{
  std::vector<int> out;
  for (const OdDbDxfPair& p : pairs)
    if (p.code == 62 || p.code == 420 || p.code == 430)
      out.push_back(p.code);
  return out;
}

class ColourCodes : public testing::TestWithParam<int>
{
};

TEST_P(ColourCodes, eachColourReadsBackAsSetAndLeavesNothingBehind)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite));
  OdDbLinePtr line = OdDbLine::createObject();
  ms->appendOdDbEntity(line);
  OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
  layer->setName("Walls");
  OdDbSymbolTable::cast(db->getLayerTableId().openObject(OdDb::kForWrite))->add(layer);
  const Holder h = holders(db, line, layer)[std::size_t(GetParam())];
  for (const OdCmColor& c : kSequence) {
    h.set(c);
    EXPECT_EQ(h.get(), c) << h.name << " " << c.getDescription().toUtf8();
    std::vector<int> expected{62};
    if (c.isByColor())
      expected.push_back(420);
    if (!c.colorName().isEmpty())
      expected.push_back(430);
    EXPECT_EQ(codes(h.pairs()), expected) << h.name << ": 420 and 430 follow 62 for " << c.getDescription().toUtf8();
  }
}

std::string holderName(const testing::TestParamInfo<int>& info)
{
  return holders(nullptr, nullptr, nullptr)[std::size_t(info.param)].name;
}

INSTANTIATE_TEST_SUITE_P(Holders, ColourCodes, testing::Values(0, 1, 2), holderName);

TEST(ColourCodes, layerOff_keepsItsTrueColourAndStaysOff)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
  layer->setName("Off");
  OdDbSymbolTable::cast(db->getLayerTableId().openObject(OdDb::kForWrite))->add(layer);
  layer->setIsOff(true);
  const OdCmColor teal = trueColor(0, 128, 128, "Teal");
  layer->setColor(teal);
  EXPECT_TRUE(layer->isOff());
  EXPECT_EQ(layer->color(), teal);
  EXPECT_LT(layer->getInt(OdDbLayerTableRecord::kSub, 62), 0) << "off is the sign of the index";
  layer->setIsOff(false);
  EXPECT_EQ(layer->color(), teal);
}

TEST(ColourCodes, readPairs_nameWithoutRgbIsNoTrueColour)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbLinePtr line = OdDbLine::createObject();
  OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite))->appendOdDbEntity(line);
  line->setRaw(OdDbEntity::kSub, 430, "Book$Name");
  EXPECT_TRUE(line->color().isByLayer()) << "a name alone names nothing";
  line->setRaw(OdDbEntity::kSub, 420, "16711680");
  EXPECT_EQ(line->color(), trueColor(255, 0, 0, "Name", "Book")) << "420 without 62 is a true colour";
}

} // namespace
