// The shared reading and writing of the filers.
#include "persist/OdTcFilerImplBase.h"

#include "persist/OdTcTagTable.h"

#include <algorithm>
#include <cstring>
#include <mutex>

namespace tc {

OdString textFromUtf8(const char* text)
{
  return text ? OdString::fromUtf8(text) : OdString();
}

namespace {
std::string utf8(const OdString& s)
{
  return s.toUtf8();
}
} // namespace

OdTcFilerImplBase::OdTcFilerImplBase()
{
  // TinyXML folds runs of blanks by default, through a process-wide switch;
  // macros and names must survive a round trip as typed.
  static std::once_flag once;
  std::call_once(once, [] { TiXmlBase::SetCondenseWhiteSpace(false); });
}

void OdTcFilerImplBase::push(OdTcPersist* object)
{
  m_objects.push_back(object);
}

int OdTcFilerImplBase::pop(bool advance)
{
  if (advance) {
    m_parentElement = m_parentElement ? m_parentElement->NextSiblingElement() : nullptr;
    m_currentElement = m_parentElement ? m_parentElement->FirstChildElement() : nullptr;
  }
  if (!m_objects.empty())
    m_objects.pop_back();
  return int(m_objects.size());
}

OdTcPersist* OdTcFilerImplBase::top() const
{
  return m_objects.empty() ? nullptr : m_objects.back();
}

bool OdTcFilerImplBase::next()
{
  if (m_currentElement)
    m_currentElement = m_currentElement->NextSiblingElement();
  return m_currentElement != nullptr;
}

OdString OdTcFilerImplBase::tagOf(const TiXmlElement* element) const
{
  return sharedText(element->Value());
}

OdString OdTcFilerImplBase::sharedText(const char* utf8) const
{
  if (!utf8)
    return OdString();
  const std::string_view key(utf8);
  auto it = m_texts.find(key);
  if (it == m_texts.end())
    it = m_texts.emplace(std::string(key), OdString::fromUtf8(utf8, int(key.size()))).first;
  return it->second;
}

bool OdTcFilerImplBase::readNext(OdTcValueMap& values)
{
  if (atEnd())
    return false;
  const OdString name = tagOf(m_currentElement);
  if (OdTcTagTable::instance().isKnownTag(name) && !isSkipped(name)) {
    if (OdTcPersistPtr object = readObject()) {
      values[name] = OdVariant(OdRxObjectPtr(object));
      return true;
    }
  }
  const OdString text = sharedText(m_currentElement->GetText());
  const TiXmlAttribute* attribute = m_currentElement->FirstAttribute();
  if (attribute) {
    for (; attribute; attribute = attribute->Next())
      values[sharedText(attribute->Name())] = OdVariant(sharedText(attribute->Value()));
    if (!text.isEmpty())
      values[name] = OdVariant(text);
    next();
    return true;
  }
  if (text.isEmpty() && emptyElementEndsReading())
    return false; // files of this kind depend on the stop: see the catalog filer
  values[name] = OdVariant(text);
  next();
  return true;
}

bool OdTcFilerImplBase::readAttributes(OdTcValueMap& values)
{
  if (!m_currentElement)
    return false;
  const TiXmlAttribute* attribute = m_currentElement->FirstAttribute();
  if (!attribute) {
    const OdString text = sharedText(m_currentElement->GetText());
    if (text.isEmpty())
      return false;
    values[sharedText(m_currentElement->Value())] = OdVariant(text);
    return true;
  }
  for (; attribute; attribute = attribute->Next())
    values[sharedText(attribute->Name())] = OdVariant(sharedText(attribute->Value()));
  return true;
}

OdTcPersistPtr OdTcFilerImplBase::readObject()
{
  if (!m_currentElement)
    return OdTcPersistPtr();
  const OdString name = tagOf(m_currentElement);
  OdTcPersistPtr object = OdTcTagTable::instance().createByTag(name);
  if (object.isNull())
    return object;
  TiXmlElement* savedParent = m_parentElement;
  TiXmlElement* element = m_currentElement;
  m_parentElement = element;
  // Attached before it is filled, so that database() and catalog() already
  // answer inside setValue.
  attachObject(object);
  if (element->FirstAttribute())
    object->readAttributes(this);
  m_currentElement = element->FirstChildElement();
  object->read(this);
  m_parentElement = savedParent;
  m_currentElement = element->NextSiblingElement();
  return object;
}

void OdTcFilerImplBase::linkElement(TiXmlElement* element)
{
  if (m_parentElement)
    m_parentElement->LinkEndChild(element);
  else
    m_document.LinkEndChild(element);
}

void OdTcFilerImplBase::writeObject(OdTcPersist* object)
{
  if (!m_writing || !object)
    return;
  auto* element = new TiXmlElement(utf8(object->tagName()));
  linkElement(element);
  TiXmlElement* saved = m_parentElement;
  m_parentElement = element;
  object->write(this);
  m_parentElement = saved;
}

OdTcFormattedValue OdTcFilerImplBase::formatValue(const OdVariant& value, bool) const
{
  switch (value.type()) {
  case OdVariant::kString: return {value.getString(), 8};
  case OdVariant::kBool: return {value.getBool() ? OdString("-1") : OdString("0"), 2};
  case OdVariant::kInt8: return {OdString::formatted("%d", int(value.getInt8())), 16};
  case OdVariant::kInt16: return {OdString::formatted("%d", int(value.getInt16())), 2};
  case OdVariant::kInt32: return {OdString::formatted("%d", value.getInt32()), 3};
  // "%d" of a 64-bit value prints its low 32 bits as a signed number.
  case OdVariant::kInt64: return {OdString::formatted("%d", std::int32_t(value.getInt64())), 3};
  case OdVariant::kDouble: return {OdString::formatted("%g", value.getDouble()), 5};
  default: return {OdString(), 0}; // arrays and the rest give no text
  }
}

void OdTcFilerImplBase::writeAttribute(const OdString& name, const OdVariant& value)
{
  if (!m_writing || !m_parentElement || value.type() == OdVariant::kRxObjectPtr)
    return;
  m_parentElement->SetAttribute(utf8(name), utf8(formatValue(value, false).text));
}

void OdTcFilerImplBase::writeAttributeElement(const OdString& tag, const OdString& attribute,
                                              const OdVariant& value)
{
  if (!m_writing)
    return;
  if (value.type() == OdVariant::kRxObjectPtr) {
    OdRxObjectPtr object = value.getRxObjectPtr();
    writeObject(OdTcPersist::cast(object.get()));
    return;
  }
  const OdString text = formatValue(value, attribute == "mRGB").text;
  if (text.isEmpty())
    return;
  auto* element = new TiXmlElement(utf8(tag));
  element->SetAttribute(utf8(attribute), utf8(text));
  linkElement(element);
}

void OdTcFilerImplBase::writeAttributesElement(const OdString& tag, const OdTcValueMap& values)
{
  if (!m_writing)
    return;
  auto* element = new TiXmlElement(utf8(tag));
  for (const auto& [name, value] : values)
    element->SetAttribute(utf8(name), utf8(formatValue(value, false).text));
  linkElement(element);
}

void OdTcFilerImplBase::writeTextElement(const OdString& tag, const OdVariant& value, bool cdata)
{
  if (!m_writing)
    return;
  if (value.type() == OdVariant::kRxObjectPtr) {
    OdRxObjectPtr object = value.getRxObjectPtr();
    writeObject(OdTcPersist::cast(object.get()));
    return;
  }
  auto* element = new TiXmlElement(utf8(tag));
  auto* text = new TiXmlText(utf8(formatValue(value, false).text));
  text->SetCDATA(cdata);
  element->LinkEndChild(text);
  linkElement(element);
}

void OdTcFilerImplBase::flush()
{
  if (!m_writing || !m_stream)
    return;
  TiXmlPrinter printer;
  printer.SetStreamPrinting(); // no indentation, no line breaks
  m_document.Accept(&printer);
  const char* bytes = printer.CStr();
  const size_t size = printer.Size();
  for (size_t i = 0; i < size; ++i)
    m_stream->putByte(std::uint8_t(bytes[i]));
  m_document.Clear();
}

namespace {

// Whether elements nest deeper than `limit` in the text, told before the
// parser, which recurses once per level, ever sees it. Comments, CDATA,
// declarations and quoted attribute values cannot open an element.
bool nestsDeeperThan(const std::vector<char>& text, int limit)
{
  const char* p = text.data();
  const char* end = p + text.size();
  auto skipPast = [&](const char* from, const char* closing) {
    const char* found = std::search(from, end, closing, closing + std::strlen(closing));
    return found == end ? end : found + std::strlen(closing);
  };
  int depth = 0;
  while ((p = std::find(p, end, '<')) != end) {
    const char* q = p + 1;
    if (q == end)
      break;
    if (*q == '!') {
      p = std::strncmp(q, "!--", std::min<std::ptrdiff_t>(3, end - q)) == 0 ? skipPast(q, "-->")
          : std::strncmp(q, "![CDATA[", std::min<std::ptrdiff_t>(8, end - q)) == 0 ? skipPast(q, "]]>")
                                                                                   : skipPast(q, ">");
      continue;
    }
    if (*q == '?') {
      p = skipPast(q, "?>");
      continue;
    }
    if (*q == '/') {
      --depth;
      p = skipPast(q, ">");
      continue;
    }
    char quote = 0;
    for (; q != end; ++q) {
      if (quote) {
        if (*q == quote)
          quote = 0;
      } else if (*q == '"' || *q == '\'') {
        quote = *q;
      } else if (*q == '>') {
        break;
      }
    }
    if (q == end)
      break;
    if (*(q - 1) != '/' && ++depth > limit)
      return true;
    p = q + 1;
  }
  return false;
}

} // namespace

void OdTcFilerImplBase::parseStream(OdStreamBuf* stream)
{
  const std::uint64_t length = stream->length();
  if (length > kMaxFileSize) {
    m_refused = true;
    m_readProblem = OdString::formatted("it is larger than %d MB", int(kMaxFileSize >> 20));
    return;
  }
  std::vector<char> buffer(length + 1, '\0');
  stream->rewind();
  if (length)
    stream->getBytes(buffer.data(), std::uint32_t(length));
  buffer[length] = '\0';
  if (nestsDeeperThan(buffer, kMaxElementDepth)) {
    m_refused = true;
    m_readProblem = OdString::formatted("its elements nest deeper than %d levels", kMaxElementDepth);
    return;
  }
  // A broken document keeps what was parsed before the fault.
  m_document.Parse(buffer.data(), nullptr, TIXML_ENCODING_UTF8);
  if (m_document.Error())
    m_readProblem = OdString::formatted("the XML breaks off at line %d, column %d: %s", m_document.ErrorRow(),
                                        m_document.ErrorCol(), textFromUtf8(m_document.ErrorDesc()));
}

bool OdTcFilerImplBase::beginOpen(OdStreamBuf* stream, OdTcPersist* root, bool write)
{
  m_writing = write;
  m_stream = stream;
  m_root = root;
  m_isOpen = true;
  if (write) {
    m_parentElement = nullptr;
    writeObject(root);
    return true;
  }
  parseStream(stream);
  return !m_refused;
}

const TiXmlElement* OdTcFilerImplBase::findTopElement(const char* name) const
{
  for (const TiXmlElement* e = m_document.FirstChildElement(); e; e = e->NextSiblingElement())
    if (std::strcmp(e->Value(), name) == 0)
      return e;
  return nullptr;
}

} // namespace tc
