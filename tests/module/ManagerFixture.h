// A palette manager over real folders and a fake host, with what the
// module sets up for it when it starts; each test starts afresh and leaves
// nothing registered behind.
#pragma once

#include "tests/module/FakeHost.h"

#include "module/OdTcPaletteManagerImpl.h"
#include "module/TcClassTable.h"

#include "images/TcImageClasses.h"
#include "persist/OdTcTagTable.h"
#include "persist/TcFileStore.h"
#include "persist/TcModelTags.h"

#include <QDir>
#include <QTemporaryDir>

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tst {

using namespace tc;

struct RecordingReactor : OdTcPaletteManagerReactor
{
  std::vector<std::string> calls;
  void catalogAdded(OdTcCatalog* c) override { calls.push_back("added " + c->displayName().toUtf8()); }
  void catalogRemoved(OdTcCatalog* c) override { calls.push_back("removed " + c->displayName().toUtf8()); }
  void catalogsChanged() override { calls.push_back("changed"); }
};

class ManagerFixture : public ::testing::Test
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


} // namespace tst
