// The display record of catalog items, and the record of a property value.
#include "model/OdTcProperties.h"

#include "model/OdTcImageList.h"
#include "model/TcValueText.h"

#include "sdk/kernel/OdTimeStamp.h"
#include "sdk/kernel/OdWcstol.h"

#include <ctime>

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcProperties, OdTcPersist, ODRX_CREATE_IMPL(OdTcPropertiesImpl, OdTcProperties))
ODRX_DEFINE_MEMBERS(OdTcPropertyBasicInfo, OdTcPersist,
                    ODRX_CREATE_IMPL(OdTcPropertyBasicInfoImpl, OdTcPropertyBasicInfo))

OdString OdTcPropertiesImpl::now()
{
  // Every item made while a catalog loads asks within the same second: one
  // text, shared, instead of a formatting and a copy per item.
  thread_local std::time_t lastSecond = -1;
  thread_local OdString lastText;
  const std::time_t second = std::time(nullptr);
  if (second != lastSecond) {
    OdTimeStamp stamp;
    stamp.setPackedValue(second);
    OdTimeStamp universal;
    stamp.getUniversalTime(universal);
    lastText = universal.ctime();
    lastSecond = second;
  }
  return lastText;
}

OdTcPropertiesImpl::OdTcPropertiesImpl()
    : m_created(now()), m_changed(m_created), m_images(OdTcImageList::createObject())
{
  // Null while no subsystem implements pictures: an item then has none.
  if (m_images)
    m_images->setParent(this);
}

OdTcPropertiesPtr OdTcPropertiesImpl::createNew()
{
  return OdRxObjectImpl<OdTcPropertiesImpl, OdTcProperties>::createObject();
}

OdString OdTcPropertiesImpl::displayName() const
{
  if (m_itemName.isEmpty() && !m_resource.isEmpty())
    return m_resource;
  return m_itemName;
}

void OdTcPropertiesImpl::setItemName(const OdString& name)
{
  m_itemName = name;
  refreshChanged();
}

void OdTcPropertiesImpl::setDescription(const OdString& description)
{
  m_description = description;
  refreshChanged();
}

void OdTcPropertiesImpl::setDates(const OdString& created, const OdString& changed)
{
  m_created = created;
  m_changed = changed;
}

void OdTcPropertiesImpl::setResource(const OdString& resource, const OdString& src)
{
  m_resource = resource;
  m_src = src;
}

void OdTcPropertiesImpl::refreshChanged()
{
  m_changed = now();
}

OdTcImageList* OdTcPropertiesImpl::images()
{
  return m_images;
}

void OdTcPropertiesImpl::setImages(OdTcImageList* images)
{
  m_images = images;
  if (m_images)
    m_images->setParent(this);
}

bool OdTcPropertiesImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name == "ItemName") {
    setItemName(value.getString());
  } else if (name == "Description") {
    setDescription(value.getString());
  } else if (name == "resource") {
    m_resource = value.getString();
  } else if (name == "src") {
    m_src = value.getString();
  } else if (name == "createdUniversalDateTime") {
    m_created = value.getString();
  } else if (name == "modifiedUniversalDateTime") {
    m_changed = value.getString();
  } else if (name == "Images") {
    m_images = deliveredObject<OdTcImageList>(value);
  } else {
    return false;
  }
  return true;
}

void OdTcPropertiesImpl::write(OdTcFiler* filer)
{
  writeBody(filer);
  writeTail(filer);
}

void OdTcPropertiesImpl::writeBody(OdTcFiler* filer)
{
  if (m_resource.isEmpty() && m_src.isEmpty()) {
    filer->writeTextElement("ItemName", OdVariant(m_itemName), false);
  } else {
    // A resource name stands for the name: the typed name is not written.
    filer->writeAttributesElement("ItemName", OdTcValueMap{{"resource", OdVariant(m_resource)},
                                                           {"src", OdVariant(m_src)}});
  }
  if (!m_description.isEmpty())
    filer->writeTextElement("Description", OdVariant(m_description), false);
  if (m_created.isEmpty() && m_changed.isEmpty())
    return;
  filer->writeAttributesElement("Time", OdTcValueMap{{"createdUniversalDateTime", OdVariant(m_created)},
                                                     {"modifiedUniversalDateTime", OdVariant(m_changed)}});
}

void OdTcPropertiesImpl::writeTail(OdTcFiler* filer)
{
  filer->writeObject(m_images);
}

void OdTcPropertiesImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcProperties>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcPropertiesImpl*>(source)) {
    m_itemName = src->m_itemName;
    m_description = src->m_description;
    m_created = src->m_created;
    m_changed = src->m_changed;
    m_resource = src->m_resource;
    m_src = src->m_src;
    m_images = src->m_images ? OdTcImageListPtr(src->m_images->clone()) : OdTcImageListPtr();
    if (m_images)
      m_images->setParent(this);
  }
}

OdTcPropertyBasicInfoPtr OdTcPropertyBasicInfoImpl::createNew()
{
  return OdRxObjectImpl<OdTcPropertyBasicInfoImpl, OdTcPropertyBasicInfo>::createObject();
}

bool OdTcPropertyBasicInfoImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name == "unspecified") {
    m_unspecified = tcReadBool(value.getString());
  } else if (name == "valueType") {
    m_valueType = odWcstol(value.getString());
  } else if (name == "value") {
    m_value = value;
  }
  return true;
}

namespace {
// "PropValue": its attributes in the order the files have them, which a map
// of attributes (ordered by name) would not keep.
class PropValueElement : public OdTcPersistImpl<OdTcPersist>
{
public:
  PropValueElement(const OdTcPropertyBasicInfo& info) : m_info(info) {}
  OdString tagName() const override { return "PropValue"; }
  void writeBody(OdTcFiler* filer) override
  {
    const bool unspecified = m_info.isUnspecified();
    filer->writeAttribute("unspecified", OdVariant(tcBoolText(unspecified)));
    if (m_info.isValueTypeWritten())
      filer->writeAttribute("valueType", OdVariant(OdString::formatted("%d", m_info.valueType())));
    const OdString text = tcVariantText(m_info.value());
    if (!unspecified && !text.isEmpty())
      filer->writeAttribute("value", OdVariant(text));
  }

private:
  const OdTcPropertyBasicInfo& m_info;
};
} // namespace

void OdTcPropertyBasicInfoImpl::writeBody(OdTcFiler* filer)
{
  OdStaticRxObject<PropValueElement> element(*this);
  filer->writeObject(&element);
}

void OdTcPropertyBasicInfoImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcPropertyBasicInfo>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcPropertyBasicInfoImpl*>(source)) {
    m_unspecified = src->m_unspecified;
    m_valueType = src->m_valueType;
    m_value = src->m_value;
    m_isValueTypeWritten = src->m_isValueTypeWritten;
  }
}

} // namespace tc
