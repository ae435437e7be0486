// ToolPalettesList, ToolPalettesImages and ToolPalettesSave: the catalogs
// of the tool palettes module as its window shows them, with or without
// their pictures, and their save, on the command line.
#pragma once

class HostCommandOutput;

namespace tpcommands {

// Prints "paths: " and the catalog folders, then every catalog with its
// groups, nested groups, palettes and tools (two blanks of indent a level);
// with pictures, under each item one line per picture in its sizes.
void listCatalogs(HostCommandOutput& out, bool withImages);
// Has the module write its catalogs, and says what was written.
void saveCatalogs(HostCommandOutput& out);

} // namespace tpcommands
