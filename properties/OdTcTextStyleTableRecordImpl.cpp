// Text style snapshots and their collection.
#include "properties/OdTcTextStyleTableRecordImpl.h"

#include "properties/TcSnapshotValues.h"

#include "sdk/db/OdDbTextStyleTableRecord.h"
#include "sdk/kernel/OdRxClass.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcTextStyleTableRecordCollection, OdTcPersist,
                    return OdTcTextStyleTableRecordCollectionImpl::pseudoConstructor();)

OdSmartPtr<OdTcTextStyleTableRecordImpl> OdTcTextStyleTableRecordImpl::createNew()
{
  return OdRxObjectImpl<OdTcTextStyleTableRecordImpl>::createObject();
}

OdRxObjectPtr OdTcTextStyleTableRecordImpl::clone() const
{
  return tcCloneAs<OdTcTextStyleTableRecordImpl, OdTcTextStyleTableRecordImpl>(this);
}

void OdTcTextStyleTableRecordImpl::copyFrom(const OdRxObject* source)
{
  OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcTextStyleTableRecordImpl*>(source)) {
    m_isShapeFile = src->m_isShapeFile;
    m_fileName = src->m_fileName;
    m_isMirroredInX = src->m_isMirroredInX;
    m_isMirroredInY = src->m_isMirroredInY;
    m_isVertical = src->m_isVertical;
    m_widthRatio = src->m_widthRatio;
    m_fixedTextHeight = src->m_fixedTextHeight;
    m_obliquing = src->m_obliquing;
    m_priorTextHeight = src->m_priorTextHeight;
    m_typeFace = src->m_typeFace;
    m_bold = src->m_bold;
    m_italic = src->m_italic;
    m_charSet = src->m_charSet;
    m_pitchAndFamily = src->m_pitchAndFamily;
    m_fontXdata = src->m_fontXdata;
    m_handle = src->m_handle;
  }
}

void OdTcTextStyleTableRecordImpl::writeBody(OdTcFiler* filer)
{
  if (!m_handle.isEmpty())
    filer->writeAttribute("handle", OdVariant(m_handle));
  tcWriteBool(filer, "isShapeFilePointer", m_isShapeFile);
  tcWriteText(filer, "fontOrShapeFile", m_fileName);
  tcWriteBool(filer, "isMirroredinX", m_isMirroredInX);
  tcWriteBool(filer, "isMirroredinY", m_isMirroredInY);
  tcWriteBool(filer, "isVertical", m_isVertical);
  tcWriteDouble(filer, "widthRatio", m_widthRatio);
  tcWriteText(filer, "SymbolTableNameRecord", m_name);
  tcWriteDouble(filer, "FixedTextHeight", m_fixedTextHeight);
  tcWriteDouble(filer, "Obliquing", m_obliquing);
  tcWriteDouble(filer, "PriorTextHeight", m_priorTextHeight);
  tcWriteText(filer, "typeFace", m_typeFace);
  tcWriteBool(filer, "bold", m_bold);
  tcWriteBool(filer, "italic", m_italic);
  tcWriteInt(filer, "charSet", m_charSet);
  tcWriteInt(filer, "pitchAndFamily", m_pitchAndFamily);
  tcWriteText(filer, "FontXdata", m_fontXdata);
}

bool OdTcTextStyleTableRecordImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>::setValue(name, value))
    return true;
  if (name == "handle")
    m_handle = value.getString();
  else if (name == "isShapeFilePointer")
    m_isShapeFile = tcReadBoolValue(value);
  else if (name == "fontOrShapeFile")
    m_fileName = value.getString();
  else if (name == "isMirroredinX")
    m_isMirroredInX = tcReadBoolValue(value);
  else if (name == "isMirroredinY")
    m_isMirroredInY = tcReadBoolValue(value);
  else if (name == "isVertical")
    m_isVertical = tcReadBoolValue(value);
  else if (name == "widthRatio")
    m_widthRatio = tcReadDouble(value);
  else if (name == "FixedTextHeight")
    m_fixedTextHeight = tcReadDouble(value);
  else if (name == "Obliquing")
    m_obliquing = tcReadDouble(value);
  else if (name == "PriorTextHeight")
    m_priorTextHeight = tcReadDouble(value);
  else if (name == "typeFace")
    m_typeFace = value.getString();
  else if (name == "bold")
    m_bold = tcReadBoolValue(value);
  else if (name == "italic")
    m_italic = tcReadBoolValue(value);
  else if (name == "charSet")
    m_charSet = tcReadInt(value);
  else if (name == "pitchAndFamily")
    m_pitchAndFamily = tcReadInt(value);
  else if (name == "FontXdata")
    m_fontXdata = value.getString();
  else
    return false;
  return true;
}

OdDbSymbolTableRecordPtr OdTcTextStyleTableRecordImpl::createDbRecord(OdDbDatabase*) const
{
  OdDbTextStyleTableRecordPtr style = OdDbTextStyleTableRecord::createObject();
  style->setName(m_name);
  style->setFileName(m_fileName);
  style->setObliquingAngle(m_obliquing);
  style->setPriorSize(m_priorTextHeight);
  style->setTextSize(m_fixedTextHeight);
  style->setXScale(m_widthRatio);
  style->setIsVertical(m_isVertical);
  style->setIsShapeFile(m_isShapeFile);
  style->setIsUpsideDown(m_isMirroredInY);
  style->setIsBackwards(m_isMirroredInX);
  // A shape file has a file and no font.
  if (!m_isShapeFile)
    style->setFont(m_typeFace, m_bold, m_italic, m_charSet, m_pitchAndFamily);
  return OdDbSymbolTableRecordPtr(style);
}

bool OdTcTextStyleTableRecordImpl::captureDbRecord(OdDbObjectId id)
{
  OdDbTextStyleTableRecordPtr style = OdDbTextStyleTableRecord::cast(id.openObject());
  if (style.isNull())
    return false;
  m_name = style->getName();
  m_handle = OdString(style->getDbHandle().text());
  m_isShapeFile = style->isShapeFile();
  m_fileName = style->fileName();
  m_isMirroredInX = style->isBackwards();
  m_isMirroredInY = style->isUpsideDown();
  m_isVertical = style->isVertical();
  m_widthRatio = style->xScale();
  m_fixedTextHeight = style->textSize();
  m_obliquing = style->obliquingAngle();
  m_priorTextHeight = style->priorSize();
  int charSet = 0;
  int pitchAndFamily = 0;
  style->font(m_typeFace, m_bold, m_italic, charSet, pitchAndFamily);
  m_charSet = charSet;
  m_pitchAndFamily = pitchAndFamily;
  m_fontXdata = m_typeFace.isEmpty()
                    ? OdString()
                    : OdString::formatted("%d", (m_italic ? 0x1000000 : 0) | (m_bold ? 0x2000000 : 0) |
                                                    ((charSet & 0xFF) << 8) | (pitchAndFamily & 0xFF));
  return true;
}

OdSmartPtr<OdTcTextStyleTableRecordCollectionImpl> OdTcTextStyleTableRecordCollectionImpl::createNew()
{
  return OdRxObjectImpl<OdTcTextStyleTableRecordCollectionImpl>::createObject();
}

OdRxObjectPtr OdTcTextStyleTableRecordCollectionImpl::pseudoConstructor()
{
  return OdRxObjectPtr(createNew());
}

OdRxObjectPtr OdTcTextStyleTableRecordCollectionImpl::clone() const
{
  return tcCloneAs<OdTcTextStyleTableRecordCollectionImpl, OdTcTextStyleTableRecordCollectionImpl>(this);
}

void OdTcTextStyleTableRecordCollectionImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcTextStyleTableRecordCollection>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcTextStyleTableRecordCollectionImpl*>(source)) {
    m_styles.clear();
    for (const auto& style : src->m_styles)
      add(OdTcTextStyleTableRecordImplPtr(static_cast<OdTcTextStyleTableRecordImpl*>(style->clone().get())));
  }
}

void OdTcTextStyleTableRecordCollectionImpl::writeBody(OdTcFiler* filer)
{
  for (const auto& style : m_styles)
    filer->writeObject(style);
}

bool OdTcTextStyleTableRecordCollectionImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "TextstyleTableRecord")
    return false;
  add(tcDeliveredAs<OdTcTextStyleTableRecordImpl>(value));
  return true;
}

void OdTcTextStyleTableRecordCollectionImpl::add(OdTcTextStyleTableRecordImpl* style)
{
  if (!style)
    return;
  style->setParent(this);
  for (auto& existing : m_styles)
    if (!style->handle().isEmpty() && existing->handle().iCompare(style->handle()) == 0) {
      existing = style;
      return;
    }
  m_styles.emplace_back(style);
}

OdTcTextStyleTableRecordImpl* OdTcTextStyleTableRecordCollectionImpl::find(const OdString& handle) const
{
  if (handle.isEmpty())
    return nullptr;
  for (const auto& style : m_styles)
    if (style->handle().iCompare(handle) == 0)
      return style;
  return nullptr;
}

} // namespace tc
