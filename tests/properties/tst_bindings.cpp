// The binding of editable rows to an agent's fields: getters and setters
// named at compile time, the agent's predicates, the backup of the editing
// period, and the texts, ranges and messages of numbers.
#include "tests/properties/PropertyTestSupport.h"

#include "properties/OdTcObjectProperties.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace tc;

namespace {

// Stands for a tool's agent: the fields its rows show, and what decides
// whether a row is enabled or shown.
class Agent
{
public:
  bool explode() const { return m_explode; }
  void setExplode(const bool& v) { m_explode = v; }
  double scale() const { return m_scale; }
  void setScale(const double& v) { m_scale = v; }
  double angle() const { return m_angle; }
  void setAngle(const double& v) { m_angle = v; }
  OdString name() const { return m_name; }
  void setName(const OdString& v) { m_name = v; }
  OdString units() const { return m_units; }
  void setUnits(const OdString& v) { m_units = v; }
  OdArray<OdString> unitList() const
  {
    OdArray<OdString> list;
    list.append(OdString("Millimeters"));
    list.append(OdString("Inches"));
    return list;
  }
  OdCmColor color() const { return m_color; }
  void setColor(const OdCmColor& v) { m_color = v; }
  bool scaleEditable() const { return !m_explode; }
  bool nameShown() const { return m_showName; }
  // The pattern dialog of a hatch tool: here it always chooses "ANSI31",
  // unless told to be cancelled.
  bool choosePattern(OdString& chosen)
  {
    if (m_cancelDialog)
      return false;
    chosen = "ANSI31";
    return true;
  }

  bool m_explode = false;
  double m_scale = 1.0;
  double m_angle = 0.0;
  OdString m_name = "Door";
  OdString m_units = "Inches";
  OdCmColor m_color;
  bool m_showName = true;
  bool m_cancelDialog = false;
};

using BoolRow = OdTcBoolObjectPropertyImplEx<Agent, Getter<Agent, bool, &Agent::explode>,
                                             Setter<Agent, bool, &Agent::setExplode>>;
using ScaleRow = OdTcDoubleObjectPropertyImplEx<Agent, Getter<Agent, double, &Agent::scale>,
                                                Setter<Agent, double, &Agent::setScale>,
                                                Enabler<Agent, &Agent::scaleEditable>>;
using AngleRow = OdTcAnglePropertyImplEx<Agent, Getter<Agent, double, &Agent::angle>,
                                         Setter<Agent, double, &Agent::setAngle>>;
using NameRow = OdTcTextObjectPropertyImplEx<Agent, Getter<Agent, OdString, &Agent::name>,
                                             Setter<Agent, OdString, &Agent::setName>, IsEnabled<Agent>,
                                             Visible<Agent, &Agent::nameShown>>;
using UnitsRow = OdTcMultiverseObjectPropertyImplEx<Agent, Getter<Agent, OdString, &Agent::units>,
                                                    Setter<Agent, OdString, &Agent::setUnits>,
                                                    Enumerator<Agent, OdArray<OdString>, &Agent::unitList>>;
using ColorRow = OdTcColorObjectPropertyImplEx<Agent, Getter<Agent, OdCmColor, &Agent::color>,
                                               Setter<Agent, OdCmColor, &Agent::setColor>>;
using PatternRow = OdTcCallbackObjectPropertyImpl<Agent, Getter<Agent, OdString, &Agent::name>,
                                                  Setter<Agent, OdString, &Agent::setName>, &Agent::choosePattern>;

struct RangeCase
{
  double minimum;
  double maximum;
  const char* text;
  bool accepted;
  const char* message;
};

// Cloning and the frame's casts need the class descriptions.
class Bindings : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerPropertyClasses(); }
};

class RealRange : public ::testing::TestWithParam<RangeCase>
{
protected:
  static void SetUpTestSuite() { tst::registerPropertyClasses(); }
};

} // namespace

TEST_F(Bindings, getterAndSetterReachTheAgent_andTheRowHasNoValueRecord)
{
  Agent agent;
  auto row = ScaleRow::createNew(&agent, "Insert.Scale");
  EXPECT_EQ(row->name(), "Insert.Scale");
  double v = 0.0;
  row->getValue(v);
  EXPECT_EQ(v, 1.0);
  row->setValue(2.5);
  EXPECT_EQ(agent.m_scale, 2.5);
  EXPECT_EQ(row->basicInfo(), nullptr);
  EXPECT_EQ(row->getValue().getDouble(), 2.5);
}

TEST_F(Bindings, editingPeriod_rollbackPutsBackTheValueFromBeforeTheFirstChange)
{
  Agent agent;
  auto row = ScaleRow::createNew(&agent, "Insert.Scale");
  row->rollbackEdit(); // nothing changed: nothing to put back
  EXPECT_EQ(agent.m_scale, 1.0);
  row->setValue(2.0);
  row->setValue(3.0);
  EXPECT_TRUE(row->isEdited());
  row->rollbackEdit();
  EXPECT_EQ(agent.m_scale, 1.0);
  EXPECT_FALSE(row->isEdited());

  row->setValue(4.0);
  row->acceptEdit();
  row->rollbackEdit();
  EXPECT_EQ(agent.m_scale, 4.0);
}

TEST_F(Bindings, enablerAndVisibility_askTheAgent)
{
  Agent agent;
  auto scale = ScaleRow::createNew(&agent, "Insert.Scale");
  auto name = NameRow::createNew(&agent, "Insert.Name");
  EXPECT_TRUE(scale->isEnabled());
  agent.m_explode = true;
  EXPECT_FALSE(scale->isEnabled());
  EXPECT_TRUE(name->isVisible());
  agent.m_showName = false;
  EXPECT_FALSE(name->isVisible());
  EXPECT_TRUE(name->isEnabled());
  name->setReadOnly(true);
  EXPECT_FALSE(name->isEnabled());
}

TEST_F(Bindings, cloneKeepsTheOwnerAndTheRange)
{
  Agent agent;
  auto row = ScaleRow::createNew(&agent, "Sample.Spacing");
  row->setRange(1.0, 5.0);
  OdSmartPtr<ScaleRow> copy(dynamic_cast<ScaleRow*>(row->clone().get()));
  ASSERT_FALSE(copy.isNull());
  EXPECT_EQ(copy->owner(), &agent);
  EXPECT_EQ(copy->minimum(), 1.0);
  EXPECT_EQ(copy->maximum(), 5.0);
  EXPECT_EQ(copy->name(), "Sample.Spacing");
}

TEST_F(Bindings, boolRow_takesTheTwoWordsOnly)
{
  Agent agent;
  auto row = BoolRow::createNew(&agent, "Insert.Explode");
  EXPECT_EQ(row->valueText(), "No");
  OdString message;
  EXPECT_TRUE(row->commitText("Yes", message));
  EXPECT_TRUE(agent.m_explode);
  EXPECT_EQ(row->valueText(), "Yes");
  EXPECT_FALSE(row->commitText("Maybe", message));
  EXPECT_TRUE(agent.m_explode);
}

TEST_F(Bindings, multiverseRow_takesOnlyEntriesOfItsList)
{
  Agent agent;
  auto row = UnitsRow::createNew(&agent, "Insert.Units");
  ASSERT_EQ(row->choices().size(), 2u);
  OdString message;
  EXPECT_TRUE(row->commitText("Millimeters", message));
  EXPECT_EQ(agent.m_units, "Millimeters");
  EXPECT_FALSE(row->commitText("Furlongs", message));
  EXPECT_EQ(agent.m_units, "Millimeters");
}

TEST_F(Bindings, colorRow_readsWordsAndIndices)
{
  Agent agent;
  auto row = ColorRow::createNew(&agent, "Sample.Color");
  OdString message;
  ASSERT_TRUE(row->commitText("red", message));
  EXPECT_EQ(row->valueText(), "red");
  ASSERT_TRUE(row->commitText("ByLayer", message));
  EXPECT_TRUE(agent.m_color.isByLayer());
  EXPECT_FALSE(row->commitText("no colour", message));
  EXPECT_TRUE(agent.m_color.isByLayer());
}

TEST_F(Bindings, callbackRow_dialogSetsTheFieldThroughTheSetter)
{
  Agent agent;
  auto row = PatternRow::createNew(&agent, "Sample.Pattern name");
  agent.m_cancelDialog = true;
  EXPECT_FALSE(row->runDialog());
  EXPECT_EQ(agent.m_name, "Door");
  agent.m_cancelDialog = false;
  EXPECT_TRUE(row->runDialog());
  EXPECT_EQ(agent.m_name, "ANSI31");
  row->rollbackEdit();
  EXPECT_EQ(agent.m_name, "Door");
}

TEST_F(Bindings, angleRow_textInDegreesValueInRadians)
{
  Agent agent;
  auto row = AngleRow::createNew(&agent, "Insert.Rotation");
  OdString message;
  ASSERT_TRUE(row->commitText("90", message));
  EXPECT_NEAR(agent.m_angle, M_PI / 2, 1e-12);
  EXPECT_EQ(row->valueText(), "90");
  // Angles have no range.
  ASSERT_TRUE(row->commitText("-45", message));
  EXPECT_NEAR(agent.m_angle, -M_PI / 4, 1e-12);
  EXPECT_FALSE(row->commitText("north-ish", message));
  EXPECT_EQ(message, "Invalid expression: north-ish");
}

TEST_P(RealRange, validatesAndExplains)
{
  const RangeCase& c = GetParam();
  Agent agent;
  auto row = ScaleRow::createNew(&agent, "Insert.Scale");
  row->setRange(c.minimum, c.maximum);
  OdString message;
  EXPECT_EQ(row->commitText(c.text, message), c.accepted) << c.text;
  EXPECT_EQ(message, c.message) << c.text;
  if (!c.accepted) {
    EXPECT_EQ(agent.m_scale, 1.0) << "a refused text leaves the field";
  }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, RealRange,
    ::testing::Values(RangeCase{0.0, 1000000.0, "2.5", true, ""}, RangeCase{0.0, 1000000.0, "0", true, ""},
                      RangeCase{0.0, 1000000.0, "", false, ""},
                      RangeCase{0.0, 1000000.0, "-1", false, "Value must be between 0.0000 and 1000000.0000"},
                      RangeCase{0.0, 1000000.0, "2000000", false, "Value must be between 0.0000 and 1000000.0000"},
                      RangeCase{0.0, 1000000.0, "abc", false, "Invalid expression: abc"},
                      // Taken by the host's evaluator, and then held to the range.
                      RangeCase{0.0, 1000000.0, "2*3", true, ""},
                      RangeCase{0.0, 1000000.0, "-2*3", false, "Value must be between 0.0000 and 1000000.0000"},
                      RangeCase{0.0, 1000000.0, "1'-6\"", true, ""},
                      RangeCase{1.0, 2147483647.0, "0.5", false, "Value must be more 1.0000"},
                      RangeCase{-2147483648.0, 10.0, "11", false, "Value must be less 10.0000"},
                      // The upper bound is tested first.
                      RangeCase{-2147483648.0, 2147483647.0, "5", true, ""}));
