// Files written as they were read: hand-made catalogs and palettes, loaded
// and saved without a change, are the bytes that were read.
#include "tests/model/ModelClasses.h"

#include "model/OdTcCatalogImpl.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <map>
#include <string>

#include <gtest/gtest.h>

using namespace tc;

namespace {

const std::string kTime = "<Time createdUniversalDateTime=\"Sat Nov 21 04:38:00 2026\" "
                          "modifiedUniversalDateTime=\"Sat Nov 21 04:38:00 2026\" />";

std::string properties(const std::string& name, const std::string& time = kTime,
                       const std::string& images = "<Images option=\"0\" />")
{
  return "<Properties><ItemName>" + name + "</ItemName>" + time + images + "</Properties>";
}

std::string stub(const std::string& id, const std::string& name, const std::string& href)
{
  return "<Palette Revision=\"8.0\" option=\"0\"><ItemID idValue=\"" + id + "\" />" + properties(name) +
         "<Url href=\"" + href + "\" /></Palette>";
}

std::string catalog(const std::string& palettes, const std::string& groups = "<Groups />",
                    const std::string& order = "<CatalogItemOrder />")
{
  return "<Catalog Revision=\"8.0\" option=\"0\" FileRevision=\"8.0\"><ItemID idValue=\"{C1}\" />" +
         properties("Hand made") + "<Palettes>" + palettes + "</Palettes>" + groups + order + "</Catalog>";
}

std::string palette(const std::string& id, const std::string& name, const std::string& toolOrder = "<ToolOrder />",
                    const std::string& props = "")
{
  return "<Palette Revision=\"8.0\" option=\"0\" FileRevision=\"8.0\"><ItemID idValue=\"" + id + "\" />" +
         (props.empty() ? properties(name) : props) +
         "<Tools /><PaletteUI><SortType>0</SortType><PreviewSize>1</PreviewSize><PreviewStyle>0</PreviewStyle>"
         "<CAcTcUiToolPalette><CatalogView>" +
         toolOrder + "</CatalogView></CAcTcUiToolPalette></PaletteUI></Palette>";
}

struct HandMade
{
  const char* name;
  std::string catalog;
  std::map<std::string, std::string> palettes; // by path below the catalog's folder
};

void PrintTo(const HandMade& row, std::ostream* os)
{
  *os << row.name;
}

std::string readAll(const QString& path)
{
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll().toStdString() : std::string("<missing>");
}

void writeAll(const QString& path, const std::string& bytes)
{
  QDir().mkpath(QFileInfo(path).path());
  QFile f(path);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(bytes.data(), qint64(bytes.size()));
}

class FaithfulFiles : public ::testing::TestWithParam<HandMade>
{
protected:
  static void SetUpTestSuite() { tst::registerModelClasses(); }
  QTemporaryDir m_dir;
};

} // namespace

TEST_P(FaithfulFiles, loadedAndSavedWithoutAChange_areTheBytesRead)
{
  const HandMade& row = GetParam();
  const QString folder = m_dir.filePath(QStringLiteral("Shared/ToolPalette"));
  const QString path = folder + QStringLiteral("/VdTcCatalog.vtc");
  writeAll(path, row.catalog);
  for (const auto& [file, xml] : row.palettes)
    writeAll(folder + QLatin1Char('/') + QString::fromStdString(file), xml);

  OdTcCatalogPtr loaded = OdTcCatalogImpl::createNew();
  ASSERT_TRUE(loaded->load(OdString(path)));
  ASSERT_TRUE(loaded->save(OdString(path)));
  EXPECT_EQ(readAll(path), row.catalog);
  // Each palette written again to its own file, as an edit would.
  auto palettes = loaded->enumeratePalettes();
  while (OdTcCatalogItem* item = palettes->next())
    ASSERT_TRUE(static_cast<OdTcToolPalette*>(item)->save());
  for (const auto& [file, xml] : row.palettes)
    EXPECT_EQ(readAll(folder + QLatin1Char('/') + QString::fromStdString(file)), xml) << file;
}

INSTANTIATE_TEST_SUITE_P(
    rows, FaithfulFiles,
    ::testing::Values(
        // Catalogs made on Windows: the stubs' paths keep their "\".
        HandMade{"backslashHrefs",
                 catalog(stub("{A1}", "Walls", ".\\Palettes\\Walls.vtc") +
                         stub("{A2}", "Doors", "..\\Other\\Doors.vtc") +
                         stub("{A3}", "Mixed", "./Palettes\\Mixed.vtc")),
                 {{"Palettes/Walls.vtc", palette("{A1}", "Walls")},
                  {"../Other/Doors.vtc", palette("{A2}", "Doors")},
                  {"Palettes/Mixed.vtc", palette("{A3}", "Mixed")}}},
        // A stub whose file is missing is written as it was.
        HandMade{"missingPaletteFile", catalog(stub("{A4}", "Missing", ".\\Palettes\\Missing.vtc")), {}},
        // Identifiers are opaque text.
        HandMade{"identifiersOfAnyForm",
                 catalog(stub("wall palette #1", "Walls", "Palettes/w.vtc"),
                         "<Groups><ToolPaletteGroup Revision=\"8.0\" option=\"0\"><ItemID idValue=\"g-1\" />" +
                             properties("Main") +
                             "<ActivePaletteIndex>-1</ActivePaletteIndex><Contents><ToolPalette ID=\"wall palette "
                             "#1\" /></Contents><CatalogItemOrder /></ToolPaletteGroup></Groups>"),
                 {{"Palettes/w.vtc", palette("wall palette #1", "Walls")}}},
        // Order lists that name missing items, and one item twice.
        HandMade{"orderListsWithMissingAndTwiceNamedEntries",
                 catalog(stub("{A5}", "Walls", "Palettes/w.vtc"), "<Groups />",
                         "<CatalogItemOrder><ID>{gone}</ID><ID>{A5}</ID><ID>{A5}</ID></CatalogItemOrder>"),
                 {{"Palettes/w.vtc",
                   palette("{A5}", "Walls", "<ToolOrder><ID>t2</ID><ID>t1</ID><ID>t2</ID><ID>nobody</ID></ToolOrder>")}}},
        // Dates are text as the file has them, understood or not.
        HandMade{"unknownDates",
                 catalog(stub("{A6}", "Walls", "Palettes/w.vtc")),
                 {{"Palettes/w.vtc",
                   palette("{A6}", "Walls", "<ToolOrder />",
                           properties("Walls",
                                      "<Time createdUniversalDateTime=\"sometime in 1999\" "
                                      "modifiedUniversalDateTime=\"\" />"))}}},
        // Pictures keep their paths as written, "\" and all.
        HandMade{"picturePaths",
                 catalog(stub("{A7}", "Walls", "Palettes/w.vtc")),
                 {{"Palettes/w.vtc",
                   palette("{A7}", "Walls", "<ToolOrder />",
                           properties("Walls", kTime,
                                      "<Images option=\"0\"><Image cx=\"16\" cy=\"16\" "
                                      "src=\".\\Palettes\\Images\\w16.png\" /></Images>"))}}}),
    [](const ::testing::TestParamInfo<HandMade>& info) { return std::string(info.param.name); });

TEST(FaithfulHrefs, backslashHref_resolvesToItsFile)
{
  tst::registerModelClasses();
  QTemporaryDir dir;
  const QString folder = dir.filePath(QStringLiteral("ToolPalette"));
  writeAll(folder + QStringLiteral("/VdTcCatalog.vtc"), catalog(stub("{A1}", "Walls", ".\\Palettes\\Walls.vtc")));
  writeAll(folder + QStringLiteral("/Palettes/Walls.vtc"), palette("{A1}", "Walls"));
  OdTcCatalogPtr loaded = OdTcCatalogImpl::createNew();
  ASSERT_TRUE(loaded->load(OdString(folder + QStringLiteral("/VdTcCatalog.vtc"))));
  OdTcToolPalette* walls = loaded->findPaletteById("{A1}");
  ASSERT_NE(walls, nullptr);
  EXPECT_EQ(walls->path(), OdString(folder + QStringLiteral("/Palettes/Walls.vtc")));
  EXPECT_EQ(walls->displayName(), "Walls");
}
