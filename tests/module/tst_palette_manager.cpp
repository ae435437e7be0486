// The palette manager against real folders: start-up with the configured
// folders, refreshes after configuration changes, look-ups.
#include "tests/module/FakeHost.h"

#include "module/OdTcPaletteManagerImpl.h"
#include "module/TcClassTable.h"

#include "images/TcImageClasses.h"
#include "model/OdTcToolImpl.h"
#include "persist/OdTcTagTable.h"
#include "persist/TcFileStore.h"
#include "persist/TcModelTags.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <unistd.h>

#include <gtest/gtest.h>

using namespace tc;

namespace {

struct RecordingReactor : OdTcPaletteManagerReactor
{
  std::vector<std::string> calls;
  void catalogAdded(OdTcCatalog* c) override { calls.push_back("added " + c->displayName().toUtf8()); }
  void catalogRemoved(OdTcCatalog* c) override { calls.push_back("removed " + c->displayName().toUtf8()); }
  void catalogsChanged() override { calls.push_back("changed"); }
};

class PaletteManager : public ::testing::Test
{
protected:
  void SetUp() override
  {
    fakehost::reset();
    fakehost::state().userDataFolder = OdString(m_dir.filePath(QStringLiteral("data")));
    m_classes = std::make_unique<TcClassRegistration>();
    registerModelTags(OdTcTagTable::instance());
    registerImageClasses(OdTcTagTable::instance());
    odtcSetFileStore(&m_store);
    m_storage = OdTcValueStorageImpl::createNew();
  }
  void TearDown() override
  {
    m_manager = nullptr;
    m_storage = nullptr;
    odtcSetFileStore(nullptr);
    OdTcTagTable::instance().clear();
    m_classes.reset();
  }

  OdString userFolder() const { return OdString(m_dir.filePath(QStringLiteral("data/ToolPalette"))); }
  OdString folder(const char* name)
  {
    QDir(m_dir.path()).mkpath(QString::fromUtf8(name));
    return OdString(m_dir.filePath(QString::fromUtf8(name)));
  }
  void setList(const OdString& list) { fakehost::state().stdDirs["ToolPaletteDir"] = CRkVariant(list); }
  OdTcPaletteManagerImpl* start()
  {
    m_manager = OdTcPaletteManagerImpl::createNew(m_storage);
    m_manager->addReactor(&m_reactor);
    m_manager->loadCatalogs();
    return static_cast<OdTcPaletteManagerImpl*>(m_manager.get());
  }
  std::vector<std::string> catalogNames()
  {
    std::vector<std::string> names;
    auto e = m_manager->catalogs();
    OdString path;
    OdTcCatalog* c = nullptr;
    while (e->next(path, c))
      names.push_back(c->displayName().toUtf8());
    return names;
  }

  std::unique_ptr<TcClassRegistration> m_classes;
  TcFileStore m_store;
  OdTcValueStorageImplPtr m_storage;
  QTemporaryDir m_dir;
  OdTcPaletteManagerPtr m_manager;
  RecordingReactor m_reactor;
};

} // namespace

TEST_F(PaletteManager, emptyPathList_printsMessageAndOpensNothing)
{
  start();
  EXPECT_NE(fakehost::state().printed.find("Cannot find Tool Palettes catalog directory: ''"), std::string::npos)
      << fakehost::state().printed;
  EXPECT_TRUE(catalogNames().empty());
  EXPECT_EQ(m_manager->currentCatalog(), nullptr);
}

TEST_F(PaletteManager, defaultFolderWithoutFile_catalogInMemoryUntilFirstSave)
{
  setList(userFolder());
  start();
  const QString file = userFolder().qstring() + QStringLiteral("/VdTcCatalog.vtc");
  // The constructor made the user's folders.
  EXPECT_TRUE(QFileInfo(userFolder().qstring() + QStringLiteral("/Palettes/Images")).isDir());
  EXPECT_FALSE(QFileInfo::exists(file));
  ASSERT_EQ(catalogNames(), std::vector<std::string>{"Tool Palettes"});
  OdTcCatalog* current = m_manager->currentCatalog();
  ASSERT_NE(current, nullptr);
  EXPECT_TRUE(current->isDefaultCatalog());
  EXPECT_FALSE(current->isLocked());
  m_manager->saveCatalogs();
  EXPECT_TRUE(QFileInfo::exists(file));
  // Next start reads it back as the same catalog.
  const OdString id = current->id();
  start();
  EXPECT_EQ(m_manager->currentCatalog()->id(), id);
}

TEST_F(PaletteManager, newWritableFolder_getsCatalogNamedAfterIt)
{
  const OdString shared = folder("Shared Palettes");
  setList(userFolder() + ";" + shared + ";");
  start();
  EXPECT_TRUE(QFileInfo::exists(shared.qstring() + QStringLiteral("/VdTcCatalog.vtc")));
  const auto names = catalogNames();
  EXPECT_NE(std::find(names.begin(), names.end(), "Shared Palettes"), names.end());
  EXPECT_TRUE(m_manager->currentCatalog()->isDefaultCatalog()); // the user's own stays current
}

TEST_F(PaletteManager, readOnlyFolder_isReportedAndSkipped)
{
  // Root writes anywhere a permission bit would forbid, so the read-only
  // folder is one of the kernel's own then.
  OdString readOnly = folder("ro");
  if (geteuid() == 0)
    readOnly = "/proc/sys";
  else
    QFile::setPermissions(readOnly.qstring(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
  setList(readOnly);
  start();
  EXPECT_NE(fakehost::state().printed.find("Specified ToolPalette catalog path: " + readOnly.toUtf8() +
                                           " is ReadOnly. Cannot create catalog  and suppor files"),
            std::string::npos)
      << fakehost::state().printed;
  EXPECT_TRUE(catalogNames().empty());
  QFile::setPermissions(m_dir.filePath(QStringLiteral("ro")), QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                                   QFileDevice::ExeOwner);
}

TEST_F(PaletteManager, refresh_followsAddedAndRemovedFolders)
{
  const OdString a = folder("A");
  setList(userFolder() + ";" + a + ";");
  start();
  m_reactor.calls.clear();

  m_manager->refreshCatalogs(); // nothing changed
  EXPECT_TRUE(m_reactor.calls.empty());

  const OdString b = folder("B");
  setList(userFolder() + ";" + a + ";" + b + ";");
  m_manager->refreshCatalogs();
  EXPECT_EQ(m_reactor.calls, (std::vector<std::string>{"added B", "changed"}));

  m_reactor.calls.clear();
  setList(userFolder() + ";" + b + ";");
  m_manager->refreshCatalogs();
  EXPECT_EQ(m_reactor.calls, (std::vector<std::string>{"removed A", "changed"}));
  EXPECT_TRUE(QFileInfo::exists(a.qstring() + QStringLiteral("/VdTcCatalog.vtc"))); // the file stays
}

TEST_F(PaletteManager, refresh_entryWithTrailingSeparatorOpensSecondTime)
{
  const OdString a = folder("A");
  setList(a + "/;" + userFolder());
  start();
  m_reactor.calls.clear();
  m_manager->refreshCatalogs();
  // loadCatalogs keyed "A/VdTcCatalog.vtc", whose folder "A" is no entry
  // "A/": that catalog closes, and opens again under "A//VdTcCatalog.vtc".
  std::vector<std::string> keys;
  auto e = m_manager->catalogs();
  OdString path;
  OdTcCatalog* c = nullptr;
  while (e->next(path, c))
    keys.push_back(path.toUtf8());
  EXPECT_NE(std::find(keys.begin(), keys.end(), a.toUtf8() + "//VdTcCatalog.vtc"), keys.end());
  EXPECT_EQ(m_reactor.calls, (std::vector<std::string>{"removed A", "added A", "changed"}));
}

TEST_F(PaletteManager, optionChange_refreshesThroughTheHost)
{
  setList(userFolder());
  start();
  const OdString c = folder("C");
  setList(userFolder() + ";" + c + ";");
  fakehost::changeOption("ToolPaletteDir");
  const auto names = catalogNames();
  EXPECT_NE(std::find(names.begin(), names.end(), "C"), names.end());
}

TEST_F(PaletteManager, removeCatalog_ignoresCase_findToolDoesNot)
{
  setList(userFolder());
  start();
  OdTcCatalog* current = m_manager->currentCatalog();
  OdTcToolPalettePtr palette = OdTcToolPaletteImpl::createNew();
  current->addChild(palette);
  OdTcCatalogItemPtr notATool = OdTcToolPaletteImpl::createNew();
  notATool->setId("item-id");
  palette->paletteDatabase()->addChild(notATool);
  OdTcToolPtr tool = OdTcToolImpl::createNew();
  tool->setId("tool-id");
  palette->paletteDatabase()->addChild(tool);
  EXPECT_TRUE(m_manager->hasTool("tool-id"));
  EXPECT_EQ(m_manager->findTool("tool-id"), tool.get());
  EXPECT_EQ(m_manager->findTool("TOOL-ID"), nullptr);
  EXPECT_FALSE(m_manager->hasTool("item-id"));

  m_reactor.calls.clear();
  EXPECT_FALSE(m_manager->removeCatalog("unknown"));
  EXPECT_TRUE(m_reactor.calls.empty());
  current->setId("abc-DEF");
  EXPECT_TRUE(m_manager->removeCatalog("ABC-def"));
  EXPECT_EQ(m_reactor.calls, std::vector<std::string>{"removed Tool Palettes"});
  EXPECT_TRUE(catalogNames().empty());
  EXPECT_EQ(m_manager->currentCatalog(), current); // left as it was, and still alive
}

TEST_F(PaletteManager, unreadableCatalogFile_isKeptAside)
{
  const OdString shared = folder("Broken");
  QFile f(shared.qstring() + QStringLiteral("/VdTcCatalog.vtc"));
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("not a catalog");
  f.close();
  setList(shared);
  start();
  EXPECT_EQ(catalogNames(), std::vector<std::string>{"Tool Palettes"});
  EXPECT_TRUE(QFileInfo::exists(shared.qstring() + QStringLiteral("/VdTcCatalog.vtc.unreadable")));
}

TEST_F(PaletteManager, splitPathList_keepsOneEmptyEntryOnlyWithoutSeparator)
{
  EXPECT_EQ(OdTcPaletteManagerImpl::splitPathList(""), OdArray<OdString>{""});
  EXPECT_EQ(OdTcPaletteManagerImpl::splitPathList(";a;;b;"), (OdArray<OdString>{"a", "b"}));
}
