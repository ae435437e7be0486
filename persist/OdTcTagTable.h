// The tag table: which class the filers make from an element name.
#pragma once

#include "model/OdTcPersist.h"

namespace tc {

using OdTcTagFactory = OdTcPersistPtr (*)();

class OdTcTagTable
{
public:
  // The one table of the process, built on first use.
  static OdTcTagTable& instance();

  bool isKnownTag(const OdString& name) const;
  // A new object for the element name, or null for a name not in the table.
  OdTcPersistPtr createByTag(const OdString& name) const;

  // Adds or replaces an entry; a later entry for a name wins. Each class of
  // the catalog model adds its own element names here when the module
  // registers it.
  void registerTag(const OdString& name, OdTcTagFactory factory);
  void unregisterTag(const OdString& name);

private:
  OdTcTagTable() = default;
  std::map<OdString, OdTcTagFactory> m_factories;
};

} // namespace tc
