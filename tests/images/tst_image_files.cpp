// One picture and its files: saving in every format of the table, GIF
// through giflib, loading real pictures, and what a missing or odd file
// gives.
#include "tests/images/ImageTestSupport.h"

#include "images/TcGifWriter.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QTemporaryDir>

#include <gif_lib.h>

#include <sys/stat.h>
#include <sys/types.h>

#include <gtest/gtest.h>

using namespace tc;

namespace {

class ImageFiles : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerImageTestClasses(); }
  void SetUp() override { tst::takePrinted(); }

  OdString path(const char* name) const { return OdString(m_dir.filePath(QString::fromUtf8(name))); }

  QTemporaryDir m_dir;
};

struct FormatCase
{
  int format;
  const char* given;    // the path handed to saveAs, in the test's folder
  const char* written;  // the file that must result; null: none at all
  const char* qtFormat; // what Qt finds in it
  bool lossless;
};

const FormatCase kFormats[] = {
    {1, "pic", "pic.bmp", "bmp", true},
    {3, "pic", "pic.ico", "ico", true},
    {5, "pic", "pic.jpeg", "jpeg", false},
    {6, "pic", "pic.png", "png", true},
    {7, "pic", "pic.gif", "gif", true},
    {8, "pic", "pic.tiff", "tiff", true},
    {42, "pic", "pic.png", "png", true},
    // The extension does not choose the encoder: the format does.
    {5, "shown.png", "shown.png", "jpeg", false},
    {2, "pic", nullptr, nullptr, false},
    {4, "pic.emf", nullptr, nullptr, false},
    {-1, "pic", nullptr, nullptr, false},
};

class SaveFormat : public ImageFiles, public ::testing::WithParamInterface<FormatCase>
{
};

TEST_P(SaveFormat, fileReadsBackAtItsSize)
{
  const FormatCase& c = GetParam();
  const mode_t oldMask = ::umask(022);
  OdTcImagePtr image = tst::pictureInMemory(4, "/Images/pic.png");
  const QImage original = image->getBitmap();
  const bool saved = image->saveAs(path(c.given), c.format);
  ::umask(oldMask);

  if (!c.written) {
    EXPECT_FALSE(saved);
    EXPECT_TRUE(QDir(m_dir.path()).entryList(QDir::Files | QDir::Hidden).isEmpty()) << "no file, no temporary";
    return;
  }
  ASSERT_TRUE(saved);
  EXPECT_EQ(QDir(m_dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{c.written});
  QImageReader reader(path(c.written).qstring());
  EXPECT_EQ(reader.format(), QByteArray(c.qtFormat));
  const QImage back = reader.read();
  ASSERT_FALSE(back.isNull()) << reader.errorString().toStdString();
  EXPECT_EQ(back.size(), QSize(64, 64));
  if (c.lossless) {
    EXPECT_TRUE(tst::samePixels(back, original));
  }
  // giflib makes files only their owner can read; ours are as any new file.
  struct stat info {};
  ASSERT_EQ(::stat(path(c.written).toUtf8().c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0644u);
}

INSTANTIATE_TEST_SUITE_P(Formats, SaveFormat, ::testing::ValuesIn(kFormats), [](const auto& info) {
  return "format" + std::to_string(info.index) + "_" + std::to_string(info.param.format < 0 ? 0 : info.param.format);
});

// giflib itself reads what we wrote: the screen, the colour map of a power
// of two, the transparent colour, and every pixel's index.
TEST_F(ImageFiles, gif_readsBackThroughGiflib_withTransparency)
{
  QImage picture(40, 30, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.fillRect(0, 0, 20, 30, QColor(200, 10, 10));
  painter.fillRect(20, 0, 10, 15, QColor(10, 200, 10));
  painter.end();
  QByteArray bytes;
  ASSERT_TRUE(writeGif(picture, bytes));
  QFile file(path("t.gif").qstring());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
  file.close();

  int error = 0;
  GifFileType* gif = DGifOpenFileName(path("t.gif").toUtf8().c_str(), &error);
  ASSERT_NE(gif, nullptr) << GifErrorString(error);
  ASSERT_EQ(DGifSlurp(gif), GIF_OK) << GifErrorString(gif->Error);
  EXPECT_EQ(gif->SWidth, 40);
  EXPECT_EQ(gif->SHeight, 30);
  ASSERT_NE(gif->SColorMap, nullptr);
  EXPECT_EQ(gif->SColorMap->ColorCount, 4) << "two colours and the transparent one, to a power of two";
  GraphicsControlBlock control{};
  ASSERT_EQ(DGifSavedExtensionToGCB(gif, 0, &control), GIF_OK);
  const GifByteType* pixels = gif->SavedImages[0].RasterBits;
  const GifColorType red = gif->SColorMap->Colors[pixels[0]];
  EXPECT_EQ((std::vector<int>{red.Red, red.Green, red.Blue}), (std::vector<int>{200, 10, 10}));
  EXPECT_EQ(pixels[29 * 40 + 35], control.TransparentColor);
  EXPECT_NE(pixels[5 * 40 + 25], control.TransparentColor);
  DGifCloseFile(gif, &error);

  const QImage back(path("t.gif").qstring());
  EXPECT_EQ(qAlpha(back.pixel(35, 29)), 0);
  EXPECT_EQ(back.pixel(25, 5), qRgb(10, 200, 10));
}

TEST_F(ImageFiles, gif_ofManyColours_takesTheNearestOfItsTable)
{
  QImage picture(64, 64, QImage::Format_RGB32);
  for (int y = 0; y < 64; ++y)
    for (int x = 0; x < 64; ++x)
      picture.setPixel(x, y, qRgb(x * 4, y * 4, (x + y) * 2));
  QByteArray bytes;
  ASSERT_TRUE(writeGif(picture, bytes));
  QImage back;
  ASSERT_TRUE(back.loadFromData(bytes, "gif"));
  ASSERT_EQ(back.size(), picture.size());
  int worst = 0;
  for (int y = 0; y < 64; ++y)
    for (int x = 0; x < 64; ++x) {
      const QRgb a = picture.pixel(x, y);
      const QRgb b = back.pixel(x, y);
      worst = std::max({worst, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                        std::abs(qBlue(a) - qBlue(b))});
    }
  EXPECT_LE(worst, 26) << "half a step of the colour cube";
}

TEST_F(ImageFiles, saveAs_withoutPicture_writesNothing)
{
  OdTcImagePtr image = OdTcImageImpl::createNew(1, "/Images/none16.png");
  EXPECT_FALSE(image->saveAs(path("none"), 6));
  EXPECT_FALSE(image->save(path("none.png")));
  EXPECT_TRUE(QDir(m_dir.path()).isEmpty());
}

TEST_F(ImageFiles, saveAs_intoAMissingFolder_fails)
{
  OdTcImagePtr image = tst::pictureInMemory(1, "/Images/a16.png");
  EXPECT_FALSE(image->save(path("no/such/folder/a16.png")));
  EXPECT_TRUE(tst::takePrinted().empty());
}

// The button picture of a command: drawn over the background colour at the
// width and height the image has, whatever its class.
TEST_F(ImageFiles, buttonPicture_isDrawnOverTheBackgroundAtItsSize)
{
  OdTcImagePtr image = OdTcImageImpl::createNew(3, kAcadBtnResource, "ACAD_RCDATA_32_Line");
  static_cast<OdTcImageImpl*>(image.get())->readAttribute("cx", OdVariant(OdString("48")));
  static_cast<OdTcImageImpl*>(image.get())->readAttribute("cy", OdVariant(OdString("40")));
  const QImage bitmap = image->getBitmap();
  ASSERT_FALSE(bitmap.isNull());
  EXPECT_EQ(bitmap.size(), QSize(48, 40));
  EXPECT_FALSE(bitmap.hasAlphaChannel());
  EXPECT_EQ(bitmap.pixel(0, 0), kImageBackground);
  EXPECT_NE(bitmap.pixel(24, 20), kImageBackground) << "the line crosses the middle";
  // The icon is the resource's picture at the class, with its transparency.
  const QImage icon = image->getIcon();
  EXPECT_EQ(icon.size(), QSize(32, 32));
  EXPECT_TRUE(icon.hasAlphaChannel());

  OdTcImagePtr unknown = OdTcImageImpl::createNew(3, kProgramBtnRes, "NOSUCHCOMMAND");
  EXPECT_TRUE(unknown->getBitmap().isNull());
  EXPECT_TRUE(unknown->getIcon().isNull());
}

TEST_F(ImageFiles, draw_copiesUnscaledFromTheTopLeft)
{
  OdTcImagePtr image = tst::pictureInMemory(4, "/Images/big64.png");
  const QImage picture = image->getBitmap();
  QImage target(100, 100, QImage::Format_RGB32);
  target.fill(Qt::white);
  QPainter painter(&target);
  EXPECT_TRUE(image->draw(&painter, 10, 20, 30, 30));
  painter.end();
  EXPECT_EQ(target.copy(10, 20, 30, 30), picture.copy(0, 0, 30, 30).convertToFormat(QImage::Format_RGB32));
  EXPECT_EQ(target.pixel(40, 20), qRgb(255, 255, 255)) << "nothing beyond the rectangle";
  EXPECT_EQ(target.pixel(9, 20), qRgb(255, 255, 255));

  OdTcImagePtr missing = OdTcImageImpl::createNew(1, "/Images/gone16.png");
  QPainter again(&target);
  EXPECT_FALSE(missing->draw(&again, 0, 0, 16, 16));
  EXPECT_FALSE(image->draw(nullptr, 0, 0, 16, 16));
}

// Real pictures of other programs: PNG tool icons and a JPEG photograph,
// loaded at their own size, never scaled to the class.
TEST_F(ImageFiles, realPictures_loadAtTheirOwnSize)
{
  const QString external = tst::externalData();
  if (external.isEmpty())
    GTEST_SKIP() << "the third-party test files are not there";
  struct Case
  {
    const char* file;
    QSize size;
  };
  const Case cases[] = {{"qcad__qcad/scripts/Block/AddBlock/doc/AddBlock.png", {80, 80}},
                        {"qcad__qcad/scripts/Block/CreateBlock/doc/CreateBlock.png", {80, 80}},
                        {"mozman__ezdxf/examples_dxf/image/image3.jpg", {500, 334}}};
  const QString catalogFolder = m_dir.filePath("ToolPalette/Palettes");
  ASSERT_TRUE(QDir().mkpath(catalogFolder + "/Images"));
  OdTcToolPalettePtr palette = OdTcToolPaletteImpl::createNew();
  palette->paletteDatabase()->setPath(OdString(catalogFolder + "/Real.vtc"));
  for (const Case& c : cases) {
    const QString name = QFileInfo(QString::fromUtf8(c.file)).fileName();
    ASSERT_TRUE(QFile::copy(external + "/" + c.file, catalogFolder + "/Images/" + name));
    OdTcImagePtr image = OdTcImageImpl::createNew(3, OdString("\\Images\\" + name));
    palette->addImage(image);
    EXPECT_EQ(image->file(), OdString(catalogFolder + "/Images/" + name));
    EXPECT_EQ(image->getBitmap().size(), c.size) << c.file;
  }
}

// A missing file, a folder, or a FIFO where the picture should be: an
// empty picture, no message, and never a wait.
TEST_F(ImageFiles, noReadableFile_givesAnEmptyPictureAndNoMessage)
{
  const QString folder = m_dir.filePath("Palettes");
  ASSERT_TRUE(QDir().mkpath(folder + "/Images/folder16.png"));
  ASSERT_EQ(::mkfifo((folder + "/Images/fifo16.png").toUtf8().constData(), 0644), 0);
  QFile broken(folder + "/Images/broken16.png");
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write("\x89PNG\r\n\x1a\n this is no picture");
  broken.close();

  OdTcToolPalettePtr palette = OdTcToolPaletteImpl::createNew();
  palette->paletteDatabase()->setPath(OdString(folder + "/P.vtc"));
  for (const char* src : {"\\Images\\gone16.png", "\\Images\\folder16.png", "\\Images\\fifo16.png",
                          "\\Images\\broken16.png", ""}) {
    OdTcImagePtr image = OdTcImageImpl::createNew(1, src);
    palette->addImage(image);
    EXPECT_TRUE(image->getBitmap().isNull()) << src;
    EXPECT_FALSE(image->loadFile()) << src;
  }
  EXPECT_TRUE(tst::takePrinted().empty());
}

} // namespace
