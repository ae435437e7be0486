// What the tools subsystem adds when the module registers classes: the
// element names of the kinds of tools and of their payloads.
#pragma once

namespace tc {

class OdTcTagTable;

void registerToolTags(OdTcTagTable& tags);

} // namespace tc
