// OdDbDictionary: named entries pointing at objects (layouts, images, groups...).
#pragma once

#include "sdk/db/OdDbObject.h"

#include <utility>
#include <vector>

class OdDbDictionary : public OdDbObject
{
  ODRX_DECLARE_MEMBERS(OdDbDictionary);

public:
  static constexpr const char* kSub = "AcDbDictionary";

  // Names compare ignoring case, as the drawing format's keys do.
  OdDbObjectId getAt(const OdString& name) const;
  OdDbObjectPtr getAt(const OdString& name, OdDb::OpenMode mode) const;
  bool has(const OdString& name) const { return !getAt(name).isNull(); }
  bool has(const OdDbObjectId& id) const { return !nameAt(id).isEmpty(); }
  OdString nameAt(const OdDbObjectId& id) const;
  // Adds the object (to the database as well, when it is not in one yet)
  // under the name, replacing an entry of that name; the dictionary owns it.
  OdDbObjectId setAt(const OdString& name, OdDbObject* object);
  void setAt(const OdString& name, OdDbObjectId id, bool hardOwner = true);
  bool remove(const OdString& name);
  unsigned numEntries() const { return unsigned(entries().size()); }
  std::vector<std::pair<OdString, OdDbObjectId>> entries() const;
  bool isTreatElementsAsHard() const { return getInt(kSub, 280, 0) != 0; }

protected:
  OdDbDictionary();
};
using OdDbDictionaryPtr = OdSmartPtr<OdDbDictionary>;
