// Class machinery of OdTcPersist, and the registration of objects with the
// container they are read into.
#include "OdTcCatalog.h"
#include "OdTcContainerHooks.h"
#include "OdTcDatabase.h"
#include "OdTcPersist.h"

#include "OdRxClass.h"

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
