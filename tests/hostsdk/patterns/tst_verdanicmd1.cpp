// The library as modules and hosts use it: found by name, its exported
// functions called through their pointer types, the pattern choice on a
// command line, the custom pattern file of the settings.
#include "hostsdk/patterns/PatLibrary.h"
#include "hostsdk/patterns/VerdaniCmd1.h"
#include "tests/hostsdk/patterns/PatTestHost.h"
#include "tests/hostsdk/patterns/PatTestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace {

using pattesthost::state;

void writeFile(const QString& path, const QByteArray& text)
{
  QDir().mkpath(QFileInfo(path).absolutePath());
  QFile f(path);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
  f.write(text);
}

int count(const std::string& text, const std::string& part)
{
  int n = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++n;
  return n;
}

class VerdaniCmd1 : public testing::Test
{
protected:
  void SetUp() override
  {
    pattesthost::reset();
    ASSERT_TRUE(m_dir.isValid());
    state().userDataFolder = OdString(m_dir.path());
    hostSetHatchPatternDialog(nullptr);
  }
  void TearDown() override { hostSetHatchPatternDialog(nullptr); }

  // A file in the user's pattern folder.
  QString userPatternFile(const QString& name, const QByteArray& text)
  {
    const QString path = m_dir.filePath("patterns/" + name);
    writeFile(path, text);
    return path;
  }

  QTemporaryDir m_dir;
};

// As the module does it: the library by its name, each function by its.
TEST_F(VerdaniCmd1, foundByNameAndCalledThroughItsExports)
{
  void* library = dlopen(kVerdaniCmd1File, RTLD_NOW);
  ASSERT_NE(library, nullptr) << dlerror();
  for (const char* name : {kHostCreatePatternImageName, kHostCreatePatternImageExName, kHostGetHatchPatternsName,
                           kHostGetCustomPatternFileNameName, kHostSetHatchPatternDialogName})
    EXPECT_NE(dlsym(library, name), nullptr) << name;

  auto create = reinterpret_cast<HostCreatePatternImageFn>(dlsym(library, kHostCreatePatternImageName));
  Dl_info info{};
  ASSERT_TRUE(dladdr(reinterpret_cast<void*>(create), &info));
  EXPECT_EQ(QFileInfo(QString::fromLocal8Bit(info.dli_fname)).fileName(), QString(kVerdaniCmd1File));
  QImage bitmap;
  ASSERT_TRUE(create("ANSI31", 32, bitmap));
  EXPECT_EQ(bitmap.size(), QSize(32, 32));

  auto createEx = reinterpret_cast<HostCreatePatternImageExFn>(dlsym(library, kHostCreatePatternImageExName));
  EXPECT_TRUE(createEx("honey", "verdaniiso.pat", 16, bitmap));
  EXPECT_EQ(bitmap.size(), QSize(16, 16));

  auto choose = reinterpret_cast<HostGetHatchPatternsFn>(dlsym(library, kHostGetHatchPatternsName));
  state().input = {"grass"};
  OdString file, name;
  OdArray<OdString> list;
  EXPECT_TRUE(choose(kHostHatchStandard, file, list, name));
  EXPECT_EQ(name, OdString("GRASS"));

  auto custom = reinterpret_cast<HostGetCustomPatternFileNameFn>(dlsym(library, kHostGetCustomPatternFileNameName));
  EXPECT_FALSE(custom(file));
  dlclose(library);
}

struct PictureCase
{
  const char* name;
  const char* pattern;
  const char* file;
  int size;
  bool ok;
};

const PictureCase kPictures[] = {
    {"defaultFile", "ANSI31", "", 16, true},
    {"nameIgnoresCase", "ar-b816", "", 24, true},
    {"solid", "SOLID", "", 32, true},
    {"solidWhateverTheFile", "solid", "/nowhere/none.pat", 32, true},
    {"userDefined", "_USER", "", 64, true},
    {"emptyNameIsUserDefined", "", "", 16, true},
    {"unknownPattern", "NO-SUCH", "", 32, false},
    {"sizeZero", "ANSI31", "", 0, false},
    {"sizeTooLarge", "ANSI31", "", 5000, false},
    {"namedFile", "HONEY", "verdaniiso.pat", 32, true},
    {"windowsPathFindsTheFileByName", "HONEY", "C:\\Program Files\\Verdani\\Support\\verdaniiso.pat", 32, true},
    {"missingFile", "HONEY", "/nowhere/none.pat", 32, false},
    {"patternOfItsOwnFile", "MYPAT", "", 32, true},
    {"ownFileInLowerCase", "lowpat", "", 32, true},
    {"customFileOfTheSettings", "CUSTOM1", "", 32, true},
};

class PatternPicture : public VerdaniCmd1, public testing::WithParamInterface<PictureCase>
{
};

TEST_P(PatternPicture, asTheArgumentsSay)
{
  userPatternFile("MYPAT.pat", "*MYPAT, mine\n0,0,0,0,1\n");
  userPatternFile("lowpat.pat", "*LOWPAT, mine\n90,0,0,0,1\n");
  state().hatchSettings["CustomPatternFile"] = OdString(userPatternFile("site.pat", "*CUSTOM1\n30,0,0,0,1\n"));
  const PictureCase& c = GetParam();
  QImage bitmap(8, 8, QImage::Format_RGB32);
  const bool ok = *c.file ? hostCreatePatternImageEx(c.pattern, c.file, c.size, bitmap)
                          : hostCreatePatternImage(c.pattern, c.size, bitmap);
  ASSERT_EQ(ok, c.ok);
  if (!ok) {
    EXPECT_TRUE(bitmap.isNull()) << "no stale picture is left";
    return;
  }
  ASSERT_EQ(bitmap.size(), QSize(c.size, c.size));
  bool blackSeen = false, whiteSeen = false;
  for (int y = 0; y < c.size; ++y)
    for (int x = 0; x < c.size; ++x) {
      blackSeen |= bitmap.pixelColor(x, y) == QColor(Qt::black);
      whiteSeen |= bitmap.pixelColor(x, y) == QColor(Qt::white);
    }
  EXPECT_TRUE(blackSeen);
  EXPECT_EQ(whiteSeen, QString(c.pattern).compare("SOLID", Qt::CaseInsensitive) != 0);
}

INSTANTIATE_TEST_SUITE_P(Cases, PatternPicture, testing::ValuesIn(kPictures),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(VerdaniCmd1, brokenFileIsToldOnceAndGivesNoPicture)
{
  const QString broken = userPatternFile("broken.pat", "*A\n0,0,0,0,1\n45, 0,0\n");
  QImage bitmap;
  for (int size : {16, 32, 64})
    EXPECT_FALSE(hostCreatePatternImageEx("A", OdString(broken), size, bitmap));
  EXPECT_EQ(count(state().printed, "broken.pat, line 3:"), 1) << state().printed;
}

TEST_F(VerdaniCmd1, changedFileIsReadAgain)
{
  const QString path = userPatternFile("changing.pat", "*OLD\n0,0,0,0,1\n");
  QImage bitmap;
  EXPECT_TRUE(hostCreatePatternImageEx("OLD", OdString(path), 16, bitmap));
  writeFile(path, "*NEW, longer than before\n0,0,0,0,1\n");
  EXPECT_TRUE(hostCreatePatternImageEx("NEW", OdString(path), 16, bitmap));
  EXPECT_FALSE(hostCreatePatternImageEx("OLD", OdString(path), 16, bitmap));
}

struct ChoiceCase
{
  const char* name;
  int type;
  std::vector<const char*> input;
  bool chosen;
  const char* pattern;
  const char* printed; // a text the command line shows
};

const ChoiceCase kChoices[] = {
    {"byName", kHostHatchStandard, {"ansi31"}, true, "ANSI31", "Patterns in "},
    {"listedWithDescriptions", kHostHatchStandard, {"net"}, true, "NET", "Horizontal and vertical grid"},
    {"quotedName", kHostHatchStandard, {"\"HONEY\""}, true, "HONEY", "Pattern name or [?] <none>: \"HONEY\""},
    {"emptyLineIsNoChoice", kHostHatchStandard, {""}, false, "", "Pattern name"},
    {"cancelIsNoChoice", kHostHatchStandard, {"^C", "NET"}, false, "", "*Cancel*"},
    {"endOfInputIsNoChoice", kHostHatchStandard, {}, false, "", "*Cancel*"},
    {"unknownNameAsksAgain", kHostHatchStandard, {"NOPE", "dots"}, true, "DOTS", "No pattern NOPE in "},
    {"questionMarkListsAgain", kHostHatchStandard, {"?", "zigzag"}, true, "ZIGZAG", "ISO15W100"},
    {"customOffersTheSettingsFile", kHostHatchCustom, {"custom2"}, true, "Custom2", "site.pat:"},
    {"userDefinedHasNothingToChoose", kHostHatchUserDefined, {"ANSI31"}, false, "", "no pattern to choose"},
};

class PatternChoice : public VerdaniCmd1, public testing::WithParamInterface<ChoiceCase>
{
};

TEST_P(PatternChoice, onTheCommandLine)
{
  const QString site = userPatternFile("site.pat", "*CUSTOM1, one\n0,0,0,0,1\n*Custom2, two\n90,0,0,0,1\n");
  state().hatchSettings["CustomPatternFile"] = OdString("site.pat");
  const ChoiceCase& c = GetParam();
  for (const char* line : c.input)
    state().input.push_back(OdString(line));
  OdString file, name("unchanged");
  OdArray<OdString> list;
  list.append("unchanged");
  ASSERT_EQ(hostGetHatchPatterns(c.type, file, list, name), c.chosen) << state().printed;
  EXPECT_NE(state().printed.find(c.printed), std::string::npos) << state().printed;
  if (!c.chosen) {
    EXPECT_TRUE(file.isEmpty());
    EXPECT_EQ(name, OdString("unchanged"));
    EXPECT_EQ(list.size(), 1u);
    return;
  }
  EXPECT_EQ(name, OdString(c.pattern)) << "the file's own spelling";
  EXPECT_TRUE(QFileInfo(file.qstring()).isAbsolute()) << file;
  if (c.type == kHostHatchCustom) {
    EXPECT_EQ(file, OdString(site));
    EXPECT_EQ(list, (OdArray<OdString>{"CUSTOM1", "Custom2"}));
  } else {
    EXPECT_EQ(QFileInfo(file.qstring()).fileName(), QString(PatLibrary::kDefaultFileName));
    EXPECT_GE(list.size(), 40u);
    EXPECT_TRUE(list.contains(name));
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, PatternChoice, testing::ValuesIn(kChoices),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(VerdaniCmd1, choice_fromTheFileGivenOnEntry)
{
  const QString path = userPatternFile("given.pat", "*G1\n0,0,0,0,1\n");
  state().input = {"g1"};
  OdString file(path), name;
  OdArray<OdString> list;
  ASSERT_TRUE(hostGetHatchPatterns(kHostHatchCustom, file, list, name));
  EXPECT_EQ(name, OdString("G1"));
  EXPECT_EQ(file, OdString(path));
}

TEST_F(VerdaniCmd1, choice_badFilesAreTold)
{
  OdString name;
  OdArray<OdString> list;
  OdString broken(userPatternFile("broken.pat", "*A\n0,0,0\n"));
  EXPECT_FALSE(hostGetHatchPatterns(kHostHatchCustom, broken, list, name));
  EXPECT_NE(state().printed.find("broken.pat, line 2:"), std::string::npos) << state().printed;
  OdString missing("/nowhere/gone.pat");
  EXPECT_FALSE(hostGetHatchPatterns(kHostHatchCustom, missing, list, name));
  EXPECT_NE(state().printed.find("Cannot find the pattern file /nowhere/gone.pat"), std::string::npos);
  OdString empty(userPatternFile("empty.pat", ";; nothing\n"));
  EXPECT_FALSE(hostGetHatchPatterns(kHostHatchCustom, empty, list, name));
  EXPECT_NE(state().printed.find("holds no patterns"), std::string::npos);
  EXPECT_EQ(missing, OdString("/nowhere/gone.pat"));
}

TEST_F(VerdaniCmd1, choice_withoutADocumentOrHost)
{
  OdString file, name;
  OdArray<OdString> list;
  state().hasDocument = false;
  EXPECT_FALSE(hostGetHatchPatterns(kHostHatchStandard, file, list, name));
  EXPECT_NE(state().printed.find("needs an open drawing"), std::string::npos);
  state().present = false;
  EXPECT_FALSE(hostGetHatchPatterns(kHostHatchStandard, file, list, name));
  OdString custom;
  EXPECT_FALSE(hostGetCustomPatternFileName(custom));
}

OdString g_dialogFile, g_dialogName;
bool g_dialogAnswer = true;
int g_dialogType = -1;

bool fakeDialog(int type, OdString& file, OdString& name)
{
  g_dialogType = type;
  if (!g_dialogAnswer)
    return false;
  file = g_dialogFile;
  name = g_dialogName;
  return true;
}

TEST_F(VerdaniCmd1, choice_byTheDialogOfADesktopHost)
{
  hostSetHatchPatternDialog(&fakeDialog);
  g_dialogFile = OdString(userPatternFile("dialog.pat", "*Picked\n0,0,0,0,1\n*Other\n0,0,0,0,2\n"));
  g_dialogName = "picked";
  g_dialogAnswer = true;
  OdString file, name;
  OdArray<OdString> list;
  ASSERT_TRUE(hostGetHatchPatterns(kHostHatchCustom, file, list, name));
  EXPECT_EQ(g_dialogType, int(kHostHatchCustom));
  EXPECT_EQ(name, OdString("Picked"));
  EXPECT_EQ(list, (OdArray<OdString>{"Picked", "Other"}));
  EXPECT_TRUE(state().printed.empty()) << "nothing on the command line: " << state().printed;

  g_dialogName = "absent";
  EXPECT_FALSE(hostGetHatchPatterns(kHostHatchCustom, file, list, name));
  EXPECT_NE(state().printed.find("has no pattern absent"), std::string::npos);
  g_dialogAnswer = false;
  EXPECT_FALSE(hostGetHatchPatterns(kHostHatchCustom, file, list, name));
  EXPECT_EQ(name, OdString("Picked"));

  hostSetHatchPatternDialog(nullptr);
  state().input = {"other"};
  EXPECT_TRUE(hostGetHatchPatterns(kHostHatchCustom, file, list, name)) << "the command line is back";
  EXPECT_EQ(name, OdString("Other"));
}

TEST_F(VerdaniCmd1, customPatternFileOfTheSettings)
{
  OdString file("stale");
  EXPECT_FALSE(hostGetCustomPatternFileName(file));
  EXPECT_TRUE(file.isEmpty());

  const QString site = userPatternFile("site.pat", "*S\n0,0,0,0,1\n");
  state().hatchSettings["CustomPatternFile"] = OdString("site.pat");
  ASSERT_TRUE(hostGetCustomPatternFileName(file));
  EXPECT_EQ(file, OdString(site)) << "found in the user's pattern folder";

  state().hatchSettings["CustomPatternFile"] = OdString("D:\\Standards\\company.pat");
  ASSERT_TRUE(hostGetCustomPatternFileName(file));
  EXPECT_EQ(file, OdString("D:/Standards/company.pat")) << "kept as set when the file is not here";
}

TEST_F(VerdaniCmd1, searchFolders_userBeforeHostData)
{
  const auto folders = PatLibrary::searchFolders();
  ASSERT_EQ(folders.size(), 2u);
  EXPECT_EQ(folders[0], OdString(m_dir.filePath("patterns")));
  EXPECT_EQ(QFileInfo(folders[1].qstring()).canonicalFilePath(),
            QFileInfo(PatTest::defaultPatternFile()).canonicalPath());
  // A user's own copy of the default file wins.
  const QString own = userPatternFile(PatLibrary::kDefaultFileName, "*MINE\n0,0,0,0,1\n");
  EXPECT_EQ(PatLibrary::findFile(OdString()), OdString(own));
}

} // namespace
