// The desktop program's side of the command processor. Commands run to
// their end on the main thread; when one waits for input that was not typed
// yet, the program keeps handling window events until the user types a
// line, clicks a point or cancels. Everything the user enters goes through
// here: to the waiting command, or else to the command line as a new
// command.
#pragma once

#include "hostsdk/core/HostEditorReactor.h"
#include "sdk/kernel/OdString.h"

#include <QObject>
#include <QPointF>
#include <QPointer>

#include <optional>
#include <vector>

class HostApp;
class QEventLoop;

class GuiCommandInput : public QObject
{
  Q_OBJECT

public:
  explicit GuiCommandInput(HostApp& app, QObject* parent = nullptr);
  ~GuiCommandInput() override;

  // Hooks into the host's command line and events; undone by detach().
  void attach();
  void detach();

  // What the user entered: the answer of the waiting command, else command
  // line input. Text in the host's macro notation ("^C" cancels).
  void submit(const OdString& text);
  // Enter on an empty line: the waiting command's default, or else the
  // last command again.
  void submitEmpty();
  // A point clicked in the drawing.
  void submitPoint(const QPointF& world);
  // Escape: cancels the waiting command.
  void cancel();
  // Ends every wait at once; with the host told to exit, each waiting
  // command then ends as cancelled (the window is closing).
  void endWaits();

  bool isWaiting() const { return m_waiting; }
  OdString prompt() const { return m_prompt; }
  bool isCommandActive() const;
  OdString lastCommand() const { return m_lastCommand; }
  // Text for a point as the command line reads it.
  static OdString pointText(const QPointF& world);

signals:
  // A command waits for input (with its prompt), or none does any more.
  void waitingChanged(bool waiting, const OdString& prompt);
  // A command the user started ended, one way or another: time to bring
  // the windows in line with the drawings.
  void commandFinished(const OdString& name);
  void commandStarted(const OdString& name);

private:
  class Reactor;
  bool provide(const OdString& prompt, OdString& line);

  HostApp& m_app;
  std::unique_ptr<Reactor> m_reactor;
  bool m_waiting = false;
  OdString m_prompt;
  std::optional<OdString> m_answer; // set while waiting, ends the wait
  std::vector<QPointer<QEventLoop>> m_loops; // the waits, innermost last
  int m_depth = 0;                  // commands running, outermost first
  OdString m_lastCommand;
};
