// The palette filer.
#include "persist/OdTcPalettePropertiesFilerImpl.h"

#include "host/TcMessages.h"

#include <algorithm>

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
  const OdString name = textFromUtf8(element->Value());
  if (name != "CreateInfo" && name != "Color")
    return name;
  const TiXmlNode* parentNode = element->Parent();
  const OdString parent = parentNode ? textFromUtf8(parentNode->Value()) : OdString();
  // The colour of a gradient is a colour record, not a general property.
  if (name == "Color")
    return parent == "GradientColor" ? OdString("GradientColorValue") : name;
  if (parent == "Layer")
    return "LayerCreateInfo";
  if (parent == "Color")
    return "ColorCreateInfo";
  if (parent == "Textstyle")
    return "TextStyleCreateInfo";
  if (parent == "Linetype")
    return "LineTypeCreateInfo";
  if (parent == "Dimstyle")
    return "DimStyleCreateInfo";
  return name;
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
