// ToolPalettesState: one remembered value of the palette window, read or
// set on the command line through the module's exported interface.
#pragma once

class HostCommandOutput;
class HostDocument;

namespace tpcommands {

// Asks for "NAME" or "NAME=VALUE" on the document's command line: prints
// the value of that name, or sets it (a whole number is kept as a number,
// anything else as text). Without a document nothing can be asked.
void rememberedState(HostCommandOutput& out, HostDocument* document);

} // namespace tpcommands
