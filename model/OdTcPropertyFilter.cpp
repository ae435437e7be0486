// Class machinery of OdTcPropertyFilter: registered without a creation
// function, which the properties subsystem binds.
#include "model/OdTcPropertyFilter.h"

namespace tc {

ODRX_NO_CONS_DEFINE_MEMBERS(OdTcPropertyFilter, OdTcPersist)

} // namespace tc
