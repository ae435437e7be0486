// The desktop program's side of the command processor. Commands run to
// their end on the main thread; when one waits for input that was not given
// yet, the program keeps handling window events until the user types a
// line, clicks a point, picks an object or cancels. Everything the user
// enters goes through here.
#pragma once

#include "app/core/HostPrompt.h"
#include "hostsdk/core/HostEditorReactor.h"

#include <QObject>
#include <QPointF>
#include <QPointer>

#include <memory>
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

  // What the user typed, ended with Enter: the answer of the waiting
  // prompt, or a command. Text in the host's macro notation ("^C" cancels).
  void submit(const OdString& text);
  // Enter on an empty line: the waiting prompt's default, or else the last
  // command again.
  void submitEmpty();
  // A point clicked in the drawing, for a prompt that takes one.
  void submitPoint(const QPointF& world);
  // An object picked in the drawing, for a prompt that takes one.
  void submitEntity(const OdDbObjectId& id);
  // Escape: cancels the waiting prompt.
  void cancel();
  // Ends every wait at once; with the host told to exit, each waiting
  // command then ends as cancelled (the window is closing).
  void endWaits();

  bool isWaiting() const { return !m_loops.empty(); }
  // What the running command waits for (kind kNone when nothing waits).
  const HostPrompt& prompt() const;
  bool isCommandActive() const;
  OdString lastCommand() const { return m_lastCommand; }

signals:
  // A prompt waits for input, or none does any more.
  void waitingChanged(bool waiting);
  // The outermost command ended, one way or another: time to bring the
  // windows in line with the drawings.
  void commandFinished(const OdString& name);
  void commandStarted(const OdString& name);

private:
  class Reactor;
  bool wait();
  void wake();

  HostApp& m_app;
  std::unique_ptr<Reactor> m_reactor;
  std::vector<QPointer<QEventLoop>> m_loops; // the waits, innermost last
  int m_depth = 0;                           // commands running
  OdString m_lastCommand;
};
