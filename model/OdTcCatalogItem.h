// OdTcCatalogItem: everything a user can see and name in the catalog tree:
// catalogs, palettes, groups, tools, and the records that stand for a
// palette inside a catalog.
#pragma once

#include "sdk/kernel/OdArray.h"
#include "model/OdTcEnum.h"
#include "model/OdTcPersist.h"

#include <cstdint>

namespace tc {

class OdTcCatalogItem;
class OdTcImage;
class OdTcImageList;

// Told of children added to or removed from an item. Reactors are not owned
// by the items they watch.
class OdTcCatalogItemReactor
{
public:
  virtual ~OdTcCatalogItemReactor() = default;
  // After the child has been inserted.
  virtual void itemAdded(OdTcCatalogItem* item) {}
  // Before the child is taken out.
  virtual void itemRemoved(OdTcCatalogItem* item) {}

  // A reactor that is not enabled stays registered and is skipped.
  bool enabled = true;
};

class OdTcCatalogItem : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcCatalogItem);

public:
  virtual void setName(const OdString& name) = 0;
  virtual void setOption(std::int32_t option) = 0;
  virtual void setDescription(const OdString& description) = 0;
  // Replaces the identity; does not mark the item as modified.
  virtual void setId(const OdString& id) = 0;
  virtual void ensureImages() = 0;
  virtual void setFlagged() = 0;
  virtual void clearFlagged() = 0;
  virtual void addImage(OdTcImage* image) = 0;
  virtual void clearResource() = 0;
  // Pictures of kinds 1, 3 and 4 from one file, replacing the old ones.
  virtual bool setImageFile(const OdString& path) = 0;
  virtual OdString id() const = 0;
  virtual OdString revision() const = 0;
  virtual OdString description() const = 0;
  virtual OdString resourceSource() const = 0;
  virtual bool isModified() const = 0;
  virtual void setModified() = 0;
  virtual bool addChild(OdTcCatalogItem* child) = 0;
  virtual bool removeChild(const OdString& id) = 0;
  virtual bool hasChild(const OdString& id) const = 0;
  // A reactor may be added twice, and then needs two removals.
  virtual bool addReactor(OdTcCatalogItemReactor* reactor) = 0;
  // Removes the first equal pointer; false when there is none.
  virtual bool removeReactor(OdTcCatalogItemReactor* reactor) = 0;
  virtual bool isFlagged() const = 0;
  virtual bool isRemoved() const = 0;
  virtual std::int32_t option() const = 0;
  virtual OdTcImageList* images() = 0;
  virtual OdTcImage* image(int kind) = 0;
  // The direct children in storage order; null for an item without any.
  virtual OdTcEnumPtr<OdTcCatalogItem> children() = 0;
  // The identifiers of the children in the order the user gave them.
  virtual OdArray<OdString>& itemOrder() = 0;
  virtual void setItemOrder(const OdArray<OdString>& ids) = 0;
};
using OdTcCatalogItemPtr = OdSmartPtr<OdTcCatalogItem>;

} // namespace tc
