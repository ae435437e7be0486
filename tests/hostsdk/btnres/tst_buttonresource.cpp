// The host's button resource: every host command at the four sizes, and
// the names a catalog may give, short and long.
#include "hostsdk/btnres/HostButtonResource.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <gtest/gtest.h>

namespace {

// The host's commands, as their names stand in the command table, and the
// module's commands that ask pictures of the host.
const char* const kCommands[] = {
    "NewDocument", "OpenDocument", "CloseDocument", "SaveDocument", "SaveAsDocument", "Exit", "Import", "SETDIR",
    "InsertBlock", "XATTACH", "INSERTRASTER", "FASTHATCHCMD", "FASTGRADIENTCMD", "LINE", "CIRCLE", "ARC", "PLINE",
    "TEXT", "ERASE", "UNDO", "REDO", "ToolPalettes", "ToolPalettesCustomizeManager", "ToolPalettesList",
    "ToolPalettesSave", "ToolPalettesImages", "ToolPalettesState"};

bool drawsSomething(const QImage& image)
{
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qAlpha(image.pixel(x, y)) > 128)
        return true;
  return false;
}

class CommandButton : public testing::TestWithParam<const char*>
{
};

TEST_P(CommandButton, hasAllFourSizes)
{
  const int sizes[] = {16, 24, 32, 64};
  for (int sizeClass = 1; sizeClass <= 4; ++sizeClass) {
    const QImage image = HostButtonResource::image(GetParam(), sizeClass);
    ASSERT_FALSE(image.isNull()) << "class " << sizeClass;
    EXPECT_EQ(image.size(), QSize(sizes[sizeClass - 1], sizes[sizeClass - 1])) << "class " << sizeClass;
    EXPECT_TRUE(image.hasAlphaChannel());
    EXPECT_TRUE(drawsSomething(image)) << "class " << sizeClass;
  }
}

INSTANTIATE_TEST_SUITE_P(Commands, CommandButton, testing::ValuesIn(kCommands),
                         [](const auto& info) { return std::string(info.param); });

struct NameCase
{
  const char* given;
  const char* command; // null: no picture
};

const NameCase kNames[] = {
    {"line", "LINE"},
    {"Line", "LINE"},
    {"toolpalettes", "ToolPalettes"},
    {"TOOLPALETTESCUSTOMIZEMANAGER", "ToolPalettesCustomizeManager"},
    {"RCDATA_16_LINE", "LINE"},
    {"ACAD_RCDATA_32_ToolPalettes", "ToolPalettes"},
    {"rcdata_x_circle", "CIRCLE"},
    {"MyRCDATA_BUTTONS_16_Fasthatchcmd", "FASTHATCHCMD"},
    {"RCDATA_16_", nullptr},
    {"RCDATA_16_NOSUCHCOMMAND", nullptr},
    {"NOSUCHCOMMAND", nullptr},
    {"", nullptr},
    {"LINE_16", nullptr},
    {"../verdanibtn/line", nullptr},
    {"__executetool", nullptr},
};

class ButtonName : public testing::TestWithParam<NameCase>
{
};

TEST_P(ButtonName, findsThePictureOfItsCommand)
{
  for (int sizeClass : {1, 4}) {
    const QImage image = HostButtonResource::image(GetParam().given, sizeClass);
    if (!GetParam().command) {
      EXPECT_TRUE(image.isNull());
      continue;
    }
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image, HostButtonResource::image(GetParam().command, sizeClass));
  }
}

INSTANTIATE_TEST_SUITE_P(Names, ButtonName, testing::ValuesIn(kNames),
                         [](const auto& info) { return "row" + std::to_string(info.index); });

TEST(HostButtonResource, otherSizeClassesGiveSixteenPixels)
{
  for (int sizeClass : {0, 5, -1, 100})
    EXPECT_EQ(HostButtonResource::image("LINE", sizeClass).size(), QSize(16, 16)) << sizeClass;
}

TEST(HostButtonResource, everyCommandHasAPictureOfItsOwn)
{
  QSet<QByteArray> seen;
  for (const char* command : kCommands) {
    const QImage image = HostButtonResource::image(command, 3).convertToFormat(QImage::Format_ARGB32);
    const QByteArray digest = QCryptographicHash::hash(
        QByteArrayView(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()),
        QCryptographicHash::Sha1);
    EXPECT_FALSE(seen.contains(digest)) << command << " looks like another command";
    seen.insert(digest);
  }
}

// A drawing added to the sources but not to the build's list would never
// reach the resource.
TEST(HostButtonResource, everyDrawingOfTheSourcesIsInTheResource)
{
  const QStringList drawings = QDir(QStringLiteral(VERDANI_BUTTON_SOURCES)).entryList({"*.svg"}, QDir::Files);
  EXPECT_EQ(drawings.size(), int(std::size(kCommands)));
  for (const QString& file : drawings)
    EXPECT_FALSE(HostButtonResource::image(OdString(QFileInfo(file).completeBaseName()), 1).isNull())
        << file.toStdString();
  EXPECT_EQ(QFileInfo(HostButtonResource::filePath().qstring()).fileName(), QString(HostButtonResource::kFileName));
}

} // namespace
