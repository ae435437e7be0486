// Layer snapshots.
#include "properties/OdTcLayerTableRecordImpl.h"

#include "properties/TcSnapshotValues.h"

#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbLayerTableRecord.h"

namespace tc {

OdTcLayerTableRecordImpl::OdTcLayerTableRecordImpl()
{
  m_color.setColorIndex(OdCmEntityColor::kACIWhite);
}

OdSmartPtr<OdTcLayerTableRecordImpl> OdTcLayerTableRecordImpl::createNew()
{
  return OdRxObjectImpl<OdTcLayerTableRecordImpl>::createObject();
}

OdRxObjectPtr OdTcLayerTableRecordImpl::clone() const
{
  return tcCloneAs<OdTcLayerTableRecordImpl, OdTcLayerTableRecordImpl>(this);
}

void OdTcLayerTableRecordImpl::copyFrom(const OdRxObject* source)
{
  OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcLayerTableRecordImpl*>(source)) {
    m_isNotPlotted = src->m_isNotPlotted;
    m_lineWeight = src->m_lineWeight;
    m_plotStyleName = src->m_plotStyleName;
    m_linetype = src->m_linetype ? OdTcLineTypeTableRecordImplPtr(
                                       static_cast<OdTcLineTypeTableRecordImpl*>(src->m_linetype->clone().get()))
                                 : OdTcLineTypeTableRecordImplPtr();
    if (m_linetype)
      m_linetype->setParent(this);
    m_color = src->m_color;
  }
}

void OdTcLayerTableRecordImpl::writeBody(OdTcFiler* filer)
{
  tcWriteBool(filer, "isNotPlotted", m_isNotPlotted);
  tcWriteInt(filer, "lineWeight", m_lineWeight);
  tcWriteText(filer, "SymbolTableNameRecord", m_name);
  tcWriteText(filer, "Plotstylename", m_plotStyleName);
  tcWriteObject(filer, "Linetype", m_linetype);
  tcWriteColor(filer, m_color);
}

bool OdTcLayerTableRecordImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>::setValue(name, value))
    return true;
  if (name == "isNotPlotted") {
    m_isNotPlotted = tcReadBoolValue(value);
  } else if (name == "lineWeight") {
    m_lineWeight = tcReadInt(value);
  } else if (name == "Plotstylename") {
    m_plotStyleName = value.getString();
  } else if (name == "LinetypeTableRecord") {
    m_linetype = tcDeliveredAs<OdTcLineTypeTableRecordImpl>(value);
    m_linetype->setParent(this);
  } else if (name == "mRGB") {
    m_color = tcReadColor(value);
  } else {
    return false;
  }
  return true;
}

OdDbSymbolTableRecordPtr OdTcLayerTableRecordImpl::createDbRecord(OdDbDatabase* target) const
{
  if (m_name.isEmpty() || !target)
    return OdDbSymbolTableRecordPtr();
  OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
  layer->setName(m_name);
  layer->setColor(m_color);
  layer->setLineWeight(OdDb::LineWeight(m_lineWeight));
  layer->setIsPlottable(!m_isNotPlotted);
  OdDbObjectId linetypeId;
  if (m_linetype)
    linetypeId = tcFindOrCreateRecord(target, target->getLinetypeTableId(), m_linetype->name(), m_linetype);
  if (linetypeId.isNull())
    linetypeId = target->getCELTYPE();
  layer->setLinetypeObjectId(linetypeId);
  return OdDbSymbolTableRecordPtr(layer);
}

void OdTcLayerTableRecordImpl::completeDbRecord(OdDbSymbolTableRecord* record) const
{
  OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::cast(record);
  if (layer && !m_plotStyleName.isEmpty())
    layer->setPlotStyleName(m_plotStyleName);
}

bool OdTcLayerTableRecordImpl::captureDbRecord(OdDbObjectId id)
{
  OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::cast(id.openObject());
  if (layer.isNull())
    return false;
  m_name = layer->getName();
  m_isNotPlotted = !layer->isPlottable();
  m_lineWeight = std::int32_t(layer->lineWeight());
  m_plotStyleName = layer->plotStyleName();
  m_color = layer->color();
  m_linetype = OdTcLineTypeTableRecordImpl::createNew();
  m_linetype->setParent(this);
  m_linetype->captureDbRecord(layer->linetypeObjectId());
  return true;
}

} // namespace tc
