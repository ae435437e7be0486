// Class machinery of OdTcPersist and the container registration hooks.
#include "OdTcContainerHooks.h"
#include "OdTcPersist.h"

#include "OdRxClass.h"

namespace tc {

ODRX_NO_CONS_DEFINE_MEMBERS(OdTcPersist, OdRxObject)

namespace {
OdTcDatabaseRegistrar g_databaseRegistrar = nullptr;
OdTcCatalogRegistrar g_catalogRegistrar = nullptr;
} // namespace

void odtcSetContainerRegistrars(OdTcDatabaseRegistrar database, OdTcCatalogRegistrar catalog)
{
  g_databaseRegistrar = database;
  g_catalogRegistrar = catalog;
}

void odtcRegisterWithDatabase(OdTcDatabase* database, OdTcPersist* object)
{
  if (g_databaseRegistrar)
    g_databaseRegistrar(database, object);
}

void odtcRegisterWithCatalog(OdTcCatalog* catalog, OdTcPersist* object)
{
  if (g_catalogRegistrar)
    g_catalogRegistrar(catalog, object);
}

} // namespace tc
