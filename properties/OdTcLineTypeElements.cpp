// The dashes of linetype snapshots.
#include "properties/OdTcLineTypeElements.h"

#include "properties/TcDelivered.h"
#include "properties/TcSnapshotValues.h"

#include "sdk/kernel/OdRxClass.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcLineTypeElement, OdTcPersist, return OdTcLineTypeElementImpl::pseudoConstructor();)
ODRX_DEFINE_MEMBERS(OdTcComplexLineTypeElement, OdTcLineTypeElement,
                    return OdTcComplexLineTypeElementImpl::pseudoConstructor();)
ODRX_DEFINE_MEMBERS(OdTcLineTypeElementsList, OdTcPersist, return OdTcLineTypeElementsListImpl::pseudoConstructor();)

OdSmartPtr<OdTcComplexLineTypeElementImpl> OdTcComplexLineTypeElementImpl::createNew()
{
  return OdRxObjectImpl<OdTcComplexLineTypeElementImpl>::createObject();
}

OdRxObjectPtr OdTcComplexLineTypeElementImpl::pseudoConstructor()
{
  return OdRxObjectPtr(createNew());
}

OdRxObjectPtr OdTcComplexLineTypeElementImpl::clone() const
{
  return tcCloneAs<OdTcComplexLineTypeElementImpl, OdTcComplexLineTypeElementImpl>(this);
}

void OdTcComplexLineTypeElementImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcComplexLineTypeElement>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcComplexLineTypeElementImpl*>(source)) {
    m_shapeNumber = src->m_shapeNumber;
    m_text = src->m_text;
    m_offsetX = src->m_offsetX;
    m_offsetY = src->m_offsetY;
    m_rotation = src->m_rotation;
    m_isAbsoluteRotation = src->m_isAbsoluteRotation;
    m_scale = src->m_scale;
    m_styleHandle = src->m_styleHandle;
  }
}

void OdTcComplexLineTypeElementImpl::writeBody(OdTcFiler* filer)
{
  tcWriteInt(filer, "ShapeNumber", m_shapeNumber);
  tcWriteText(filer, "TextString", m_text);
  tcWriteDouble(filer, "OffsetX", m_offsetX);
  tcWriteDouble(filer, "OffsetY", m_offsetY);
  tcWriteDouble(filer, "Rotation", m_rotation);
  tcWriteBool(filer, "isAbsoluteRotation", m_isAbsoluteRotation);
  tcWriteDouble(filer, "Scale", m_scale);
  tcWriteText(filer, "TextStyleHandle", m_styleHandle);
}

bool OdTcComplexLineTypeElementImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name == "ShapeNumber")
    m_shapeNumber = tcReadInt(value);
  else if (name == "TextString")
    m_text = value.getString();
  else if (name == "OffsetX")
    m_offsetX = tcReadDouble(value);
  else if (name == "OffsetY")
    m_offsetY = tcReadDouble(value);
  else if (name == "Rotation")
    m_rotation = tcReadDouble(value);
  else if (name == "isAbsoluteRotation")
    m_isAbsoluteRotation = tcReadBoolValue(value);
  else if (name == "Scale")
    m_scale = tcReadDouble(value);
  else if (name == "TextStyleHandle")
    m_styleHandle = value.getString();
  else
    return false;
  return true;
}

OdSmartPtr<OdTcLineTypeElementImpl> OdTcLineTypeElementImpl::createNew()
{
  return OdRxObjectImpl<OdTcLineTypeElementImpl>::createObject();
}

OdRxObjectPtr OdTcLineTypeElementImpl::pseudoConstructor()
{
  return OdRxObjectPtr(createNew());
}

OdRxObjectPtr OdTcLineTypeElementImpl::clone() const
{
  return tcCloneAs<OdTcLineTypeElementImpl, OdTcLineTypeElementImpl>(this);
}

void OdTcLineTypeElementImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcLineTypeElement>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcLineTypeElementImpl*>(source)) {
    m_dash = src->m_dash;
    m_complex = src->m_complex ? OdTcComplexLineTypeElementImplPtr(static_cast<OdTcComplexLineTypeElementImpl*>(
                                     src->m_complex->clone().get()))
                               : OdTcComplexLineTypeElementImplPtr();
    if (m_complex)
      m_complex->setParent(this);
  }
}

void OdTcLineTypeElementImpl::writeBody(OdTcFiler* filer)
{
  tcWriteDouble(filer, "Dash", m_dash);
  filer->writeObject(m_complex);
}

bool OdTcLineTypeElementImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name == "Dash") {
    m_dash = tcReadDouble(value);
  } else if (name == "ComplexLinetypeElement") {
    m_complex = tcDeliveredAs<OdTcComplexLineTypeElementImpl>(value);
    m_complex->setParent(this);
  } else {
    return false;
  }
  return true;
}

OdSmartPtr<OdTcLineTypeElementsListImpl> OdTcLineTypeElementsListImpl::createNew()
{
  return OdRxObjectImpl<OdTcLineTypeElementsListImpl>::createObject();
}

OdRxObjectPtr OdTcLineTypeElementsListImpl::pseudoConstructor()
{
  return OdRxObjectPtr(createNew());
}

OdRxObjectPtr OdTcLineTypeElementsListImpl::clone() const
{
  return tcCloneAs<OdTcLineTypeElementsListImpl, OdTcLineTypeElementsListImpl>(this);
}

void OdTcLineTypeElementsListImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcLineTypeElementsList>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcLineTypeElementsListImpl*>(source)) {
    m_elements.clear();
    for (const auto& element : src->m_elements)
      add(OdTcLineTypeElementImplPtr(static_cast<OdTcLineTypeElementImpl*>(element->clone().get())));
  }
}

void OdTcLineTypeElementsListImpl::writeBody(OdTcFiler* filer)
{
  for (const auto& element : m_elements)
    filer->writeObject(element);
}

bool OdTcLineTypeElementsListImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "LinetypeElement")
    return false;
  add(tcDeliveredAs<OdTcLineTypeElementImpl>(value));
  return true;
}

void OdTcLineTypeElementsListImpl::add(OdTcLineTypeElementImpl* element)
{
  if (!element)
    return;
  element->setParent(this);
  m_elements.emplace_back(element);
}

} // namespace tc
