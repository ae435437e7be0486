// OdString: comparison by case folding, searches, trimming and formatting.
#include "sdk/kernel/OdString.h"
#include "sdk/kernel/OdWcstol.h"

#include <gtest/gtest.h>

#include <climits>

TEST(OdString, iCompare_foldsCaseBeyondAscii)
{
  EXPECT_EQ(OdString("ПАЛИТРА").iCompare(OdString("палитра")), 0);
  EXPECT_EQ(OdString("Ärger").iCompare(OdString("äRGER")), 0);
  EXPECT_EQ(OdString("ToolPalette").iCompare("toolpalette"), 0);
  EXPECT_NE(OdString("ToolPalette").compare("toolpalette"), 0);
  EXPECT_LT(OdString("a").iCompare("B"), 0);
  EXPECT_GT(OdString("b").iCompare("A"), 0);
}

TEST(OdString, utf8RoundTrip_keepsNonAscii)
{
  const std::string bytes = "Блоки \xE2\x80\x94 Ø 50 mm";
  const OdString s = OdString::fromUtf8(bytes.c_str());
  EXPECT_EQ(s.getLength(), 15);
  EXPECT_EQ(s.toUtf8(), bytes);
  EXPECT_EQ(OdString(L"Ω wide").toUtf8(), "Ω wide");
}

TEST(OdString, findReplaceTrim)
{
  OdString s("  a\\b\\c  ");
  s.trimLeft().trimRight();
  EXPECT_EQ(s, "a\\b\\c");
  EXPECT_EQ(s.replace(u'\\', u'/'), 2);
  EXPECT_EQ(s, "a/b/c");
  EXPECT_EQ(s.find(u'/'), 1);
  EXPECT_EQ(s.reverseFind(u'/'), 3);
  EXPECT_EQ(s.find("b/c"), 2);
  EXPECT_EQ(s.replace("/", "::"), 2);
  EXPECT_EQ(s, "a::b::c");
  EXPECT_EQ(OdString("xxabcxx").trimLeft(u'x').trimRight("x"), "abc");
  EXPECT_EQ(OdString("abc").replace("", "z"), 0);
  EXPECT_EQ(OdString("Straße").makeUpper(), "STRASSE");
}

struct FormatRow
{
  const char* format;
  std::function<OdString(const OdString&)> apply;
  const char* expected;
};

void PrintTo(const FormatRow& row, std::ostream* os)
{
  *os << row.format;
}

class OdStringFormat : public ::testing::TestWithParam<FormatRow>
{
};

TEST_P(OdStringFormat, formatsLikePrintf)
{
  const FormatRow& row = GetParam();
  EXPECT_EQ(row.apply(OdString(row.format)).toUtf8(), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    rows, OdStringFormat,
    ::testing::Values(
        FormatRow{"%s\\%s", [](const OdString& f) { return OdString::formatted(f, OdString("/home/u"), "ToolPalette"); },
                  "/home/u\\ToolPalette"},
        FormatRow{"%ls=%d", [](const OdString& f) { return OdString::formatted(f, L"n", -42); }, "n=-42"},
        FormatRow{"%u", [](const OdString& f) { return OdString::formatted(f, -1); }, "4294967295"},
        FormatRow{"%g|%g", [](const OdString& f) { return OdString::formatted(f, 0.5, 1e21); }, "0.5|1e+21"},
        FormatRow{"%5.1f|%-4d|%04X", [](const OdString& f) { return OdString::formatted(f, 3.14159, 7, 255); },
                  "  3.1|7   |00FF"},
        FormatRow{"100%% sure", [](const OdString& f) { return OdString::formatted(f); }, "100% sure"},
        FormatRow{"missing %s here", [](const OdString& f) { return OdString::formatted(f); }, "missing  here"},
        FormatRow{"%q stays", [](const OdString& f) { return OdString::formatted(f, 1); }, "%q stays"},
        FormatRow{"%-6s|", [](const OdString& f) { return OdString::formatted(f, "ab"); }, "ab    |"}));

struct WcstolRow
{
  const char* text;
  std::int32_t value;
  int end;
};

void PrintTo(const WcstolRow& row, std::ostream* os)
{
  *os << '"' << row.text << '"';
}

class OdWcstolRows : public ::testing::TestWithParam<WcstolRow>
{
};

TEST_P(OdWcstolRows, parsesWith32BitSemantics)
{
  int end = -1;
  EXPECT_EQ(odWcstol(OdString(GetParam().text), &end), GetParam().value);
  EXPECT_EQ(end, GetParam().end);
}

INSTANTIATE_TEST_SUITE_P(rows, OdWcstolRows,
                         ::testing::Values(WcstolRow{"42", 42, 2}, WcstolRow{"  -17abc", -17, 5},
                                           WcstolRow{"+8", 8, 2}, WcstolRow{"abc", 0, 0}, WcstolRow{"", 0, 0},
                                           WcstolRow{"-", 0, 0}, WcstolRow{"12.5", 12, 2},
                                           WcstolRow{"2147483647", INT_MAX, 10},
                                           WcstolRow{"2147483648", INT_MAX, 10},
                                           WcstolRow{"-2147483648", INT_MIN, 11},
                                           WcstolRow{"-99999999999999999999", INT_MIN, 21},
                                           WcstolRow{"4294967295", INT_MAX, 10}));

TEST(OdWcstod, ignoresTheUserLocale)
{
  int end = 0;
  EXPECT_DOUBLE_EQ(odWcstod(" 2.5e2x", &end), 250.0);
  EXPECT_EQ(end, 6);
  EXPECT_DOUBLE_EQ(odWcstod("1,5"), 1.0);
  EXPECT_DOUBLE_EQ(odWcstod("x"), 0.0);
}
