// Reading and writing the configuration file.
//
// The file:
//   <VerdaniConfig version="1">
//     <Folder name="StdDirs">
//       <Value name="ToolPaletteDir" type="wstring">/home/me/palettes</Value>
//     </Folder>
//   </VerdaniConfig>
// Types: empty, bool, int32, int64, double, string (narrow), wstring (wide).
// A text with characters that XML cannot carry is stored as base64 of its
// UTF-8 form, marked encoding="base64".
#include "app/core/HostConfig.h"

#include "sdk/kernel/OdSafeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

constexpr const char* kRootElement = "VerdaniConfig";
constexpr const char* kFolderElement = "Folder";
constexpr const char* kValueElement = "Value";

const char* typeName(CRkVariant::Type type)
{
  switch (type) {
  case CRkVariant::kBool: return "bool";
  case CRkVariant::kInt32: return "int32";
  case CRkVariant::kInt64: return "int64";
  case CRkVariant::kDouble: return "double";
  case CRkVariant::kStringA: return "string";
  case CRkVariant::kStringW: return "wstring";
  default: return "empty";
  }
}

// Numbers that do not parse are 0, as everywhere in the files of this system.
CRkVariant makeValue(const QString& type, const QString& text)
{
  if (type == QLatin1String("empty"))
    return CRkVariant();
  if (type == QLatin1String("bool"))
    return CRkVariant(text.trimmed() == QLatin1String("1") || text.trimmed() == QLatin1String("true"));
  if (type == QLatin1String("int32"))
    return CRkVariant(std::int32_t(text.trimmed().toInt()));
  if (type == QLatin1String("int64"))
    return CRkVariant(std::int64_t(text.trimmed().toLongLong()));
  if (type == QLatin1String("double"))
    return CRkVariant(text.trimmed().toDouble());
  if (type == QLatin1String("string"))
    return CRkVariant(text.toStdString());
  return CRkVariant(OdString(text)); // wstring, and any type we do not know
}

QString valueText(const CRkVariant& value)
{
  switch (value.type()) {
  case CRkVariant::kEmpty: return QString();
  case CRkVariant::kBool: return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
  case CRkVariant::kDouble: return QString::number(value.toDouble(), 'g', 17);
  case CRkVariant::kStringA: return QString::fromStdString(value.narrow());
  default: return value.toString().qstring();
  }
}

// XML 1.0 carries tab, new line and carriage return, but no other control
// character; carriage returns would also come back as new lines.
bool needsBase64(const QString& text)
{
  for (QChar c : text) {
    const char16_t u = c.unicode();
    if ((u < 0x20 && u != u'\t' && u != u'\n') || u == 0xFFFE || u == 0xFFFF)
      return true;
  }
  return false;
}

void writeNode(QXmlStreamWriter& xml, const HostConfigNode* node)
{
  for (const HostConfigNode::Value& v : node->values()) {
    xml.writeStartElement(QLatin1String(kValueElement));
    xml.writeAttribute(QStringLiteral("name"), QString::fromStdString(v.name));
    xml.writeAttribute(QStringLiteral("type"), QLatin1String(typeName(v.value.type())));
    const QString text = valueText(v.value);
    if (needsBase64(text)) {
      xml.writeAttribute(QStringLiteral("encoding"), QStringLiteral("base64"));
      xml.writeCharacters(QString::fromLatin1(text.toUtf8().toBase64()));
    } else {
      xml.writeCharacters(text);
    }
    xml.writeEndElement();
  }
  for (const HostConfigNode* f : node->folders()) {
    xml.writeStartElement(QLatin1String(kFolderElement));
    xml.writeAttribute(QStringLiteral("name"), QString::fromStdString(f->nodeName()));
    writeNode(xml, f);
    xml.writeEndElement();
  }
}

// Reads the children of the current element into `node`; unknown elements
// are skipped with all they hold.
void readNode(QXmlStreamReader& xml, HostConfigNode* node)
{
  while (xml.readNextStartElement()) {
    const QString name = xml.attributes().value(QLatin1String("name")).toString();
    if (xml.name() == QLatin1String(kFolderElement) && !name.isEmpty()) {
      readNode(xml, node->loadFolder(name.toStdString()));
    } else if (xml.name() == QLatin1String(kValueElement) && !name.isEmpty()) {
      const QString type = xml.attributes().value(QLatin1String("type")).toString();
      const bool base64 = xml.attributes().value(QLatin1String("encoding")) == QLatin1String("base64");
      QString text = xml.readElementText(QXmlStreamReader::SkipChildElements);
      if (base64)
        text = QString::fromUtf8(QByteArray::fromBase64(text.toLatin1()));
      node->loadValue(name.toStdString(), makeValue(type, text));
    } else {
      xml.skipCurrentElement();
    }
  }
}

} // namespace

HostConfig::HostConfig(QString filePath)
    : m_filePath(std::move(filePath)), m_root(CRkPtr<HostConfigNode>::attach(new HostConfigNode(this, nullptr, "")))
{
}

HostConfig::~HostConfig()
{
  m_root->detach();
}

HostConfig::Batch::~Batch()
{
  if (--m_config.m_batchDepth == 0 && m_config.m_dirty)
    m_config.save();
}

HostConfigNode* HostConfig::folder(const std::string& path, bool create)
{
  if (path.empty())
    return m_root.get();
  return m_root->folder(path, create);
}

void HostConfig::nodeChanged(HostConfigNode* node, const std::string& name, const CRkVariant* value)
{
  m_dirty = true;
  if (m_batchDepth == 0)
    save();
  if (m_onChange && !name.empty())
    m_onChange(node, name, value);
}

void HostConfig::tell(const OdString& message)
{
  if (m_onMessage)
    m_onMessage(message);
}

QByteArray HostConfig::toXml() const
{
  QByteArray out;
  QXmlStreamWriter xml(&out);
  xml.setAutoFormatting(true);
  xml.setAutoFormattingIndent(2);
  xml.writeStartDocument();
  xml.writeStartElement(QLatin1String(kRootElement));
  xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1"));
  writeNode(xml, m_root.get());
  xml.writeEndElement();
  xml.writeEndDocument();
  return out;
}

bool HostConfig::fromXml(const QByteArray& text, QString* error)
{
  m_root->detach();
  m_root = CRkPtr<HostConfigNode>::attach(new HostConfigNode(this, nullptr, ""));
  QXmlStreamReader xml(text);
  if (!xml.readNextStartElement() || xml.name() != QLatin1String(kRootElement)) {
    if (error)
      *error = xml.hasError() ? QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString())
                              : QStringLiteral("it is not a Verdani configuration (no <%1> element)")
                                    .arg(QLatin1String(kRootElement));
    return false;
  }
  readNode(xml, m_root.get());
  // Anything after the root element must be well-formed too.
  while (!xml.atEnd() && !xml.hasError())
    xml.readNext();
  if (xml.hasError()) {
    if (error)
      *error = QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
    m_root->detach();
    m_root = CRkPtr<HostConfigNode>::attach(new HostConfigNode(this, nullptr, ""));
    return false;
  }
  return true;
}

QString HostConfig::moveAside()
{
  QString target = m_filePath + QStringLiteral(".broken");
  for (int n = 2; QFileInfo::exists(target); ++n)
    target = m_filePath + QStringLiteral(".broken.%1").arg(n);
  return QFile::rename(m_filePath, target) ? target : QString();
}

bool HostConfig::load()
{
  m_brokenCopy.clear();
  m_saveDisabled = false;
  m_dirty = false;
  QFile file(m_filePath);
  if (!file.exists()) {
    fromXml(QByteArray("<VerdaniConfig/>"), nullptr);
    return true;
  }
  QString reason;
  bool ok = false;
  if (file.open(QIODevice::ReadOnly)) {
    ok = fromXml(file.readAll(), &reason);
    file.close();
  } else {
    reason = file.errorString();
    fromXml(QByteArray("<VerdaniConfig/>"), nullptr);
  }
  if (ok)
    return true;

  m_brokenCopy = moveAside();
  if (m_brokenCopy.isEmpty()) {
    m_saveDisabled = true;
    tell(OdString::formatted("The configuration file %s cannot be read (%s), nor moved aside. Verdani starts "
                             "with default settings and will not save them over that file; fix or remove "
                             "it and start again.",
                             m_filePath, reason));
  } else {
    tell(OdString::formatted("The configuration file %s cannot be read (%s). It was kept as %s; Verdani starts "
                             "with default settings.",
                             m_filePath, reason, m_brokenCopy));
  }
  return false;
}

bool HostConfig::save()
{
  m_dirty = false;
  if (m_saveDisabled)
    return false;
  QString error;
  if (!QDir().mkpath(QFileInfo(m_filePath).absolutePath())) {
    error = QStringLiteral("cannot create the folder %1").arg(QFileInfo(m_filePath).absolutePath());
  } else {
    const QByteArray bytes = toXml();
    try {
      odWriteFileSafely(OdString(m_filePath),
                        [&](OdStreamBuf& stream) { stream.putBytes(bytes.constData(), std::uint32_t(bytes.size())); });
    } catch (const OdError_FileException& e) {
      error = e.reason().qstring();
    }
  }
  if (error.isEmpty()) {
    m_lastSaveError.clear();
    return true;
  }
  if (error != m_lastSaveError) {
    m_lastSaveError = error;
    tell(OdString::formatted("Cannot save the configuration to %s: %s. Changes last until Verdani ends.",
                             m_filePath, error));
  }
  return false;
}
