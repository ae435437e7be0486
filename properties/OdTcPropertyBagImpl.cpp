// The bag of properties.
#include "properties/OdTcPropertyBagImpl.h"

#include "properties/TcDelivered.h"

#include "hostsdk/core/HostCore.h"

namespace tc {

namespace {
// A cursor over its own copy of the sequence, so that the bag may change
// while it is walked.
class CopyEnum : public OdTcEnum<OdTcProperty>
{
public:
  explicit CopyEnum(const OdArray<OdTcPropertyPtr>& items) : m_items(items) {}
  OdTcProperty* next() override { return m_position < m_items.size() ? m_items[m_position++].get() : nullptr; }
  void reset() override { m_position = 0; }

private:
  const OdArray<OdTcPropertyPtr> m_items;
  unsigned m_position = 0;
};
} // namespace

OdTcPropertyBagPtr OdTcPropertyBagImpl::createNew()
{
  return OdRxObjectImpl<OdTcPropertyBagImpl, OdTcPropertyBag>::createObject();
}

OdRxObjectPtr OdTcPropertyBagImpl::pseudoConstructor()
{
  return OdRxObjectPtr(createNew());
}

OdRxObjectPtr OdTcPropertyBagImpl::clone() const
{
  return tcCloneAs<OdTcPropertyBagImpl, OdTcPropertyBag>(this);
}

void OdTcPropertyBagImpl::writeBody(OdTcFiler* filer)
{
  for (const OdTcPropertyPtr& property : m_properties)
    filer->writeObject(property);
}

bool OdTcPropertyBagImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (value.type() != OdVariant::kRxObjectPtr)
    return false;
  addProperty(tcDeliveredAs<OdTcProperty>(value));
  return true;
}

void OdTcPropertyBagImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcPropertyBag>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcPropertyBagImpl*>(source)) {
    m_name = src->m_name;
    m_properties.clear();
    for (const OdTcPropertyPtr& property : src->m_properties)
      addProperty(OdTcPropertyPtr(property->clone()));
  }
}

void OdTcPropertyBagImpl::addProperty(OdTcProperty* property)
{
  if (!property)
    return;
  property->setParent(this);
  m_properties.append(OdTcPropertyPtr(property));
}

OdTcEnumPtr<OdTcProperty> OdTcPropertyBagImpl::newEnumerator() const
{
  return OdTcEnumPtr<OdTcProperty>(new OdRxObjectImpl<CopyEnum>(m_properties), kOdRxObjAttach);
}

OdTcProperty* OdTcPropertyBagImpl::findByName(const OdString& name) const
{
  for (const OdTcPropertyPtr& property : m_properties)
    if (property->name() == name)
      return property.get();
  return nullptr;
}

OdTcProperty* OdTcPropertyBagImpl::findByDisplayName(const OdString& name) const
{
  const OdString translated = Supp_Translate(name);
  for (const OdTcPropertyPtr& property : m_properties)
    if (property->name().iCompare(translated) == 0)
      return property.get();
  return nullptr;
}

} // namespace tc
