// Where the reference host keeps its files: XDG folders of the user and the
// data folder of the installation.
#pragma once

#include <QString>

namespace HostPaths {

// $XDG_CONFIG_HOME/verdani, or ~/.config/verdani.
QString configFolder();
// The configuration file: <configFolder>/config.xml.
QString configFile();
// $XDG_DATA_HOME/verdani, or ~/.local/share/verdani: the user data folder.
QString userDataFolder();
// The user's own tool palette folder: <userDataFolder>/ToolPalette.
QString defaultToolPaletteDir();
// The shared data of the installation: <program folder>/../share/verdani if
// it exists, else the source tree's data folder.
QString installDataFolder();
// The folder of the running program.
QString programFolder();

} // namespace HostPaths
