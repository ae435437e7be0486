// The general properties of records.
#include "properties/OdTcRecordPropertyImpls.h"
#include "properties/TcSharedText.h"

#include "sdk/db/OdDbDatabase.h"

namespace tc {

void OdTcRecordPropertyImplBase::apply(OdDbDatabase* database)
{
  if (!database)
    return;
  m_saved = current(database);
  m_hasSaved = true;
  if (isUnspecified())
    return;
  const OdDbObjectId id = tcFindOrCreateRecord(database, tableId(database), recordName(), snapshot());
  if (id.isNull())
    return;
  setCurrent(database, id);
  currentChanged(database, id);
}

void OdTcRecordPropertyImplBase::restore(OdDbDatabase* database)
{
  if (!m_hasSaved || !database || m_saved.isNull() || current(database) == m_saved)
    return;
  setCurrent(database, m_saved);
  currentChanged(database, m_saved);
}

OdString OdTcRecordPropertyImplBase::recordName() const
{
  const OdVariant value = m_basicInfo->value();
  return value.type() == OdVariant::kString ? value.getString() : OdString();
}

OdTcSymbolTableRecord* OdTcRecordPropertyImplBase::snapshot() const
{
  return m_createInfo ? m_createInfo->record() : nullptr;
}

bool OdTcRecordPropertyImplBase::captureRecord(OdDbDatabase* database, const OdString& name)
{
  if (!database)
    return false;
  OdDbSymbolTablePtr table = OdDbSymbolTable::cast(tableId(database).openObject());
  const OdDbObjectId id = table.isNull() ? OdDbObjectId() : table->getAt(name);
  OdTcSymbolTableRecordPtr record = newSnapshot();
  if (id.isNull() || !record->captureDbRecord(id))
    return false;
  beginChange();
  OdTcPropertyCreateInfoPtr info = newCreateInfo();
  info->setRecord(record);
  setCreateInfo(info);
  m_basicInfo->setPropValue(OdVariant(record->name()));
  m_basicInfo->setUnspecified(false);
  return true;
}

bool OdTcRecordPropertyImplBase::takeText(const OdString& text)
{
  if (text.isEmpty())
    return false;
  if (OdTcSymbolTableRecord* record = snapshot())
    if (record->name().iCompare(text) != 0)
      m_createInfo->setRecord(nullptr);
  m_basicInfo->setPropValue(OdVariant(text));
  return true;
}

// ---- layer

OdTcLayerPropertyImpl::OdTcLayerPropertyImpl()
{
  m_name = tcTranslate("General.Layer");
}

OdSmartPtr<OdTcLayerPropertyImpl> OdTcLayerPropertyImpl::createNew()
{
  return OdRxObjectImpl<OdTcLayerPropertyImpl>::createObject();
}

OdRxObjectPtr OdTcLayerPropertyImpl::clone() const
{
  return tcCloneAs<OdTcLayerPropertyImpl, OdTcLayerPropertyImpl>(this);
}

OdDbObjectId OdTcLayerPropertyImpl::tableId(OdDbDatabase* database) const
{
  return database->getLayerTableId();
}

OdDbObjectId OdTcLayerPropertyImpl::current(OdDbDatabase* database) const
{
  return database->getCLAYER();
}

void OdTcLayerPropertyImpl::setCurrent(OdDbDatabase* database, OdDbObjectId id) const
{
  database->setCLAYER(id);
}

OdTcPropertyCreateInfoPtr OdTcLayerPropertyImpl::newCreateInfo() const
{
  return OdTcLayerPropertyCreateInfoImpl::createNew();
}

OdTcSymbolTableRecordPtr OdTcLayerPropertyImpl::newSnapshot() const
{
  return OdTcLayerTableRecordImpl::createNew();
}

// ---- linetype

OdTcLineTypePropertyImpl::OdTcLineTypePropertyImpl()
{
  m_name = tcTranslate("General.Linetype");
}

OdSmartPtr<OdTcLineTypePropertyImpl> OdTcLineTypePropertyImpl::createNew()
{
  return OdRxObjectImpl<OdTcLineTypePropertyImpl>::createObject();
}

OdRxObjectPtr OdTcLineTypePropertyImpl::clone() const
{
  return tcCloneAs<OdTcLineTypePropertyImpl, OdTcLineTypePropertyImpl>(this);
}

OdDbObjectId OdTcLineTypePropertyImpl::tableId(OdDbDatabase* database) const
{
  return database->getLinetypeTableId();
}

OdDbObjectId OdTcLineTypePropertyImpl::current(OdDbDatabase* database) const
{
  return database->getCELTYPE();
}

void OdTcLineTypePropertyImpl::setCurrent(OdDbDatabase* database, OdDbObjectId id) const
{
  database->setCELTYPE(id);
}

OdTcPropertyCreateInfoPtr OdTcLineTypePropertyImpl::newCreateInfo() const
{
  return OdTcLineTypePropertyCreateInfoImpl::createNew();
}

OdTcSymbolTableRecordPtr OdTcLineTypePropertyImpl::newSnapshot() const
{
  return OdTcLineTypeTableRecordImpl::createNew();
}

bool OdTcLineTypePropertyImpl::writesCreateInfo() const
{
  const OdString name = recordName();
  return name.iCompare("ByLayer") != 0 && name.iCompare("ByBlock") != 0 && name.iCompare("Continuous") != 0;
}

// ---- text style

OdTcTextStylePropertyImpl::OdTcTextStylePropertyImpl()
{
  m_name = tcTranslate("General.Text style");
}

OdSmartPtr<OdTcTextStylePropertyImpl> OdTcTextStylePropertyImpl::createNew()
{
  return OdRxObjectImpl<OdTcTextStylePropertyImpl>::createObject();
}

OdRxObjectPtr OdTcTextStylePropertyImpl::clone() const
{
  return tcCloneAs<OdTcTextStylePropertyImpl, OdTcTextStylePropertyImpl>(this);
}

OdDbObjectId OdTcTextStylePropertyImpl::tableId(OdDbDatabase* database) const
{
  return database->getTextStyleTableId();
}

OdDbObjectId OdTcTextStylePropertyImpl::current(OdDbDatabase* database) const
{
  return database->getTEXTSTYLE();
}

void OdTcTextStylePropertyImpl::setCurrent(OdDbDatabase* database, OdDbObjectId id) const
{
  database->setTEXTSTYLE(id);
}

OdTcPropertyCreateInfoPtr OdTcTextStylePropertyImpl::newCreateInfo() const
{
  return OdTcTextStylePropertyCreateInfoImpl::createNew();
}

OdTcSymbolTableRecordPtr OdTcTextStylePropertyImpl::newSnapshot() const
{
  return OdTcTextStyleTableRecordImpl::createNew();
}

// ---- dimension style

OdTcDimStylePropertyImpl::OdTcDimStylePropertyImpl()
{
  m_name = tcTranslate("General.Dimstyle");
}

OdSmartPtr<OdTcDimStylePropertyImpl> OdTcDimStylePropertyImpl::createNew()
{
  return OdRxObjectImpl<OdTcDimStylePropertyImpl>::createObject();
}

OdRxObjectPtr OdTcDimStylePropertyImpl::clone() const
{
  return tcCloneAs<OdTcDimStylePropertyImpl, OdTcDimStylePropertyImpl>(this);
}

OdDbObjectId OdTcDimStylePropertyImpl::tableId(OdDbDatabase* database) const
{
  return database->getDimStyleTableId();
}

OdDbObjectId OdTcDimStylePropertyImpl::current(OdDbDatabase* database) const
{
  return database->getDIMSTYLE();
}

void OdTcDimStylePropertyImpl::setCurrent(OdDbDatabase* database, OdDbObjectId id) const
{
  database->setDIMSTYLE(id);
}

OdTcPropertyCreateInfoPtr OdTcDimStylePropertyImpl::newCreateInfo() const
{
  return OdTcDimStylePropertyCreateInfoImpl::createNew();
}

OdTcSymbolTableRecordPtr OdTcDimStylePropertyImpl::newSnapshot() const
{
  return OdTcDimStyleTableRecordImpl::createNew();
}

void OdTcDimStylePropertyImpl::currentChanged(OdDbDatabase* database, OdDbObjectId id) const
{
  database->setDimstyleData(id);
}

} // namespace tc
