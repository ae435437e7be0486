// The plain properties.
#include "properties/OdTcPropertyImpl.h"

namespace tc {

OdTcPropertyPtr OdTcPropertyImpl::createNew()
{
  return OdRxObjectImpl<OdTcPropertyImpl, OdTcProperty>::createObject();
}

OdRxObjectPtr OdTcPropertyImpl::pseudoConstructor()
{
  return OdRxObjectPtr(createNew());
}

OdRxObjectPtr OdTcPropertyImpl::clone() const
{
  return tcCloneAs<OdTcPropertyImpl, OdTcProperty>(this);
}

OdTcDatabasePropertyPtr OdTcDatabasePropertyImpl::createNew()
{
  return OdRxObjectImpl<OdTcDatabasePropertyImpl, OdTcDatabaseProperty>::createObject();
}

OdRxObjectPtr OdTcDatabasePropertyImpl::pseudoConstructor()
{
  return OdRxObjectPtr(createNew());
}

OdRxObjectPtr OdTcDatabasePropertyImpl::clone() const
{
  return tcCloneAs<OdTcDatabasePropertyImpl, OdTcDatabaseProperty>(this);
}

} // namespace tc
