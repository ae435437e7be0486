// The host's own commands, in the group "VERDANI": NewDocument,
// OpenDocument, CloseDocument, SaveDocument, SaveAsDocument, Exit, SETDIR.
// More are added here.
#pragma once

#include "app/core/HostCommandTable.h"

class HostApp;
class HostPrompts;
class OdDbDatabase;
class OdString;

namespace HostBuiltinCommands {

inline constexpr const char* kGroup = "VERDANI";

// Registers the commands once per process; later calls do nothing.
void registerAll();

// Adds one host command to the group "VERDANI".
void add(const char* name, HostCommandFn function);

// What the commands share: a line on the command line, and the drawing a
// command works on, or null after telling the user there is none.
void say(const OdString& text);
OdDbDatabase* drawingOrSay(HostPrompts& prompts);

} // namespace HostBuiltinCommands
