// The view's arithmetic: bulges, planes, curves, dashes, the spatial grid,
// text codes and the map between world and screen.
#include "app/gui/LinetypeDasher.h"
#include "app/gui/MTextParser.h"
#include "app/gui/SceneGeometry.h"
#include "app/gui/SceneIndex.h"
#include "app/gui/ViewTransform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

struct BulgeRow
{
  double bulge;
  QPointF center;
  double radius;
  double sweepDegrees; // signed: positive counter-clockwise
  friend void PrintTo(const BulgeRow& r, std::ostream* os) { *os << "bulge " << r.bulge; }
};

class Bulges : public ::testing::TestWithParam<BulgeRow>
{
};

TEST_P(Bulges, bulgeFromZeroToTenMakesThisArc)
{
  QPointF c;
  double r = 0, a0 = 0, a1 = 0;
  ASSERT_TRUE(SceneGeometry::bulgeArc(QPointF(0, 0), QPointF(10, 0), GetParam().bulge, c, r, a0, a1));
  EXPECT_NEAR(c.x(), GetParam().center.x(), 1e-9);
  EXPECT_NEAR(c.y(), GetParam().center.y(), 1e-9);
  EXPECT_NEAR(r, GetParam().radius, 1e-9);
  EXPECT_NEAR((a1 - a0) * 180 / M_PI, GetParam().sweepDegrees, 1e-9);
  // Both ends lie on the circle.
  EXPECT_NEAR(std::hypot(c.x(), c.y()), r, 1e-9);
  EXPECT_NEAR(std::hypot(10 - c.x(), c.y()), r, 1e-9);
}

const double kQuarter = std::tan(M_PI / 8); // the bulge of a quarter circle

INSTANTIATE_TEST_SUITE_P(Arcs, Bulges,
                         ::testing::Values(BulgeRow{1.0, QPointF(5, 0), 5, 180}, BulgeRow{-1.0, QPointF(5, 0), 5, -180},
                                           BulgeRow{kQuarter, QPointF(5, 5), std::sqrt(50.0), 90},
                                           BulgeRow{-kQuarter, QPointF(5, -5), std::sqrt(50.0), -90}));

TEST(Bulges, straightSegmentHasNoArc)
{
  QPointF c;
  double r, a0, a1;
  EXPECT_FALSE(SceneGeometry::bulgeArc(QPointF(0, 0), QPointF(10, 0), 0.0, c, r, a0, a1));
  std::vector<QPointF> pts;
  SceneGeometry::appendBulge(pts, QPointF(0, 0), QPointF(10, 0), 0.0);
  EXPECT_EQ(pts, std::vector<QPointF>{QPointF(10, 0)});
}

struct PlaneRow
{
  OdGeVector3d normal;
  OdGePoint3d local;
  OdGePoint3d world;
  friend void PrintTo(const PlaneRow& r, std::ostream* os)
  {
    *os << "normal " << r.normal.x << "," << r.normal.y << "," << r.normal.z;
  }
};

class Planes : public ::testing::TestWithParam<PlaneRow>
{
};

TEST_P(Planes, arbitraryAxisRule)
{
  const OdGePoint3d w = Affine3::ocs(GetParam().normal).apply(GetParam().local);
  EXPECT_TRUE(w.isEqualTo(GetParam().world, 1e-9)) << w.x << "," << w.y << "," << w.z;
}

INSTANTIATE_TEST_SUITE_P(Normals, Planes,
                         ::testing::Values(PlaneRow{OdGeVector3d(0, 0, 1), OdGePoint3d(3, 4, 5), OdGePoint3d(3, 4, 5)},
                                           // Seen from below: x turns round, y stays.
                                           PlaneRow{OdGeVector3d(0, 0, -1), OdGePoint3d(3, 4, 5), OdGePoint3d(-3, 4, -5)},
                                           PlaneRow{OdGeVector3d(1, 0, 0), OdGePoint3d(1, 0, 0), OdGePoint3d(0, 1, 0)},
                                           PlaneRow{OdGeVector3d(0, 1, 0), OdGePoint3d(1, 0, 0), OdGePoint3d(-1, 0, 0)}));

TEST(Affine, insertMapComposesRightToLeft)
{
  // Scale by 2, then turn a quarter, then move to (10, 0).
  const Affine3 m = Affine3::translation(10, 0, 0) * Affine3::rotationZ(M_PI / 2) * Affine3::scaling(2, 2, 2);
  const QPointF p = m.apply2(1, 0, 0);
  EXPECT_NEAR(p.x(), 10, 1e-12);
  EXPECT_NEAR(p.y(), 2, 1e-12);
}

TEST(Nurbs, clampedCurveStartsAndEndsAtItsEndControlPoints)
{
  const std::vector<OdGePoint3d> cps{{0, 0, 0}, {1, 2, 0}, {3, 2, 0}, {4, 0, 0}};
  const auto pts = SceneGeometry::nurbsPoints(3, {0, 0, 0, 0, 1, 1, 1, 1}, cps, {});
  ASSERT_GT(pts.size(), 2u);
  EXPECT_TRUE(pts.front().isEqualTo(cps.front(), 1e-9));
  EXPECT_TRUE(pts.back().isEqualTo(cps.back(), 1e-6));
  // A cubic Bezier's middle: (1/8)(p0 + 3 p1 + 3 p2 + p3).
  const auto mid = SceneGeometry::nurbsPoints(3, {0, 0, 0, 0, 1, 1, 1, 1}, cps, {}, 2);
  EXPECT_TRUE(mid[1].isEqualTo(OdGePoint3d(2, 1.5, 0), 1e-9));
}

TEST(Nurbs, equalWeightsChangeNothingAndABadKnotVectorGivesThePolygon)
{
  const std::vector<OdGePoint3d> cps{{0, 0, 0}, {5, 5, 0}, {10, 0, 0}};
  const std::vector<double> knots{0, 0, 0, 1, 1, 1};
  const auto plain = SceneGeometry::nurbsPoints(2, knots, cps, {});
  const auto weighted = SceneGeometry::nurbsPoints(2, knots, cps, {2, 2, 2});
  ASSERT_EQ(plain.size(), weighted.size());
  for (std::size_t i = 0; i < plain.size(); ++i)
    EXPECT_TRUE(plain[i].isEqualTo(weighted[i], 1e-9));
  EXPECT_EQ(SceneGeometry::nurbsPoints(2, {0, 1}, cps, {}).size(), cps.size());
}

struct DashCase
{
  std::vector<double> pattern;
  std::vector<QPointF> path;
  std::vector<std::pair<double, double>> dashesAlongX; // expected dashes on a straight x path
  friend void PrintTo(const DashCase& r, std::ostream* os)
  {
    for (double d : r.pattern)
      *os << d << " ";
  }
};

class Dashes : public ::testing::TestWithParam<DashCase>
{
};

TEST_P(Dashes, straightLineCutsAtThePattern)
{
  std::vector<QPointF> out;
  ASSERT_TRUE(LinetypeDasher(GetParam().pattern).dash(GetParam().path, false, out));
  ASSERT_EQ(out.size(), GetParam().dashesAlongX.size() * 2);
  for (std::size_t i = 0; i < GetParam().dashesAlongX.size(); ++i) {
    EXPECT_NEAR(out[2 * i].x(), GetParam().dashesAlongX[i].first, 1e-9);
    EXPECT_NEAR(out[2 * i + 1].x(), GetParam().dashesAlongX[i].second, 1e-9);
  }
}

INSTANTIATE_TEST_SUITE_P(Patterns, Dashes,
                         ::testing::Values(DashCase{{4, -2}, {{0, 0}, {14, 0}}, {{0, 4}, {6, 10}, {12, 14}}},
                                           // A dot is a tiny dash between the gaps.
                                           DashCase{{4, -2, 0, -2}, {{0, 0}, {9, 0}}, {{0, 4}, {6, 6.008}, {8.008, 9}}}));

TEST(Dashes, dashRunsRoundACorner)
{
  std::vector<QPointF> out;
  ASSERT_TRUE(LinetypeDasher({6, -2}).dash({{0, 0}, {4, 0}, {4, 10}}, false, out));
  // The first dash: 4 along x and 2 up the corner.
  ASSERT_GE(out.size(), 4u);
  EXPECT_EQ(out[0], QPointF(0, 0));
  EXPECT_EQ(out[1], QPointF(4, 0));
  EXPECT_EQ(out[2], QPointF(4, 0));
  EXPECT_EQ(out[3], QPointF(4, 2));
}

TEST(Dashes, tooFineOrDashOnlyPatternsStayContinuous)
{
  std::vector<QPointF> out;
  EXPECT_FALSE(LinetypeDasher({0.001, -0.001}).dash({{0, 0}, {1000, 0}}, false, out));
  EXPECT_TRUE(LinetypeDasher({5}).isContinuous());
  EXPECT_TRUE(out.empty());
}

TEST(SceneIndexGrid, queryFindsWhatABruteForceFinds)
{
  std::mt19937 rng(7);
  std::uniform_real_distribution<double> pos(0, 1000), len(0, 40);
  std::vector<ScenePrim> prims(2000);
  SceneIndex index;
  index.reset(QRectF(0, 0, 1040, 1040), prims.size());
  for (std::uint32_t i = 0; i < prims.size(); ++i) {
    const double x = pos(rng), y = pos(rng);
    // Some are lines without height, some huge.
    const double w = i % 7 == 0 ? 900 : len(rng), h = i % 5 == 0 ? 0 : len(rng);
    prims[i].box = QRectF(x, y, w, h);
    index.insert(i, prims[i].box);
  }
  for (std::uint32_t i = 0; i < prims.size(); i += 3)
    index.remove(i, prims[i].box);
  for (int q = 0; q < 50; ++q) {
    const QRectF rect(pos(rng), pos(rng), len(rng) * 5, len(rng) * 5);
    std::vector<std::uint32_t> found;
    index.query(rect, prims, found);
    std::sort(found.begin(), found.end());
    std::vector<std::uint32_t> want;
    for (std::uint32_t i = 0; i < prims.size(); ++i)
      if (i % 3 != 0 && SceneBox::touches(prims[i].box, rect))
        want.push_back(i);
    EXPECT_EQ(found, want) << "query " << q;
  }
}

struct MTextRow
{
  const char* contents;
  std::vector<std::vector<const char*>> paragraphs; // the texts of the runs
  friend void PrintTo(const MTextRow& r, std::ostream* os) { *os << r.contents; }
};

class MTextCodes : public ::testing::TestWithParam<MTextRow>
{
};

TEST_P(MTextCodes, contentsSplitIntoParagraphsAndRuns)
{
  const auto parsed = MTextParser::parse(QString::fromUtf8(GetParam().contents), 2.5);
  ASSERT_EQ(parsed.size(), GetParam().paragraphs.size());
  for (std::size_t p = 0; p < parsed.size(); ++p) {
    ASSERT_EQ(parsed[p].size(), GetParam().paragraphs[p].size()) << "paragraph " << p;
    for (std::size_t r = 0; r < parsed[p].size(); ++r)
      EXPECT_EQ(parsed[p][r].text, QString::fromUtf8(GetParam().paragraphs[p][r]));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Codes, MTextCodes,
    ::testing::Values(MTextRow{"one\\Ptwo", {{"one"}, {"two"}}},
                      MTextRow{"{\\fArial|b1;bold} plain", {{"bold", " plain"}}},
                      MTextRow{"a\\~b \\{x\\} \\\\", {{"a\xC2\xA0" "b {x} \\"}}},
                      MTextRow{"\\H2x;big\\C1;red", {{"big", "red"}}},
                      MTextRow{"1\\S1^2;", {{"11/2"}}},
                      MTextRow{"\\pxqc;centred", {{"centred"}}},
                      MTextRow{"%%c25", {{"\xE2\x8C\x80" "25"}}},
                      MTextRow{"a^Jb^ c", {{"a"}, {"b^c"}}}));

TEST(MTextCodes, formatsOfRuns)
{
  const auto parsed = MTextParser::parse("{\\H2x;\\C1;big}\\W0.5;narrow\\Q15;slanted", 2.5);
  ASSERT_EQ(parsed.size(), 1u);
  ASSERT_EQ(parsed[0].size(), 3u);
  EXPECT_DOUBLE_EQ(parsed[0][0].height, 5.0);
  ASSERT_TRUE(parsed[0][0].color.has_value());
  EXPECT_EQ(parsed[0][0].color->colorIndex(), 1);
  EXPECT_DOUBLE_EQ(parsed[0][1].height, 2.5) << "the group ended";
  EXPECT_FALSE(parsed[0][1].color.has_value());
  EXPECT_DOUBLE_EQ(parsed[0][1].widthFactor, 0.5);
  EXPECT_NEAR(parsed[0][2].oblique, 15 * M_PI / 180, 1e-12);
}

struct SpecialRow
{
  const char* in;
  const char* out;
  friend void PrintTo(const SpecialRow& r, std::ostream* os) { *os << r.in; }
};

class SpecialCodes : public ::testing::TestWithParam<SpecialRow>
{
};

TEST_P(SpecialCodes, decoded)
{
  EXPECT_EQ(MTextParser::decodeSpecialCodes(QString::fromUtf8(GetParam().in)), QString::fromUtf8(GetParam().out));
}

INSTANTIATE_TEST_SUITE_P(Codes, SpecialCodes,
                         ::testing::Values(SpecialRow{"90%%d", "90\xC2\xB0"}, SpecialRow{"%%p0.1", "\xC2\xB1" "0.1"},
                                           SpecialRow{"%%uunder%%u", "under"}, SpecialRow{"100%%%", "100%"},
                                           SpecialRow{"%%065", "A"}, SpecialRow{"50%", "50%"},
                                           SpecialRow{"%%", "%%"}));

TEST(View, zoomAtKeepsThePointUnderTheCursor)
{
  ViewTransform v;
  v.setViewport(QSize(800, 600));
  v.setCenter(QPointF(100, 50));
  v.setScale(2);
  const QPointF cursor(123, 456);
  const QPointF before = v.toWorld(cursor);
  v.zoomAt(cursor, 1.7);
  const QPointF after = v.toWorld(cursor);
  EXPECT_NEAR(before.x(), after.x(), 1e-9);
  EXPECT_NEAR(before.y(), after.y(), 1e-9);
  EXPECT_DOUBLE_EQ(v.scale(), 3.4);
}

TEST(View, fitShowsTheWholeBoxAndWorldYPointsUp)
{
  ViewTransform v;
  v.setViewport(QSize(800, 600));
  v.fit(QRectF(0, 0, 400, 100));
  const QRectF shown = v.worldRect();
  EXPECT_TRUE(shown.contains(QRectF(0, 0, 400, 100)));
  EXPECT_LT(v.toScreen(QPointF(0, 100)).y(), v.toScreen(QPointF(0, 0)).y());
  v.pan(QPointF(10, 0));
  EXPECT_NEAR(v.worldRect().left(), shown.left() - 10 / v.scale(), 1e-9) << "the picture moves right";
}

} // namespace
