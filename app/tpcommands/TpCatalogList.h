// ToolPalettesList and ToolPalettesSave: the catalogs of the tool palettes
// module as its window shows them, and their save, on the command line.
#pragma once

class HostCommandOutput;

namespace tpcommands {

// Prints "paths: " and the catalog folders, then every catalog with its
// groups, nested groups, palettes and tools (two blanks of indent a level).
void listCatalogs(HostCommandOutput& out);
// Has the module write its catalogs, and says what was written.
void saveCatalogs(HostCommandOutput& out);

} // namespace tpcommands
