// Class machinery of OdTcPropertyBag: registered without a creation function,
// which the properties subsystem binds.
#include "model/OdTcPropertyBag.h"

namespace tc {

ODRX_NO_CONS_DEFINE_MEMBERS(OdTcPropertyBag, OdTcPersist)

} // namespace tc
