// The process-wide tag table.
#include "persist/OdTcTagTable.h"

namespace tc {

OdTcTagTable& OdTcTagTable::instance()
{
  static OdTcTagTable table;
  return table;
}

bool OdTcTagTable::isKnownTag(const OdString& name) const
{
  return m_factories.count(name) != 0;
}

OdTcPersistPtr OdTcTagTable::createByTag(const OdString& name) const
{
  auto it = m_factories.find(name);
  return it == m_factories.end() ? OdTcPersistPtr() : it->second();
}

void OdTcTagTable::registerTag(const OdString& name, OdTcTagFactory factory)
{
  m_factories[name] = factory;
}

void OdTcTagTable::unregisterTag(const OdString& name)
{
  m_factories.erase(name);
}

} // namespace tc
