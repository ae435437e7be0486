// HostServices: what the host offers a module at run time: the current
// document and its command line, the editor events, the completion registry
// and the main window.
#pragma once

#include "hostsdk/core/HostCommandInfo.h"
#include "hostsdk/core/HostEdCompletion.h"
#include "hostsdk/core/HostEditorReactor.h"

#include <functional>

class HostDocManagerReactor;
class HostSystemVariables;
class HostVariableStore;
class OdDbDatabase;
class QWidget;

// Writes to a command line. The text is a format: "%%" prints one percent
// sign, and specifiers take the arguments that follow.
class HostCommandOutput
{
public:
  virtual ~HostCommandOutput() = default;
  virtual void printText(const OdString& text) = 0;

  template <class... Args>
  void print(const OdString& format, const Args&... args)
  {
    printText(OdString::formatted(format, args...));
  }
};

class HostDocument
{
public:
  virtual ~HostDocument() = default;
  virtual HostCommandOutput* commandOutput() = 0;
  virtual OdString documentName() const = 0;
  // The drawing of the document; null until the host has drawings.
  virtual OdDbDatabase* database() { return nullptr; }
  // Types text on the document's command line, in the host's macro
  // notation ("^C" cancels, "^M" or a new line ends an input).
  virtual void sendCommand(const OdString& text) = 0;
  // Reads one input for the running command from the document's command
  // line, after printing `prompt`. Input ends at Enter ("^M" or a new line),
  // or also at a space unless `allowSpaces`; a quoted text keeps its spaces
  // and its quotes. False when the input was cancelled ("^C") or none is
  // left; the running command then counts as cancelled.
  virtual bool getString(const OdString& prompt, OdString& out, bool allowSpaces = false)
  {
    out = OdString();
    return false;
  }
  // Locks the document for changes outside a command, under a name.
  virtual void lockDocument(const OdString& name) {}
  virtual void unlockDocument() {}
};

// The source of editor events. Reactors are not owned; a reactor removes
// itself before it goes.
class HostEditorEvents
{
public:
  virtual ~HostEditorEvents() = default;
  virtual void addReactor(HostEditorReactor* reactor) = 0;
  virtual void removeReactor(HostEditorReactor* reactor) = 0;
  // Documents made, made current and about to go; not owned either.
  virtual void addDocManagerReactor(HostDocManagerReactor* reactor) {}
  virtual void removeDocManagerReactor(HostDocManagerReactor* reactor) {}
};

class HostServices
{
public:
  virtual ~HostServices() = default;
  // The active document, null if none.
  virtual HostDocument* currentDocument() = 0;
  // The application's own command line, for messages without a document.
  virtual HostCommandOutput* commandOutput() = 0;
  virtual HostEditorEvents* editorEvents() = 0;
  virtual HostEdCompletion::Registry* completionRegistry() = 0;
  // The main window; null in a host without windows.
  virtual QWidget* mainWindow() = 0;
  // System variables by name, and the host's store of named values; null
  // in a host that has none.
  virtual HostSystemVariables* systemVariables() { return nullptr; }
  virtual HostVariableStore* variableStore() { return nullptr; }
  // The host's table of commands; null in a host that does not tell.
  virtual const HostCommandTableInfo* commandTable() { return nullptr; }
  // Runs `action` as a window event would run: once the command line is
  // idle, that is at once when no command runs, else after the running
  // command has ended and its end has been told. A module uses it for what
  // a click in a window does, so that the command that asked for it is
  // over before it happens. A host without a command line runs it at once.
  virtual void post(std::function<void()> action)
  {
    if (action)
      action();
  }
};
