// The palette manager against real folders: start-up with the configured
// folders, refreshes after configuration changes, look-ups.
#include "tests/module/ManagerFixture.h"
#include "tests/support/Unprivileged.h"

#include "model/OdTcToolImpl.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace tc;

namespace {
class PaletteManager : public tst::ManagerFixture
{
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
  if (tst::reranUnprivileged())
    return;
  const OdString readOnly = folder("ro");
  QFile::setPermissions(readOnly.qstring(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
  setList(readOnly);
  start();
  EXPECT_NE(fakehost::state().printed.find("Specified ToolPalette catalog path: " + readOnly.toUtf8() +
                                           " is ReadOnly. Cannot create catalog  and suppor files"),
            std::string::npos)
      << fakehost::state().printed;
  EXPECT_TRUE(catalogNames().empty());
  QFile::setPermissions(readOnly.qstring(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
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
