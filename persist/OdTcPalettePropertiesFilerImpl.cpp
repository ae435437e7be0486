// The palette filer.
#include "persist/OdTcPalettePropertiesFilerImpl.h"

#include "host/TcMessages.h"

#include <algorithm>
#include <cstring>

namespace tc {

OdTcFilerPtr OdTcPalettePropertiesFilerImpl::createObject()
{
  return OdRxObjectImpl<OdTcPalettePropertiesFilerImpl, OdTcFiler>::createObject();
}

bool OdTcPalettePropertiesFilerImpl::openPalette(OdStreamBuf* stream, OdTcPersist* root, bool write)
{
  if (!beginOpen(stream, root, write))
    return false; // refused before parsing: nothing is read, not even for the message
  if (write)
    return true;
  auto* palette = const_cast<TiXmlElement*>(findTopElement("Palette"));
  if (!palette || !palette->FirstChildElement()) {
    messageText(1, true);
    return true;
  }
  // First pass: the palette itself; a nested "Palette" is no loader here.
  m_parentElement = palette;
  m_currentElement = palette->FirstChildElement();
  m_skipTags.push_back("Palette");
  root->read(this);

  // Second pass, for files of other programs: the element after
  // "PaletteContent" holds tools and images as plain values.
  const TiXmlElement* content = findTopElement("PaletteContent");
  if (!content)
    return true;
  auto* holder = const_cast<TiXmlElement*>(content->NextSiblingElement());
  if (!holder || !holder->FirstChildElement())
    return true;
  m_parentElement = holder;
  m_currentElement = holder->FirstChildElement();
  m_skipTags.push_back("Image");
  m_skipTags.push_back("Tool");
  root->read(this);
  m_skipTags.clear();
  return true;
}

void OdTcPalettePropertiesFilerImpl::writeValues(const OdTcValueMap& values)
{
  for (const auto& [name, value] : values)
    writeAttribute(name, value);
}

OdTcFormattedValue OdTcPalettePropertiesFilerImpl::formatValue(const OdVariant& value, bool mrgbAttribute) const
{
  if (value.type() == OdVariant::kInt32 && !mrgbAttribute)
    return {OdString::formatted("%u", std::uint32_t(value.getInt32())), 3};
  return OdTcFilerImplBase::formatValue(value, mrgbAttribute);
}

OdString OdTcPalettePropertiesFilerImpl::tagOf(const TiXmlElement* element) const
{
  // Asked of every element read: compared as the file's bytes, so that only
  // the two names that depend on their parent cost more than a lookup.
  const char* name = element->Value();
  const bool isCreateInfo = std::strcmp(name, "CreateInfo") == 0;
  if (!isCreateInfo && std::strcmp(name, "Color") != 0)
    return sharedText(name);
  const TiXmlNode* parentNode = element->Parent();
  const char* parent = parentNode ? parentNode->Value() : "";
  // The colour of a gradient is a colour record, not a general property.
  if (!isCreateInfo)
    return std::strcmp(parent, "GradientColor") == 0 ? OdString("GradientColorValue") : sharedText(name);
  static const std::pair<const char*, const char*> kCreateInfos[] = {
      {"Layer", "LayerCreateInfo"},         {"Color", "ColorCreateInfo"},
      {"Textstyle", "TextStyleCreateInfo"}, {"Linetype", "LineTypeCreateInfo"},
      {"Dimstyle", "DimStyleCreateInfo"}};
  for (const auto& [owner, tag] : kCreateInfos)
    if (std::strcmp(parent, owner) == 0)
      return sharedText(tag);
  return sharedText(name);
}

bool OdTcPalettePropertiesFilerImpl::isSkipped(const OdString& tag) const
{
  return std::find(m_skipTags.begin(), m_skipTags.end(), tag) != m_skipTags.end();
}

void OdTcPalettePropertiesFilerImpl::attachObject(OdTcPersist* object)
{
  object->attachToDatabase(top(), OdString());
}

} // namespace tc
