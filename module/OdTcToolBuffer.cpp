// The module's clipboard of tools.
#include "module/OdTcToolBuffer.h"

#include "module/OdTcPaletteManager.h"

namespace tc {

OdSmartPtr<OdTcToolBuffer> OdTcToolBuffer::createNew(OdTcPaletteManager* manager)
{
  return OdRxObjectImpl<OdTcToolBuffer>::createObject(manager);
}

bool OdTcToolBuffer::isTool(const OdString& id) const
{
  return m_manager && m_manager->hasTool(id);
}

OdTcTool* OdTcToolBuffer::getItem(const OdString& id) const
{
  return m_manager ? m_manager->findTool(id) : nullptr;
}

} // namespace tc
