// The host's XML service over pugixml.
#include "hostsdk/xml/HostXml.h"

#include <QFile>

#include <pugixml.hpp>

struct HostXmlDocument::Data
{
  pugi::xml_document document;
};

HostXmlDocument::HostXmlDocument() : m_data(std::make_unique<Data>())
{
}

HostXmlDocument::~HostXmlDocument() = default;

HostXmlNode HostXmlDocument::selectSingleNode(const OdString& xpath) const
{
  HostXmlNode result;
  try {
    const pugi::xpath_node found = m_data->document.select_node(xpath.toUtf8().c_str());
    if (found.node().type() == pugi::node_element) {
      result.m_document = shared_from_this();
      result.m_node = found.node().internal_object();
    }
  } catch (const pugi::xpath_exception&) {
    // Not an expression: it selects nothing.
  }
  return result;
}

HostXmlDocumentPtr XmlLoadXml(const OdString& path, OdString* error)
{
  // Read through Qt, so that any path the host can name is opened the same
  // way as its other files.
  QFile file(path.qstring());
  if (!file.open(QIODevice::ReadOnly)) {
    if (error)
      *error = OdString(file.errorString());
    return HostXmlDocumentPtr();
  }
  const QByteArray bytes = file.readAll();
  std::shared_ptr<HostXmlDocument> document(new HostXmlDocument);
  const pugi::xml_parse_result parsed =
      document->m_data->document.load_buffer(bytes.constData(), size_t(bytes.size()), pugi::parse_default, pugi::encoding_auto);
  if (!parsed) {
    if (error)
      *error = OdString::formatted("%s at byte %d", OdString(parsed.description()), int(parsed.offset));
    return HostXmlDocumentPtr();
  }
  return document;
}

OdString XmlGetAttrString(const HostXmlNode& node, const OdString& name, const OdString& defaultValue)
{
  if (node.isNull())
    return defaultValue;
  const pugi::xml_node element(static_cast<pugi::xml_node_struct*>(const_cast<void*>(node.m_node)));
  const pugi::xml_attribute attribute = element.attribute(name.toUtf8().c_str());
  return attribute ? OdString::fromUtf8(attribute.value()) : defaultValue;
}
