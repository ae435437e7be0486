// Shared fixture of the host core's tests: a started host in throw-away
// user folders, with its command-line output and editor events recorded.
#pragma once

#include "app/core/HostApp.h"
#include "app/core/HostCommandLine.h"
#include "app/core/HostCommandTable.h"
#include "app/core/HostEditorEventsImpl.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace apptest {

inline constexpr const char* kTestGroup = "TESTGROUP";

// Hears the command events and writes them down as "willStart:NAME".
class EventRecorder : public OdStaticRxObject<HostEditorReactor>
{
public:
  void commandWillStart(const OdString& n) override { note("willStart", n); }
  void commandEnded(const OdString& n) override { note("ended", n); }
  void commandCancelled(const OdString& n) override { note("cancelled", n); }
  void commandFailed(const OdString& n) override { note("failed", n); }

  std::vector<std::string> events;
  std::function<void(const std::string&)> onEvent; // runs after the note

private:
  void note(const char* what, const OdString& name)
  {
    const std::string e = std::string(what) + ":" + name.toUtf8();
    events.push_back(e);
    if (onEvent)
      onEvent(e);
  }
};

class HostFixture : public ::testing::Test
{
protected:
  void SetUp() override
  {
    ASSERT_TRUE(m_home.isValid());
    // Never the real user's files.
    qputenv("HOME", m_home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (m_home.path() + "/config").toUtf8());
    qputenv("XDG_DATA_HOME", (m_home.path() + "/data").toUtf8());
    app().setOutputSink([this](const OdString& text) { m_output += text.toUtf8(); });
    app().start(m_options);
    app().editorEvents().addReactor(&m_recorder);
  }

  void TearDown() override
  {
    app().editorEvents().removeReactor(&m_recorder);
    app().shutdown();
    app().setOutputSink(nullptr);
    app().commandLine().setEcho(true);
    HostCommandTable::instance().remove(kTestGroup);
  }

  static HostApp& app() { return HostApp::instance(); }

  // A host command of the test group; false when the name is taken.
  static bool addCommand(const char* name, HostCommandFn function, const char* group = kTestGroup)
  {
    HostCommand c;
    c.group = group;
    c.localName = c.globalName = name;
    c.kind = HostCommand::kHost;
    c.host = std::move(function);
    return HostCommandTable::instance().add(c);
  }

  // Restarts the host and hooks the recorder up again.
  void restart()
  {
    app().editorEvents().removeReactor(&m_recorder);
    app().restart();
    app().editorEvents().addReactor(&m_recorder);
  }

  QString configFile() const { return m_home.path() + "/config/verdani/config.xml"; }

  QTemporaryDir m_home;
  HostStartOptions m_options;
  std::string m_output;
  EventRecorder m_recorder;
};

} // namespace apptest
