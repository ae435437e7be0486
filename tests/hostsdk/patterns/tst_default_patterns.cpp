// The host's own pattern file: the patterns users expect are there, and the
// shapes that the motifs promise close up.
#include "hostsdk/patterns/PatFile.h"
#include "tests/hostsdk/patterns/PatTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

namespace {

const PatFile& defaultFile()
{
  static PatFile file = [] {
    PatFile f;
    OdString error;
    EXPECT_TRUE(f.load(OdString(PatTest::defaultPatternFile()), &error)) << error;
    return f;
  }();
  return file;
}

TEST(DefaultPatterns, holdTheUsualIsoAndAnsiPatterns)
{
  std::vector<std::string> names = {"SOLID", "AR-B816", "AR-CONC", "BRICK", "DOTS", "EARTH", "GRASS", "HONEY",
                                    "INSUL", "NET", "SQUARE", "STEEL", "ZIGZAG"};
  for (int i = 31; i <= 38; ++i)
    names.push_back("ANSI" + std::to_string(i));
  for (int i = 2; i <= 15; ++i)
    names.push_back((i < 10 ? "ISO0" : "ISO") + std::to_string(i) + "W100");
  for (const std::string& name : names)
    EXPECT_NE(defaultFile().find(OdString(name)), nullptr) << name;
}

TEST(DefaultPatterns, everyFamilyDrawsSomethingAndRepeats)
{
  for (const PatPattern& p : defaultFile().patterns()) {
    EXPECT_FALSE(p.description().isEmpty()) << p.name();
    ASSERT_FALSE(p.families().empty()) << p.name();
    for (const PatLineFamily& f : p.families()) {
      EXPECT_GT(std::fabs(f.delta.y), 0.0) << p.name() << ": lines on top of each other";
      const bool penDown = f.dashes.empty() || std::any_of(f.dashes.begin(), f.dashes.end(), [](double d) {
        return d >= 0;
      });
      EXPECT_TRUE(penDown) << p.name();
    }
  }
}

// The strokes of a pattern in a square window around the origin, computed
// here from the definition, apart from the library's own drawing code.
struct Stroke
{
  double x0, y0, x1, y1;
};

std::vector<Stroke> strokes(const PatPattern& pattern, double window)
{
  std::vector<Stroke> out;
  for (const PatLineFamily& f : pattern.families()) {
    const double a = f.angle * std::numbers::pi / 180.0;
    const double ux = std::cos(a), uy = std::sin(a), vx = -uy, vy = ux;
    double period = 0.0;
    for (double d : f.dashes)
      period += std::fabs(d);
    const long lines = long(std::ceil(3.0 * window / std::fabs(f.delta.y)));
    for (long n = -lines; n <= lines; ++n) {
      const double bx = f.origin.x + n * (f.delta.x * ux + f.delta.y * vx);
      const double by = f.origin.y + n * (f.delta.x * uy + f.delta.y * vy);
      // The sequences that pass near the window, wherever along its line
      // this one starts.
      const double along = bx * ux + by * uy;
      const long first = long(std::floor((-2.0 * window - along) / period));
      const long last = long(std::ceil((2.0 * window - along) / period));
      for (long k = first; k <= last; ++k) {
        double t = k * period;
        for (double d : f.dashes) {
          if (d > 0) {
            Stroke s{bx + t * ux, by + t * uy, bx + (t + d) * ux, by + (t + d) * uy};
            if (std::fabs(s.x0) < window && std::fabs(s.y0) < window)
              out.push_back(s);
          }
          t += std::fabs(d);
        }
      }
    }
  }
  return out;
}

// How many stroke ends meet at each end point well inside the window.
// Points closer than 1e-4 are one: six decimals in the file drift a little
// over many repeats.
std::map<int, int> endDegrees(const std::vector<Stroke>& all, double inner)
{
  struct End
  {
    double x, y;
    int count;
  };
  std::vector<End> ends;
  auto add = [&](double x, double y) {
    if (std::fabs(x) >= inner || std::fabs(y) >= inner)
      return;
    for (End& e : ends)
      if (std::fabs(e.x - x) < 1e-4 && std::fabs(e.y - y) < 1e-4) {
        ++e.count;
        return;
      }
    ends.push_back({x, y, 1});
  };
  for (const Stroke& s : all) {
    add(s.x0, s.y0);
    add(s.x1, s.y1);
  }
  std::map<int, int> degrees; // degree -> how many points
  for (const End& e : ends)
    ++degrees[e.count];
  return degrees;
}

struct ShapeCase
{
  const char* pattern;
  // Every end point inside the window joins this many strokes.
  std::vector<int> degrees;
};

const ShapeCase kShapes[] = {
    {"HONEY", {3}},  // hexagon corners
    {"SQUARE", {2}}, // square corners
    {"ZIGZAG", {2}}, // peaks and valleys
    {"ANGLE", {1, 2}}, // the corner of each L, and its two free ends
    {"GRASS", {1, 3}}, // three blades from one root
};

class DefaultPatternShape : public testing::TestWithParam<ShapeCase>
{
};

TEST_P(DefaultPatternShape, strokesMeetAsTheMotifSays)
{
  const PatPattern* p = defaultFile().find(GetParam().pattern);
  ASSERT_NE(p, nullptr);
  const std::map<int, int> degrees = endDegrees(strokes(*p, 60.0), 30.0);
  ASSERT_FALSE(degrees.empty());
  for (const auto& [degree, count] : degrees)
    EXPECT_NE(std::find(GetParam().degrees.begin(), GetParam().degrees.end(), degree), GetParam().degrees.end())
        << GetParam().pattern << ": " << count << " points where " << degree << " strokes meet";
}

INSTANTIATE_TEST_SUITE_P(Motifs, DefaultPatternShape, testing::ValuesIn(kShapes),
                         [](const auto& info) { return std::string(info.param.pattern); });

TEST(DefaultPatterns, concreteStonesAreClosedTriangles)
{
  const PatPattern* p = defaultFile().find("AR-CONC");
  ASSERT_NE(p, nullptr);
  // Dots are dashes of length 0 and no strokes; every stone corner joins
  // two sides.
  const std::map<int, int> degrees = endDegrees(strokes(*p, 120.0), 60.0);
  EXPECT_EQ(degrees.size(), 1u);
  EXPECT_EQ(degrees.begin()->first, 2);
}

struct BondCase
{
  const char* pattern;
  double course; // height of a course
  double brick;  // length of a brick
};

class DefaultPatternBond : public testing::TestWithParam<BondCase>
{
};

// Running bond: joints end on bed lines, and the joints of one course fall
// halfway between those of the next.
TEST_P(DefaultPatternBond, jointsAlternateByHalfABrick)
{
  const PatPattern* p = defaultFile().find(GetParam().pattern);
  ASSERT_NE(p, nullptr);
  const double h = GetParam().course, l = GetParam().brick;
  int joints = 0;
  for (const Stroke& s : strokes(*p, 4 * l)) {
    if (std::fabs(s.x0 - s.x1) > 1e-9)
      continue;
    ++joints;
    const double course = std::round(std::min(s.y0, s.y1) / h);
    EXPECT_NEAR(std::fabs(s.y1 - s.y0), h, 1e-6);
    EXPECT_NEAR(std::min(s.y0, s.y1), course * h, 1e-6) << "a joint starts on a bed line";
    const double shift = std::fmod(std::fabs(s.x0 - course * l / 2), l);
    EXPECT_TRUE(shift < 1e-6 || l - shift < 1e-6) << "joint at x " << s.x0 << " in course " << course;
  }
  EXPECT_GT(joints, 8);
}

INSTANTIATE_TEST_SUITE_P(Bricks, DefaultPatternBond,
                         testing::Values(BondCase{"AR-B816", 203.2, 406.4}, BondCase{"BRICK", 6.35, 19.05}),
                         [](const auto& info) { return std::to_string(info.index); });

} // namespace
