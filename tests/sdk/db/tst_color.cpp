// Colours and transparency: packing, methods, names and the index table.
#include "sdk/db/OdCmColor.h"

#include <gtest/gtest.h>

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
