// Pattern definition lines of hatches: worked examples, and every hatch of
// the real drawings whose pattern file we have, as the program that wrote
// the drawing stored them.
#include "hostsdk/patterns/PatFile.h"
#include "hostsdk/patterns/PatHatchLines.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/dxf/OdDxf.h"
#include "tests/hostsdk/patterns/PatTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;

PatPattern patternOf(const char* text)
{
  PatFile file;
  OdString error;
  EXPECT_TRUE(file.parse(text, "t.pat", &error)) << error;
  return file.patterns().at(0);
}

struct ExpectedLine
{
  double angle, baseX, baseY, offsetX, offsetY;
  std::vector<double> dashes;
};

struct LinesCase
{
  const char* name;
  const char* pattern; // null: a user-defined hatch
  PatHatchSettings settings;
  std::vector<ExpectedLine> lines;
};

const double kS45 = 3.175 * std::sqrt(0.5);

const LinesCase kCases[] = {
    {"diagonalLines", "*A\n45, 0,0, 0,3.175\n", {0.0, 1.0}, {{45, 0, 0, -kS45, kS45, {}}}},
    {"turnedAndScaled", "*A\n45, 0,0, 0,3.175\n", {kPi / 2, 2.0}, {{135, 0, 0, -2 * kS45, -2 * kS45, {}}}},
    {"originTurnsWithTheHatch",
     "*B\n0, 1,0, 0.5,2, 1,-0.5,0\n",
     {kPi / 2, 2.0},
     {{90, 0, 2, -4, 1, {2, -1, 0}}}},
    {"doublingLeavesAPatternAlone", "*A\n45, 0,0, 0,3.175\n", {0.0, 1.0, 5.0, true}, {{45, 0, 0, -kS45, kS45, {}}}},
    {"badScaleCountsAsOne", "*A\n0, 0,0, 0,1, 2,-1\n", {0.0, -3.0}, {{0, 0, 0, 0, 1, {2, -1}}}},
    {"userDefined", nullptr, {kPi / 6, 9.0, 2.0, false}, {{30, 0, 0, -1, std::sqrt(3.0), {}}}},
    {"userDefinedDoubled",
     nullptr,
     {kPi / 6, 9.0, 2.0, true},
     {{30, 0, 0, -1, std::sqrt(3.0), {}}, {120, 0, 0, -std::sqrt(3.0), -1, {}}}},
    {"userDefinedBadSpacing", nullptr, {0.0, 1.0, 0.0, true}, {{0, 0, 0, 0, 1, {}}, {90, 0, 0, -1, 0, {}}}},
};

class HatchLines : public testing::TestWithParam<LinesCase>
{
};

TEST_P(HatchLines, asAHatchStoresThem)
{
  const LinesCase& c = GetParam();
  PatPattern pattern;
  if (c.pattern)
    pattern = patternOf(c.pattern);
  const auto lines = patHatchDefinitionLines(c.pattern ? &pattern : nullptr, c.settings);
  ASSERT_EQ(lines.size(), c.lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const ExpectedLine& e = c.lines[i];
    EXPECT_NEAR(lines[i].angle, e.angle, 1e-9) << i;
    EXPECT_NEAR(lines[i].base.x, e.baseX, 1e-9) << i;
    EXPECT_NEAR(lines[i].base.y, e.baseY, 1e-9) << i;
    EXPECT_NEAR(lines[i].offset.x, e.offsetX, 1e-9) << i;
    EXPECT_NEAR(lines[i].offset.y, e.offsetY, 1e-9) << i;
    ASSERT_EQ(lines[i].dashes.size(), e.dashes.size()) << i;
    for (std::size_t d = 0; d < e.dashes.size(); ++d)
      EXPECT_NEAR(lines[i].dashes[d], e.dashes[d], 1e-9) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, HatchLines, testing::ValuesIn(kCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(HatchLines, quarterTurnsGiveExactZeros)
{
  // Noise such as 6e-17 would be written into every DXF file.
  const PatPattern p = patternOf("*A\n0, 1,0, 0,1\n");
  for (double angle : {kPi / 2, kPi, 3 * kPi / 2}) {
    const auto lines = patHatchDefinitionLines(&p, {angle, 1.0});
    const double values[] = {lines[0].base.x, lines[0].base.y, lines[0].offset.x, lines[0].offset.y};
    for (double v : values)
      EXPECT_TRUE(v == 0.0 || std::fabs(v) == 1.0) << v << " at " << angle;
  }
}

// A hatch in a real drawing and the pattern file it was made from.
struct StoredCase
{
  const char* drawing;
  const char* pattern;
  const char* patFile;
};

const StoredCase kStored[] = {
    // Saved by AutoCAD: imperial ANSI31 and patterns of a pattern vendor at
    // scale 0.1, all with a hatch origin away from 0,0.
    {"DomCR__ACadSharp/samples/sample_AC1032_ascii.dxf", "ANSI31", "qcad__qcad/patterns/imperial/ansi31.pat"},
    {"DomCR__ACadSharp/samples/sample_AC1032_ascii.dxf", "HSBDR3E0", "DomCR__ACadSharp/samples/patterns/ALL.pat"},
    {"DomCR__ACadSharp/samples/sample_AC1032_ascii.dxf", "HSHP21E0", "DomCR__ACadSharp/samples/patterns/ALL.pat"},
    {"DomCR__ACadSharp/samples/sample_AC1032_ascii.dxf", "HSHP31E0", "DomCR__ACadSharp/samples/patterns/ALL.pat"},
    {"DomCR__ACadSharp/samples/sample_AC1032_ascii.dxf", "HVEGE100", "DomCR__ACadSharp/samples/patterns/ALL.pat"},
    {"DomCR__ACadSharp/samples/sample_AC1015_ascii.dxf", "HVEGE100", "DomCR__ACadSharp/samples/patterns/HVEGE100.pat"},
    // Saved by QCAD, from its metric files, at odd scales and at -90 degrees.
    {"qcad__qcad/examples/example00.dxf", "ANGLE", "qcad__qcad/patterns/metric/angle.pat"},
    {"qcad__qcad/examples/example00.dxf", "ANSI31", "qcad__qcad/patterns/metric/ansi31.pat"},
    {"qcad__qcad/examples/example00.dxf", "ANSI33", "qcad__qcad/patterns/metric/ansi33.pat"},
    {"qcad__qcad/examples/example00.dxf", "AR-B816", "qcad__qcad/patterns/metric/ar-b816.pat"},
    {"qcad__qcad/examples/example00.dxf", "AR-B816C", "qcad__qcad/patterns/metric/ar-b816c.pat"},
    {"qcad__qcad/examples/example00.dxf", "AR-B88", "qcad__qcad/patterns/metric/ar-b88.pat"},
    {"qcad__qcad/examples/example00.dxf", "AR-BRELM", "qcad__qcad/patterns/metric/ar-brelm.pat"},
    {"qcad__qcad/examples/example00.dxf", "CLAY", "qcad__qcad/patterns/metric/clay.pat"},
    {"qcad__qcad/examples/example00.dxf", "EARTH", "qcad__qcad/patterns/metric/earth.pat"},
    {"qcad__qcad/examples/example00.dxf", "ESCHER", "qcad__qcad/patterns/metric/escher.pat"},
    {"qcad__qcad/examples/example00.dxf", "GRASS", "qcad__qcad/patterns/metric/grass.pat"},
    {"qcad__qcad/examples/example00.dxf", "STARS", "qcad__qcad/patterns/metric/stars.pat"},
    {"qcad__qcad/examples/flange.dxf", "ANSI31", "qcad__qcad/patterns/metric/ansi31.pat"},
    {"qcad__qcad/examples/entities.dxf", "STARS", "qcad__qcad/patterns/metric/stars.pat"},
    {"LibreDWG__libredwg/test/test-data/example_r14.dxf", "ANGLE", "qcad__qcad/patterns/metric/angle.pat"},
    // Saved by ezdxf, in blocks, at 30 degrees too.
    {"mozman__ezdxf/examples_dxf/transform_hatch_pattern.dxf", "ACAD_ISO10W100",
     "qcad__qcad/patterns/metric/acad_iso10w100.pat"},
    {"mozman__ezdxf/examples_dxf/transform_hatch_pattern.dxf", "ANSI33", "qcad__qcad/patterns/metric/ansi33.pat"},
    {"mozman__ezdxf/examples_dxf/transform_hatch_pattern.dxf", "AR-HBONE", "qcad__qcad/patterns/metric/ar-hbone.pat"},
    {"mozman__ezdxf/examples_dxf/transform_hatch_pattern.dxf", "AR-PARQ1", "qcad__qcad/patterns/metric/ar-parq1.pat"},
    {"mozman__ezdxf/examples_dxf/transform_hatch_pattern.dxf", "AR-RSHKE", "qcad__qcad/patterns/metric/ar-rshke.pat"},
};

std::vector<OdDbHatch::Data> hatchesNamed(OdDbDatabase* db, const OdString& name)
{
  std::vector<OdDbHatch::Data> found;
  OdDbSymbolTablePtr blocks = OdDbSymbolTable::cast(db->getBlockTableId().openObject());
  for (OdDbSymbolTableIteratorPtr b = blocks->newIterator(); !b->done(); b->step()) {
    OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::cast(b->getRecord());
    for (OdDbObjectIteratorPtr it = block->newIterator(); !it->done(); it->step())
      if (OdDbHatchPtr h = OdDbHatch::cast(it->entity()); h.get() && h->patternName().iCompare(name) == 0)
        found.push_back(h->data());
  }
  return found;
}

// Stored values carry eight or so digits.
bool near(double a, double b)
{
  return std::fabs(a - b) <= 2e-6 * std::max(1.0, std::fabs(b));
}

class StoredHatchLines : public testing::TestWithParam<StoredCase>
{
};

TEST_P(StoredHatchLines, matchWhatTheWritingProgramStored)
{
  const QString drawing = PatTest::externalFile(GetParam().drawing);
  if (drawing.isEmpty())
    GTEST_SKIP() << "no shared/data/external here";
  PatFile file;
  OdString error;
  ASSERT_TRUE(file.load(OdString(PatTest::externalFile(GetParam().patFile)), &error)) << error;
  const PatPattern* pattern = file.find(GetParam().pattern);
  ASSERT_NE(pattern, nullptr);
  OdDbDatabasePtr db = odDxfReadFile(OdString(drawing));
  const auto hatches = hatchesNamed(db.get(), GetParam().pattern);
  ASSERT_FALSE(hatches.empty());
  for (const OdDbHatch::Data& h : hatches) {
    const auto lines = patHatchDefinitionLines(pattern, {h.angle * kPi / 180.0, h.scale});
    ASSERT_EQ(lines.size(), h.lines.size());
    // The hatch origin moves every base point by the same vector.
    const double shiftX = h.lines[0].base.x - lines[0].base.x, shiftY = h.lines[0].base.y - lines[0].base.y;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const auto& ours = lines[i];
      const auto& stored = h.lines[i];
      const double turn = std::remainder(ours.angle - stored.angle, 360.0);
      EXPECT_NEAR(turn, 0.0, 1e-6) << "line " << i;
      EXPECT_TRUE(near(ours.offset.x, stored.offset.x) && near(ours.offset.y, stored.offset.y))
          << "line " << i << ": " << ours.offset.x << "," << ours.offset.y << " stored " << stored.offset.x << ","
          << stored.offset.y;
      EXPECT_TRUE(near(ours.base.x + shiftX, stored.base.x) && near(ours.base.y + shiftY, stored.base.y))
          << "line " << i;
      ASSERT_EQ(ours.dashes.size(), stored.dashes.size()) << "line " << i;
      for (std::size_t d = 0; d < ours.dashes.size(); ++d)
        EXPECT_TRUE(near(ours.dashes[d], stored.dashes[d])) << "line " << i << " dash " << d;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Drawings, StoredHatchLines, testing::ValuesIn(kStored), [](const auto& info) {
  std::string name = std::string(info.param.pattern) + "_" + std::to_string(info.index);
  for (char& c : name)
    if (!std::isalnum(static_cast<unsigned char>(c)))
      c = '_';
  return name;
});

} // namespace
