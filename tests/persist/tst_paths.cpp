// Path rules: relative palette paths, resolving them, and folder tokens.
#include "persist/TcPathTokens.h"

#include <gtest/gtest.h>

using namespace tc;

struct RelativeRow
{
  const char* from;
  const char* to;
  bool ok;
  const char* result;
};

void PrintTo(const RelativeRow& r, std::ostream* os)
{
  *os << r.from << " -> " << r.to;
}

class RelativePaths : public ::testing::TestWithParam<RelativeRow>
{
};

TEST_P(RelativePaths, followTheSegmentWalk)
{
  const RelativeRow& row = GetParam();
  OdString result = "untouched";
  EXPECT_EQ(makeRelativePath(row.from, row.to, result), row.ok);
  if (row.ok)
    EXPECT_EQ(result, row.result);
  else
    EXPECT_EQ(result, "untouched");
}

INSTANTIATE_TEST_SUITE_P(
    rows, RelativePaths,
    ::testing::Values(
        RelativeRow{"/A/B/VdTcCatalog.vtc", "/A/B/Palettes/Walls.vtc", true, "./Palettes/Walls.vtc"},
        RelativeRow{"/A/B/VdTcCatalog.vtc", "/A/C/Walls.vtc", true, "../C/Walls.vtc"},
        RelativeRow{"/A/B/C/cat.vtc", "/A/D/p.vtc", true, "../../D/p.vtc"},
        RelativeRow{"A/cat.vtc", "B/p.vtc", false, ""},       // no shared first segment
        RelativeRow{"C:/x/cat.vtc", "c:/x/p.vtc", false, ""}, // drive letters compare exactly
        RelativeRow{"", "/a", false, ""},
        RelativeRow{"/a/cat.vtc", "", false, ""}));

TEST(AbsolutePaths, resolveAgainstTheCatalogFolder)
{
  EXPECT_EQ(makeAbsolutePath("./Palettes/Walls.vtc", "/A/B/VdTcCatalog.vtc"), "/A/B/Palettes/Walls.vtc");
  EXPECT_EQ(makeAbsolutePath("../C/Walls.vtc", "/A/B/VdTcCatalog.vtc"), "/A/C/Walls.vtc");
  EXPECT_EQ(makeAbsolutePath(".", "/A/B/cat.vtc"), "/A/B");
  EXPECT_EQ(makeAbsolutePath("./", "/A/B/cat.vtc"), "/A/B");
  EXPECT_EQ(makeAbsolutePath("x.vtc", ""), "x.vtc");
  EXPECT_EQ(makeAbsolutePath("x.vtc", "nofolder"), "x.vtc");
  // A result ending in "." gets its separator, and then the dots go.
  EXPECT_EQ(makeAbsolutePath("sub/..", "/A/B/cat.vtc"), "/A/B/");
  EXPECT_EQ(makeAbsolutePath("../../../x", "/A/cat.vtc"), "/../../x"); // cannot climb above the root
}

TEST(NormalizePath, removesDotsUnlessAtTheStart)
{
  OdString p = "/a/./b/../c/./d";
  EXPECT_TRUE(normalizePath(p));
  EXPECT_EQ(p, "/a/c/d");
  OdString start = "/../a";
  EXPECT_FALSE(normalizePath(start));
  EXPECT_EQ(start, "/../a");
  OdString twice = "/a/b/../../c";
  EXPECT_TRUE(normalizePath(twice));
  EXPECT_EQ(twice, "/c");
}

TEST(PathFromFile, turnsBackslashes)
{
  EXPECT_EQ(pathFromFile(".\\Palettes\\Images\\a.png"), "./Palettes/Images/a.png");
}

class PathTokens : public ::testing::Test
{
protected:
  TcPathFolders folders()
  {
    TcPathFolders f;
    f.profile = "/home/ann";
    f.toolPaletteDirs = "/home/ann/.local/share/verdani/ToolPalette;/srv/shared/ToolPalette";
    f.shxFolders = OdArray<OdString>{"/usr/share/fonts/shx"};
    return f;
  }
};

TEST_F(PathTokens, tableNamesEveryFolderOnce)
{
  auto table = pathTokenTable(folders());
  EXPECT_EQ(table["%UserProfileSamplesFolder%"], OdArray<OdString>{"/home/ann/.local/share/verdani/ToolPalette"});
  EXPECT_EQ(table["%UserProfileSamplesFolder1%"], OdArray<OdString>{"/srv/shared/ToolPalette"});
  EXPECT_EQ(table.count("%UserProfileSamplesFolder2%"), 0u);
  EXPECT_EQ(table["%UserProfileFolder%"], OdArray<OdString>{"/home/ann"});
  EXPECT_EQ(table["%ShxFolder%"], OdArray<OdString>{"/usr/share/fonts/shx"});
}

TEST_F(PathTokens, encode_firstTokenInTextOrderWins)
{
  // The samples folder lies in the profile folder: "%UserProfileFolder%"
  // sorts first and wins.
  OdString p = "/home/ann/.local/share/verdani/ToolPalette/Blocks/door.dxf";
  EXPECT_TRUE(encodePathTokens(p, folders()));
  EXPECT_EQ(p, "%UserProfileFolder%/.local/share/verdani/ToolPalette/Blocks/door.dxf");
  OdString shared = "/srv/shared/ToolPalette/x.pat";
  EXPECT_TRUE(encodePathTokens(shared, folders()));
  EXPECT_EQ(shared, "%UserProfileSamplesFolder1%/x.pat");
  OdString none = "/opt/other/file.dxf";
  EXPECT_FALSE(encodePathTokens(none, folders()));
  EXPECT_EQ(none, "/opt/other/file.dxf");
}

TEST_F(PathTokens, decode_roundTripsAndLeavesUnknownNumbers)
{
  OdString p = "%UserProfileSamplesFolder1%/x.pat";
  EXPECT_TRUE(decodePathTokens(p, folders()));
  EXPECT_EQ(p, "/srv/shared/ToolPalette/x.pat");
  OdString beyond = "%UserProfileSamplesFolder7%/y.pat"; // no such folder here
  EXPECT_FALSE(decodePathTokens(beyond, folders()));
  EXPECT_EQ(beyond, "%UserProfileSamplesFolder7%/y.pat");
  TcPathFolders noProfile = folders();
  noProfile.profile = OdString();
  OdString q = "%UserProfileFolder%/a";
  EXPECT_FALSE(decodePathTokens(q, noProfile));
}

TEST(CleanFileName, keepsTheFileInItsFolder)
{
  EXPECT_EQ(cleanFileName("../../../../outside/evil"), "outsideevil");
  EXPECT_EQ(cleanFileName("a\\..\\b"), "ab");
  EXPECT_EQ(cleanFileName("...."), "Palette");
  EXPECT_EQ(cleanFileName("."), "Palette");
  EXPECT_EQ(cleanFileName("Walls <1>: \"x\"?*|,=';\t"), "Walls 1 x");
  EXPECT_EQ(cleanFileName("Стены"), "Стены");
  // A name of any length leaves room in the 255 bytes of a file name, and
  // is not cut inside a character.
  const OdString longName(u'Ж', 100000);
  const OdString clean = cleanFileName(longName);
  EXPECT_EQ(clean, OdString(u'Ж', 60));
}
