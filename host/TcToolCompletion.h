// The offer of tools on the host's command line: one entry "TOOL:<name>" for
// each tool of every catalog.
#pragma once

#include "hostsdk/core/HostEdCompletion.h"

namespace tc {

// Calls `callback` once for each entry.
void provideEntries(const HostEdCompletion::EntryCallback& callback);

// The provider object registered under "tools". It is made while the library
// loads and lives until it unloads, longer than any registration.
const HostEdCompletion::Provider* toolCompletionProvider();

} // namespace tc
