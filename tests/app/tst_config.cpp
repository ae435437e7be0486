// The configuration: its file across restarts, the Startup list, broken
// files, the standard folders and the notice of changed options.
#include "tests/app/AppTestSupport.h"

#include "app/core/HostAppPropImpl.h"
#include "app/core/HostConfig.h"
#include "app/core/HostStdDirsImpl.h"

#include <QDirIterator>
#include <QFile>

#include <csignal>

#include <sys/resource.h>

using namespace apptest;

namespace {

QByteArray readAll(const QString& file)
{
  QFile f(file);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void writeAll(const QString& file, const QByteArray& bytes)
{
  QDir().mkpath(QFileInfo(file).absolutePath());
  QFile f(file);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(bytes);
}

CRkPtr<IConfigManager> rootFolder()
{
  CRkPtr<IProfile> profile = CRkPtr<IProfile>::query(&HostApp::instance());
  CRkPtr<IConfigManager> root;
  if (profile)
    profile->getRoot(root.put());
  return root;
}

OdString stdDir(const char* key, CRkVariant::Type* type = nullptr)
{
  CRkPtr<IStdDirs> dirs = CRkPtr<IStdDirs>::query(&HostApp::instance());
  CRkVariant v;
  if (!dirs || !dirs->getValue(key, v))
    return OdString("<none>");
  if (type)
    *type = v.type();
  return v.toString();
}

// Writes down what it is told.
class PropRecorder : public CRkUnknownImpl<IPropReactor>
{
public:
  int onChange(const char* property, const CRkVariant& value) override
  {
    changes.push_back(std::string(property) + "=" + value.toString().toUtf8());
    if (onNotice)
      onNotice();
    return 1;
  }
  std::vector<std::string> changes;
  std::function<void()> onNotice;
};

class AppConfig : public HostFixture
{
};

TEST_F(AppConfig, valuesOfEveryType_surviveRestart)
{
  CRkPtr<IConfigManager> root = rootFolder();
  ASSERT_TRUE(root);
  CRkPtr<IConfigManager> folder;
  ASSERT_TRUE(root->openFolder("cmddata/ToolPaletteManager", true, folder.put()));
  const OdString awkward(QStringLiteral("  Палитра \"<&>\"\tline\nnext\x01 end  "));
  folder->setValue("ActiveView", CRkVariant(std::int32_t(-2)));
  folder->setValue("Big", CRkVariant(std::int64_t(1) << 40));
  folder->setValue("Ratio", CRkVariant(0.1));
  folder->setValue("Flag", CRkVariant(true));
  folder->setValue("Narrow", CRkVariant("ascii text"));
  folder->setValue("Wide", CRkVariant(awkward));
  folder->setValue("Nothing", CRkVariant());
  ASSERT_TRUE(app().setOption("toolpalettedir", "/srv/palettes"));

  restart();
  root = rootFolder();
  ASSERT_TRUE(root->openFolder("CMDDATA/toolpalettemanager", false, folder.put()));
  const std::vector<std::pair<const char*, CRkVariant>> expected = {
      {"ActiveView", CRkVariant(std::int32_t(-2))}, {"Big", CRkVariant(std::int64_t(1) << 40)},
      {"Ratio", CRkVariant(0.1)},                   {"Flag", CRkVariant(true)},
      {"Narrow", CRkVariant("ascii text")},         {"Wide", CRkVariant(awkward)},
      {"Nothing", CRkVariant()}};
  for (const auto& [name, value] : expected) {
    CRkVariant read;
    EXPECT_TRUE(folder->getValue(name, read)) << name;
    EXPECT_TRUE(read == value) << name << ": " << read.toString() << " type " << read.type();
  }
  EXPECT_EQ(folder->valueNames().front(), "ActiveView") << "values keep their order";
  EXPECT_EQ(stdDir("ToolPaletteDir"), OdString("/srv/palettes"));
}

TEST_F(AppConfig, deletedValuesAndFolders_stayDeletedAfterRestart)
{
  CRkPtr<IConfigManager> root = rootFolder();
  CRkPtr<IConfigManager> gone;
  ASSERT_TRUE(root->openFolder("Gone/Deeper", true, gone.put()));
  gone->setValue("x", CRkVariant(std::int32_t(1)));
  CRkPtr<IConfigManager> startup;
  ASSERT_TRUE(root->openFolder("Startup", false, startup.put()));
  startup->setValue("Keep", CRkVariant(OdString("Keep")));
  startup->setValue("Drop", CRkVariant(OdString("Drop")));
  EXPECT_TRUE(startup->deleteValue("drop"));
  EXPECT_TRUE(root->deleteFolder("gone"));
  // A module still holding the deleted folder writes into nothing.
  EXPECT_TRUE(gone->setValue("y", CRkVariant(std::int32_t(2))));

  restart();
  root = rootFolder();
  CRkPtr<IConfigManager> folder;
  EXPECT_FALSE(root->openFolder("Gone", false, folder.put()));
  EXPECT_FALSE(folder);
  ASSERT_TRUE(root->openFolder("Startup", false, folder.put()));
  EXPECT_EQ(folder->valueNames(), (std::vector<std::string>{"Keep"}));
}

TEST_F(AppConfig, startupList_runsEachNamedCommandOnceAtStart)
{
  int runs = 0;
  ASSERT_TRUE(addCommand("TstStartup", [&runs](IMemParam*) { ++runs; }));
  CRkPtr<IConfigManager> startup;
  ASSERT_TRUE(rootFolder()->openFolder("Startup", true, startup.put()));
  startup->setValue("NoSuchCommand", CRkVariant(OdString("NoSuchCommand")));
  startup->setValue("TstStartup", CRkVariant(OdString("TstStartup")));
  EXPECT_EQ(runs, 0) << "writing the list runs nothing";

  m_recorder.events.clear();
  restart();
  EXPECT_EQ(runs, 1);
  EXPECT_NE(m_output.find("\"NoSuchCommand\", which is no command"), std::string::npos) << m_output;

  // Without the Startup list option nothing runs.
  app().shutdown();
  HostStartOptions quiet;
  quiet.runStartupList = false;
  app().start(quiet);
  EXPECT_EQ(runs, 1);
}

TEST_F(AppConfig, startupCommandThatEditsTheList_runsOnce)
{
  // As the palettes' toggle does: it removes its own entry while the list runs.
  int runs = 0;
  ASSERT_TRUE(addCommand("TstToggle", [&runs](IMemParam*) {
    ++runs;
    CRkPtr<IConfigManager> startup;
    rootFolder()->openFolder("Startup", true, startup.put());
    startup->deleteValue("TstToggle");
    startup->setValue("TstToggle", CRkVariant(OdString("TstToggle")));
  }));
  CRkPtr<IConfigManager> startup;
  ASSERT_TRUE(rootFolder()->openFolder("Startup", true, startup.put()));
  startup->setValue("TstToggle", CRkVariant(OdString("TstToggle")));
  restart();
  EXPECT_EQ(runs, 1);
}

struct BrokenRow
{
  const char* name;
  QByteArray content;
};

void PrintTo(const BrokenRow& row, std::ostream* os)
{
  *os << row.name;
}

class AppBrokenConfig : public AppConfig, public ::testing::WithParamInterface<BrokenRow>
{
};

TEST_P(AppBrokenConfig, brokenFile_keptAsideAndDefaultsUsed)
{
  app().shutdown();
  writeAll(configFile(), GetParam().content);
  writeAll(configFile() + ".broken", "an older broken file");
  m_output.clear();
  app().start(m_options);

  EXPECT_NE(m_output.find("cannot be read"), std::string::npos) << m_output;
  EXPECT_NE(m_output.find("config.xml.broken.2"), std::string::npos) << m_output;
  EXPECT_EQ(readAll(configFile() + ".broken.2"), GetParam().content) << "the broken file is kept byte for byte";
  EXPECT_EQ(readAll(configFile() + ".broken"), QByteArray("an older broken file"));
  EXPECT_EQ(stdDir("ToolPaletteDir"), OdString(m_home.path() + "/data/verdani/ToolPalette"));

  // The host works on, and its new file reads back.
  ASSERT_TRUE(app().setOption("Shx", "/fonts"));
  restart();
  EXPECT_EQ(stdDir("Shx"), OdString("/fonts"));
}

INSTANTIATE_TEST_SUITE_P(
    Files, AppBrokenConfig,
    ::testing::Values(BrokenRow{"truncated", "<VerdaniConfig version=\"1\"><Folder name=\"StdDirs\">"},
                      BrokenRow{"notXml", "this is not XML at all \x01\x02"},
                      BrokenRow{"otherRoot", "<?xml version=\"1.0\"?><settings/>"},
                      BrokenRow{"garbageAfterRoot", "<VerdaniConfig/><extra>"},
                      BrokenRow{"empty", ""}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(AppConfig, unknownXml_isSkippedAndTheRestRead)
{
  app().shutdown();
  writeAll(configFile(), "<?xml version=\"1.0\"?>\n<VerdaniConfig version=\"7\">\n"
                         "  <Comment>from a newer version</Comment>\n"
                         "  <Folder name=\"StdDirs\"><Value name=\"CommonDirs\" type=\"wstring\">/a;/b</Value>"
                         "<Value name=\"Shx\" type=\"mystery\">/f<note>skipped</note></Value></Folder>\n"
                         "  <Folder name=\"X\"><Value name=\"n\" type=\"int32\">12abc</Value></Folder>\n"
                         "</VerdaniConfig>\n");
  app().start(m_options);
  EXPECT_EQ(m_output.find("cannot be read"), std::string::npos) << m_output;
  EXPECT_EQ(stdDir("CommonDirs"), OdString("/a;/b"));
  EXPECT_EQ(stdDir("Shx"), OdString("/f"));
  CRkPtr<IConfigManager> x;
  ASSERT_TRUE(rootFolder()->openFolder("X", false, x.put()));
  CRkVariant n;
  ASSERT_TRUE(x->getValue("n", n));
  EXPECT_EQ(n.toInt32(), 0) << "a bad number reads as 0";
}

TEST_F(AppConfig, failedSave_keepsTheOldFileWhole)
{
  ASSERT_TRUE(app().setOption("Shx", "/first"));
  const QByteArray before = readAll(configFile());
  const QString folder = QFileInfo(configFile()).absolutePath();
  // Writes past a few bytes fail, for the super-user too (permissions would
  // not bind one): the save fails in the middle of writing.
  struct rlimit old {};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
  auto oldSignal = std::signal(SIGXFSZ, SIG_IGN);
  struct rlimit tiny = old;
  tiny.rlim_cur = 16;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tiny), 0);
  m_output.clear();
  const bool second = app().setOption("Shx", "/second");
  const bool third = app().setOption("Shx", "/third");
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, oldSignal);

  EXPECT_TRUE(second && third) << "the session keeps the change";
  EXPECT_EQ(readAll(configFile()), before);
  EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{"config.xml"}) << "no temporary file left";
  const auto first = m_output.find("Cannot save the configuration");
  ASSERT_NE(first, std::string::npos) << m_output;
  EXPECT_EQ(m_output.find("Cannot save the configuration", first + 1), std::string::npos) << "told once";
  EXPECT_EQ(stdDir("Shx"), OdString("/third"));
  // The next change that can be written saves everything.
  ASSERT_TRUE(app().setOption("CommonDirs", "/c"));
  restart();
  EXPECT_EQ(stdDir("Shx"), OdString("/third"));
}

TEST_F(AppConfig, everyChange_isOnDiskAtOnce)
{
  CRkPtr<IConfigManager> root = rootFolder();
  CRkPtr<IConfigManager> folder;
  ASSERT_TRUE(root->openFolder("CommandLine", true, folder.put()));
  folder->setValue("completetools", CRkVariant(std::int32_t(0)));
  HostConfig reread(configFile());
  ASSERT_TRUE(reread.load());
  CRkVariant v;
  ASSERT_TRUE(reread.folder("CommandLine", false));
  EXPECT_TRUE(reread.folder("CommandLine", false)->getValue("completetools", v));
  EXPECT_EQ(v.type(), CRkVariant::kInt32);
  EXPECT_EQ(v.toInt32(), 0);
}

TEST_F(AppConfig, stdDirs_defaultsAndWideStrings)
{
  CRkVariant::Type type = CRkVariant::kEmpty;
  EXPECT_EQ(stdDir("ToolPaletteDir", &type), OdString(m_home.path() + "/data/verdani/ToolPalette"));
  EXPECT_EQ(type, CRkVariant::kStringW);
  EXPECT_EQ(stdDir("Shx"), OdString());
  EXPECT_EQ(stdDir("NoSuchDir"), OdString("<none>"));
  // A program in the build tree has no installation beside it.
  EXPECT_EQ(stdDir("CommonDirs"), OdString(QDir::cleanPath(VERDANI_TEST_SOURCE_DATA_DIR)));
  CRkPtr<IAppInterior> interior = CRkPtr<IAppInterior>::query(&app());
  ASSERT_TRUE(interior);
  EXPECT_EQ(interior->userDataFolder().str(), OdString(m_home.path() + "/data/verdani"));

  // An empty value set on purpose is kept, not replaced by the default.
  ASSERT_TRUE(app().setOption("ToolPaletteDir", ""));
  EXPECT_EQ(stdDir("ToolPaletteDir"), OdString());
}

TEST_F(AppConfig, xdgVariableNotAbsolute_fallsBackToHome)
{
  app().shutdown();
  qputenv("XDG_DATA_HOME", "relative/data");
  app().start(m_options);
  EXPECT_EQ(stdDir("ToolPaletteDir"), OdString(m_home.path() + "/.local/share/verdani/ToolPalette"));
}

TEST_F(AppConfig, settingsAtStart_areWrittenBeforeModulesLoad)
{
  app().shutdown();
  m_options.settings = {"CommonDirs=/x;/y", "shx=", "cmddata/Extra/Name=text with = sign", "Bad"};
  app().start(m_options);
  EXPECT_EQ(stdDir("CommonDirs"), OdString("/x;/y"));
  EXPECT_EQ(stdDir("Shx"), OdString());
  CRkPtr<IConfigManager> extra;
  ASSERT_TRUE(rootFolder()->openFolder("cmddata/Extra", false, extra.put()));
  CRkVariant v;
  ASSERT_TRUE(extra->getValue("Name", v));
  EXPECT_EQ(v.toString(), OdString("text with = sign"));
  EXPECT_NE(m_output.find("\"Bad\" has no KEY=VALUE form"), std::string::npos) << m_output;

  OdString key, value, error;
  EXPECT_FALSE(HostApp::parseSetting("Colour=red", key, value, &error));
  EXPECT_NE(error.find(OdString("Unknown setting")), -1);
}

TEST_F(AppConfig, setdir_tellsPropertyReactors)
{
  CRkPtr<IAppProp> props = CRkPtr<IAppProp>::query(&app());
  ASSERT_TRUE(props);
  auto* recorder = new PropRecorder;
  ASSERT_TRUE(props->addPropReactor(recorder));
  EXPECT_FALSE(props->addPropReactor(recorder)) << "added once";

  app().typeLine("SETDIR\nToolPaletteDir\n/data/my palettes");
  EXPECT_EQ(recorder->changes, (std::vector<std::string>{"ToolPaletteDir=/data/my palettes"}));
  EXPECT_EQ(stdDir("ToolPaletteDir"), OdString("/data/my palettes"));

  // The same value again is no change; a module's own branch is no option.
  app().typeLine("SETDIR ToolPaletteDir\n/data/my palettes");
  CRkPtr<IConfigManager> state;
  rootFolder()->openFolder("cmddata/ToolPaletteManager", true, state.put());
  state->setValue("ViewStyle", CRkVariant(std::int32_t(1)));
  app().setOption("CommonDirs", "/shared");
  EXPECT_EQ(recorder->changes.size(), 2u);
  EXPECT_EQ(recorder->changes.back(), "CommonDirs=/shared");

  // Not a setting: told, and nothing changes.
  app().typeLine("SETDIR\nColour");
  EXPECT_NE(m_output.find("\"Colour\" is no setting of Verdani"), std::string::npos) << m_output;
  EXPECT_EQ(recorder->changes.size(), 2u);

  EXPECT_TRUE(props->removePropReactor(recorder));
  app().setOption("Shx", "/f");
  EXPECT_EQ(recorder->changes.size(), 2u);
  recorder->release();
}

TEST_F(AppConfig, propReactorRemovingAnother_duringNotice)
{
  CRkPtr<IAppProp> props = CRkPtr<IAppProp>::query(&app());
  auto* first = new PropRecorder;
  auto* second = new PropRecorder;
  props->addPropReactor(first);
  props->addPropReactor(second);
  // The host holds the only reference to the second: removing it frees it.
  second->release();
  first->onNotice = [&] { props->removePropReactor(second); };
  app().setOption("Shx", "/one");
  EXPECT_EQ(first->changes.size(), 1u);
  EXPECT_EQ(app().appProp().reactorCount(), 1u);
  props->removePropReactor(first);
  first->release();
}

TEST_F(AppConfig, profileParam_createsOnlyWhenAsked)
{
  CRkPtr<IProfile> profile = CRkPtr<IProfile>::query(&app());
  CRkPtr<IConfigParam> param;
  EXPECT_FALSE(profile->getParam("CommandLine", "completetools", false, param.put()));
  ASSERT_TRUE(profile->getParam("CommandLine", "completetools", true, param.put()));
  CRkVariant v;
  EXPECT_FALSE(param->getValue(v));
  EXPECT_TRUE(param->setValue(CRkVariant(std::int32_t(0))));
  ASSERT_TRUE(profile->getParam("commandline", "COMPLETETOOLS", false, param.put()));
  EXPECT_TRUE(param->getValue(v));
  EXPECT_EQ(param->name().str(), OdString("COMPLETETOOLS"));
  EXPECT_EQ(v.toInt32(), 0);
}

} // namespace
