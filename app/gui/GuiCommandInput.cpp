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
  m_app.commandLine().setInputProvider([this](const OdString& prompt, OdString& line) { return provide(prompt, line); });
  m_app.editorEvents().addReactor(m_reactor.get());
}

void GuiCommandInput::detach()
{
  endWaits();
  m_app.commandLine().setInputProvider(nullptr);
  m_app.editorEvents().removeReactor(m_reactor.get());
}

bool GuiCommandInput::isCommandActive() const
{
  return m_app.commandLine().isCommandActive();
}

bool GuiCommandInput::provide(const OdString& prompt, OdString& line)
{
  if (m_app.exitRequested())
    return false;
  // A wait inside a wait (a command that a waiting command started): the
  // inner one takes the input, the outer resumes when it returns.
  const bool outerWaiting = m_waiting;
  const OdString outerPrompt = m_prompt;
  m_waiting = true;
  m_prompt = prompt;
  m_answer.reset();
  emit waitingChanged(true, prompt);
  QEventLoop loop;
  m_loops.push_back(&loop);
  while (!m_answer && !m_app.exitRequested())
    loop.exec(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  m_loops.pop_back();
  const std::optional<OdString> answer = m_answer;
  m_answer.reset();
  m_waiting = outerWaiting;
  m_prompt = outerPrompt;
  emit waitingChanged(m_waiting, m_prompt);
  if (!answer)
    return false; // the program is ending: the command is cancelled
  line = *answer;
  return true;
}

void GuiCommandInput::submit(const OdString& text)
{
  if (m_waiting && !m_loops.empty() && m_loops.back()) {
    QString answer = text.qstring();
    // The command line ends what it is given with Enter itself.
    if (answer.endsWith(u'\n'))
      answer.chop(1);
    m_answer = OdString(answer);
    m_loops.back()->quit();
    return;
  }
  QString line = text.qstring();
  if (!line.endsWith(u'\n'))
    line += u'\n';
  m_app.commandLine().type(OdString(line));
}

void GuiCommandInput::submitEmpty()
{
  if (m_waiting) {
    submit(OdString());
    return;
  }
  if (!m_lastCommand.isEmpty())
    submit(m_lastCommand);
}

void GuiCommandInput::submitPoint(const QPointF& world)
{
  submit(pointText(world));
}

void GuiCommandInput::cancel()
{
  if (m_waiting)
    submit("^C");
}

void GuiCommandInput::endWaits()
{
  for (const QPointer<QEventLoop>& loop : m_loops)
    if (loop)
      loop->quit();
}

OdString GuiCommandInput::pointText(const QPointF& world)
{
  return OdString(QStringLiteral("%1,%2").arg(world.x(), 0, 'g', 12).arg(world.y(), 0, 'g', 12));
}
