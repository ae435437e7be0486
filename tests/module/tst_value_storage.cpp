// Catalog locations: the folder walk over a real tree, the user's folder,
// and the shared tables.
#include "tests/module/FakeHost.h"

#include "module/OdTcValueStorageImpl.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tc;

namespace {

class CatalogLocations : public ::testing::Test
{
protected:
  void SetUp() override
  {
    fakehost::state().stdDirs.clear();
    m_storage = OdTcValueStorageImpl::createNew();
  }
  void makeFolders(std::initializer_list<const char*> folders)
  {
    for (const char* f : folders)
      ASSERT_TRUE(QDir(m_root.path()).mkpath(QString::fromUtf8(f)));
  }
  OdString path(const char* sub) const { return OdString(m_root.path() + u'/' + QString::fromUtf8(sub)); }
  void set(const char* key, const OdString& value) { fakehost::state().stdDirs[key] = CRkVariant(value); }

  QTemporaryDir m_root;
  OdTcValueStorageImplPtr m_storage;
};

} // namespace

TEST_F(CatalogLocations, emptyConfiguration_givesEmptyList)
{
  EXPECT_EQ(m_storage->catalogPaths(), "");
  set("ToolPaletteDir", OdString());
  set("CommonDirs", OdString());
  EXPECT_EQ(m_storage->catalogPaths(), "");
}

TEST_F(CatalogLocations, commonFolders_areSearchedForToolPaletteFolders)
{
  // "ToolPalette" inside another, a name in other case, and a folder that
  // only resembles the name.
  makeFolders({"common/a/ToolPalette/ToolPalette", "common/b/TOOLPALETTE", "common/c/ToolPalettes"});
  set("ToolPaletteDir", "/home/u/ToolPalette");
  set("CommonDirs", path("common") + ";" + path("missing") + ";");
  const OdString list = m_storage->catalogPaths();
  EXPECT_TRUE(list.find("/home/u/ToolPalette;") == 0) << list;
  // Every caught folder is closed by ";", a parent before its child.
  const int outer = list.find(path("common/a/ToolPalette;"));
  const int inner = list.find(path("common/a/ToolPalette/ToolPalette;"));
  EXPECT_GE(outer, 0) << list;
  EXPECT_GT(inner, outer) << list;
  EXPECT_GE(list.find(path("common/b/TOOLPALETTE;")), 0) << list;
  EXPECT_LT(list.find("ToolPalettes"), 0) << list;
  EXPECT_EQ(list.getAt(list.getLength() - 1), u';');
}

TEST_F(CatalogLocations, commonFolderNamedToolPalette_isCaughtItself)
{
  makeFolders({"toolpalette"});
  set("CommonDirs", path("toolpalette"));
  // No "ToolPaletteDir": the list begins with the separator.
  EXPECT_EQ(m_storage->catalogPaths(), ";" + path("toolpalette") + ";");
}

TEST_F(CatalogLocations, missingCommonFolder_changesNothing)
{
  set("ToolPaletteDir", "/x/ToolPalette");
  set("CommonDirs", path("nowhere"));
  EXPECT_EQ(m_storage->catalogPaths(), "/x/ToolPalette");
}

TEST_F(CatalogLocations, userFolderAndTables)
{
  fakehost::state().userDataFolder = "/home/u/.local/share/verdani";
  EXPECT_EQ(m_storage->userCatalogFolder(), "/home/u/.local/share/verdani/ToolPalette");
  set("Shx", "/f1;;/f2");
  EXPECT_EQ(m_storage->shxFolders(), (OdArray<OdString>{"/f1", "/f2"}));
  std::int32_t index = 0;
  EXPECT_TRUE(m_storage->gradientIndex("SPHERICAL", index));
  EXPECT_EQ(index, 4);
  EXPECT_FALSE(m_storage->gradientIndex("linear", index)); // host names compare exactly
  OdString text;
  EXPECT_TRUE(m_storage->gradientDisplayName("INVCURVED", text));
  EXPECT_EQ(text, "Inversed-curved");
  EXPECT_TRUE(m_storage->gradientHostName("Cylinder", text));
  EXPECT_EQ(text, "CYLINDER");
  EXPECT_EQ(m_storage->gradientDisplayNames().size(), 9u);
  EXPECT_TRUE(m_storage->isSpecialCommand("appload"));
  EXPECT_FALSE(m_storage->isSpecialCommand("APPLOAD"));
  EXPECT_TRUE(m_storage->toolKindLabel("VisualStyle", text));
  EXPECT_EQ(text, "Visual style");
  EXPECT_EQ(m_storage->foreignResourceFile(), "AcTpCatalogRes.dll");
}
