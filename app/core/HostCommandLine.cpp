// The command processor.
#include "app/core/HostCommandLine.h"

#include "app/core/HostApp.h"
#include "app/core/HostEditorEventsImpl.h"
#include "app/core/HostOutput.h"

#include <exception>

namespace {

const OdString kCancelText("*Cancel*");

// Runs a command object of the class kind through its three steps.
void runCommandObject(const HostCommand& command, IMemParam* parameters)
{
  ICmdProcess* made = nullptr;
  if (!command.creator(&made, nullptr) || !made)
    throw OdError(eNullPtr, "the module did not make its command object");
  CRkPtr<ICmdProcess> process = CRkPtr<ICmdProcess>::attach(made);
  process->prepare();
  process->run(parameters);
  process->finish(parameters);
}

} // namespace

OdString HostCommandLine::activeCommand() const
{
  return m_running.empty() ? OdString() : m_running.back().name;
}

void HostCommandLine::type(const OdString& text)
{
  m_queue.append(text);
  pump();
}

void HostCommandLine::pump()
{
  // Input typed while a command runs is that command's to read; whatever it
  // leaves runs when the outermost command ends.
  if (m_pumping || isCommandActive())
    return;
  m_pumping = true;
  struct Reset
  {
    bool& flag;
    ~Reset() { flag = false; }
  } reset{m_pumping};

  while (!m_app.exitRequested()) {
    OdString input;
    const HostInputQueue::Kind kind = m_queue.read(false, input);
    if (kind == HostInputQueue::kNone)
      break;
    if (kind == HostInputQueue::kCancel) {
      m_app.output().printLine(kCancelText);
      continue;
    }
    input.trimLeft();
    input.trimRight();
    if (input.isEmpty())
      continue; // Enter with nothing typed
    if (m_echo)
      m_app.output().printLine("Command: " + input);
    runCommandByName(input);
  }
  if (m_app.exitRequested())
    m_queue.clear();
}

HostCommandLine::Result HostCommandLine::runCommandByName(const OdString& name, IMemParam* parameters)
{
  HostCommandPtr command = HostCommandTable::instance().find(name);
  if (!command) {
    m_app.output().printLine(OdString::formatted("Unknown command \"%s\".", name));
    return kUnknown;
  }
  return runCommand(*command, parameters);
}

HostCommandLine::Result HostCommandLine::runCommand(const HostCommand& command, IMemParam* parameters)
{
  const OdString name = command.globalName;
  HostEditorEventsImpl& events = m_app.editorEvents();
  m_running.push_back(Frame{name, false});
  events.commandWillStart(name);

  Result result = kEnded;
  OdString failure;
  try {
    switch (command.kind) {
    case HostCommand::kFunction: command.function(); break;
    case HostCommand::kClass: runCommandObject(command, parameters); break;
    case HostCommand::kHost: command.host(parameters); break;
    }
  } catch (const OdError& e) {
    result = kFailed;
    failure = e.description();
  } catch (const std::exception& e) {
    result = kFailed;
    failure = OdString(e.what());
  } catch (...) {
    result = kFailed;
    failure = "an unknown error";
  }
  if (result == kEnded && m_running.back().cancelled)
    result = kCancelled;
  m_running.pop_back();

  switch (result) {
  case kEnded: events.commandEnded(name); break;
  case kCancelled: events.commandCancelled(name); break;
  default:
    m_app.output().printLine(OdString::formatted("Command %s failed: %s", name, failure));
    events.commandFailed(name);
    break;
  }
  // Text the command sent to the command line runs now that it is over.
  if (!isCommandActive())
    pump();
  return result;
}

void HostCommandLine::markCancelled()
{
  if (!m_running.empty())
    m_running.back().cancelled = true;
}

bool HostCommandLine::getString(const OdString& prompt, OdString& out, bool allowSpaces)
{
  out = OdString();
  if (m_app.exitRequested()) {
    markCancelled();
    return false;
  }
  OdString input;
  HostInputQueue::Kind kind = m_queue.read(allowSpaces, input);
  while (kind == HostInputQueue::kNone) {
    OdString line;
    if (!m_provider || !m_provider(prompt, line)) {
      kind = HostInputQueue::kCancel; // the end of input cancels what waits for it
      break;
    }
    m_queue.append(line + "\n");
    kind = m_queue.read(allowSpaces, input);
  }
  if (kind == HostInputQueue::kCancel) {
    m_app.output().printLine(kCancelText);
    markCancelled();
    return false;
  }
  if (m_echo)
    m_app.output().printLine(prompt + input);
  out = input;
  return true;
}
