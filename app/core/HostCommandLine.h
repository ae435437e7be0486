// The command processor: reads typed text from the input queue, runs the
// commands it names, gives running commands their input, and tells the
// editor reactors how each command went.
#pragma once

#include "app/core/HostCommandTable.h"
#include "app/core/HostInputQueue.h"
#include "app/core/HostPrompt.h"

#include <functional>
#include <optional>
#include <vector>

class HostApp;

class HostCommandLine
{
public:
  enum Result
  {
    kEnded,
    kCancelled,
    kFailed,
    kUnknown // no such command
  };

  // Asked for more text when a running command needs input and none waits
  // (the console reads its next line). `prompt` is what the command asked
  // with. False when there is no more input: the command is then cancelled.
  using InputProvider = std::function<bool(const OdString& prompt, OdString& line)>;
  // A desktop host's way to wait instead: it runs its event loop until
  // inputWaiting() (the user typed through type(), clicked a point through
  // submitPoint(), picked an object through submitEntity(), or pressed Esc,
  // which types "^C"), then returns true; false when the program closes,
  // which cancels the command. It wins over an input provider.
  using InputWaiter = std::function<bool()>;

  explicit HostCommandLine(HostApp& app) : m_app(app) {}

  // Types text: queues it and, unless the processor is already busy with
  // earlier input, runs what is complete. Text typed while a command runs
  // waits for that command to read it or to end.
  void type(const OdString& text);
  // Runs the complete inputs that wait, one command after the other, until
  // none is left or the host is told to exit. An input that names no
  // command but is the text of a completion entry ("TOOL:Door") chooses
  // that entry, as picking it from the completion list would.
  void pump();

  // Runs `action` once no command runs: at once when none does, else after
  // the outermost command has ended and its end has been told, before the
  // input that waits. What a desktop host's event loop does with a click.
  void post(std::function<void()> action);

  // Runs one command now, with the events of any command: commandWillStart,
  // then commandEnded, commandCancelled or commandFailed. Nothing it throws
  // escapes: the message is printed and the command counts as failed. The
  // outermost command is one undo step of each document (see HostUndo).
  Result runCommand(const HostCommand& command, IMemParam* parameters = nullptr);
  // The same by name; an unknown name is printed as such.
  Result runCommandByName(const OdString& name, IMemParam* parameters = nullptr);

  // One input for the running command: prints `prompt`, takes the next
  // input from the queue, asking the provider when none waits. False on
  // "^C" or at the end of input, and the running command counts as
  // cancelled; its code should then return.
  bool getString(const OdString& prompt, OdString& out, bool allowSpaces = false);
  // The same for a prompt of any kind; a point or object handed in by
  // submitPoint()/submitEntity() answers a prompt that takes one. The
  // answer is echoed after the prompt.
  HostInput read(const HostPrompt& prompt);

  // What the running command waits for; kind kNone when nothing waits.
  const HostPrompt& activePrompt() const { return m_prompt; }
  // A clicked point or a picked object for the waiting prompt. False, and
  // nothing kept, when no prompt waits or it takes no such answer.
  bool submitPoint(const OdGePoint3d& point);
  bool submitEntity(const OdDbObjectId& entity);
  // Whether the waiting prompt has its answer (or a cancel) at hand.
  bool inputWaiting() const;

  bool isCommandActive() const { return !m_running.empty(); }
  // The innermost running command's global name, or empty.
  OdString activeCommand() const;
  const HostInputQueue& queue() const { return m_queue; }

  void setInputProvider(InputProvider provider) { m_provider = std::move(provider); }
  void setInputWaiter(InputWaiter waiter) { m_waiter = std::move(waiter); }
  // Called whenever input arrives while a prompt waits (a desktop host ends
  // its wait there).
  void setInputNotifier(std::function<void()> notifier) { m_notifier = std::move(notifier); }
  // With echo on, the command line prints what it reads ("Command: NAME",
  // "Prompt: value"), as a transcript of a script; a terminal shows the
  // typed text itself, so the console turns echo off there.
  void setEcho(bool echo) { m_echo = echo; }
  // Drops waiting input.
  void clearInput()
  {
    m_queue.clear();
    m_picked.reset();
  }

private:
  struct Frame
  {
    OdString name;
    bool cancelled = false;
  };
  void markCancelled();
  void notifyInput();
  void endUndoSteps();
  void runPosted();
  // Runs the action of the completion entry whose text is `input`; false
  // when no entry has that text.
  bool chooseCompletion(const OdString& input);

  HostApp& m_app;
  HostInputQueue m_queue;
  std::vector<Frame> m_running; // the running commands, innermost last
  bool m_pumping = false;
  bool m_echo = true;
  InputProvider m_provider;
  InputWaiter m_waiter;
  std::function<void()> m_notifier;
  HostPrompt m_prompt;                // what waits now
  std::optional<HostInput> m_picked;  // a click or pick for it
  std::vector<std::function<void()>> m_posted; // in the order posted
};
