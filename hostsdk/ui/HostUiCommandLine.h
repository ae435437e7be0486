// How the UI kit talks to the user when the host has no windows (the
// console host): questions and notices go to the command line, so that a
// script answers them or, with no input left, their defaults apply.
#pragma once

#include "sdk/kernel/OdString.h"

class HostCommandOutput;

namespace HostUiCommandLine {

// True when the kit shows windows: a widget application runs and the host,
// if one runs, has a main window.
bool hasWindows();
// Prints on the running host's command line (standard error without a host).
void say(const OdString& text);
// Asks on the current document's command line; spaces belong to the answer.
// False when there is no document or the input was cancelled or ran out.
bool ask(const OdString& prompt, OdString& answer);

} // namespace HostUiCommandLine
