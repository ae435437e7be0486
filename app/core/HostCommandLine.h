// The command processor: reads typed text from the input queue, runs the
// commands it names, gives running commands their input, and tells the
// editor reactors how each command went.
#pragma once

#include "app/core/HostCommandTable.h"
#include "app/core/HostInputQueue.h"

#include <functional>
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

  explicit HostCommandLine(HostApp& app) : m_app(app) {}

  // Types text: queues it and, unless the processor is already busy with
  // earlier input, runs what is complete. Text typed while a command runs
  // waits for that command to read it or to end.
  void type(const OdString& text);
  // Runs the complete inputs that wait, one command after the other, until
  // none is left or the host is told to exit.
  void pump();

  // Runs one command now, with the events of any command: commandWillStart,
  // then commandEnded, commandCancelled or commandFailed. Nothing it throws
  // escapes: the message is printed and the command counts as failed.
  Result runCommand(const HostCommand& command, IMemParam* parameters = nullptr);
  // The same by name; an unknown name is printed as such.
  Result runCommandByName(const OdString& name, IMemParam* parameters = nullptr);

  // One input for the running command: prints `prompt`, takes the next
  // input from the queue, asking the provider when none waits. False on
  // "^C" or at the end of input, and the running command counts as
  // cancelled; its code should then return.
  bool getString(const OdString& prompt, OdString& out, bool allowSpaces = false);

  bool isCommandActive() const { return !m_running.empty(); }
  // The innermost running command's global name, or empty.
  OdString activeCommand() const;
  const HostInputQueue& queue() const { return m_queue; }

  void setInputProvider(InputProvider provider) { m_provider = std::move(provider); }
  // With echo on, the command line prints what it reads ("Command: NAME",
  // "Prompt: value"), as a transcript of a script; a terminal shows the
  // typed text itself, so the console turns echo off there.
  void setEcho(bool echo) { m_echo = echo; }
  // Drops waiting input.
  void clearInput() { m_queue.clear(); }

private:
  struct Frame
  {
    OdString name;
    bool cancelled = false;
  };
  void markCancelled();

  HostApp& m_app;
  HostInputQueue m_queue;
  std::vector<Frame> m_running; // the running commands, innermost last
  bool m_pumping = false;
  bool m_echo = true;
  InputProvider m_provider;
};
