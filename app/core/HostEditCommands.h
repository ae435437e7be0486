// The host's commands over the drawing's state rather than its objects:
// U, UNDO and REDO of whole commands, and SETVAR.
#pragma once

namespace HostEditCommands {

void registerCommands();

} // namespace HostEditCommands
