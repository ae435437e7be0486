// Class machinery of OdTcProperty and OdTcDatabaseProperty: registered without
// a creation function, which the properties subsystem binds.
#include "model/OdTcProperty.h"

namespace tc {

ODRX_NO_CONS_DEFINE_MEMBERS(OdTcProperty, OdTcPersist)
ODRX_NO_CONS_DEFINE_MEMBERS(OdTcDatabaseProperty, OdTcProperty)

} // namespace tc
