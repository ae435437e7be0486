// The command processor.
#include "app/core/HostCommandLine.h"

#include "app/core/HostApp.h"
#include "app/core/HostCompletionRegistryImpl.h"
#include "app/core/HostDocumentManager.h"
#include "app/core/HostEditorEventsImpl.h"
#include "app/core/HostInputParser.h"
#include "app/core/HostOutput.h"
#include "app/core/HostUndo.h"

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
  if (m_prompt.kind != HostPrompt::kNone)
    notifyInput();
  pump();
}

void HostCommandLine::notifyInput()
{
  if (m_notifier)
    m_notifier();
}

bool HostCommandLine::submitPoint(const OdGePoint3d& point)
{
  if (!m_prompt.takesPoint())
    return false;
  HostInput input;
  input.kind = HostInput::kPoint;
  input.point = point;
  m_picked = input;
  notifyInput();
  return true;
}

bool HostCommandLine::submitEntity(const OdDbObjectId& entity)
{
  if (!m_prompt.takesEntity() || entity.isNull())
    return false;
  HostInput input;
  input.kind = HostInput::kEntity;
  input.entity = entity;
  m_picked = input;
  notifyInput();
  return true;
}

bool HostCommandLine::inputWaiting() const
{
  return m_prompt.kind != HostPrompt::kNone && (m_picked || m_queue.hasInput(m_prompt.allowsSpaces()));
}

void HostCommandLine::endUndoSteps()
{
  for (HostDocumentImpl* document : m_app.documents().documents())
    document->undoJournal().endStep();
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
    if (HostCommandTable::instance().find(input) || !chooseCompletion(input))
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
  const bool outermost = m_running.empty();
  for (HostDocumentImpl* document : m_app.documents().documents()) {
    if (outermost)
      document->undoJournal().beginStep(name);
    else
      document->undoJournal().innerCommand(name);
  }
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
  // The step closes after the events, so that what reactors put back when
  // a command ends (a tool's current layer) is taken back with it.
  if (outermost)
    endUndoSteps();
  if (!isCommandActive())
    runPosted();
  // Text the command sent to the command line runs now that it is over.
  if (!isCommandActive())
    pump();
  return result;
}

void HostCommandLine::post(std::function<void()> action)
{
  if (!action)
    return;
  m_posted.push_back(std::move(action));
  if (!isCommandActive())
    runPosted();
}

void HostCommandLine::runPosted()
{
  // An action may post again, or run a command that posts: those wait for
  // the next round.
  std::vector<std::function<void()>> round;
  round.swap(m_posted);
  for (auto& action : round) {
    try {
      action();
    } catch (const OdError& e) {
      m_app.output().printLine(OdString::formatted("An action of the command line failed: %s", e.description()));
    } catch (const std::exception& e) {
      m_app.output().printLine(OdString::formatted("An action of the command line failed: %s", OdString(e.what())));
    }
  }
}

bool HostCommandLine::chooseCompletion(const OdString& input)
{
  for (const HostEdCompletion::EntryPtr& entry : m_app.completionRegistry().entries()) {
    if (entry->text.iCompare(input) != 0 || !entry->action)
      continue;
    try {
      entry->action->execute();
    } catch (const OdError& e) {
      m_app.output().printLine(OdString::formatted("%s failed: %s", entry->text, e.description()));
    } catch (const std::exception& e) {
      m_app.output().printLine(OdString::formatted("%s failed: %s", entry->text, OdString(e.what())));
    }
    return true;
  }
  return false;
}

void HostCommandLine::markCancelled()
{
  if (!m_running.empty())
    m_running.back().cancelled = true;
}

bool HostCommandLine::getString(const OdString& prompt, OdString& out, bool allowSpaces)
{
  HostPrompt asked;
  asked.kind = allowSpaces ? HostPrompt::kText : HostPrompt::kString;
  asked.message = prompt;
  const HostInput input = read(asked);
  out = input.text;
  return input.kind == HostInput::kText;
}

HostInput HostCommandLine::read(const HostPrompt& prompt)
{
  HostInput answer; // a cancel unless something better comes
  if (m_app.exitRequested()) {
    markCancelled();
    return answer;
  }
  // A prompt inside a prompt (a reactor that asks) gets the outer one back.
  struct Restore
  {
    HostPrompt& slot;
    HostPrompt saved;
    ~Restore() { slot = saved; }
  } restore{m_prompt, m_prompt};
  m_prompt = prompt;
  m_picked.reset();
  const bool spaces = prompt.allowsSpaces();
  for (;;) {
    if (m_picked) {
      answer = *m_picked;
      m_picked.reset();
      break;
    }
    OdString text;
    const HostInputQueue::Kind kind = m_queue.read(spaces, text);
    if (kind == HostInputQueue::kText) {
      answer.kind = HostInput::kText;
      answer.text = text;
      break;
    }
    if (kind == HostInputQueue::kCancel)
      break;
    // Nothing waits: the desktop waits for events, the console reads on.
    if (m_waiter) {
      if (!m_waiter())
        break;
      continue;
    }
    OdString line;
    if (!m_provider || !m_provider(prompt.message, line))
      break; // the end of input cancels what waits for it
    m_queue.append(line + "\n");
  }
  if (answer.kind == HostInput::kCancel) {
    m_app.output().printLine(kCancelText);
    markCancelled();
    return answer;
  }
  if (m_echo) {
    OdString shown = answer.text;
    if (answer.kind == HostInput::kPoint)
      shown = HostInputParser::formatPoint(answer.point);
    else if (answer.kind == HostInput::kEntity)
      shown = answer.entity.getHandle().ascii();
    m_app.output().printLine(prompt.message + shown);
  }
  return answer;
}
