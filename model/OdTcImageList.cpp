// Class machinery of OdTcImageList: registered without a creation function,
// which the images subsystem binds.
#include "model/OdTcImageList.h"

namespace tc {

ODRX_NO_CONS_DEFINE_MEMBERS(OdTcImageList, OdTcPersist)

} // namespace tc
