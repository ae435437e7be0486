// The host's own commands, in the group "VERDANI": NewDocument,
// OpenDocument, CloseDocument, SaveDocument, SaveAsDocument, Exit, SETDIR,
// and the two over the tool palettes module. More are added here.
#pragma once

#include "OdString.h"

class HostApp;

namespace HostBuiltinCommands {

inline constexpr const char* kGroup = "VERDANI";

// Registers the commands once per process; later calls do nothing.
void registerAll();

} // namespace HostBuiltinCommands
