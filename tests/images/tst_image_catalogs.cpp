// Pictures through catalog and palette files: a save puts new pictures
// beside their palette and lets them go, button pictures never touch a
// file, an export takes its pictures along, and removing a palette deletes
// its tools' pictures and nothing else.
#include "tests/images/ImageTestSupport.h"

#include "tests/support/Unprivileged.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <map>

#include <gtest/gtest.h>

using namespace tc;

namespace {

class ImageCatalogs : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerImageTestClasses(); }
  void SetUp() override { tst::takePrinted(); }

  OdString catalogPath() const { return OdString(m_dir.filePath("ToolPalette/VdTcCatalog.vtc")); }
  QString imagesFolder() const { return m_dir.filePath("ToolPalette/Palettes/Images"); }

  // Every file below the test's folder, relative to it.
  QStringList allFiles() const
  {
    QStringList files;
    QDirIterator it(m_dir.path(), QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (it.hasNext())
      files << QDir(m_dir.path()).relativeFilePath(it.next());
    files.sort();
    return files;
  }
  QStringList pictureFiles() const { return QDir(imagesFolder()).entryList(QDir::Files | QDir::System); }

  // A new palette that is written with its catalog, not at each tool added.
  static OdTcToolPalettePtr newPalette(const OdString& name)
  {
    OdTcToolPalettePtr palette = OdTcToolPaletteImpl::createNew();
    palette->setName(name);
    palette->disableUpdate();
    return palette;
  }
  static OdTcCatalogItemPtr toolWith(const OdString& name, const std::vector<OdTcImagePtr>& images)
  {
    OdTcCatalogItemPtr tool = tst::TstTool::create(name);
    for (const OdTcImagePtr& image : images)
      tool->addImage(image);
    return tool;
  }
  static OdTcCatalogItemPtr firstTool(OdTcToolPalette* palette)
  {
    auto tools = palette->enumerateTools();
    return OdTcCatalogItemPtr(tools->next());
  }
  static std::vector<OdTcImage*> imagesOf(OdTcCatalogItem* item)
  {
    std::vector<OdTcImage*> out;
    auto images = item->images()->newEnumerator();
    while (OdTcImage* image = images->next())
      out.push_back(image);
    return out;
  }
  static bool holds(OdTcImage* image) { return static_cast<OdTcImageImpl*>(image)->holdsPicture(); }

  OdTcCatalogPtr loadCatalog() const
  {
    OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
    EXPECT_TRUE(catalog->load(catalogPath()));
    return catalog;
  }

  QTemporaryDir m_dir;
};

OdString chairSource(int sizeClass)
{
  return "/Images/Chair" + imageSuffixOfClass(sizeClass) + ".png";
}

} // namespace

TEST_F(ImageCatalogs, save_writesNewPicturesBesideThePalette_andLetsThemGo)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  catalog->setName("Office");
  OdTcToolPalettePtr palette = newPalette("Furniture");
  palette->addImage(tst::pictureInMemory(1, "/Images/Furniture16.png", "INSERTRASTER"));
  const std::vector<OdTcImagePtr> pictures = {
      tst::pictureInMemory(1, chairSource(1), "LINE"), tst::pictureInMemory(2, chairSource(2), "ARC"),
      OdTcImageImpl::createNew(3, kProgramBtnRes, "ACAD_RCDATA_32_CIRCLE"),
      OdTcImageImpl::createNew(3, kAcadBtnResource, "TEXT"), tst::pictureInMemory(4, chairSource(4), "PLINE")};
  std::map<OdString, QImage> drawn;
  for (const OdTcImagePtr& image : pictures)
    if (!isImageResourceMarker(image->src()))
      drawn[image->src()] = image->getBitmap();
  palette->addChild(toolWith("Chair", pictures));
  catalog->addChild(palette);
  ASSERT_TRUE(catalog->save(catalogPath()));

  // Class 2 takes the suffix of class 3: "32".
  EXPECT_EQ(pictureFiles(), (QStringList{"Chair16.png", "Chair32.png", "Chair64.png", "Furniture16.png"}));
  EXPECT_EQ(QImage(imagesFolder() + "/Chair32.png").size(), QSize(24, 24));
  for (const OdTcImagePtr& image : pictures) {
    EXPECT_FALSE(holds(image)) << "let go after writing: " << image->src().toUtf8();
    if (!isImageResourceMarker(image->src())) {
      EXPECT_EQ(image->file(), OdString(imagesFolder()) + image->src().mid(7));
    }
  }
  const QStringList written = allFiles();

  // A second save of an unchanged catalog writes no picture again, and the
  // pictures read back as they were drawn.
  ASSERT_TRUE(catalog->save(catalogPath()));
  EXPECT_EQ(allFiles(), written);
  OdTcCatalogPtr again = loadCatalog();
  auto palettes = again->enumeratePalettes();
  OdTcToolPalettePtr read = OdTcToolPalette::cast(palettes->next());
  ASSERT_TRUE(read);
  OdTcCatalogItemPtr tool = firstTool(read);
  ASSERT_TRUE(tool);
  const std::vector<OdTcImage*> back = imagesOf(tool);
  ASSERT_EQ(back.size(), 5u);
  for (OdTcImage* image : back) {
    EXPECT_FALSE(holds(image)) << "nothing is loaded before it is asked for";
    EXPECT_FALSE(image->getBitmap().isNull()) << image->src().toUtf8();
    if (!isImageResourceMarker(image->src())) {
      EXPECT_TRUE(tst::samePixels(image->getBitmap(), drawn[image->src()])) << image->src().toUtf8();
    }
  }
  EXPECT_EQ(back[1]->getSizeClass(), 2);
  EXPECT_EQ(back[1]->cx(), 24);
  EXPECT_EQ(back[2]->resource(), "ACAD_RCDATA_32_CIRCLE");
  EXPECT_TRUE(tst::takePrinted().empty());
}

// Button pictures are no files: nothing is written for them, and nothing
// of that name is deleted, even where a file of that name stands.
TEST_F(ImageCatalogs, buttonPictures_neverWriteNorDeleteAFile)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  OdTcToolPalettePtr palette = newPalette("Buttons");
  OdTcImagePtr drawnButton = OdTcImageImpl::createNew(4, kProgramBtnRes, "ERASE");
  drawnButton->getBitmap(); // a button picture in memory has a bitmap too
  palette->addChild(toolWith("Erase", {OdTcImageImpl::createNew(1, kAcadBtnResource, "ERASE"), drawnButton}));
  catalog->addChild(palette);
  ASSERT_TRUE(catalog->save(catalogPath()));
  EXPECT_TRUE(pictureFiles().isEmpty());

  for (const QString& decoy : {m_dir.filePath("ToolPalette/Palettes/acadbtn.xmx"),
                               m_dir.filePath("ToolPalette/Palettes/%ProgramBtnRes%"),
                               imagesFolder() + "/acadbtn.xmx"}) {
    QFile file(decoy);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  const QStringList before = allFiles();
  OdTcCatalogPtr read = loadCatalog();
  auto palettes = read->enumeratePalettes();
  OdTcToolPalettePtr loaded = OdTcToolPalette::cast(palettes->next());
  ASSERT_TRUE(loaded);
  OdTcCatalogItemPtr tool = firstTool(loaded);
  for (OdTcImage* image : imagesOf(tool))
    image->getBitmap();
  tool->images()->removeAll(true);
  EXPECT_EQ(allFiles(), before);
  ASSERT_TRUE(read->removeChild(loaded->id()));
  QStringList expected = before;
  expected.removeIf([](const QString& f) { return f.endsWith(".vtc") && f.contains("Palettes/Buttons_"); });
  EXPECT_EQ(allFiles(), expected) << "the palette's file goes, and nothing else";
}

TEST_F(ImageCatalogs, paletteRemoval_deletesItsToolsPictures_andNothingElse)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  OdTcToolPalettePtr doomed = newPalette("Doomed");
  doomed->addChild(toolWith("Lamp", {tst::pictureInMemory(1, "/Images/Lamp16.png"),
                                      tst::pictureInMemory(4, "/Images/Lamp64.png")}));
  doomed->addChild(toolWith("Desk", {tst::pictureInMemory(3, "\\Images\\Desk32.png")}));
  OdTcToolPalettePtr kept = newPalette("Kept");
  kept->addChild(toolWith("Sofa", {tst::pictureInMemory(1, "/Images/Sofa16.png")}));
  catalog->addChild(doomed);
  catalog->addChild(kept);
  ASSERT_TRUE(catalog->save(catalogPath()));
  ASSERT_EQ(pictureFiles(), (QStringList{"Desk32.png", "Lamp16.png", "Lamp64.png", "Sofa16.png"}));

  // Beside them: a stranger's file, a file the palette names through a
  // path that leaves its folder, and a link to a file elsewhere.
  QFile(imagesFolder() + "/Notes.png").open(QIODevice::WriteOnly);
  QFile(m_dir.filePath("ToolPalette/outside.png")).open(QIODevice::WriteOnly);
  QFile(m_dir.filePath("target.png")).open(QIODevice::WriteOnly);
  ASSERT_TRUE(QFile::link(m_dir.filePath("target.png"), imagesFolder() + "/Linked16.png"));
  OdTcCatalogPtr read = loadCatalog();
  OdTcToolPalette* palette = read->findPaletteById(doomed->id());
  ASSERT_NE(palette, nullptr);
  OdTcCatalogItemPtr lamp = firstTool(palette);
  lamp->addImage(OdTcImageImpl::createNew(3, "\\Images\\..\\..\\outside.png"));
  lamp->addImage(OdTcImageImpl::createNew(2, "\\Images\\Linked16.png"));

  ASSERT_TRUE(read->removeChild(doomed->id()));
  EXPECT_EQ(pictureFiles(), (QStringList{"Notes.png", "Sofa16.png"}));
  EXPECT_TRUE(QFile::exists(m_dir.filePath("ToolPalette/outside.png")));
  EXPECT_TRUE(QFile::exists(m_dir.filePath("target.png"))) << "the link goes, never what it points to";
  EXPECT_TRUE(tst::takePrinted().empty());
}

// An exported palette takes its pictures into a folder named after the
// export file; read back as a palette of another program, its pictures are
// found there, and a catalog that takes it in writes them under names of
// its own.
TEST_F(ImageCatalogs, export_takesThePicturesAlong_andAnImportWritesThemAnew)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  OdTcToolPalettePtr palette = newPalette("Walls");
  const OdTcImagePtr picture = tst::pictureInMemory(3, "/Images/Brick32.png", "FASTHATCHCMD");
  const QImage drawn = picture->getBitmap();
  palette->addChild(toolWith("Brick", {picture, OdTcImageImpl::createNew(4, kProgramBtnRes, "FASTHATCHCMD")}));
  catalog->addChild(palette);
  ASSERT_TRUE(catalog->save(catalogPath()));
  const QStringList catalogFiles = allFiles();

  const QString exported = m_dir.filePath("out/Walls.xtp");
  ASSERT_TRUE(QDir().mkpath(m_dir.filePath("out")));
  palette->setExporting(true);
  ASSERT_TRUE(palette->saveCopy(OdString(exported)));
  palette->setExporting(false);
  EXPECT_TRUE(QFile::exists(m_dir.filePath("out/Walls/Images/Brick32.png")));
  EXPECT_EQ(QDir(m_dir.filePath("out/Walls/Images")).entryList(QDir::Files), QStringList{"Brick32.png"});
  EXPECT_EQ(picture->file(), OdString(imagesFolder() + "/Brick32.png")) << "the palette's own picture stays its own";

  OdTcToolPalettePtr foreign = OdTcToolPaletteImpl::createNew();
  ASSERT_TRUE(foreign->load(OdString(exported)));
  OdTcCatalogItemPtr brick = firstTool(foreign);
  ASSERT_TRUE(brick);
  EXPECT_EQ(brick->image(3)->file(), OdString(m_dir.filePath("out/Walls/Images/Brick32.png")));
  brick->ensureImages();
  ASSERT_NE(brick->image(1), nullptr) << "the small size made from the big one";

  OdTcCatalogPtr target = loadCatalog();
  foreign->setId("{IMPORTED}");
  foreign->paletteDatabase()->setPath(OdString());
  target->addChild(foreign);
  foreign->setName("Walls again");
  ASSERT_TRUE(target->save(catalogPath()));
  const QStringList pictures = pictureFiles();
  ASSERT_EQ(pictures.size(), 3) << pictures.join(", ").toStdString();
  for (OdTcImage* image : {brick->image(3), brick->image(1)}) {
    EXPECT_TRUE(pictures.contains(QFileInfo(image->file().qstring()).fileName())) << image->src().toUtf8();
    EXPECT_TRUE(image->src().find(OdString("/Images/Block tool instrument_")) == 0);
  }
  EXPECT_TRUE(tst::samePixels(QImage(brick->image(3)->file().qstring()), drawn));
}

// A picture that cannot be written stays in memory, and the next save
// writes it.
TEST_F(ImageCatalogs, unwritableImagesFolder_keepsThePictureForTheNextSave)
{
  if (tst::reranUnprivileged())
    return;
  QTemporaryDir dir;
  const OdString path(dir.filePath("ToolPalette/VdTcCatalog.vtc"));
  const QString images = dir.filePath("ToolPalette/Palettes/Images");
  ASSERT_TRUE(QDir().mkpath(images));
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  OdTcToolPalettePtr palette = newPalette("Locked");
  OdTcImagePtr picture = tst::pictureInMemory(1, "/Images/Key16.png");
  palette->addChild(toolWith("Key", {picture}));
  catalog->addChild(palette);
  ASSERT_TRUE(QFile::setPermissions(images, QFile::ReadOwner | QFile::ExeOwner));
  ASSERT_TRUE(catalog->save(path));
  EXPECT_FALSE(QFile::exists(images + "/Key16.png"));
  EXPECT_TRUE(holds(picture));

  ASSERT_TRUE(QFile::setPermissions(images, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  palette->setModified();
  ASSERT_TRUE(catalog->save(path));
  EXPECT_TRUE(QFile::exists(images + "/Key16.png"));
  EXPECT_FALSE(holds(picture));
}
