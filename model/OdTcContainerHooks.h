// How an object read from a file makes itself known to the database or
// catalog it lands in. The containers install their handlers when their
// classes come into the module.
#pragma once

namespace tc {

class OdTcPersist;
class OdTcDatabase;
class OdTcCatalog;

using OdTcDatabaseRegistrar = void (*)(OdTcDatabase* database, OdTcPersist* object);
using OdTcCatalogRegistrar = void (*)(OdTcCatalog* catalog, OdTcPersist* object);

void odtcSetContainerRegistrars(OdTcDatabaseRegistrar database, OdTcCatalogRegistrar catalog);
void odtcRegisterWithDatabase(OdTcDatabase* database, OdTcPersist* object);
void odtcRegisterWithCatalog(OdTcCatalog* catalog, OdTcPersist* object);

} // namespace tc
