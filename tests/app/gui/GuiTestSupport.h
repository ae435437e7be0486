// Shared helpers of the desktop program's tests: drawings made in code, and
// a started host with its main window in throw-away user folders, driven
// by events.
#pragma once

#include "app/core/HostApp.h"
#include "app/core/HostDocumentManager.h"
#include "app/gui/GuiOptions.h"
#include "app/gui/MainWindow.h"
#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "tests/WidgetTestEnvironment.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <deque>
#include <functional>

namespace guitest {

inline OdDbObjectId addRecord(OdDbObjectId tableId, OdDbSymbolTableRecord* record, const char* name)
{
  record->setName(name);
  return OdDbSymbolTable::cast(tableId.openObject(OdDb::kForWrite))->add(record);
}

inline OdDbBlockTableRecordPtr modelSpace(OdDbDatabase* db)
{
  return OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite));
}

inline OdDbLinePtr addLine(OdDbBlockTableRecord* block, double x0, double y0, double x1, double y1)
{
  OdDbLinePtr line = OdDbLine::createObject();
  line->setStartPoint(OdGePoint3d(x0, y0, 0));
  line->setEndPoint(OdGePoint3d(x1, y1, 0));
  block->appendOdDbEntity(line);
  return line;
}

inline OdDbLayerTableRecordPtr addLayer(OdDbDatabase* db, const char* name, int colorIndex)
{
  OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
  addRecord(db->getLayerTableId(), layer, name);
  OdCmColor c;
  c.setColorIndex(std::int16_t(colorIndex));
  layer->setColor(c);
  return layer;
}

// Runs steps one after the other from the event loop. A step that starts a
// command waiting for input returns only when the command has it; the
// steps after it must already be on their way, so each step books the next
// before it runs.
class Player : public QObject
{
public:
  void play(std::deque<std::function<void()>> steps)
  {
    m_steps = std::move(steps);
    QTimer::singleShot(0, this, [this] { next(); });
  }
  bool done() const { return m_steps.empty() && !m_running; }

private:
  void next()
  {
    if (m_steps.empty())
      return;
    auto step = std::move(m_steps.front());
    m_steps.pop_front();
    QTimer::singleShot(5, this, [this] { next(); });
    m_running = true;
    step();
    m_running = false;
  }
  std::deque<std::function<void()>> m_steps;
  bool m_running = false;
};

// Runs `step` on the modal window that opens within the next two seconds.
inline void onNextModal(std::function<void(QWidget*)> step, int attempts = 200)
{
  QTimer::singleShot(attempts == 200 ? 0 : 10, [step, attempts] {
    if (QWidget* modal = QApplication::activeModalWidget())
      step(modal);
    else if (attempts > 0)
      onNextModal(step, attempts - 1);
  });
}

// Processes events until `condition` holds or the time is up.
inline bool waitFor(const std::function<bool()>& condition, int ms = 5000)
{
  QElapsedTimer t;
  t.start();
  while (!condition() && t.elapsed() < ms)
    QApplication::processEvents(QEventLoop::AllEvents, 20);
  return condition();
}

// The host started with its main window, in folders of its own.
class WindowFixture : public ::testing::Test
{
protected:
  void SetUp() override
  {
    ASSERT_TRUE(m_home.isValid());
    qputenv("HOME", m_home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (m_home.path() + "/config").toUtf8());
    qputenv("XDG_DATA_HOME", (m_home.path() + "/data").toUtf8());
    m_window = new MainWindow(HostApp::instance());
    m_window->resize(1000, 700);
    m_window->show();
    // No shared catalog of the machine (the host's samples) offers tools here.
    m_options.settings.insert(m_options.settings.begin(), OdString("CommonDirs=" + m_home.path() + "/common"));
    m_window->startHost(m_options);
  }
  void TearDown() override
  {
    m_window->stopHost();
    delete m_window;
    m_window = nullptr;
  }
  HostApp& app() { return HostApp::instance(); }
  OdDbDatabase* drawing() { return app().documents().current() ? app().documents().current()->database() : nullptr; }
  std::size_t entityCount()
  {
    std::size_t n = 0;
    if (OdDbDatabase* db = drawing())
      for (const OdDbObjectId& id : modelSpace(db)->entityIds())
        n += id.isValid() && !id.isErased() ? 1 : 0;
    return n;
  }

  QTemporaryDir m_home;
  GuiOptions m_options;
  MainWindow* m_window = nullptr;
  Player m_player;
};

} // namespace guitest
