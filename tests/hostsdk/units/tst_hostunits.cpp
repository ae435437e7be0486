// The host's texts of distances and angles in a drawing's units, and back.
#include "hostsdk/units/HostUnits.h"

#include "sdk/db/OdDbDatabase.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct DistanceCase
{
  double value;
  int unit;
  int precision;
  const char* text;
};

class DistanceText : public ::testing::TestWithParam<DistanceCase>
{
};

struct AngleCase
{
  double degrees;
  int unit;
  int precision;
  const char* text;
};

class AngleText : public ::testing::TestWithParam<AngleCase>
{
};

struct ReadCase
{
  const char* text;
  bool ok;
  double value; // inches, or degrees for angles
};

class DistanceRead : public ::testing::TestWithParam<ReadCase>
{
};

class AngleRead : public ::testing::TestWithParam<ReadCase>
{
};

constexpr double kDegree = M_PI / 180.0;

} // namespace

TEST_P(DistanceText, inEachLinearUnit)
{
  const DistanceCase& c = GetParam();
  EXPECT_EQ(hostdbRToS(c.value, c.unit, c.precision), c.text);
}

INSTANTIATE_TEST_SUITE_P(Units, DistanceText,
                         ::testing::Values(DistanceCase{15.5, 2, 4, "15.5000"}, DistanceCase{15.5, 2, 0, "16"},
                                           DistanceCase{15.5, 1, 4, "1.5500E+01"},
                                           DistanceCase{18.5, 3, 2, "1'-6.50\""},
                                           DistanceCase{18.5, 4, 4, "1'-6 1/2\""},
                                           DistanceCase{11.999999, 4, 4, "1'-0\""},
                                           DistanceCase{6.25, 4, 4, "6 1/4\""},
                                           DistanceCase{-2.75, 5, 4, "-2 3/4"}));

TEST(HostUnits, theDrawingsSettingsStandForMinusOne)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  db->setHeaderInt("$LUNITS", 4);
  db->setHeaderInt("$LUPREC", 3);
  db->setHeaderInt("$AUNITS", 3);
  db->setHeaderInt("$AUPREC", 2);
  EXPECT_EQ(hostdbRToS(30.25, -1, -1, db.get()), "2'-6 1/4\"");
  EXPECT_EQ(hostdbAngToS(M_PI, -1, -1, db.get()), "3.14r");
  // Without a drawing: decimal with four places, whole degrees.
  EXPECT_EQ(hostdbRToS(1.0), "1.0000");
  EXPECT_EQ(hostdbAngToS(M_PI / 4), "45");
}

TEST_P(AngleText, inEachAngularUnit)
{
  const AngleCase& c = GetParam();
  EXPECT_EQ(hostdbAngToS(c.degrees * kDegree, c.unit, c.precision), c.text);
}

INSTANTIATE_TEST_SUITE_P(Units, AngleText,
                         ::testing::Values(AngleCase{45.5, 0, 1, "45.5"}, AngleCase{-90.0, 0, 0, "270"},
                                           AngleCase{360.0, 0, 0, "0"}, AngleCase{45.5, 1, 2, "45d30'"},
                                           AngleCase{45.50416666666667, 1, 4, "45d30'15\""},
                                           AngleCase{90.0, 2, 1, "100.0g"}, AngleCase{180.0, 3, 3, "3.142r"},
                                           AngleCase{90.0, 4, 0, "N"}, AngleCase{135.0, 4, 0, "N 45d W"},
                                           AngleCase{300.0, 4, 0, "S 30d E"}));

TEST_P(DistanceRead, anyLinearForm)
{
  const ReadCase& c = GetParam();
  double value = -99.0;
  EXPECT_EQ(hostdbDisToF(c.text, 2, value), c.ok) << c.text;
  EXPECT_NEAR(value, c.ok ? c.value : -99.0, 1e-9) << c.text;
}

INSTANTIATE_TEST_SUITE_P(Forms, DistanceRead,
                         ::testing::Values(ReadCase{"15.5", true, 15.5}, ReadCase{"1.55E+01", true, 15.5},
                                           ReadCase{"1'-6\"", true, 18.0}, ReadCase{"1'6-1/2\"", false, 0},
                                           ReadCase{"2'", true, 24.0}, ReadCase{"6 1/4", true, 6.25},
                                           ReadCase{"-1/2", true, -0.5}, ReadCase{"", false, 0},
                                           ReadCase{"abc", false, 0}, ReadCase{"1/0", false, 0}));

TEST_P(AngleRead, anyAngularForm)
{
  const ReadCase& c = GetParam();
  double angle = -99.0;
  EXPECT_EQ(hostdbAngToF(c.text, 0, angle), c.ok) << c.text;
  EXPECT_NEAR(angle, c.ok ? c.value * kDegree : -99.0, 1e-9) << c.text;
}

INSTANTIATE_TEST_SUITE_P(Forms, AngleRead,
                         ::testing::Values(ReadCase{"45", true, 45.0}, ReadCase{"-45", true, -45.0},
                                           ReadCase{"45d30'", true, 45.5}, ReadCase{"100g", true, 90.0},
                                           ReadCase{"3.141592653589793r", true, 180.0},
                                           ReadCase{"N 45d W", true, 135.0}, ReadCase{"S", true, 270.0},
                                           ReadCase{"N 95d E", false, 0}, ReadCase{"east", false, 0}));
