// U, UNDO, REDO and SETVAR.
#include "app/core/HostEditCommands.h"

#include "app/core/HostApp.h"
#include "app/core/HostBuiltinCommands.h"
#include "app/core/HostCommandLine.h"
#include "app/core/HostDocumentManager.h"
#include "app/core/HostEditorEventsImpl.h"
#include "app/core/HostInputParser.h"
#include "app/core/HostOutput.h"
#include "app/core/HostPrompts.h"
#include "app/core/HostSysVars.h"

namespace {

HostApp& app()
{
  return HostApp::instance();
}

using HostBuiltinCommands::say;

HostDocumentImpl* documentOrSay()
{
  HostDocumentImpl* document = app().documents().current();
  if (!document)
    say("No document is open.");
  return document;
}

// Takes back `count` steps of the current document; how many it did.
int undoSteps(HostDocumentImpl* document, int count)
{
  HostUndo& journal = document->undoJournal();
  int done = 0;
  HostEditorEventsImpl& events = app().editorEvents();
  for (; done < count && journal.canUndo(); ++done) {
    const OdString name = journal.undoName();
    events.fire([](HostEditorReactor* r) { r->undoWillStart(); });
    journal.undo();
    events.fire([](HostEditorReactor* r) { r->undoFinished(); });
    say("Undone: " + name);
  }
  if (done < count)
    say("Everything has been undone.");
  return done;
}

void uCommand(IMemParam*)
{
  if (HostDocumentImpl* document = documentOrSay())
    undoSteps(document, 1);
}

void undoCommand(IMemParam*)
{
  HostDocumentImpl* document = documentOrSay();
  if (!document)
    return;
  HostPrompts prompts(app());
  HostPromptOptions o;
  o.message = "Enter the number of operations to undo";
  o.useDefault = true;
  o.allowZero = false;
  o.allowNegative = false;
  int count = 1;
  if (prompts.getInteger(o, count) == HostPrompts::kOk)
    undoSteps(document, count);
}

void redoCommand(IMemParam*)
{
  HostDocumentImpl* document = documentOrSay();
  if (!document)
    return;
  HostUndo& journal = document->undoJournal();
  if (!journal.canRedo()) {
    say("Nothing to redo: no command was undone since the last change.");
    return;
  }
  const OdString name = journal.redoName();
  journal.redo();
  say("Redone: " + name);
}

// A typed value for a variable of that kind, as a resbuf; null when the
// text is no such value.
OdResBufPtr typedValue(int type, const OdString& text)
{
  using namespace HostInputParser;
  OdResBufPtr rb = OdResBuf::newRb(type);
  if (type == OdResBuf::kRtAngle) {
    const std::optional<double> a = parseAngleDegrees(text);
    return a ? OdResBufPtr(rb->setDouble(*a)) : OdResBufPtr();
  }
  switch (rb->kind()) {
  case OdResBuf::kReal: {
    const std::optional<double> d = parseReal(text);
    return d ? OdResBufPtr(rb->setDouble(*d)) : OdResBufPtr();
  }
  case OdResBuf::kInteger: {
    const std::optional<int> i = parseInteger(text);
    return i ? OdResBufPtr(rb->setInt64(*i)) : OdResBufPtr();
  }
  case OdResBuf::kColor: {
    const std::optional<OdCmColor> c = parseColor(text);
    return c ? OdResBufPtr(rb->setColor(*c)) : OdResBufPtr();
  }
  case OdResBuf::kPoint: {
    HostDocumentImpl* document = app().documents().current();
    const std::optional<OdGePoint3d> p = parsePoint(text, document ? document->lastPoint() : OdGePoint3d());
    return p ? OdResBufPtr(rb->setPoint3d(*p)) : OdResBufPtr();
  }
  default: {
    // "." stands for an empty text, which Enter cannot give here.
    OdString s = text;
    if (s == ".")
      s = OdString();
    else if (s.getLength() >= 2 && s.getAt(0) == u'"' && s.getAt(s.getLength() - 1) == u'"')
      s = s.mid(1, s.getLength() - 2);
    return OdResBufPtr(rb->setString(s));
  }
  }
}

// SETVAR: a name, then a value; Enter keeps the value and prints it.
void setvarCommand(IMemParam*)
{
  HostCommandLine& line = app().commandLine();
  OdString name;
  if (!line.getString("Enter variable name: ", name))
    return;
  name = HostSysVarsImpl::canonicalName(name);
  if (name.isEmpty())
    return;
  HostSysVarsImpl& vars = app().sysVars();
  OdResBufPtr current = vars.getVar(name);
  if (current.isNull()) {
    say(OdString::formatted("Unknown variable name \"%s\".", name));
    return;
  }
  const int type = vars.typeOf(name);
  for (;;) {
    OdString text;
    const bool spaces = OdResBuf::kindOf(type) == OdResBuf::kText;
    if (!line.getString(OdString::formatted("Enter new value for %s <%s>: ", name,
                                            HostSysVarsImpl::formatValue(current)),
                        text, spaces))
      return;
    text.trimLeft();
    text.trimRight();
    if (text.isEmpty()) {
      say(name + " = " + HostSysVarsImpl::formatValue(current));
      return;
    }
    OdResBufPtr value = typedValue(type, text);
    OdString reason;
    if (value.isNull())
      reason = OdString::formatted("\"%s\" is no value for %s.", text, name);
    else if (vars.setVar(name, value, nullptr, &reason) == HostSystemVariables::kOk)
      return;
    say(reason);
  }
}

} // namespace

namespace HostEditCommands {

void registerCommands()
{
  HostBuiltinCommands::add("U", &uCommand);
  HostBuiltinCommands::add("UNDO", &undoCommand);
  HostBuiltinCommands::add("REDO", &redoCommand);
  HostBuiltinCommands::add("SETVAR", &setvarCommand);
}

} // namespace HostEditCommands
