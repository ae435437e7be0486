// The reference of a property, kept as it was read.
#include "properties/OdTcPropertyReference.h"

#include "properties/TcDelivered.h"

#include "sdk/kernel/OdRxClass.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcPropertyReference, OdTcPersist, return OdRxObjectPtr(OdTcPropertyReferenceImpl::createNew());)

OdTcPropertyReferencePtr OdTcPropertyReferenceImpl::createNew()
{
  return OdRxObjectImpl<OdTcPropertyReferenceImpl, OdTcPropertyReference>::createObject();
}

OdRxObjectPtr OdTcPropertyReferenceImpl::clone() const
{
  return tcCloneAs<OdTcPropertyReferenceImpl, OdTcPropertyReference>(this);
}

void OdTcPropertyReferenceImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcPropertyReference>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcPropertyReferenceImpl*>(source))
    m_attributes = src->m_attributes;
}

bool OdTcPropertyReferenceImpl::readAttributes(OdTcFiler* filer)
{
  filer->push(this);
  OdTcValueMap values;
  filer->readAttributes(values);
  for (const auto& [name, value] : values)
    m_attributes.emplace_back(name, value.getString());
  filer->pop(false);
  return true;
}

void OdTcPropertyReferenceImpl::writeBody(OdTcFiler* filer)
{
  for (const auto& [name, value] : m_attributes)
    filer->writeAttribute(name, OdVariant(value));
}

} // namespace tc
