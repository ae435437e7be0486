// The module-wide state saver.
#include "module/OdTcStateSaverImpl.h"

#include "module/TcUiStateSaver.h"

namespace tc {

OdSmartPtr<OdTcStateSaverImpl> OdTcStateSaverImpl::createNew()
{
  return OdRxObjectImpl<OdTcStateSaverImpl>::createObject();
}

OdTcStateSaverImpl::OdTcStateSaverImpl() : m_node(openStateNode())
{
}

void OdTcStateSaverImpl::setValue(const char* name, const CRkVariant& value)
{
  if (!m_node)
    m_node = openStateNode();
  if (m_node && name)
    m_node->setValue(name, value);
}

bool OdTcStateSaverImpl::getValue(const char* name, CRkVariant& value)
{
  return m_node && name && m_node->getValue(name, value);
}

} // namespace tc
