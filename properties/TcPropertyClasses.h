// What the properties subsystem adds when the module registers classes: the
// creation of the property classes of the class table, and the element
// names of the general properties and the snapshots.
#pragma once

namespace tc {

class OdTcTagTable;

// The classes of the class table must be registered already.
void registerPropertyClasses(OdTcTagTable& tags);

} // namespace tc
