// FASTHATCHCMD and FASTGRADIENTCMD: what the variables make of a hatch,
// and which boundaries are taken.
#include "tests/app/AppTestSupport.h"

#include "app/core/HostDocumentManager.h"
#include "app/core/HostSysVars.h"
#include "app/core/HostVariableStoreImpl.h"

#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbPolyline.h"

#include <QFile>

#include <cmath>

using namespace apptest;

namespace {

class HatchCommands : public HostFixture
{
protected:
  OdDbDatabase* db() { return app().documents().current()->database(); }

  void set(const char* name, OdResBufPtr value)
  {
    ASSERT_EQ(app().sysVars().setVar(name, value), HostSystemVariables::kOk) << name;
  }

  std::string addCircle()
  {
    OdDbCirclePtr c = OdDbCircle::createObject();
    c->setCenter(OdGePoint3d(5, 5, 0));
    c->setRadius(5);
    OdDbBlockTableRecord::cast(db()->getModelSpaceId().openObject(OdDb::kForWrite))->appendOdDbEntity(c);
    return c->getDbHandle().text();
  }

  std::vector<OdDbHatchPtr> hatches()
  {
    std::vector<OdDbHatchPtr> out;
    OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db()->getModelSpaceId().openObject());
    for (const OdDbObjectId& id : ms->entityIds())
      if (OdDbHatchPtr h = OdDbHatch::cast(id.openObject()); h.get())
        out.push_back(h);
    return out;
  }
};

struct PatternRow
{
  const char* name;
  int hatchType; // the store's numbering: 0 predefined, 1 user, 2 custom
  const char* hpname;
  double angleDegrees, scale, spacing;
  bool doubled;
  // Expected
  int patternType;
  const char* patternName;
  std::size_t lines;
  double firstLineAngle, firstLineSpacing;
  bool solid, isDouble;
};

void PrintTo(const PatternRow& row, std::ostream* os)
{
  *os << row.name;
}

class HatchPatterns : public HatchCommands, public ::testing::WithParamInterface<PatternRow>
{
};

TEST_P(HatchPatterns, variablesMakeTheHatch)
{
  const PatternRow& r = GetParam();
  // A custom pattern file of our own for the custom rows.
  const QString custom = m_home.path() + "/office.pat";
  QFile f(custom);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("*TILES, Office floor tiles\n0, 0,0, 0,10\n90, 0,0, 0,10\n");
  f.close();
  app().variableStore().setValue("hatch_type", r.hatchType);
  app().variableStore().setValue("hatch_pattern_file", OdString(custom));
  set("HPNAME", OdResBuf::newValue(OdString(r.hpname)));
  set("HPANG", OdResBuf::newValue(r.angleDegrees * M_PI / 180));
  set("HPSCALE", OdResBuf::newValue(r.scale));
  set("HPSPACE", OdResBuf::newValue(r.spacing));
  set("HPDOUBLE", OdResBuf::newValue(std::int16_t(r.doubled)));
  const std::string circle = addCircle();
  app().typeLine(OdString("FASTHATCHCMD " + circle + " "));
  ASSERT_EQ(hatches().size(), 1u) << m_output;
  const OdDbHatch::Data d = hatches()[0]->data();
  EXPECT_EQ(d.patternType, r.patternType);
  EXPECT_EQ(d.patternName, r.patternName);
  EXPECT_EQ(d.solid, r.solid);
  EXPECT_EQ(d.isDouble, r.isDouble);
  ASSERT_EQ(d.lines.size(), r.lines);
  if (!d.lines.empty()) {
    EXPECT_NEAR(d.lines[0].angle, r.firstLineAngle, 1e-9);
    EXPECT_NEAR(std::hypot(d.lines[0].offset.x, d.lines[0].offset.y), r.firstLineSpacing, 1e-9);
    EXPECT_NEAR(d.angle, r.angleDegrees, 1e-9);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, HatchPatterns,
    ::testing::Values(
        // ANSI31 is 45-degree lines 3.175 apart: turned by 30, twice as wide.
        PatternRow{"predefined", 0, "ansi31", 30, 2, 1, false, 1, "ANSI31", 1, 75, 6.35, false, false},
        // HPDOUBLE belongs to user-defined lines; a pattern ignores it.
        PatternRow{"predefinedIgnoresDouble", 0, "NET", 0, 1, 1, true, 1, "NET", 2, 0, 3.175, false, false},
        PatternRow{"userDefinedCrossed", 1, "ANSI31", 15, 1, 4, true, 0, "_USER", 2, 15, 4, false, true},
        // An empty HPNAME is a user-defined hatch whatever the type.
        PatternRow{"emptyNameIsUser", 0, "", 0, 1, 2.5, false, 0, "_USER", 1, 0, 2.5, false, false},
        PatternRow{"solid", 0, "SOLID", 45, 1, 1, false, 1, "SOLID", 0, 0, 0, true, false},
        PatternRow{"customFile", 2, "tiles", 0, 0.5, 1, false, 2, "TILES", 2, 0, 5, false, false}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(HatchCommands, unknownPattern_saysSoAndAsksForNoBoundary)
{
  set("HPNAME", OdResBuf::newValue(OdString("NOSUCHPATTERN")));
  app().typeLine("FASTHATCHCMD");
  EXPECT_NE(m_output.find("The pattern \"NOSUCHPATTERN\" is not in verdaniiso.pat"), std::string::npos) << m_output;
  EXPECT_EQ(m_output.find("Select a closed boundary"), std::string::npos);
  EXPECT_TRUE(hatches().empty());
}

TEST_F(HatchCommands, boundaries_closedObjectsAndPolygonsWithIslands)
{
  set("HPNAME", OdResBuf::newValue(OdString("ANSI31")));
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db()->getModelSpaceId().openObject(OdDb::kForWrite));
  OdDbPolylinePtr open = OdDbPolyline::createObject();
  open->addVertexAt(0, OdGePoint2d(0, 0));
  open->addVertexAt(1, OdGePoint2d(1, 0));
  ms->appendOdDbEntity(open);
  OdDbPolylinePtr square = OdDbPolyline::createObject();
  for (unsigned i = 0; i < 4; ++i)
    square->addVertexAt(i, OdGePoint2d(i == 1 || i == 2 ? 100 : 0, i >= 2 ? 100 : 0), i == 0 ? 0.25 : 0.0);
  square->setClosed(true);
  ms->appendOdDbEntity(square);
  OdDbEllipsePtr ellipse = OdDbEllipse::createObject();
  ellipse->set(OdGePoint3d(50, 50, 0), OdGeVector3d::kZAxis, OdGeVector3d(10, 0, 0), 0.5);
  ms->appendOdDbEntity(ellipse);
  const std::string script = "FASTHATCHCMD " + open->getDbHandle().text() + " " + square->getDbHandle().text() + " " +
                             ellipse->getDbHandle().text() + " 10,10 20,10 20,20 10,20 10,10  20,40 30,40  ";
  app().typeLine(OdString(script));
  EXPECT_NE(m_output.find("bounds no area"), std::string::npos) << m_output;
  EXPECT_NE(m_output.find("at least three points"), std::string::npos) << m_output;
  ASSERT_EQ(hatches().size(), 1u) << m_output;
  const OdDbHatch::Data d = hatches()[0]->data();
  ASSERT_EQ(d.loops.size(), 3u);
  EXPECT_EQ(d.loops[0].type, OdDbHatch::kExternal | OdDbHatch::kPolyline) << "the first boundary is the outer one";
  EXPECT_EQ(d.loops[0].bulges[0], 0.25);
  EXPECT_EQ(d.loops[1].type, OdDbHatch::kDefault);
  ASSERT_EQ(d.loops[1].edges.size(), 1u);
  EXPECT_EQ(d.loops[1].edges[0].type, OdDbHatch::kEllArc);
  EXPECT_EQ(d.loops[2].vertices.size(), 4u) << "a polygon closed by hand does not repeat its first point";
}

TEST_F(HatchCommands, backgroundColour_isKeptWithThePattern)
{
  set("HPNAME", OdResBuf::newValue(OdString("ANSI31")));
  OdCmColor yellow;
  yellow.setRGB(255, 255, 0);
  set("HPCOLOR", OdResBuf::newValue(yellow));
  app().typeLine(OdString("FASTHATCHCMD " + addCircle() + " "));
  ASSERT_EQ(hatches().size(), 1u);
  const OdDbDxfPairArray x = hatches()[0]->xData("HATCHBACKGROUNDCOLOR");
  ASSERT_EQ(x.size(), 1u);
  OdCmColor back;
  back.setColor(std::uint32_t(OdDxf::toInt(x[0].value)));
  EXPECT_EQ(back.rgb(), 0xFFFF00u);
}

TEST_F(HatchCommands, cancelledDuringThePolygon_hatchesNothing)
{
  app().commandLine().type("FASTHATCHCMD 0,0 1,0 ^C");
  EXPECT_TRUE(hatches().empty());
  EXPECT_EQ(m_recorder.events.back(), "cancelled:FASTHATCHCMD");
}

struct GradientRow
{
  const char* name;
  int gfname, gfshift, state;
  double lum;
  const char* expectedName;
  double expectedShift;
  bool oneColor;
  std::uint32_t secondRgb;
};

class Gradients : public HatchCommands, public ::testing::WithParamInterface<GradientRow>
{
};

TEST_P(Gradients, variablesMakeTheGradient)
{
  const GradientRow& r = GetParam();
  OdCmColor red;
  red.setRGB(200, 0, 0);
  set("GFNAME", OdResBuf::newValue(std::int16_t(r.gfname)));
  set("GFANG", OdResBuf::newValue(M_PI / 3));
  set("GFSHIFT", OdResBuf::newValue(std::int16_t(r.gfshift)));
  set("GFCLRSTATE", OdResBuf::newValue(std::int16_t(r.state)));
  set("GFCLRLUM", OdResBuf::newValue(r.lum));
  set("GFCLR1", OdResBuf::newValue(red));
  app().typeLine(OdString("FASTGRADIENTCMD " + addCircle() + " "));
  ASSERT_EQ(hatches().size(), 1u) << m_output;
  OdDbHatchPtr h = hatches()[0];
  EXPECT_TRUE(h->isGradient());
  EXPECT_TRUE(h->isSolidFill());
  EXPECT_EQ(h->gradientName(), OdString(r.expectedName));
  EXPECT_NEAR(h->gradientAngle(), M_PI / 3, 1e-12);
  EXPECT_EQ(h->gradientShift(), r.expectedShift);
  EXPECT_EQ(h->getGradientOneColorMode(), r.oneColor);
  unsigned count = 0;
  OdArray<OdCmColor> colors;
  OdGeDoubleArray values;
  h->getGradientColors(count, colors, values);
  ASSERT_EQ(count, 2u);
  EXPECT_EQ(colors[0].rgb(), 0xC80000u);
  EXPECT_EQ(colors[1].rgb(), r.secondRgb);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Gradients,
    ::testing::Values(
        // Two colours: the second is GFCLR2 (its default, 255,255,153).
        GradientRow{"twoColoursCentred", 1, 0, 1, 1.0, "LINEAR", 0.0, false, 0xFFFF99u},
        GradientRow{"shifted", 4, 1, 1, 1.0, "SPHERICAL", 1.0, false, 0xFFFF99u},
        // One colour runs to white at full tint and to black at none.
        GradientRow{"oneColourTint", 9, 0, 0, 1.0, "INVCURVED", 0.0, true, 0xFFFFFFu},
        GradientRow{"oneColourShade", 2, 0, 0, 0.0, "CYLINDER", 0.0, true, 0x000000u},
        GradientRow{"oneColourItself", 3, 0, 0, 0.5, "INVCYLINDER", 0.0, true, 0xC80000u}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
