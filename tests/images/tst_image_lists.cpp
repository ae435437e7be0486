// The pictures of one item: size classes as files give them, the big sizes
// a list must have, and copies of pictures that never share a file.
#include "tests/images/ImageTestSupport.h"

#include "images/OdTcImageListImpl.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tc;

namespace {

class ImageLists : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerImageTestClasses(); }

  void SetUp() override
  {
    ASSERT_TRUE(QDir().mkpath(m_dir.filePath("Palettes/Images")));
    m_palette = OdTcToolPaletteImpl::createNew();
    m_palette->paletteDatabase()->setPath(palettePath());
  }

  OdString palettePath() const { return OdString(m_dir.filePath("Palettes/P.vtc")); }
  OdString imagesFolder() const { return OdString(m_dir.filePath("Palettes/Images")); }

  // Writes `xml` as the palette's file and reads it.
  OdTcToolPalettePtr readPalette(const std::string& images)
  {
    const std::string xml = "<Palette><ItemID idValue=\"{P}\"/><Properties><ItemName>P</ItemName>" + images +
                            "</Properties><Tools/></Palette>";
    QFile file(palettePath().qstring());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(xml.data(), qint64(xml.size()));
    file.close();
    OdTcToolPalettePtr palette = OdTcToolPaletteImpl::createNew();
    EXPECT_TRUE(palette->load(palettePath()));
    return palette;
  }

  // A picture file of our own in the palette's "Images" folder.
  void putPicture(const char* name, int size, QRgb colour) const
  {
    QImage picture(size, size, QImage::Format_RGB32);
    picture.fill(colour);
    ASSERT_TRUE(picture.save(imagesFolder().qstring() + "/" + name));
  }

  static std::vector<int> classes(OdTcImageList* list)
  {
    std::vector<int> out;
    auto images = list->newEnumerator();
    while (OdTcImage* image = images->next())
      out.push_back(image->getSizeClass());
    return out;
  }

  QTemporaryDir m_dir;
  OdTcToolPalettePtr m_palette;
};

struct WidthCase
{
  const char* cx;
  int sizeClass;
  int storedCx;
};

class ImageWidth : public ImageLists, public ::testing::WithParamInterface<WidthCase>
{
};

// The class comes from "cx" alone; an odd width stays as it was read, and
// is written back so.
TEST_P(ImageWidth, readsItsClassAndKeepsItsWidth)
{
  const WidthCase& c = GetParam();
  OdTcToolPalettePtr palette = readPalette(std::string("<Images option=\"7\"><Image cx=\"") + c.cx +
                                           "\" cy=\"16\" src=\"%ProgramBtnRes%\" resource=\"LINE\"/></Images>");
  OdTcImage* image = palette->images()->image(c.sizeClass);
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->cx(), c.storedCx);
  EXPECT_EQ(image->cy(), 16);
  EXPECT_EQ(palette->images()->getOption(), 7u);
  ASSERT_TRUE(palette->save(palettePath()));
  OdTcToolPalettePtr again = OdTcToolPaletteImpl::createNew();
  ASSERT_TRUE(again->load(palettePath()));
  ASSERT_NE(again->images()->image(c.sizeClass), nullptr);
  EXPECT_EQ(again->images()->image(c.sizeClass)->cx(), c.storedCx);
}

INSTANTIATE_TEST_SUITE_P(Widths, ImageWidth,
                         ::testing::Values(WidthCase{"16", 1, 16}, WidthCase{"24", 2, 24}, WidthCase{"32", 3, 32},
                                           WidthCase{"64", 4, 64}, WidthCase{"48", 3, 48},
                                           WidthCase{"0", 3, 0}, WidthCase{"abc", 3, 0},
                                           WidthCase{"16px", 1, 16}));

TEST_F(ImageLists, sourceWithBackslashes_findsItsFileBesideThePalette)
{
  putPicture("a16.png", 16, qRgb(1, 2, 3));
  OdTcToolPalettePtr palette = readPalette(
      "<Images option=\"0\"><Image cx=\"16\" cy=\"16\" src=\"\\Images\\a16.png\"/>"
      "<Image cx=\"32\" cy=\"32\" src=\"\\Images\\..\\..\\P.vtc\"/></Images>");
  OdTcImage* small = palette->images()->image(1);
  EXPECT_EQ(small->file(), imagesFolder() + "/a16.png");
  EXPECT_EQ(small->src(), "/Images/a16.png");
  EXPECT_EQ(small->getFormat(), 6);
  EXPECT_EQ(small->getBitmap().pixel(0, 0), qRgb(1, 2, 3));
  // A source that climbs out of the palette's folder finds nothing.
  EXPECT_TRUE(palette->images()->image(3)->file().isEmpty());
  EXPECT_TRUE(palette->images()->image(3)->getBitmap().isNull());
}

struct NormalizeCase
{
  const char* name;
  std::vector<std::pair<int, const char*>> given; // class, source ("" for none; "file" for a picture file)
  const char* resource;                           // of the first image
  std::vector<int> classes;                       // after normalizing
  const char* buttonName;                         // of the added big sizes; null: none added
};

class Normalize : public ImageLists, public ::testing::WithParamInterface<NormalizeCase>
{
};

TEST_P(Normalize, fillsTheSizesTheListLacks)
{
  const NormalizeCase& c = GetParam();
  OdTcImageList* list = m_palette->images();
  bool first = true;
  for (const auto& [sizeClass, source] : c.given) {
    OdString src(source);
    if (src == "file") {
      const std::string name = "pic" + std::to_string(sizeClass) + ".png";
      putPicture(name.c_str(), imageSizeOfClass(sizeClass), qRgb(0, 0, 255));
      src = OdString("/Images/") + name.c_str();
    }
    list->addImage(OdTcImageImpl::createNew(sizeClass, src, first ? OdString(c.resource) : OdString()));
    first = false;
  }
  list->normalize();
  EXPECT_EQ(classes(list), c.classes);

  auto images = list->newEnumerator();
  while (OdTcImage* image = images->next()) {
    if (isImageResourceMarker(image->src())) {
      ASSERT_NE(c.buttonName, nullptr);
      EXPECT_EQ(image->src(), kProgramBtnRes);
      EXPECT_EQ(image->resource(), c.buttonName);
      EXPECT_EQ(image->getBitmap().isNull(), OdString(c.buttonName).isEmpty());
    } else if (!image->src().isEmpty()) {
      // Every file picture is in memory under a name of its own, for the
      // next write to put beside the palette.
      EXPECT_EQ(image->src().find(OdString("/Images/Block tool instrument_{")), 0) << image->src().toUtf8();
      EXPECT_TRUE(static_cast<OdTcImageImpl*>(image)->holdsPicture());
      EXPECT_EQ(image->getBitmap().size(), QSize(image->cx(), image->cy()));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Lists, Normalize,
    ::testing::Values(
        NormalizeCase{"empty", {}, "", {3, 4, 1}, ""},
        NormalizeCase{"onlySmall_longResource", {{1, "file"}}, "ACAD_RCDATA_16_Circle", {1, 3, 4}, "circle"},
        NormalizeCase{"onlySmall_plainResource", {{1, "file"}}, "CIRCLE", {1, 3, 4}, ""},
        NormalizeCase{"onlyBig_getsSmallCopy", {{3, "file"}}, "", {3, 1}, nullptr},
        NormalizeCase{"class2Only", {{2, "file"}}, "RCDATA_24_LINE", {2, 3, 4, 1}, "line"},
        NormalizeCase{"bigButtonOnly", {{3, "%ProgramBtnRes%"}}, "ARC", {3, 1}, "ARC"},
        NormalizeCase{"complete", {{1, "file"}, {3, "file"}, {4, "file"}}, "", {1, 3, 4}, nullptr}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(ImageLists, normalize_copiesTheBigPictureDownToTheSmallSize)
{
  putPicture("big32.png", 32, qRgb(200, 100, 0));
  m_palette->images()->addImage(OdTcImageImpl::createNew(3, "/Images/big32.png"));
  m_palette->images()->normalize();
  OdTcImage* small = m_palette->images()->image(1);
  ASSERT_NE(small, nullptr);
  EXPECT_EQ(small->getBitmap().size(), QSize(16, 16));
  EXPECT_EQ(small->getBitmap().pixel(8, 8), qRgb(200, 100, 0));
  EXPECT_NE(small->src(), m_palette->images()->image(3)->src());
}

// A copy never shares its file with the original: a file picture takes a
// name of its own and its picture along; a button picture stays one.
TEST_F(ImageLists, plainClone_ofAFilePicture_takesANameOfItsOwn)
{
  putPicture("chair32.png", 32, qRgb(9, 9, 9));
  OdTcImagePtr original = OdTcImageImpl::createNew(3, "\\Images\\chair32.png", "res");
  m_palette->addImage(original);
  OdTcImagePtr copy = OdTcImagePtr(original->clone());
  EXPECT_EQ(copy->parent(), original->parent());
  EXPECT_NE(copy->src(), original->src());
  EXPECT_EQ(copy->src().find(OdString("/Images/")), 0);
  EXPECT_EQ(copy->resource(), "res");
  EXPECT_EQ(copy->cx(), 32);
  EXPECT_TRUE(copy->file().isEmpty()) << "its own file is made when its palette is written";
  EXPECT_EQ(copy->getBitmap().pixel(0, 0), qRgb(9, 9, 9));
  EXPECT_FALSE(static_cast<OdTcImageImpl*>(original.get())->holdsPicture())
      << "the original still loads at first use";

  OdTcImagePtr button = OdTcImageImpl::createNew(4, kAcadBtnResource, "RCDATA_64_ERASE");
  OdTcImagePtr buttonCopy = OdTcImagePtr(button->clone());
  EXPECT_EQ(buttonCopy->src(), kAcadBtnResource);
  EXPECT_EQ(buttonCopy->getIcon().size(), QSize(64, 64)) << "loaded from the button resource";

  // Two copies of one picture in memory share the picture and not the name.
  OdTcImagePtr inMemory = tst::pictureInMemory(1, "/Images/new16.png");
  OdTcImagePtr second = OdTcImagePtr(inMemory->clone());
  EXPECT_NE(second->src(), inMemory->src());
  EXPECT_TRUE(tst::samePixels(second->getBitmap(), inMemory->getBitmap()));
}

TEST_F(ImageLists, cloneAtSize_scalesThePictureOrTheIcon)
{
  OdTcImagePtr picture = tst::pictureInMemory(4, "/Images/x64.png");
  OdTcImagePtr small = picture->cloneAtSize(2);
  EXPECT_EQ(small->getSizeClass(), 2);
  EXPECT_EQ(small->cx(), 24);
  EXPECT_EQ(small->getBitmap().size(), QSize(24, 24));
  EXPECT_NE(small->src(), picture->src());

  OdTcImagePtr button = OdTcImageImpl::createNew(4, kProgramBtnRes, "TEXT");
  button->getIcon();
  OdTcImagePtr smallButton = button->cloneAtSize(1);
  EXPECT_EQ(smallButton->src(), kProgramBtnRes);
  EXPECT_EQ(smallButton->resource(), "TEXT");
  EXPECT_EQ(smallButton->getIcon().size(), QSize(16, 16));
}

TEST_F(ImageLists, setOption_marksTheItemChanged)
{
  OdTcToolPalettePtr palette = readPalette("<Images option=\"0\"/>");
  EXPECT_FALSE(palette->isModified());
  palette->images()->setOption(3);
  EXPECT_TRUE(palette->isModified());
}

} // namespace
