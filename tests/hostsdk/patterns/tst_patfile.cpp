// Reading .pat files: the syntax that real files use, every real file we
// have, and the errors a broken file gives.
#include "hostsdk/patterns/PatFile.h"
#include "tests/hostsdk/patterns/PatTestSupport.h"
#include "tests/support/Unprivileged.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace {

struct SyntaxCase
{
  const char* name;
  QByteArray text;
  // "NAME:families" for each pattern, in order, joined by spaces.
  const char* expected;
};

std::string summary(const PatFile& file)
{
  std::string out;
  for (const PatPattern& p : file.patterns())
    out += (out.empty() ? "" : " ") + p.name().toUtf8() + ":" + std::to_string(p.families().size());
  return out;
}

const SyntaxCase kSyntax[] = {
    {"plain", "*A, First\n0, 0,0, 0,1\n", "A:1"},
    {"crlf", "*A, First\r\n0, 0,0, 0,1\r\n45, 0,0, 0,1\r\n", "A:2"},
    {"oldMacEndings", "*A, First\r0, 0,0, 0,1\r", "A:1"},
    {"noFinalNewline", "*A\n0,0,0,0,1\n*B\n90,0,0,0,2", "A:1 B:1"},
    {"commentsAndBlankLines", ";; header\n\n*A, x ; not a comment in a header\n; between\n\n0,0,0,0,1 ; after\n\n", "A:1"},
    {"spacesAndTabs", "  *A ,  spaced  \n\t45 , 0 , 0 ,\t0 , 1 , 2 , -1\n", "A:1"},
    {"trailingComma", "*A\n0, 0,0, 0,1, 1,-1,\n", "A:1"},
    {"numberForms", "*A\n+45, .5,-.5, 1e-1,1E1, 0,-.25\n", "A:1"},
    {"byteOrderMark", "\xEF\xBB\xBF*A\n0,0,0,0,1\n", "A:1"},
    {"patternWithoutLines", "*EMPTY, nothing\n*A\n0,0,0,0,1\n", "EMPTY:0 A:1"},
    {"emptyFile", "", ""},
    {"onlyComments", ";; nothing here\n;\n", ""},
};

class PatSyntax : public testing::TestWithParam<SyntaxCase>
{
};

TEST_P(PatSyntax, parsesToTheExpectedPatterns)
{
  PatFile file;
  OdString error;
  ASSERT_TRUE(file.parse(GetParam().text, OdString("test.pat"), &error)) << error;
  EXPECT_EQ(summary(file), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, PatSyntax, testing::ValuesIn(kSyntax),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(PatFile, valuesOfALineFamily)
{
  PatFile file;
  ASSERT_TRUE(file.parse("*BRICKS, Bricks, running bond\n90, 1.5,-2, 6.35,9.525, 6.35,-6.35,0\n", "t.pat"));
  ASSERT_EQ(file.patterns().size(), 1u);
  const PatPattern& p = file.patterns()[0];
  EXPECT_EQ(p.name(), OdString("BRICKS"));
  EXPECT_EQ(p.description(), OdString("Bricks, running bond")) << "commas after the first belong to the description";
  const PatLineFamily& f = p.families()[0];
  EXPECT_DOUBLE_EQ(f.angle, 90.0);
  EXPECT_DOUBLE_EQ(f.origin.x, 1.5);
  EXPECT_DOUBLE_EQ(f.origin.y, -2.0);
  EXPECT_DOUBLE_EQ(f.delta.x, 6.35);
  EXPECT_DOUBLE_EQ(f.delta.y, 9.525);
  EXPECT_EQ(f.dashes, (std::vector<double>{6.35, -6.35, 0.0}));
}

TEST(PatFile, descriptionsInTheWindowsCodePage)
{
  PatFile file;
  ASSERT_TRUE(file.parse("*B\xE9TON, B\xE9ton arm\xE9\n0,0,0,0,1\n", "t.pat"));
  EXPECT_EQ(file.patterns()[0].description(), OdString(u"Béton armé"));
  ASSERT_TRUE(file.parse("*B\xC3\xA9TON, B\xC3\xA9ton\n0,0,0,0,1\n", "t.pat"));
  EXPECT_EQ(file.patterns()[0].name(), OdString(u"BéTON"));
}

TEST(PatFile, find_ignoresCaseAndTakesTheFirstOfTwins)
{
  PatFile file;
  ASSERT_TRUE(file.parse("*Ansi31, first\n45,0,0,0,1\n*ÄRGER\n0,0,0,0,1\n*ANSI31, second\n45,0,0,0,2\n", "t.pat"));
  ASSERT_NE(file.find("ansi31"), nullptr);
  EXPECT_EQ(file.find("ANSI31")->description(), OdString("first"));
  EXPECT_NE(file.find(OdString(u"ärger")), nullptr) << "case folding is Unicode's";
  EXPECT_EQ(file.find("ANSI3"), nullptr);
  EXPECT_EQ(file.patterns().size(), 3u) << "the twin stays in the list";
}

struct ErrorCase
{
  const char* name;
  QByteArray text;
  int line;
  const char* says;
};

const ErrorCase kErrors[] = {
    {"tooFewNumbers", "*A\n0, 0,0, 0\n", 2, "at least five numbers"},
    {"notANumber", "; c\n*A\n0, 0,0, 0,1\n45, 0,x, 0,1\n", 4, "\"x\" is not a number"},
    {"spacesInsteadOfCommas", "*A\n0 0 0 0 1\n", 2, "is not a number"},
    {"emptyField", "*A\n0,,0,0,1\n", 2, "missing between two commas"},
    {"infinity", "*A\n0,0,0,0,inf\n", 2, "is not a number"},
    {"linesBeforeAnyName", "\n0,0,0,0,1\n*A\n", 2, "before the first pattern name"},
    {"nameMissing", "*A\n0,0,0,0,1\n* , no name\n", 3, "no name"},
    {"errorAfterCrlfLines", "*A\r\n0,0,0,0,1\r\n\r\n0,0\r\n", 4, "at least five numbers"},
};

class PatErrors : public testing::TestWithParam<ErrorCase>
{
};

TEST_P(PatErrors, nameTheFileAndTheLine)
{
  PatFile file;
  ASSERT_TRUE(file.parse("*OLD\n0,0,0,0,1\n", "old.pat"));
  OdString error;
  EXPECT_FALSE(file.parse(GetParam().text, OdString("/data/broken.pat"), &error));
  const std::string message = error.toUtf8();
  EXPECT_NE(message.find("/data/broken.pat, line " + std::to_string(GetParam().line) + ":"), std::string::npos)
      << message;
  EXPECT_NE(message.find(GetParam().says), std::string::npos) << message;
  EXPECT_TRUE(file.patterns().empty()) << "a broken file leaves nothing half read";
}

INSTANTIATE_TEST_SUITE_P(Cases, PatErrors, testing::ValuesIn(kErrors),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(PatFile, load_missingFileAndFolderAreToldApart)
{
  QTemporaryDir dir;
  PatFile file;
  OdString error;
  EXPECT_FALSE(file.load(OdString(dir.filePath("none.pat")), &error));
  EXPECT_NE(error.toUtf8().find("does not exist"), std::string::npos) << error;
  EXPECT_FALSE(file.load(OdString(dir.path()), &error));
  EXPECT_NE(error.toUtf8().find("is a folder"), std::string::npos) << error;
}

TEST(PatFile, load_unreadableFileSaysWhy)
{
  if (tst::reranUnprivileged())
    return;
  QTemporaryDir dir;
  const QString path = dir.filePath("locked.pat");
  QFile f(path);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("*A\n0,0,0,0,1\n");
  f.close();
  f.setPermissions(QFileDevice::WriteOwner);
  PatFile file;
  OdString error;
  EXPECT_FALSE(file.load(OdString(path), &error));
  EXPECT_NE(error.toUtf8().find("Cannot read the pattern file"), std::string::npos) << error;
}

// What the collector of the real files counted in each, by its own reading.
struct RealFile
{
  const char* path;
  int patterns;
  const char* first;
  int families;
};

const RealFile kRealFiles[] = {
    {"DomCR__ACadSharp/samples/patterns/ALL.pat", 4, "HSBDR3E0", 434},
    {"DomCR__ACadSharp/samples/patterns/HSBDR3E0.pat", 1, "HSBDR3E0", 78},
    {"DomCR__ACadSharp/samples/patterns/HSHP21E0.pat", 1, "HSHP21E0", 69},
    {"DomCR__ACadSharp/samples/patterns/HSHP31E0.pat", 1, "HSHP31E0", 55},
    {"DomCR__ACadSharp/samples/patterns/HVEGE100.pat", 1, "HVEGE100", 232},
    {"FreeCAD__FreeCAD/src/Mod/TechDraw/PAT/FCPAT.pat", 8, "Diamond", 12},
    {"qcad__qcad/patterns/imperial/ansi31.pat", 1, "ANSI31", 1},
    {"qcad__qcad/patterns/metric/acad_iso10w100.pat", 1, "ACAD_ISO10W100", 1},
    {"qcad__qcad/patterns/metric/angle.pat", 1, "ANGLE", 2},
    {"qcad__qcad/patterns/metric/ansi31.pat", 1, "ANSI31", 1},
    {"qcad__qcad/patterns/metric/ansi33.pat", 1, "ANSI33", 2},
    {"qcad__qcad/patterns/metric/ar-b816.pat", 1, "AR-B816", 2},
    {"qcad__qcad/patterns/metric/ar-b816c.pat", 1, "AR-B816C", 4},
    {"qcad__qcad/patterns/metric/ar-b88.pat", 1, "AR-B88", 2},
    {"qcad__qcad/patterns/metric/ar-brelm.pat", 1, "AR-BRELM", 8},
    {"qcad__qcad/patterns/metric/ar-conc-01.pat", 1, "AR-CONC-01", 531},
    {"qcad__qcad/patterns/metric/ar-conc.pat", 1, "AR-CONC", 13},
    {"qcad__qcad/patterns/metric/ar-hbone.pat", 1, "AR-HBONE", 2},
    {"qcad__qcad/patterns/metric/ar-parq1.pat", 1, "AR-PARQ1", 14},
    {"qcad__qcad/patterns/metric/ar-rshke.pat", 1, "AR-RSHKE", 9},
    {"qcad__qcad/patterns/metric/celtic-04.pat", 1, "CELTIC-04", 14},
    {"qcad__qcad/patterns/metric/clay.pat", 1, "CLAY", 4},
    {"qcad__qcad/patterns/metric/earth.pat", 1, "EARTH", 6},
    {"qcad__qcad/patterns/metric/escher.pat", 1, "ESCHER", 21},
    {"qcad__qcad/patterns/metric/grass.pat", 1, "GRASS", 3},
    {"qcad__qcad/patterns/metric/qcad-logo.pat", 1, "QCAD-LOGO", 125},
    {"qcad__qcad/patterns/metric/stars.pat", 1, "STARS", 3},
};

class RealPatFile : public testing::TestWithParam<RealFile>
{
};

TEST_P(RealPatFile, readsEveryPatternAndLine)
{
  const QString path = PatTest::externalFile(GetParam().path);
  if (path.isEmpty())
    GTEST_SKIP() << "no shared/data/external here";
  PatFile file;
  OdString error;
  ASSERT_TRUE(file.load(OdString(path), &error)) << error;
  ASSERT_EQ(int(file.patterns().size()), GetParam().patterns);
  EXPECT_EQ(file.patterns()[0].name(), OdString(GetParam().first));
  int families = 0;
  for (const PatPattern& p : file.patterns()) {
    families += int(p.families().size());
    EXPECT_FALSE(p.families().empty()) << p.name();
  }
  EXPECT_EQ(families, GetParam().families);
}

INSTANTIATE_TEST_SUITE_P(Files, RealPatFile, testing::ValuesIn(kRealFiles), [](const auto& info) {
  std::string name = QFileInfo(info.param.path).completeBaseName().toStdString() + "_" + std::to_string(info.index);
  for (char& c : name)
    if (!isalnum(static_cast<unsigned char>(c)))
      c = '_';
  return name;
});

TEST(RealPatFiles, everyPatFileOfTheExternalDataIsInTheTable)
{
  if (PatTest::externalFolder().isEmpty())
    GTEST_SKIP() << "no shared/data/external here";
  QDirIterator it(PatTest::externalFolder(), {"*.pat", "*.PAT"}, QDir::Files, QDirIterator::Subdirectories);
  int found = 0;
  while (it.hasNext()) {
    const QString relative = QDir(PatTest::externalFolder()).relativeFilePath(it.next());
    ++found;
    EXPECT_TRUE(std::any_of(std::begin(kRealFiles), std::end(kRealFiles),
                            [&](const RealFile& r) { return relative == QLatin1String(r.path); }))
        << relative.toStdString() << " is new: add it to the table";
  }
  EXPECT_EQ(found, int(std::size(kRealFiles)));
}

} // namespace
