// The host's commands as the module looks them up: by name in the host's
// command table, and by the class of a drawing object in the host's command
// route map.
#pragma once

#include "hostsdk/core/HostCommandInfo.h"

namespace tc {

// The command of that name in the host's table; false when the host has
// no such command or does not tell.
bool hostCommandInfo(const OdString& name, HostCommandInfo& out);

// The start command that the host's route map names for the class
// `className`; false without a map file or without an entry.
bool startCommandOfClass(const OdString& className, OdString& command);

// The name a tool made from the command takes: its display text; else its
// menu text translated, without "&"; else its name translated.
OdString commandToolName(const HostCommandInfo& command);

} // namespace tc
