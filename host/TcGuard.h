// The module's edge with its host: whatever the host calls into the module
// (start and stop, commands, reactor calls, exported functions, what runs
// while the library loads) runs through tcGuarded, so that no exception of
// the module ever reaches the host.
#pragma once

#include "sdk/kernel/OdString.h"

#include <functional>

namespace tc {

// Runs `body`. An exception of any kind is told on the host's command line
// with `failure`, a format whose one "%s" takes the reason, and false comes
// back; the caller leaves its state as it was.
bool tcGuarded(const OdString& failure, const std::function<void()>& body);

} // namespace tc
