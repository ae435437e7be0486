// ToolPalettesRun: runs a tool of the module's catalogs, named on the command
// line, in the current document as a click on it would.
#pragma once

class HostCommandOutput;
class HostServices;

namespace tpcommands {

// Reads a tool's name or id from the next input line and has the host run
// the tool once the command is over, as it runs a click.
void runTool(HostServices& host, HostCommandOutput& out);

} // namespace tpcommands
