// The create-infos, and the plain create-info and snapshot that the class
// descriptions make.
#include "properties/OdTcPropertyCreateInfos.h"

#include "properties/TcSnapshotValues.h"

#include "sdk/kernel/OdRxClass.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcPropertyCreateInfo, OdTcPersist, return OdRxObjectPtr(OdTcPropertyCreateInfoImpl::createNew());)

OdTcPropertyCreateInfoPtr OdTcPropertyCreateInfoImpl::createNew()
{
  return OdRxObjectImpl<OdTcPropertyCreateInfoImpl, OdTcPropertyCreateInfo>::createObject();
}

OdRxObjectPtr OdTcPropertyCreateInfoImpl::clone() const
{
  return tcCloneAs<OdTcPropertyCreateInfoImpl, OdTcPropertyCreateInfo>(this);
}

OdSmartPtr<OdTcColorPropertyCreateInfoImpl> OdTcColorPropertyCreateInfoImpl::createNew()
{
  return OdRxObjectImpl<OdTcColorPropertyCreateInfoImpl>::createObject();
}

OdRxObjectPtr OdTcColorPropertyCreateInfoImpl::clone() const
{
  return tcCloneAs<OdTcColorPropertyCreateInfoImpl, OdTcColorPropertyCreateInfoImpl>(this);
}

void OdTcColorPropertyCreateInfoImpl::copyFrom(const OdRxObject* source)
{
  OdTcPropertyCreateInfoImplBase<OdTcPropertyCreateInfo>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcColorPropertyCreateInfoImpl*>(source))
    m_color = src->m_color;
}

void OdTcColorPropertyCreateInfoImpl::writeBody(OdTcFiler* filer)
{
  tcWriteColor(filer, m_color);
}

bool OdTcColorPropertyCreateInfoImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "mRGB")
    return false;
  m_color = tcReadColor(value);
  return true;
}

#define TC_CREATE_INFO_MEMBERS(ClassName)                          \
  OdSmartPtr<ClassName> ClassName::createNew()                     \
  {                                                                \
    return OdRxObjectImpl<ClassName>::createObject();              \
  }                                                                \
  OdRxObjectPtr ClassName::clone() const                           \
  {                                                                \
    return tcCloneAs<ClassName, ClassName>(this);                  \
  }

TC_CREATE_INFO_MEMBERS(OdTcLayerPropertyCreateInfoImpl)
TC_CREATE_INFO_MEMBERS(OdTcLineTypePropertyCreateInfoImpl)
TC_CREATE_INFO_MEMBERS(OdTcTextStylePropertyCreateInfoImpl)
TC_CREATE_INFO_MEMBERS(OdTcDimStylePropertyCreateInfoImpl)
#undef TC_CREATE_INFO_MEMBERS

void OdTcTextStylePropertyCreateInfoImpl::copyFrom(const OdRxObject* source)
{
  OdTcPropertyCreateInfoImplBase<OdTcPropertyCreateInfo>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcTextStylePropertyCreateInfoImpl*>(source)) {
    m_collection = src->m_collection ? OdTcTextStyleTableRecordCollectionImplPtr(
                                           static_cast<OdTcTextStyleTableRecordCollectionImpl*>(
                                               src->m_collection->clone().get()))
                                     : OdTcTextStyleTableRecordCollectionImplPtr();
    if (m_collection)
      m_collection->setParent(this);
  }
}

void OdTcTextStylePropertyCreateInfoImpl::writeBody(OdTcFiler* filer)
{
  OdTcPropertyCreateInfoImplBase<OdTcPropertyCreateInfo>::writeBody(filer);
  filer->writeObject(m_collection);
}

bool OdTcTextStylePropertyCreateInfoImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (OdTcPropertyCreateInfoImplBase<OdTcPropertyCreateInfo>::setValue(name, value))
    return true;
  if (name != "TextstyleTableRecordCollection")
    return false;
  m_collection = tcDeliveredAs<OdTcTextStyleTableRecordCollectionImpl>(value);
  m_collection->setParent(this);
  if (!m_record && m_collection->count() > 0)
    setRecord(OdTcSymbolTableRecordPtr(m_collection->at(0)->clone()));
  return true;
}

} // namespace tc
