// The host's hatch pattern library, found by name when a tool first needs
// it.
#pragma once

#include "hostsdk/patterns/VerdaniCmd1.h"

namespace tc {

// hostGetHatchPatterns of the library "verdanicmd1"; null when the library
// or the function cannot be found.
HostGetHatchPatternsFn hostHatchPatternsFunction();

} // namespace tc
