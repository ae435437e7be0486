// The answer of the tool kinds that this version reads and writes but does
// not run yet: block, hatch and raster tools.
#pragma once

#include "sdk/kernel/OdString.h"

namespace tc {

// Tells the user on the command line that tools of `kind` cannot run in
// this version; false, for the agent's execute to return.
bool tellNotYetRunnable(const OdString& kind);

} // namespace tc
