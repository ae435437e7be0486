// The host's "Startup" list: the names of commands the host runs when it
// starts. It is the module's whole memory of the window's visibility.
#pragma once

namespace tc {

// Adds the entry "ToolPalettes" (true) or removes it (false).
void writeStartupEntry(bool add);
// Whether the entry is there now.
bool hasStartupEntry();

} // namespace tc
