// The filter of general properties.
#include "properties/OdTcPropertyFilterImpl.h"

#include "properties/TcDelivered.h"

#include <algorithm>

namespace tc {

OdTcPropertyFilterPtr OdTcPropertyFilterImpl::createNew()
{
  return OdRxObjectImpl<OdTcPropertyFilterImpl, OdTcPropertyFilter>::createObject();
}

OdRxObjectPtr OdTcPropertyFilterImpl::pseudoConstructor()
{
  return OdRxObjectPtr(createNew());
}

OdRxObjectPtr OdTcPropertyFilterImpl::clone() const
{
  return tcCloneAs<OdTcPropertyFilterImpl, OdTcPropertyFilter>(this);
}

void OdTcPropertyFilterImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcPropertyFilter>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcPropertyFilterImpl*>(source))
    m_names = src->m_names;
}

bool OdTcPropertyFilterImpl::contains(const OdString& name) const
{
  return std::find(m_names.begin(), m_names.end(), name) != m_names.end();
}

} // namespace tc
