// NewDocument, OpenDocument, CloseDocument, SaveDocument, SaveAsDocument,
// Exit and SETDIR.
#include "app/core/HostBuiltinCommands.h"

#include "app/core/HostApp.h"
#include "app/core/HostCommandLine.h"
#include "app/core/HostCommandTable.h"
#include "app/core/HostCommandTexts.h"
#include "app/core/HostDocumentManager.h"
#include "app/core/HostDrawCommands.h"
#include "app/core/HostEditCommands.h"
#include "app/core/HostHatchCommands.h"
#include "app/core/HostInsertCommands.h"
#include "app/core/HostOutput.h"
#include "app/core/HostPrompts.h"

#include "sdk/dxf/OdDxf.h"

#include <QFileInfo>

namespace {

HostApp& app()
{
  return HostApp::instance();
}

// A file name typed in double quotes (for spaces at its ends) loses them.
OdString unquoted(OdString text)
{
  text.trimLeft();
  text.trimRight();
  if (text.getLength() >= 2 && text.getAt(0) == u'"' && text.getAt(text.getLength() - 1) == u'"')
    text = text.mid(1, text.getLength() - 2);
  return text;
}

// A named parameter of a run by name, else an input typed on the command
// line. False when the user cancelled.
bool parameterOrInput(IMemParam* parameters, const char* name, const OdString& prompt, bool allowSpaces,
                      OdString& out)
{
  CRkVariant value;
  if (parameters && parameters->getValue(name, value)) {
    out = value.toString();
    return true;
  }
  return app().commandLine().getString(prompt, out, allowSpaces);
}

void newDocument(IMemParam*)
{
  HostDocumentImpl* document = app().documents().newDocument();
  app().output().printLine(OdString::formatted("New document %s.", document->documentName()));
}

void openDocument(IMemParam* parameters)
{
  OdString file;
  if (!parameterOrInput(parameters, "FileName", "File to open: ", true, file))
    return;
  file = unquoted(file);
  if (file.isEmpty()) {
    app().output().printLine("No file name given; nothing was opened.");
    return;
  }
  OdString error;
  if (HostDocumentImpl* document = app().documents().openDocument(file, error))
    app().output().printLine(OdString::formatted("Opened %s.", document->documentName()));
  else
    app().output().printLine(OdString::formatted("Cannot open the document: %s.", error));
}

void closeDocument(IMemParam*)
{
  HostDocumentImpl* document = app().documents().current();
  if (!document) {
    app().output().printLine("No document is open.");
    return;
  }
  const OdString name = document->documentName();
  app().documents().closeDocument(document);
  app().output().printLine(OdString::formatted("Closed %s.", name));
}

// Writes the document's drawing as DXF; false with a message on failure.
bool writeDrawing(HostDocumentImpl* document, const OdString& path)
{
  try {
    odDxfWriteFile(document->database(), path);
  } catch (const OdError& e) {
    app().output().printLine(OdString::formatted("Cannot save the drawing: %s.", e.description()));
    return false;
  }
  return true;
}

void saveDocument(IMemParam*)
{
  HostDocumentImpl* document = app().documents().current();
  if (!document) {
    app().output().printLine("No document is open.");
    return;
  }
  if (document->filePath().isEmpty()) {
    app().output().printLine(OdString::formatted(
        "%s was never saved and has no file yet; use SaveAsDocument to name one.", document->documentName()));
    return;
  }
  if (writeDrawing(document, document->filePath()))
    app().output().printLine(OdString::formatted("Saved %s.", document->filePath()));
}

// SaveAsDocument: the file name on the next input. A name without an
// extension gets ".dxf"; DXF is the only format the host writes.
void saveAsDocument(IMemParam* parameters)
{
  HostDocumentImpl* document = app().documents().current();
  if (!document) {
    app().output().printLine("No document is open.");
    return;
  }
  OdString file;
  if (!parameterOrInput(parameters, "FileName", "Save drawing as: ", true, file))
    return;
  file = unquoted(file);
  if (file.isEmpty()) {
    app().output().printLine("No file name given; nothing was saved.");
    return;
  }
  QFileInfo info(file.qstring());
  if (info.suffix().isEmpty())
    info = QFileInfo(file.qstring() + QStringLiteral(".dxf"));
  if (info.suffix().compare(QLatin1String("dxf"), Qt::CaseInsensitive) != 0) {
    app().output().printLine(OdString::formatted(
        "Cannot save as %s: Verdani writes drawings as DXF only; give the file the extension .dxf.", file));
    return;
  }
  const OdString path(info.absoluteFilePath());
  if (!writeDrawing(document, path))
    return;
  document->setFilePath(path, OdString(info.fileName()));
  app().output().printLine(OdString::formatted("Saved %s.", path));
}

void exitHost(IMemParam*)
{
  app().requestExit();
}

// SETDIR: a key on the first input, its value on the second (spaces
// allowed, empty allowed). Changes the option as the options of the host
// change, with notice to the property reactors.
void setDir(IMemParam* parameters)
{
  OdString key;
  if (!parameterOrInput(parameters, "Key", "Setting (ToolPaletteDir, CommonDirs, Shx): ", false, key))
    return;
  key = unquoted(key);
  if (!HostApp::isOptionKey(key)) {
    app().output().printLine(OdString::formatted(
        "\"%s\" is no setting of Verdani: use ToolPaletteDir, CommonDirs or Shx.", key));
    return;
  }
  OdString value;
  if (!parameterOrInput(parameters, "Value", "New value: ", true, value))
    return;
  value = unquoted(value);
  OdString error;
  if (!app().setOption(key, value, &error))
    app().output().printLine(error);
  else
    app().output().printLine(OdString::formatted("%s is now \"%s\".", HostApp::optionKeyName(key), value));
}

} // namespace

namespace HostBuiltinCommands {

void say(const OdString& text)
{
  HostApp::instance().output().printLine(text);
}

OdDbDatabase* drawingOrSay(HostPrompts& prompts)
{
  OdDbDatabase* db = prompts.database();
  if (!db)
    say("No document is open: open or start a drawing first.");
  return db;
}

void add(const char* name, HostCommandFn function)
{
  HostCommand command;
  command.group = HostBuiltinCommands::kGroup;
  command.localName = command.globalName = OdString(name);
  command.kind = HostCommand::kHost;
  command.host = std::move(function);
  HostCommandInfo texts;
  if (HostCommandTexts::fill(command.globalName, texts)) {
    command.displayText = texts.displayText;
    command.menuText = texts.menuText;
    command.description = texts.description;
    command.className = texts.className;
  }
  HostCommandTable::instance().add(command);
}


void registerAll()
{
  static bool done = false;
  if (done)
    return;
  done = true;
  add("NewDocument", &newDocument);
  add("OpenDocument", &openDocument);
  add("CloseDocument", &closeDocument);
  add("SaveDocument", &saveDocument);
  add("SaveAsDocument", &saveAsDocument);
  add("Exit", &exitHost);
  add("SETDIR", &setDir);
  HostDrawCommands::registerCommands();
  HostEditCommands::registerCommands();
  HostInsertCommands::registerCommands();
  HostHatchCommands::registerCommands();
}

} // namespace HostBuiltinCommands
