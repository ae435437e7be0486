// Linetype snapshots.
#include "properties/OdTcLineTypeTableRecordImpl.h"

#include "properties/TcSnapshotValues.h"

#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"

namespace tc {

OdTcLineTypeTableRecordImpl::OdTcLineTypeTableRecordImpl()
    : m_elements(OdTcLineTypeElementsListImpl::createNew()), m_styles(OdTcTextStyleTableRecordCollectionImpl::createNew())
{
  m_elements->setParent(this);
  m_styles->setParent(this);
}

OdSmartPtr<OdTcLineTypeTableRecordImpl> OdTcLineTypeTableRecordImpl::createNew()
{
  return OdRxObjectImpl<OdTcLineTypeTableRecordImpl>::createObject();
}

OdRxObjectPtr OdTcLineTypeTableRecordImpl::clone() const
{
  return tcCloneAs<OdTcLineTypeTableRecordImpl, OdTcLineTypeTableRecordImpl>(this);
}

void OdTcLineTypeTableRecordImpl::copyFrom(const OdRxObject* source)
{
  OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcLineTypeTableRecordImpl*>(source)) {
    m_numberOfPatternElements = src->m_numberOfPatternElements;
    m_description = src->m_description;
    m_totalPatternLength = src->m_totalPatternLength;
    m_elements->copyFrom(src->m_elements);
    m_elements->setParent(this);
    m_styles->copyFrom(src->m_styles);
    m_styles->setParent(this);
  }
}

void OdTcLineTypeTableRecordImpl::writeBody(OdTcFiler* filer)
{
  tcWriteInt(filer, "numberOfPatternElements", m_numberOfPatternElements);
  tcWriteText(filer, "SymbolTableNameRecord", m_name);
  tcWriteText(filer, "Description", m_description);
  tcWriteDouble(filer, "TotalPatternLength", m_totalPatternLength);
  tcWriteObject(filer, "LinetypeElements", m_elements);
  tcWriteObject(filer, "TextstyleTableRecordCollection", m_styles);
}

bool OdTcLineTypeTableRecordImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>::setValue(name, value))
    return true;
  if (name == "numberOfPatternElements") {
    m_numberOfPatternElements = tcReadInt(value);
  } else if (name == "Description") {
    m_description = value.getString();
  } else if (name == "TotalPatternLength") {
    m_totalPatternLength = tcReadDouble(value);
  } else if (name == "LinetypeElements") {
    m_elements = tcDeliveredAs<OdTcLineTypeElementsListImpl>(value);
    m_elements->setParent(this);
  } else if (name == "TextstyleTableRecordCollection") {
    m_styles = tcDeliveredAs<OdTcTextStyleTableRecordCollectionImpl>(value);
    m_styles->setParent(this);
  } else {
    return false;
  }
  return true;
}

OdDbSymbolTableRecordPtr OdTcLineTypeTableRecordImpl::createDbRecord(OdDbDatabase* target) const
{
  if (m_name.isEmpty() || m_name == kTcOtherLinetypeMarker || !target)
    return OdDbSymbolTableRecordPtr();
  OdDbLinetypeTableRecordPtr linetype = OdDbLinetypeTableRecord::createObject();
  linetype->setName(m_name);
  linetype->setComments(m_description);
  // The list is what the dashes are; a count that disagrees with it (a
  // file edited by hand) does not make dashes out of nothing.
  const auto& elements = m_elements->m_elements;
  linetype->setNumDashes(int(elements.size()));
  linetype->setPatternLength(m_totalPatternLength);
  for (int i = 0; i < int(elements.size()); ++i) {
    const OdTcLineTypeElementImpl* element = elements[std::size_t(i)];
    linetype->setDashLengthAt(i, element->m_dash);
    const OdTcComplexLineTypeElementImpl* complex = element->m_complex;
    if (!complex)
      continue;
    // The number, text and style make the dash a shape or a text; the
    // record keeps the placement only of such a dash, so they come first.
    linetype->setShapeNumberAt(i, complex->m_shapeNumber);
    linetype->setTextAt(i, complex->m_text);
    const OdTcTextStyleTableRecordImpl* style = m_styles->find(complex->m_styleHandle);
    linetype->setShapeStyleAt(i, style ? tcFindOrCreateRecord(target, target->getTextStyleTableId(), style->name(), style)
                                       : OdDbObjectId());
    linetype->setShapeIsUcsOrientedAt(i, complex->m_isAbsoluteRotation);
    linetype->setShapeScaleAt(i, complex->m_scale);
    linetype->setShapeRotationAt(i, complex->m_rotation);
    linetype->setShapeOffsetAt(i, OdGeVector2d(complex->m_offsetX, complex->m_offsetY));
  }
  return OdDbSymbolTableRecordPtr(linetype);
}

bool OdTcLineTypeTableRecordImpl::captureDbRecord(OdDbObjectId id)
{
  m_elements->m_elements.clear();
  m_styles = OdTcTextStyleTableRecordCollectionImpl::createNew();
  m_styles->setParent(this);
  OdDbLinetypeTableRecordPtr linetype = OdDbLinetypeTableRecord::cast(id.openObject());
  if (linetype.isNull()) {
    m_name = kTcOtherLinetypeMarker;
    m_numberOfPatternElements = 0;
    m_description = OdString();
    m_totalPatternLength = 0.0;
    return false;
  }
  m_name = linetype->getName();
  m_description = linetype->comments();
  m_totalPatternLength = linetype->patternLength();
  const std::vector<OdDbLinetypeTableRecord::Dash> dashes = linetype->dashes();
  m_numberOfPatternElements = std::int32_t(dashes.size());
  for (int i = 0; i < int(dashes.size()); ++i) {
    const OdDbLinetypeTableRecord::Dash& dash = dashes[std::size_t(i)];
    OdSmartPtr<OdTcLineTypeElementImpl> element = OdTcLineTypeElementImpl::createNew();
    element->m_dash = dash.length;
    if (dash.isComplex()) {
      OdSmartPtr<OdTcComplexLineTypeElementImpl> complex = OdTcComplexLineTypeElementImpl::createNew();
      complex->m_shapeNumber = (dash.flags & 2) ? 0 : dash.shapeNumber;
      complex->m_text = (dash.flags & 2) ? dash.text : OdString();
      complex->m_offsetX = dash.offsetX;
      complex->m_offsetY = dash.offsetY;
      complex->m_rotation = dash.rotation;
      complex->m_isAbsoluteRotation = (dash.flags & 1) != 0;
      complex->m_scale = dash.scale;
      const OdDbObjectId styleId = linetype->shapeStyleAt(i);
      if (!m_styles->find(OdString(styleId.getHandle().text()))) {
        OdTcTextStyleTableRecordImplPtr style = OdTcTextStyleTableRecordImpl::createNew();
        if (style->captureDbRecord(styleId))
          m_styles->add(style);
      }
      if (m_styles->find(OdString(styleId.getHandle().text())))
        complex->m_styleHandle = OdString(styleId.getHandle().text());
      complex->setParent(element);
      element->m_complex = complex;
    }
    m_elements->add(element);
  }
  return true;
}

} // namespace tc
