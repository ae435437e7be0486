// Bad files in catalog folders: nothing of the user's is lost, nothing
// hangs, and nothing outside a catalog's folder is deleted or written.
#include "tests/module/ManagerFixture.h"
#include "tests/support/Unprivileged.h"

#include "sdk/kernel/OdSafeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <functional>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

using namespace tc;

namespace {

const std::string kTime = "<Time createdUniversalDateTime=\"Sat Nov 21 04:38:00 2026\" "
                          "modifiedUniversalDateTime=\"Sat Nov 21 04:38:00 2026\" />";

std::string properties(const std::string& name)
{
  return "<Properties><ItemName>" + name + "</ItemName>" + kTime + "<Images option=\"0\" /></Properties>";
}

std::string catalogWith(const std::string& palettes)
{
  return "<Catalog Revision=\"8.0\" option=\"0\" FileRevision=\"8.0\"><ItemID idValue=\"{C1}\" />" +
         properties("Shared") + "<Palettes>" + palettes + "</Palettes><Groups /><CatalogItemOrder /></Catalog>";
}

std::string stub(const std::string& id, const std::string& name, const std::string& href)
{
  return "<Palette Revision=\"8.0\" option=\"0\"><ItemID idValue=\"" + id + "\" />" + properties(name) +
         "<Url href=\"" + href + "\" /></Palette>";
}

std::string paletteFile(const std::string& id, const std::string& name)
{
  return "<Palette Revision=\"8.0\" option=\"0\" FileRevision=\"8.0\"><ItemID idValue=\"" + id + "\" />" +
         properties(name) +
         "<Tools /><PaletteUI><SortType>0</SortType><PreviewSize>1</PreviewSize><PreviewStyle>0</PreviewStyle>"
         "<CAcTcUiToolPalette><CatalogView><ToolOrder /></CatalogView></CAcTcUiToolPalette></PaletteUI></Palette>";
}

std::string nested(int depth)
{
  std::string xml = "<Catalog>";
  for (int i = 0; i < depth; ++i)
    xml += "<a>";
  return xml;
}

std::string readAll(const QString& path)
{
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll().toStdString() : std::string("<unreadable>");
}

void writeAll(const QString& path, const std::string& bytes)
{
  QDir().mkpath(QFileInfo(path).path());
  QFile f(path);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(bytes.data(), qint64(bytes.size()));
}

void setMode(const QString& path, mode_t mode)
{
  ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
}

class BadFiles : public tst::ManagerFixture
{
protected:
  // A shared catalog folder, listed after the user's own.
  QString shared(const char* sub = "") const
  {
    return m_dir.filePath(QStringLiteral("Shared/ToolPalette")) + QString::fromUtf8(sub);
  }
  void startWithShared()
  {
    QDir().mkpath(shared());
    setList(userFolder() + ";" + OdString(shared()) + ";");
    start();
  }
  OdTcCatalog* sharedCatalog()
  {
    auto e = m_manager->catalogs();
    OdString path;
    OdTcCatalog* c = nullptr;
    while (e->next(path, c))
      if (path == OdString(shared("/VdTcCatalog.vtc")))
        return c;
    return nullptr;
  }
  bool printed(const std::string& text) const { return fakehost::state().printed.find(text) != std::string::npos; }
  QStringList filesIn(const QString& folder) const
  {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
  }
};

// A watchdog: a start that blocks on a file ends the test program.
struct Watchdog
{
  Watchdog() { ::alarm(30); }
  ~Watchdog() { ::alarm(0); }
};

} // namespace

TEST_F(BadFiles, unreadableCatalog_isLeftOutAndNeverWritten)
{
  if (tst::reranUnprivileged())
    return;
  const std::string original = catalogWith(stub("{A1}", "Walls", "./Palettes/w.vtc"));
  writeAll(shared("/VdTcCatalog.vtc"), original);
  setMode(shared("/VdTcCatalog.vtc"), 0);
  startWithShared();
  EXPECT_TRUE(printed("Cannot read the tool palettes catalog " + shared("/VdTcCatalog.vtc").toStdString() +
                      ": Permission denied. The catalog is left out"))
      << fakehost::state().printed;
  EXPECT_EQ(sharedCatalog(), nullptr);
  m_manager->saveCatalogs();
  m_manager->refreshCatalogs();
  m_manager->saveCatalogs();
  setMode(shared("/VdTcCatalog.vtc"), 0644);
  EXPECT_EQ(readAll(shared("/VdTcCatalog.vtc")), original);
  EXPECT_EQ(filesIn(shared()), QStringList{QStringLiteral("VdTcCatalog.vtc")});
}

struct DamagedRow
{
  const char* name;
  std::string content;
  const char* shown;  // the catalog's name in memory afterwards
  const char* reason; // a part of the message
};

void PrintTo(const DamagedRow& row, std::ostream* os)
{
  *os << row.name;
}

class DamagedCatalog : public BadFiles, public ::testing::WithParamInterface<DamagedRow>
{
};

TEST_P(DamagedCatalog, isKeptAsideWithAMessage_andTheCopyOutlivesSaves)
{
  const DamagedRow& row = GetParam();
  writeAll(shared("/VdTcCatalog.vtc"), row.content);
  startWithShared();
  const QString copy = shared("/VdTcCatalog.vtc.unreadable");
  EXPECT_TRUE(printed("The tool palettes catalog " + shared("/VdTcCatalog.vtc").toStdString() + " is damaged ("))
      << fakehost::state().printed;
  EXPECT_TRUE(printed(row.reason)) << fakehost::state().printed;
  EXPECT_TRUE(printed("kept as " + copy.toStdString())) << fakehost::state().printed;
  ASSERT_NE(sharedCatalog(), nullptr);
  EXPECT_EQ(sharedCatalog()->displayName(), row.shown);
  m_manager->saveCatalogs();
  EXPECT_EQ(readAll(copy), row.content);
  // The next start finds the same damage kept already, and keeps no more.
  writeAll(shared("/VdTcCatalog.vtc"), row.content);
  start();
  EXPECT_EQ(filesIn(shared()).filter(QStringLiteral(".unreadable")), QStringList{QFileInfo(copy).fileName()});
}

INSTANTIATE_TEST_SUITE_P(
    rows, DamagedCatalog,
    ::testing::Values(
        DamagedRow{"cutShort", catalogWith(stub("{A1}", "Walls", "./Palettes/w.vtc")).substr(0, 400), "Shared",
                   "the XML breaks off"},
        DamagedRow{"empty", "", "Tool Palettes", "the XML breaks off"},
        DamagedRow{"randomBytes", "\x7f" "ELF\x02\x01\x01 not a catalog at all", "Tool Palettes", "the XML breaks off"},
        DamagedRow{"otherXml", "<VerdaniConfig version=\"1\" />", "Tool Palettes", "it holds no catalog"},
        DamagedRow{"textWhereAnObjectBelongs",
                   "<Catalog><Properties><ItemName>Shared</ItemName></Properties><Odd Palettes=\"x\" /></Catalog>",
                   "Tool Palettes", "Not that kind of class"}),
    [](const ::testing::TestParamInfo<DamagedRow>& info) { return std::string(info.param.name); });

struct UnreadablePaletteRow
{
  const char* name;
  std::function<void(const QString& folder)> spoil;
  std::function<void(const QString& folder)> mend;
};

void PrintTo(const UnreadablePaletteRow& row, std::ostream* os)
{
  *os << row.name;
}

class UnreadablePalette : public BadFiles, public ::testing::WithParamInterface<UnreadablePaletteRow>
{
};

TEST_P(UnreadablePalette, isNotShown_andItsStubIsWrittenAsItWas)
{
  if (tst::reranUnprivileged())
    return;
  const std::string catalog = catalogWith(stub("{A1}", "Walls", ".\\Palettes\\Walls.vtc"));
  writeAll(shared("/VdTcCatalog.vtc"), catalog);
  writeAll(shared("/Palettes/Walls.vtc"), paletteFile("{A1}", "Walls"));
  GetParam().spoil(shared());
  startWithShared();
  ASSERT_NE(sharedCatalog(), nullptr);
  EXPECT_EQ(sharedCatalog()->findPaletteById("{A1}"), nullptr);
  EXPECT_TRUE(printed("Cannot read the palette file " + shared("/Palettes/Walls.vtc").toStdString() + ": "))
      << fakehost::state().printed;
  EXPECT_TRUE(printed("The palette is not shown; the catalog keeps its entry."));
  m_manager->saveCatalogs();
  GetParam().mend(shared());
  EXPECT_EQ(readAll(shared("/VdTcCatalog.vtc")), catalog);
  EXPECT_EQ(readAll(shared("/Palettes/Walls.vtc")), paletteFile("{A1}", "Walls"));
}

INSTANTIATE_TEST_SUITE_P(
    rows, UnreadablePalette,
    ::testing::Values(
        UnreadablePaletteRow{"fileWithoutPermissions",
                             [](const QString& f) { setMode(f + QStringLiteral("/Palettes/Walls.vtc"), 0); },
                             [](const QString& f) { setMode(f + QStringLiteral("/Palettes/Walls.vtc"), 0644); }},
        UnreadablePaletteRow{"folderThatCannotBeEntered",
                             [](const QString& f) { setMode(f + QStringLiteral("/Palettes"), 0); },
                             [](const QString& f) { setMode(f + QStringLiteral("/Palettes"), 0755); }},
        UnreadablePaletteRow{"fileTooDeep",
                             [](const QString& f) {
                               writeAll(f + QStringLiteral("/Palettes/Walls.vtc"), nested(20000));
                             },
                             [](const QString& f) {
                               writeAll(f + QStringLiteral("/Palettes/Walls.vtc"), paletteFile("{A1}", "Walls"));
                             }}),
    [](const ::testing::TestParamInfo<UnreadablePaletteRow>& info) { return std::string(info.param.name); });

TEST_F(BadFiles, deepCatalog_isLeftOut_andTheStartGoesOn)
{
  const std::string deep = nested(20000);
  writeAll(shared("/VdTcCatalog.vtc"), deep);
  startWithShared();
  EXPECT_TRUE(printed("its elements nest deeper than 256 levels. The catalog is left out")) << fakehost::state().printed;
  EXPECT_EQ(sharedCatalog(), nullptr);
  EXPECT_NE(m_manager->currentCatalog(), nullptr);
  m_manager->saveCatalogs();
  EXPECT_EQ(readAll(shared("/VdTcCatalog.vtc")), deep);
}

TEST_F(BadFiles, fifos_whereCatalogsAndPalettesBelong_neverBlockTheStart)
{
  Watchdog watchdog;
  QDir().mkpath(shared("/Palettes"));
  writeAll(shared("/VdTcCatalog.vtc"), catalogWith(stub("{A1}", "Walls", "./Palettes/fifo.vtc")));
  ASSERT_EQ(::mkfifo(QFile::encodeName(shared("/Palettes/fifo.vtc")).constData(), 0644), 0);
  const QString other = m_dir.filePath(QStringLiteral("Other/ToolPalette"));
  QDir().mkpath(other);
  ASSERT_EQ(::mkfifo(QFile::encodeName(other + QStringLiteral("/VdTcCatalog.vtc")).constData(), 0644), 0);
  setList(userFolder() + ";" + OdString(shared()) + ";" + OdString(other) + ";");
  start();
  EXPECT_TRUE(printed("Cannot read the palette file " + shared("/Palettes/fifo.vtc").toStdString() +
                      ": it is not a regular file"))
      << fakehost::state().printed;
  EXPECT_TRUE(printed("Cannot read the tool palettes catalog " + other.toStdString() +
                      "/VdTcCatalog.vtc: it is not a regular file"));
  ASSERT_NE(sharedCatalog(), nullptr);
  EXPECT_EQ(sharedCatalog()->findPaletteById("{A1}"), nullptr);
  m_manager->saveCatalogs();
  EXPECT_TRUE(QFileInfo(shared("/Palettes/fifo.vtc")).exists());
}

TEST_F(BadFiles, stubNamingAFileOutsideTheCatalog_neverDeletesNorWritesIt)
{
  // Not a palette, outside the catalog's folder: it appears as an unnamed
  // palette, as any file that does not read as a palette.
  const QString outside = m_dir.filePath(QStringLiteral("some/file"));
  writeAll(outside, "the user's own file, no palette");
  writeAll(shared("/VdTcCatalog.vtc"), catalogWith(stub("{A1}", "Outside", "..\\..\\some\\file")));
  startWithShared();
  OdTcCatalog* catalog = sharedCatalog();
  ASSERT_NE(catalog, nullptr);
  OdTcToolPalette* palette = catalog->findPaletteById("{A1}");
  ASSERT_NE(palette, nullptr);
  EXPECT_TRUE(printed("The palette file " + outside.toStdString() + " is damaged")) << fakehost::state().printed;
  palette->setName("Renamed");
  m_manager->saveCatalogs();
  EXPECT_TRUE(printed("lies outside the catalog's folder and did not read as a palette: it is not written over"));
  EXPECT_EQ(readAll(outside), "the user's own file, no palette");
  // One stub for the file still, under the name typed.
  const std::string xml = readAll(shared("/VdTcCatalog.vtc"));
  EXPECT_EQ(xml.find("<Palette "), xml.rfind("<Palette ")) << xml;
  EXPECT_NE(xml.find("Renamed"), std::string::npos);

  EXPECT_TRUE(catalog->removeChild("{A1}"));
  EXPECT_TRUE(printed("The palette file " + outside.toStdString() + " lies outside the catalog's folder: only the "
                      "palette's entry was removed, and the file was left in place."))
      << fakehost::state().printed;
  EXPECT_EQ(readAll(outside), "the user's own file, no palette");
  EXPECT_EQ(filesIn(QFileInfo(outside).path()), QStringList{QStringLiteral("file")});
}

TEST_F(BadFiles, paletteFileThatDidNotRead_isKeptAsideBeforeItIsWritten_andNeverDeleted)
{
  const std::string broken = paletteFile("{A1}", "Walls").substr(0, 120);
  writeAll(shared("/VdTcCatalog.vtc"), catalogWith(stub("{A1}", "Walls", "./Palettes/Walls.vtc")));
  writeAll(shared("/Palettes/Walls.vtc"), broken);
  startWithShared();
  OdTcToolPalette* palette = sharedCatalog()->findPaletteById("{A1}");
  ASSERT_NE(palette, nullptr);
  palette->setDescription("edited");
  m_manager->saveCatalogs();
  EXPECT_EQ(readAll(shared("/Palettes/Walls.vtc.unreadable")), broken);
  EXPECT_TRUE(printed("it was kept as " + shared("/Palettes/Walls.vtc.unreadable").toStdString()))
      << fakehost::state().printed;
  EXPECT_NE(readAll(shared("/Palettes/Walls.vtc")).find("edited"), std::string::npos);

  // A palette whose file did not read is removed without its file.
  writeAll(shared("/Palettes/Walls.vtc"), broken);
  start();
  ASSERT_TRUE(sharedCatalog()->removeChild("{A1}"));
  EXPECT_TRUE(printed("did not read as a palette: only the palette's entry was removed"));
  EXPECT_EQ(readAll(shared("/Palettes/Walls.vtc")), broken);
}

TEST_F(BadFiles, removingAPaletteOfItsOwnFile_deletesIt)
{
  writeAll(shared("/VdTcCatalog.vtc"), catalogWith(stub("{A1}", "Walls", ".\\Palettes\\Walls.vtc")));
  writeAll(shared("/Palettes/Walls.vtc"), paletteFile("{A1}", "Walls"));
  startWithShared();
  ASSERT_TRUE(sharedCatalog()->removeChild("{A1}"));
  EXPECT_FALSE(QFileInfo::exists(shared("/Palettes/Walls.vtc")));
  EXPECT_FALSE(printed("left in place")) << fakehost::state().printed;
}

struct NameRow
{
  const char* name;
  const char* typed;
  const char* fileStart; // the new file's name begins so, in "Palettes"
};

void PrintTo(const NameRow& row, std::ostream* os)
{
  *os << row.name;
}

class NewPaletteName : public BadFiles, public ::testing::WithParamInterface<NameRow>
{
};

TEST_P(NewPaletteName, isCleanedBeforeItNamesAFile_andTheFileLandsInPalettes)
{
  writeAll(shared("/VdTcCatalog.vtc"), catalogWith(""));
  startWithShared();
  OdTcToolPalettePtr palette = OdTcToolPalette::createObject();
  palette->setName(GetParam().typed);
  palette->setId("{P1}");
  sharedCatalog()->addChild(palette);
  m_manager->saveCatalogs();
  const QStringList files = filesIn(shared("/Palettes")).filter(QStringLiteral(".vtc"));
  ASSERT_EQ(files.size(), 1) << files.join(u' ').toStdString();
  EXPECT_TRUE(files[0].startsWith(QString::fromUtf8(GetParam().fileStart))) << files[0].toStdString();
  EXPECT_TRUE(files[0].endsWith(QStringLiteral("_{P1}.vtc"))) << files[0].toStdString();
  EXPECT_EQ(palette->path(), OdString(shared("/Palettes/") + files[0]));
  EXPECT_EQ(filesIn(m_dir.path()), (QStringList{QStringLiteral("Shared"), QStringLiteral("data")}));
  EXPECT_EQ(palette->displayName(), GetParam().typed); // the name itself stays as typed
}

INSTANTIATE_TEST_SUITE_P(
    rows, NewPaletteName,
    ::testing::Values(NameRow{"climbsOut", "../../../../outside/evil", "outsideevil"},
                      NameRow{"windowsClimb", "..\\..\\evil", "evil"},
                      NameRow{"forbiddenCharacters", "Walls: <new> \"2\"?*|", "Walls new 2"},
                      NameRow{"onlyDots", "..", "Palette"},
                      NameRow{"cyrillic", "Стены", "Стены"}),
    [](const ::testing::TestParamInfo<NameRow>& info) { return std::string(info.param.name); });

TEST_F(BadFiles, savesKilledMidway_leaveNothingAfterTheNextSave)
{
  writeAll(shared("/VdTcCatalog.vtc"), catalogWith(""));
  startWithShared();
  const OdString path(shared("/VdTcCatalog.vtc"));
  for (int i = 0; i < 5; ++i) {
    const pid_t child = ::fork();
    if (child == 0) {
      // A save that dies with its process before the rename.
      OdSafeFile file(path);
      file.stream()->putBytes("<Catalog><Palettes>", 19);
      file.stream()->flush();
      ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    // Each save cut short leaves its own, and removes those before it.
    EXPECT_EQ(filesIn(shared()).size(), 2) << filesIn(shared()).join(u' ').toStdString();
  }
  ASSERT_TRUE(sharedCatalog()->save(path));
  EXPECT_EQ(filesIn(shared()), QStringList{QStringLiteral("VdTcCatalog.vtc")});
}
