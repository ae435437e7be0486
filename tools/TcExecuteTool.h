// "__executetool": the private command through which a clicked tool reaches
// the host's command processor.
#pragma once

namespace tc {

// The handler of "__executetool". It takes the record that the clicked tool
// left with the command conveyor and runs the host's command for it; with
// no record waiting it does nothing.
void executeToolCommand();

} // namespace tc
