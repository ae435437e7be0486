// The host's XML service: an XML file loaded whole, one node of it selected
// by an XPath expression, and the attributes of that node. Modules use it
// for the host's own files (the command route map); their own files have
// formats of their own.
#pragma once

#include "sdk/kernel/OdString.h"

#include <memory>

class HostXmlDocument;
using HostXmlDocumentPtr = std::shared_ptr<const HostXmlDocument>;

// One element of a loaded document, or none. It keeps its document alive.
class HostXmlNode
{
public:
  HostXmlNode() = default;
  bool isNull() const { return !m_document; }
  explicit operator bool() const { return !isNull(); }

private:
  friend class HostXmlDocument;
  friend OdString XmlGetAttrString(const HostXmlNode&, const OdString&, const OdString&);
  HostXmlDocumentPtr m_document;
  const void* m_node = nullptr; // an element of m_document
};

class HostXmlDocument : public std::enable_shared_from_this<HostXmlDocument>
{
public:
  ~HostXmlDocument();
  HostXmlDocument(const HostXmlDocument&) = delete;
  HostXmlDocument& operator=(const HostXmlDocument&) = delete;

  // The first element that `xpath` selects, relative to the document; none
  // when nothing matches or the expression is not valid XPath.
  HostXmlNode selectSingleNode(const OdString& xpath) const;

private:
  friend HostXmlDocumentPtr XmlLoadXml(const OdString&, OdString*);
  friend OdString XmlGetAttrString(const HostXmlNode&, const OdString&, const OdString&);
  HostXmlDocument();
  struct Data;
  std::unique_ptr<Data> m_data;
};

// Loads an XML file. Null when it cannot be read or is not well-formed XML,
// with the reason in `error` when one is given.
HostXmlDocumentPtr XmlLoadXml(const OdString& path, OdString* error = nullptr);

// The value of an attribute of `node`, or `defaultValue` when the node is
// none or has no such attribute.
OdString XmlGetAttrString(const HostXmlNode& node, const OdString& name, const OdString& defaultValue = OdString());
