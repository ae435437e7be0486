// OdTcList: a persistent list of catalog items that owns them, in file
// order; and the sub-interfaces of the concrete lists.
#pragma once

#include "model/OdTcCatalogItem.h"

namespace tc {

class OdTcList : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcList);

public:
  // Makes the list the item's parent and appends it. No check of
  // duplicate identifiers is made.
  virtual void add(OdTcCatalogItem* item) = 0;
  // Takes out the first item of that identifier; its parent link stays.
  virtual bool remove(const OdString& id) = 0;
  virtual void clear() = 0;
  virtual bool contains(const OdString& id) const = 0;
};
using OdTcListPtr = OdSmartPtr<OdTcList>;

class OdTcToolList : public OdTcList
{
  ODRX_DECLARE_MEMBERS(OdTcToolList);

public:
  virtual OdTcEnumPtr<OdTcCatalogItem> enumerate() = 0;
};

class OdTcGroupList : public OdTcList
{
  ODRX_DECLARE_MEMBERS(OdTcGroupList);

public:
  virtual OdTcEnumPtr<OdTcCatalogItem> enumerate() = 0;
};

class OdTcPaletteLoaderList : public OdTcList
{
  ODRX_DECLARE_MEMBERS(OdTcPaletteLoaderList);

public:
  virtual OdTcEnumPtr<OdTcCatalogItem> enumerate() = 0;
};

class OdTcGroupContentList : public OdTcList
{
  ODRX_DECLARE_MEMBERS(OdTcGroupContentList);

public:
  virtual OdTcEnumPtr<OdTcCatalogItem> enumerate() = 0;
};

// A list that only walks: it reads and writes nothing.
class OdTcCatalogItemList : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcCatalogItemList);

public:
  virtual OdTcEnumPtr<OdTcCatalogItem> enumerate() = 0;
};

} // namespace tc
