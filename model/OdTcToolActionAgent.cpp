// Class machinery of OdTcToolActionAgent, the abstract root of the tool kinds.
#include "model/OdTcToolActionAgent.h"

namespace tc {

ODRX_NO_CONS_DEFINE_MEMBERS(OdTcToolActionAgent, OdTcPersist)

} // namespace tc
