// "__executetool": the private command through which a clicked tool reaches
// the host's command processor.
#pragma once

#include "sdk/kernel/OdString.h"

namespace tc {

// The handler of "__executetool". It reads one word from the command line
// ("<block>", "<xref>", "<raster>", quotes and brackets dropped) and runs
// the host's command for the record that the clicked tool left with the
// command conveyor. Without a document, a record or a known word it does
// nothing, so that a user may type it without harm.
void executeToolCommand();

// The word of "__executetool" as the command reads it: without double
// quotes, trailing blanks and angle brackets.
OdString executeToolKeyword(const OdString& input);

} // namespace tc
