// Class machinery of OdTcImage: registered without a creation function,
// which the images subsystem binds.
#include "model/OdTcImage.h"

namespace tc {

ODRX_NO_CONS_DEFINE_MEMBERS(OdTcImage, OdTcPersist)

} // namespace tc
