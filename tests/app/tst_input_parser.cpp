// Values typed on the command line: points in their forms, angles,
// keywords by shortcut, colours.
#include "app/core/HostInputParser.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace HostInputParser;

namespace {

struct PointRow
{
  const char* name;
  const char* typed;
  bool valid;
  OdGePoint3d expected;
};

void PrintTo(const PointRow& row, std::ostream* os)
{
  *os << row.name;
}

class TypedPoint : public ::testing::TestWithParam<PointRow>
{
};

// The last point is 10,20,5: "@" forms start there.
TEST_P(TypedPoint, parsesAgainstTheLastPoint)
{
  const std::optional<OdGePoint3d> p = parsePoint(GetParam().typed, OdGePoint3d(10, 20, 5));
  ASSERT_EQ(p.has_value(), GetParam().valid) << GetParam().typed;
  if (p) {
    EXPECT_TRUE(p->isEqualTo(GetParam().expected, 1e-9))
        << GetParam().typed << " gave " << p->x << "," << p->y << "," << p->z;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TypedPoint,
    ::testing::Values(PointRow{"xy", "3,4", true, {3, 4, 0}}, PointRow{"xyz", "3,4,-2.5", true, {3, 4, -2.5}},
                      PointRow{"blanksAroundNumbers", " 3 , 4 ", true, {3, 4, 0}},
                      PointRow{"exponent", "1e3,-.5", true, {1000, -0.5, 0}},
                      PointRow{"relative", "@5,-5", true, {15, 15, 5}},
                      PointRow{"relative3d", "@1,1,1", true, {11, 21, 6}},
                      PointRow{"lastPointItself", "@", true, {10, 20, 5}},
                      PointRow{"relativePolar", "@10<90", true, {10, 30, 5}},
                      PointRow{"absolutePolar", "2<180", true, {-2, 0, 0}},
                      PointRow{"oneNumber", "12", false, {}}, PointRow{"fourNumbers", "1,2,3,4", false, {}},
                      PointRow{"word", "Close", false, {}}, PointRow{"emptyCoordinate", "1,,2", false, {}},
                      PointRow{"notANumber", "nan,1", false, {}}, PointRow{"commaDecimal", "1,5;2", false, {}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(HostInputParser, anglesAreDegreesTypedRadiansGiven)
{
  EXPECT_NEAR(*parseAngleDegrees("90"), M_PI / 2, 1e-12);
  EXPECT_NEAR(*parseAngleDegrees("-45d"), -M_PI / 4, 1e-12);
  EXPECT_FALSE(parseAngleDegrees("ninety"));
  EXPECT_EQ(formatAngle(M_PI / 2), OdString("90"));
  EXPECT_EQ(formatReal(2.5), OdString("2.5"));
  EXPECT_EQ(formatReal(-0.0), OdString("0"));
}

struct KeywordRow
{
  const char* typed;
  const char* chosen; // empty: none
};

void PrintTo(const KeywordRow& row, std::ostream* os)
{
  *os << "\"" << row.typed << "\"";
}

class Keyword : public ::testing::TestWithParam<KeywordRow>
{
};

TEST_P(Keyword, byWordBeginningOrShortcut)
{
  const std::vector<OdString> keywords{"Close", "CEnter", "Undo", "eXit"};
  EXPECT_EQ(matchKeyword(GetParam().typed, keywords), OdString(GetParam().chosen)) << GetParam().typed;
}

INSTANTIATE_TEST_SUITE_P(Rows, Keyword,
                         ::testing::Values(KeywordRow{"close", "Close"}, KeywordRow{"U", "Undo"},
                                           // "C" begins two keywords; its shortcut is Close's.
                                           KeywordRow{"c", "Close"}, KeywordRow{"ce", "CEnter"},
                                           KeywordRow{"x", "eXit"}, KeywordRow{"Closer", ""},
                                           KeywordRow{"", ""}, KeywordRow{"z", ""}));

TEST(HostInputParser, coloursInTheirTypedForms)
{
  EXPECT_TRUE(parseColor("bylayer")->isByLayer());
  EXPECT_TRUE(parseColor("BYBLOCK")->isByBlock());
  EXPECT_TRUE(parseColor("none")->isNone());
  EXPECT_EQ(parseColor("3")->colorIndex(), 3);
  const OdCmColor rgb = *parseColor("RGB:255,128,0");
  EXPECT_TRUE(rgb.isByColor());
  EXPECT_EQ(rgb.green(), 128);
  EXPECT_EQ(*parseColor("rgb 255,128,0"), rgb);
  EXPECT_FALSE(parseColor("300"));
  EXPECT_FALSE(parseColor("RGB:1,2"));
  EXPECT_EQ(formatColor(rgb), OdString("RGB:255,128,0"));
  EXPECT_EQ(composePrompt("Specify radius", {"Diameter"}, "5"), OdString("Specify radius or [Diameter] <5>: "));
}

} // namespace
