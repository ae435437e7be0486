// The reference host's own commands over the tool palettes module:
// ToolPalettesList prints the catalog folders and every catalog as the
// palette window shows it; ToolPalettesSave has the module write its
// catalogs. They reach the module only through the functions it exports.
#pragma once

namespace HostToolPalettes {

// Registers both commands in the group "VERDANI"; later calls do nothing.
void registerCommands();

} // namespace HostToolPalettes
