// Catalog and palette files: a whole tree to a folder and back, the names
// of palette files, removal, references, and what a failed save leaves.
#include "tests/model/ModelClasses.h"

#include "model/OdTcCatalogImpl.h"

#include "hostsdk/core/HostCore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <csignal>

#include <sys/resource.h>

#include <gtest/gtest.h>

using namespace tc;

namespace {

class CatalogFiles : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerModelClasses(); }

  OdString file(const char* name) const { return OdString(m_dir.filePath(QString::fromUtf8(name))); }

  static OdTcToolPalettePtr newPalette(const OdString& name)
  {
    OdTcToolPalettePtr p = OdTcToolPaletteImpl::createNew();
    p->setName(name);
    return p;
  }
  static OdTcGroupPtr newGroup(const OdString& name)
  {
    OdTcGroupPtr g = OdTcGroupImpl::createNew();
    g->setName(name);
    return g;
  }
  static std::string readAll(const OdString& path)
  {
    QFile f(path.qstring());
    f.open(QIODevice::ReadOnly);
    return f.readAll().toStdString();
  }

  // The catalog as the palette window shows it, one line per item.
  static void describe(OdTcCatalogItem* item, int depth, std::string& out)
  {
    auto children = item->children();
    out += std::string(depth * 2, ' ') + item->displayName().toUtf8() + "\n";
    if (children)
      while (OdTcCatalogItem* child = children->next())
        describe(child, depth + 1, out);
  }
  static std::string describe(OdTcCatalog* catalog)
  {
    std::string out = catalog->displayName().toUtf8() + "\n";
    auto palettes = catalog->enumeratePalettes();
    while (OdTcCatalogItem* p = palettes->next())
      out += "  palette " + p->displayName().toUtf8() + "\n";
    auto groups = catalog->enumerateGroups();
    while (OdTcCatalogItem* g = groups->next())
      describe(g, 1, out);
    return out;
  }

  QTemporaryDir m_dir;
};

} // namespace

TEST_F(CatalogFiles, wholeTree_roundTripsThroughItsFolder)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  catalog->setName("Sample");
  const OdString path = file("VdTcCatalog.vtc");
  ASSERT_TRUE(catalog->save(path)); // the folder of the catalog is now known

  OdTcToolPalettePtr walls = newPalette("Walls");
  OdTcToolPalettePtr doors = newPalette("Doors");
  OdTcToolPalettePtr loose = newPalette("Loose");
  for (const auto& p : {walls, doors, loose})
    catalog->addChild(p);
  OdTcGroupPtr main = newGroup("Main");
  OdTcGroupPtr nested = newGroup("Nested");
  catalog->addChild(main);
  main->addChild(walls);
  main->addChild(nested);
  nested->addChild(doors);
  catalog->setItemOrder(OdArray<OdString>{main->id(), loose->id()});
  walls->setToolOrder(OdArray<OdString>{"t1", "t2"});
  ASSERT_TRUE(catalog->save(path));

  const std::string xml = readAll(path);
  EXPECT_EQ(xml.find('\n'), std::string::npos);
  EXPECT_EQ(xml.rfind("<Catalog Revision=\"8.0\" option=\"0\" FileRevision=\"8.0\">", 0), 0u) << xml;
  EXPECT_NE(xml.find("<Url href=\"./Palettes/Walls_" + walls->id().toUtf8() + ".vtc\" />"), std::string::npos) << xml;
  EXPECT_TRUE(QFileInfo::exists(m_dir.filePath(QStringLiteral("Palettes/Images"))));

  OdTcCatalogPtr back = OdTcCatalogImpl::createNew();
  ASSERT_TRUE(back->load(path));
  EXPECT_EQ(describe(back), describe(catalog));
  EXPECT_EQ(describe(back), "Sample\n  palette Walls\n  palette Doors\n  palette Loose\n"
                            "  Main\n    Walls\n    Nested\n      Doors\n");
  // Palettes referred to at any depth are marked at load.
  EXPECT_TRUE(back->findPaletteById(doors->id())->isGrouped());
  EXPECT_FALSE(back->findPaletteById(loose->id())->isGrouped());
  EXPECT_EQ(back->id(), catalog->id());
  EXPECT_EQ(back->itemOrder(), catalog->itemOrder());
  OdTcToolPalette* wallsBack = back->findPaletteById(walls->id());
  ASSERT_NE(wallsBack, nullptr);
  EXPECT_EQ(wallsBack->toolOrder(), (OdArray<OdString>{"t1", "t2"}));
  EXPECT_EQ(wallsBack->sortType(), 2);
  EXPECT_EQ(wallsBack->catalog(), back.get());
  // A second save of what was read writes the same bytes.
  ASSERT_TRUE(back->save(path + ".again"));
  EXPECT_EQ(readAll(path + ".again"), xml);
}

TEST_F(CatalogFiles, missingPaletteFile_keepsItsStub)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  const OdString path = file("VdTcCatalog.vtc");
  catalog->save(path);
  OdTcToolPalettePtr gone = newPalette("Gone");
  catalog->addChild(gone);
  catalog->save(path);
  ASSERT_TRUE(QFile::remove(gone->path().qstring()));

  OdTcCatalogPtr back = OdTcCatalogImpl::createNew();
  ASSERT_TRUE(back->load(path));
  EXPECT_EQ(back->findPaletteById(gone->id()), nullptr);
  EXPECT_EQ(back->openPalette(gone->id()), nullptr);
  back->save(path);
  // The stub is written as it was, so the palette comes back with its file.
  EXPECT_NE(readAll(path).find(gone->id().toUtf8()), std::string::npos);
}

TEST_F(CatalogFiles, paletteFileName_keptAfterRename)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  const OdString path = file("VdTcCatalog.vtc");
  catalog->save(path);
  OdTcToolPalettePtr p = newPalette("Walls");
  p->setId("X");
  catalog->addChild(p);
  catalog->save(path);
  EXPECT_EQ(p->path(), file("Palettes/Walls_X.vtc"));
  p->setName("Partitions");
  catalog->save(path);
  EXPECT_EQ(p->path(), file("Palettes/Walls_X.vtc")); // the stub's href is used
  OdTcCatalogPtr back = OdTcCatalogImpl::createNew();
  back->load(path);
  ASSERT_NE(back->findPaletteById("X"), nullptr);
  EXPECT_EQ(back->findPaletteById("X")->displayName(), "Partitions");
  auto loaders = back->enumerateLoaders();
  EXPECT_EQ(loaders->next()->displayName(), "Partitions"); // the stub repeats the name
}

TEST_F(CatalogFiles, removingPalette_deletesFileAndReferences)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  const OdString path = file("VdTcCatalog.vtc");
  catalog->save(path);
  OdTcToolPalettePtr p = newPalette("Walls");
  catalog->addChild(p);
  OdTcGroupPtr g = newGroup("G");
  catalog->addChild(g);
  g->addChild(p);
  catalog->setItemOrder(OdArray<OdString>{p->id(), g->id()});
  catalog->save(path);
  const OdString paletteFile = p->path();
  ASSERT_TRUE(Fio_IsFileExist(paletteFile));

  EXPECT_TRUE(catalog->removeChild(p->id()));
  EXPECT_FALSE(QFileInfo::exists(paletteFile.qstring())); // at once, without a save
  EXPECT_TRUE(p->isRemoved());
  EXPECT_FALSE(catalog->isGrouped(p->id()));
  EXPECT_EQ(catalog->itemOrder(), OdArray<OdString>{g->id()});
  EXPECT_FALSE(catalog->removeChild("unknown"));
  catalog->save(path);
  EXPECT_EQ(readAll(path).find(p->id().toUtf8()), std::string::npos);
}

TEST_F(CatalogFiles, ungroup_walksOnlyTheFirstNestedGroup)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  OdTcToolPalettePtr p = newPalette("P");
  catalog->addChild(p);
  OdTcGroupPtr top = newGroup("Top");
  OdTcGroupPtr first = newGroup("First");
  OdTcGroupPtr second = newGroup("Second");
  catalog->addChild(top);
  top->addChild(p);
  top->addChild(first);
  top->addChild(second);
  first->addChild(p);
  second->addChild(p);
  EXPECT_TRUE(catalog->ungroupPalette(p->id()));
  EXPECT_FALSE(top->hasChild(p->id()));
  EXPECT_FALSE(first->hasChild(p->id()));
  EXPECT_TRUE(second->hasChild(p->id())); // the second sub-group is not walked
  EXPECT_TRUE(catalog->isGrouped(p->id()));
}

TEST_F(CatalogFiles, referencesToMissingPalettes_droppedAtSave)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  const OdString path = file("VdTcCatalog.vtc");
  catalog->save(path);
  OdTcGroupPtr g = newGroup("G");
  catalog->addChild(g);
  g->addChild(OdTcPaletteSoftRefImpl::createNew("nobody"));
  EXPECT_EQ(g->activePaletteIndex(), -1);
  catalog->save(path);
  const std::string xml = readAll(path);
  EXPECT_NE(xml.find("<ActivePaletteIndex>-1</ActivePaletteIndex><Contents />"), std::string::npos) << xml;
  EXPECT_EQ(xml.find("nobody"), std::string::npos);
}

TEST_F(CatalogFiles, emptyItemName_losesTimeOnNextLoad)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  const OdString path = file("VdTcCatalog.vtc");
  OdTcGroupPtr g = newGroup("");
  catalog->addChild(g);
  static_cast<OdTcGroupImpl*>(g.get())->properties()->setDates("Mon Jan  1 00:00:00 2001", "Mon Jan  1 00:00:00 2001");
  catalog->save(path);
  OdTcCatalogPtr back = OdTcCatalogImpl::createNew();
  back->load(path);
  auto groups = back->enumerateGroups();
  auto* gb = static_cast<OdTcGroupImpl*>(groups->next());
  ASSERT_NE(gb, nullptr);
  EXPECT_NE(gb->properties()->created(), "Mon Jan  1 00:00:00 2001");
}

TEST_F(CatalogFiles, failedSave_leavesTheOldFileAndNoTemporaries)
{
  OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
  catalog->setName("Kept");
  const OdString path = file("VdTcCatalog.vtc");
  ASSERT_TRUE(catalog->save(path));
  const std::string before = readAll(path);

  // Writes past a few bytes fail, for the super-user too, whom permissions
  // would not stop: the save fails in the middle of writing.
  catalog->setName("A much longer name that no longer fits");
  struct rlimit old {};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
  auto oldSignal = std::signal(SIGXFSZ, SIG_IGN);
  struct rlimit tiny = old;
  tiny.rlim_cur = 64;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tiny), 0);
  const bool saved = catalog->save(path);
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, oldSignal);

  EXPECT_FALSE(saved);
  EXPECT_EQ(readAll(path), before);
  const QStringList left = QDir(m_dir.path()).entryList(QDir::Files | QDir::Hidden);
  EXPECT_EQ(left, QStringList{QStringLiteral("VdTcCatalog.vtc")});
  // A folder in the way of the rename fails too, and leaves nothing behind.
  ASSERT_TRUE(QDir(m_dir.path()).mkdir(QStringLiteral("blocked.vtc")));
  EXPECT_FALSE(catalog->save(file("blocked.vtc")));
  EXPECT_EQ(QDir(m_dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("VdTcCatalog.vtc")});
}

TEST_F(CatalogFiles, paletteRecords_defaultsAndOddValues)
{
  OdTcToolPalettePtr p = OdTcToolPaletteImpl::createNew();
  EXPECT_EQ(p->paletteUi()->previewSize(), 1);
  EXPECT_EQ(p->sortType(), 0);
  EXPECT_EQ(p->previewStyle(), 0);
  const OdString path = file("p.vtc");
  QFile f(path.qstring());
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("<Palette><ItemID idValue=\"P1\"/><Properties><ItemName>Read</ItemName></Properties>"
          "<Tools/><PaletteUI><SortType>abc</SortType><PreviewSize>4</PreviewSize><CAdUiPalette><X/></CAdUiPalette>"
          "</PaletteUI><PaletteStyle>7</PaletteStyle><Unknown a=\"1\"/></Palette>");
  f.close();
  ASSERT_TRUE(p->load(path));
  EXPECT_EQ(p->id(), "P1");
  EXPECT_EQ(p->displayName(), "Read");
  EXPECT_EQ(p->sortType(), 0);
  EXPECT_EQ(p->paletteUi()->previewSize(), 4);
  EXPECT_EQ(p->paletteDatabase()->paletteStyle(), 7);
  EXPECT_EQ(p->path(), path);
  // saveCopy writes elsewhere and keeps the path.
  ASSERT_TRUE(p->saveCopy(file("copy.vtc")));
  EXPECT_EQ(p->path(), path);
  EXPECT_EQ(readAll(file("copy.vtc")).find("PaletteStyle"), std::string::npos); // read, never written
  EXPECT_THROW(p->setPath("x"), OdError);
  EXPECT_FALSE(OdTcToolPaletteImpl::createNew()->load(file("missing.vtc")));
}

struct SortRow
{
  std::int32_t sortType;
  OdArray<OdString> storedOrder;
  std::vector<std::string> expected;
};

void PrintTo(const SortRow& row, std::ostream* os)
{
  *os << "sort type " << row.sortType;
}

class PaletteSort : public ::testing::TestWithParam<SortRow>
{
protected:
  static void SetUpTestSuite() { tst::registerModelClasses(); }
};

TEST_P(PaletteSort, toolsComeInTheOrderOfTheSortType)
{
  OdTcToolPalettePtr palette = OdTcToolPaletteImpl::createNew();
  palette->disableUpdate();
  // Any item stands for a tool here: the tools' classes come later.
  for (const char* name : {"b", "A", "c", "a"}) {
    OdTcCatalogItemPtr tool = OdTcToolPaletteImpl::createNew();
    tool->setName(name);
    tool->setId(OdString("id-") + name);
    palette->addChild(tool);
  }
  if (!GetParam().storedOrder.isEmpty())
    palette->setToolOrder(GetParam().storedOrder);
  palette->setSortType(GetParam().sortType);
  std::vector<std::string> names;
  for (const OdTcCatalogItemPtr& tool : palette->sortedTools())
    names.push_back(tool->displayName().toUtf8());
  EXPECT_EQ(names, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    rows, PaletteSort,
    ::testing::Values(SortRow{0, {}, {"A", "a", "b", "c"}},          // by name, ignoring case, ties kept
                      SortRow{1, {}, {"b", "A", "c", "a"}},          // by type: none has a kind yet
                      SortRow{2, {"id-c", "id-b"}, {"c", "b", "A", "a"}}, // stored, the rest last
                      SortRow{2, {}, {"b", "A", "c", "a"}}));
