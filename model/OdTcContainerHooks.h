// How an object read from a file makes itself known to the database or
// catalog it lands in.
#pragma once

namespace tc {

class OdTcPersist;
class OdTcDatabase;
class OdTcCatalog;

void registerWithDatabase(OdTcDatabase* database, OdTcPersist* object);
void registerWithCatalog(OdTcCatalog* catalog, OdTcPersist* object);

} // namespace tc
