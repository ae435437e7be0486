// The host as the pattern library reaches it from inside the host's
// process: through the lookups the host program exports, as modules do.
#pragma once

#include "hostsdk/core/AppInterfaces.h"
#include "hostsdk/core/HostServices.h"

// Null when the process has no host (a test, a tool).
HostServices* patHostServices();
// A counted reference to the application; null without a host.
CRkPtr<IApp> patHostApp();
// Prints a message on the command line of the current document, or of the
// application without one; on standard error in a process without a host.
void patHostTell(const OdString& message);
