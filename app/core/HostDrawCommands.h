// The drawing commands of the reference host: LINE, CIRCLE, ARC, PLINE,
// TEXT and ERASE, on the current document's model space.
#pragma once

namespace HostDrawCommands {

// Adds the commands to the host's group; once per process.
void registerCommands();

} // namespace HostDrawCommands
