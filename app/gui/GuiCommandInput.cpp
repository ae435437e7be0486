// Input of the desktop program's command line.
#include "app/gui/GuiCommandInput.h"

#include "app/core/HostApp.h"
#include "app/core/HostCommandLine.h"
#include "app/core/HostEditorEventsImpl.h"

#include <QEventLoop>

// Hears the commands: which one the user started last, and when the
// outermost one is over.
class GuiCommandInput::Reactor : public OdStaticRxObject<HostEditorReactor>
{
public:
  explicit Reactor(GuiCommandInput& owner) : m_owner(owner) {}
  void commandWillStart(const OdString& name) override
  {
    if (m_owner.m_depth++ == 0) {
      // Commands the module runs for itself are not the user's to repeat.
      if (!name.qstring().startsWith(QLatin1String("__")))
        m_owner.m_lastCommand = name;
      emit m_owner.commandStarted(name);
    }
  }
  void commandEnded(const OdString& name) override { finished(name); }
  void commandCancelled(const OdString& name) override { finished(name); }
  void commandFailed(const OdString& name) override { finished(name); }

private:
  void finished(const OdString& name)
  {
    if (m_owner.m_depth > 0 && --m_owner.m_depth == 0)
      emit m_owner.commandFinished(name);
  }
  GuiCommandInput& m_owner;
};

GuiCommandInput::GuiCommandInput(HostApp& app, QObject* parent)
    : QObject(parent), m_app(app), m_reactor(std::make_unique<Reactor>(*this))
{
}

GuiCommandInput::~GuiCommandInput()
{
  detach();
}

void GuiCommandInput::attach()
{
  m_app.commandLine().setInputWaiter([this] { return wait(); });
  m_app.commandLine().setInputNotifier([this] { wake(); });
  m_app.editorEvents().addReactor(m_reactor.get());
}

void GuiCommandInput::detach()
{
  endWaits();
  m_app.commandLine().setInputWaiter(nullptr);
  m_app.commandLine().setInputNotifier(nullptr);
  m_app.editorEvents().removeReactor(m_reactor.get());
}

const HostPrompt& GuiCommandInput::prompt() const
{
  return m_app.commandLine().activePrompt();
}

bool GuiCommandInput::isCommandActive() const
{
  return m_app.commandLine().isCommandActive();
}

bool GuiCommandInput::wait()
{
  if (m_app.exitRequested())
    return false;
  // A wait inside a wait (a command that a waiting command started): the
  // inner one takes the input, the outer resumes when it returns.
  QEventLoop loop;
  m_loops.push_back(&loop);
  emit waitingChanged(true);
  while (!m_app.commandLine().inputWaiting() && !m_app.exitRequested())
    loop.exec(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  m_loops.pop_back();
  emit waitingChanged(isWaiting());
  return !m_app.exitRequested();
}

void GuiCommandInput::wake()
{
  if (!m_loops.empty() && m_loops.back())
    m_loops.back()->quit();
}

void GuiCommandInput::endWaits()
{
  for (const QPointer<QEventLoop>& loop : m_loops)
    if (loop)
      loop->quit();
}

void GuiCommandInput::submit(const OdString& text)
{
  QString line = text.qstring();
  if (!line.endsWith(u'\n'))
    line += u'\n';
  // Typed input reaches the waiting prompt, or else starts a command; the
  // command line tells the wait that it came.
  m_app.commandLine().type(OdString(line));
}

void GuiCommandInput::submitEmpty()
{
  if (prompt().kind != HostPrompt::kNone)
    submit(OdString());
  else if (!m_lastCommand.isEmpty())
    submit(m_lastCommand);
}

void GuiCommandInput::submitPoint(const QPointF& world)
{
  m_app.commandLine().submitPoint(OdGePoint3d(world.x(), world.y(), 0.0));
}

void GuiCommandInput::submitEntity(const OdDbObjectId& id)
{
  m_app.commandLine().submitEntity(id);
}

void GuiCommandInput::cancel()
{
  if (prompt().kind != HostPrompt::kNone)
    submit("^C");
}
