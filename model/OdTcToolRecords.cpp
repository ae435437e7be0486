// The foreign records of a tool.
#include "model/OdTcToolRecords.h"

#include "sdk/kernel/OdRxClass.h"

namespace tc {

ODRX_NO_CONS_DEFINE_MEMBERS(OdTcToolCustomData, OdTcPersist)
ODRX_NO_CONS_DEFINE_MEMBERS(OdTcToolFlyout, OdTcPersist)
ODRX_NO_CONS_DEFINE_MEMBERS(OdTcStockToolRef, OdTcPersist)
ODRX_NO_CONS_DEFINE_MEMBERS(OdTcToolSource, OdTcPersist)
ODRX_DEFINE_MEMBERS(OdTcSource, OdTcPersist, ODRX_CREATE_IMPL(OdTcSourceImpl, OdTcSource))

namespace {
// One counter for the whole process, as the files' readers have always
// kept it: a flyout with only one of its two children shifts the next
// flyout's values into the wrong fields. Reading runs on one thread.
int g_flyoutCounter = 0;
} // namespace

bool readFileBool(const OdString& text)
{
  return text.iCompare("TRUE") == 0 || text.iCompare("1") == 0;
}

bool OdTcToolCustomDataImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name == "className")
    m_className = value.getString();
  else if (name == "idButton")
    m_idButton = value.getString();
  else
    return false;
  return true;
}

void OdTcToolCustomDataImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcToolCustomData>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcToolCustomDataImpl*>(source)) {
    m_className = src->m_className;
    m_idButton = src->m_idButton;
  }
}

bool OdTcToolFlyoutImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name == "enable") {
    m_enable = readFileBool(value.getString());
  } else if (name == "idValue") {
    if (g_flyoutCounter == 0) {
      m_shapePackage = value.getString();
      g_flyoutCounter = 1;
    } else {
      m_currentShape = value.getString();
      g_flyoutCounter = 0;
    }
  }
  return true;
}

void OdTcToolFlyoutImpl::writeBody(OdTcFiler* filer)
{
  filer->writeAttribute("enable", OdVariant(OdString(m_enable ? "true" : "false")));
  filer->writeAttributeElement("ShapePackage", "idValue", OdVariant(m_shapePackage));
  filer->writeAttributeElement("CurrentShape", "idValue", OdVariant(m_currentShape));
}

void OdTcToolFlyoutImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcToolFlyout>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcToolFlyoutImpl*>(source)) {
    m_enable = src->m_enable;
    m_shapePackage = src->m_shapePackage;
    m_currentShape = src->m_currentShape;
  }
}

int OdTcToolFlyoutImpl::pairingCounter()
{
  return g_flyoutCounter;
}

void OdTcToolFlyoutImpl::resetPairingCounter()
{
  g_flyoutCounter = 0;
}

bool OdTcStockToolRefImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "idValue")
    return false;
  m_idValue = value.getString();
  return true;
}

void OdTcStockToolRefImpl::writeBody(OdTcFiler* filer)
{
  filer->writeAttribute("idValue", OdVariant(m_idValue));
}

void OdTcStockToolRefImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcStockToolRef>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcStockToolRefImpl*>(source))
    m_idValue = src->m_idValue;
}

bool OdTcToolSourceImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name == "ID")
    m_id = value.getString();
  else if (name == "Palette")
    m_palette = value.getString();
  else
    return false;
  return true;
}

} // namespace tc
