// What the host shows for its own commands: the text of a button, of a menu
// item and of a tooltip, and the class of drawing object a command draws.
#pragma once

#include "hostsdk/core/HostCommandInfo.h"

namespace HostCommandTexts {

// Fills the texts of the host's command `name` (ignoring case) into `info`;
// false, and nothing filled, for a command the table does not know.
bool fill(const OdString& name, HostCommandInfo& info);

} // namespace HostCommandTexts
