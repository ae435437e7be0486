// Class machinery of OdTcPersist, and the registration of objects with the
// container they are read into.
#include "model/OdTcCatalog.h"
#include "model/OdTcContainerHooks.h"
#include "model/OdTcDatabase.h"
#include "model/OdTcPersist.h"

#include "sdk/kernel/OdRxClass.h"

namespace tc {

ODRX_NO_CONS_DEFINE_MEMBERS(OdTcPersist, OdRxObject)

void registerWithDatabase(OdTcDatabase* database, OdTcPersist* object)
{
  database->addMember(object);
}

void registerWithCatalog(OdTcCatalog* catalog, OdTcPersist* object)
{
  catalog->addMember(object);
}

} // namespace tc
