// The tag table: which class the filers make from an element name. Each
// subsystem adds its element names when the module registers classes, and
// the module empties it when it stops.
#pragma once

#include "model/OdTcPersist.h"

#include <QHashFunctions>

#include <unordered_map>

namespace tc {

using OdTcTagFactory = OdTcPersistPtr (*)();

class OdTcTagTable
{
public:
  // The one table of the process.
  static OdTcTagTable& instance();

  bool isKnownTag(const OdString& name) const;
  // A new object for the element name, or null for a name not in the table.
  OdTcPersistPtr createByTag(const OdString& name) const;

  // Adds or replaces an entry: a later entry for a name wins.
  void registerTag(const OdString& name, OdTcTagFactory factory);
  void unregisterTag(const OdString& name);
  void clear() { m_factories.clear(); }

private:
  struct NameHash
  {
    std::size_t operator()(const OdString& name) const { return qHash(name.qstring()); }
  };

  OdTcTagTable() = default;
  // Asked for every element of every file read: hashed, not ordered.
  std::unordered_map<OdString, OdTcTagFactory, NameHash> m_factories;
};

} // namespace tc
