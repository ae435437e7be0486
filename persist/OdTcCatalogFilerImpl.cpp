// The catalog filer.
#include "persist/OdTcCatalogFilerImpl.h"

namespace tc {

OdTcFilerPtr OdTcCatalogFilerImpl::createObject()
{
  return OdRxObjectImpl<OdTcCatalogFilerImpl, OdTcFiler>::createObject();
}

bool OdTcCatalogFilerImpl::openCatalog(OdStreamBuf* stream, OdTcPersist* root, bool write)
{
  if (!beginOpen(stream, root, write))
    return false;
  if (write)
    return true;
  m_parentElement = const_cast<TiXmlElement*>(findTopElement("Catalog"));
  if (!m_parentElement)
    return false;
  m_currentElement = m_parentElement->FirstChildElement();
  return root->read(this);
}

void OdTcCatalogFilerImpl::attachObject(OdTcPersist* object)
{
  object->attachToCatalog(top());
}

} // namespace tc
