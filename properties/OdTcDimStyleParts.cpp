// The element parts of dimension style snapshots.
#include "properties/OdTcDimStyleParts.h"

#include "properties/TcSnapshotValues.h"

namespace tc {

void OdTcDimColorImplBase::writeBody(OdTcFiler* filer)
{
  tcWriteColor(filer, m_color);
}

bool OdTcDimColorImplBase::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "mRGB")
    return false;
  m_color = tcReadColor(value);
  return true;
}

void OdTcDimColorImplBase::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcPersist>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcDimColorImplBase*>(source))
    m_color = src->m_color;
}

OdSmartPtr<OdTcDimStyleTextImpl> OdTcDimStyleTextImpl::createNew()
{
  return OdRxObjectImpl<OdTcDimStyleTextImpl>::createObject();
}

OdRxObjectPtr OdTcDimStyleTextImpl::clone() const
{
  return tcCloneAs<OdTcDimStyleTextImpl, OdTcDimStyleTextImpl>(this);
}

void OdTcDimStyleTextImpl::writeBody(OdTcFiler* filer)
{
  tcWriteObject(filer, "TextstyleTableRecord", m_style);
}

bool OdTcDimStyleTextImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "TextstyleTableRecord")
    return false;
  m_style = tcDeliveredAs<OdTcTextStyleTableRecordImpl>(value);
  m_style->setParent(this);
  return true;
}

void OdTcDimStyleTextImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcPersist>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcDimStyleTextImpl*>(source)) {
    m_style = src->m_style ? OdTcTextStyleTableRecordImplPtr(
                                 static_cast<OdTcTextStyleTableRecordImpl*>(src->m_style->clone().get()))
                           : OdTcTextStyleTableRecordImplPtr();
    if (m_style)
      m_style->setParent(this);
  }
}

void OdTcDimLineTypeImplBase::writeBody(OdTcFiler* filer)
{
  tcWriteObject(filer, "LinetypeTableRecord", m_linetype);
}

bool OdTcDimLineTypeImplBase::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "LinetypeTableRecord")
    return false;
  m_linetype = tcDeliveredAs<OdTcLineTypeTableRecordImpl>(value);
  m_linetype->setParent(this);
  return true;
}

void OdTcDimLineTypeImplBase::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcPersist>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcDimLineTypeImplBase*>(source)) {
    m_linetype = src->m_linetype ? OdTcLineTypeTableRecordImplPtr(static_cast<OdTcLineTypeTableRecordImpl*>(
                                       src->m_linetype->clone().get()))
                                 : OdTcLineTypeTableRecordImplPtr();
    if (m_linetype)
      m_linetype->setParent(this);
  }
}

} // namespace tc
