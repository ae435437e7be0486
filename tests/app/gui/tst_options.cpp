// The desktop program's command line: what it accepts and what it refuses
// with a message.
#include "app/gui/GuiOptions.h"

#include <gtest/gtest.h>

namespace {

struct OptionRow
{
  std::vector<const char*> args;
  bool ok;
  const char* errorPart; // in the message when refused
  friend void PrintTo(const OptionRow& r, std::ostream* os)
  {
    for (const char* a : r.args)
      *os << a << " ";
  }
};

class Options : public ::testing::TestWithParam<OptionRow>
{
};

TEST_P(Options, parsed)
{
  std::vector<OdString> args;
  for (const char* a : GetParam().args)
    args.push_back(a);
  GuiOptions options;
  OdString error;
  EXPECT_EQ(options.parse(args, error), GetParam().ok) << error;
  if (!GetParam().ok)
    EXPECT_NE(error.qstring().indexOf(GetParam().errorPart), -1) << error;
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, Options,
    ::testing::Values(OptionRow{{}, true, ""}, OptionRow{{"a.dxf", "b.dxf"}, true, ""},
                      OptionRow{{"--size", "1280x800", "--screenshot=s.png", "a.dxf"}, true, ""},
                      OptionRow{{"--render", "o.png", "--window", "0,0,10,5", "a.dxf"}, true, ""},
                      OptionRow{{"--set", "ToolPaletteDir=/tmp/x"}, true, ""},
                      OptionRow{{"--size", "big"}, false, "WIDTHxHEIGHT"},
                      OptionRow{{"--size", "10x10"}, false, "WIDTHxHEIGHT"},
                      OptionRow{{"--render", "o.png"}, false, "needs a drawing"},
                      OptionRow{{"--window", "0,0,1,1", "a.dxf"}, false, "goes with --render"},
                      OptionRow{{"--render", "o.png", "--window", "0,0,0,1", "a.dxf"}, false, "X0,Y0,X1,Y1"},
                      OptionRow{{"--events"}, false, "needs a value"},
                      OptionRow{{"--set", "nonsense"}, false, "KEY=VALUE"},
                      OptionRow{{"--bogus"}, false, "Unknown option"}));

TEST(Options, windowIsNormalisedAndDrawingsKeptInOrder)
{
  GuiOptions options;
  OdString error;
  ASSERT_TRUE(options.parse({"--render", "o.png", "--window", "10,5,0,0", "b.dxf"}, error));
  ASSERT_TRUE(options.window.has_value());
  EXPECT_EQ(*options.window, QRectF(0, 0, 10, 5));
  ASSERT_TRUE(options.parse({"x.dxf", "y.dxf"}, error));
  EXPECT_EQ(options.drawings.back(), OdString("y.dxf"));
}

} // namespace
