// Texts of drawings before R2007: code pages, \U+XXXX escapes, and texts
// that need neither coming back untouched.
#include "sdk/dxf/OdDxfCodePage.h"
#include "sdk/dxf/OdDxfTextDecoder.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Texts
{
  const char* name;
  const char* codePage; // $DWGCODEPAGE
  std::vector<std::string> lines;
  std::vector<std::string> expected; // empty: the line comes back as it is, not copied
};

const Texts kTexts[] = {
    {"codePageBytes", "ANSI_1252", {"Gr\xF6\xDF" "e", "plain"}, {"Größe", ""}},
    {"escapes", "ANSI_1252", {"\\U+0394 = 5 \\U+20AC", "x"}, {"Δ = 5 €", ""}},
    {"lowerCaseEscape", "ANSI_1252", {"caf\\u+00e9"}, {"café"}},
    {"brokenEscapesStay", "ANSI_1252", {"\\U+12G4 and \\U+12"}, {"\\U+12G4 and \\U+12"}},
    {"escapeAtTheVeryEnd", "ANSI_1252", {"end \\U+00C4"}, {"end Ä"}},
    {"surrogatePair", "ANSI_1252", {"\\U+D83D\\U+DE00!"}, {"\xF0\x9F\x98\x80!"}},
    {"loneSurrogate", "ANSI_1252", {"\\U+D800x"}, {"\xEF\xBF\xBDx"}},
    {"bytesAndEscapesTogether", "ANSI_1251", {"\xD1\xEB\xEE\xE9 \\U+03A9"}, {"Слой Ω"}},
    // The second byte of 表 in Shift-JIS is a backslash: no escape begins there.
    {"trailByteBackslash", "ANSI_932", {"\x95\x5CU+0041"}, {"表U+0041"}},
    {"byteCutShort", "ANSI_932", {"ok\x81"}, {"ok\xEF\xBF\xBD"}},
    {"noCodePageKeepsBytes", "UTF8", {"caf\xE9", "\\U+0041"}, {"", "A"}},
    {"onlyTheTextsThatNeedIt", "ANSI_1252",
     {"0", "LINE", "8", "Ebene \xC4", "10", "1.5", "1", "\\U+00DC", "999", "last"},
     {"", "", "", "Ebene Ä", "", "", "", "Ü", "", ""}},
};

class TextDecoder : public testing::TestWithParam<Texts>
{
};

TEST_P(TextDecoder, givesUtf8AndLeavesTheRestAlone)
{
  const Texts& t = GetParam();
  std::string file;
  for (const std::string& l : t.lines)
    file += l + "\n";
  OdDbStringArena arena;
  OdDxfTextDecoder decoder(file, OdDxfCodePage::iconvName(t.codePage), arena);
  std::size_t at = 0;
  for (std::size_t i = 0; i < t.lines.size(); ++i) {
    const std::string_view line(file.data() + at, t.lines[i].size());
    at += t.lines[i].size() + 1;
    const std::string_view got = decoder.decode(line);
    if (t.expected[i].empty()) {
      EXPECT_EQ(got.data(), line.data()) << "line " << i << " is copied for nothing";
      EXPECT_EQ(got, line);
    } else {
      EXPECT_EQ(std::string(got), t.expected[i]) << "line " << i;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Files, TextDecoder, testing::ValuesIn(kTexts),
                         [](const testing::TestParamInfo<Texts>& info) { return std::string(info.param.name); });

TEST(TextDecoder, changeInATextNotAskedFor_isPassedOver)
{
  // The escape stands in a line the reader never asks for (a code line).
  const std::string file = "\\U+0041\nplain\nmore \\U+0042\n";
  OdDbStringArena arena;
  OdDxfTextDecoder decoder(file, "CP1252", arena);
  const std::string_view plain(file.data() + 8, 5);
  EXPECT_EQ(decoder.decode(plain).data(), plain.data());
  EXPECT_EQ(decoder.decode(std::string_view(file.data() + 14, 12)), "more B");
}

} // namespace
