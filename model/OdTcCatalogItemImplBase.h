// OdTcCatalogItemImplBase<I>: the common part of every catalog item:
// identity, revision, option word, display record, order of children,
// reactors.
#pragma once

#include "model/OdTcCatalogItem.h"
#include "model/OdTcImageList.h"
#include "model/OdTcOrderLists.h"
#include "model/OdTcProperties.h"

#include "sdk/kernel/OdRxSystemServices.h"
#include "sdk/kernel/OdWcstol.h"

#include <algorithm>
#include <vector>

namespace tc {

template <class I>
class OdTcCatalogItemImplBase : public OdTcPersistImpl<I>
{
public:
  OdTcCatalogItemImplBase()
      : m_id(odrxSystemServices()->createGuid()), m_revision("8.0"),
        m_properties(OdTcPropertiesImpl::createNew()), m_itemOrder(OdTcCatalogItemOrderListImpl::createNew())
  {
    m_properties->setParent(this);
    m_itemOrder->setParent(this);
  }

  // ---- reading and writing

  // The part of setValue that every item shares; concrete classes call it
  // first.
  bool setValue(const OdString& name, const OdVariant& value) override
  {
    if (name == "Revision") {
      m_revision = value.getString();
    } else if (name == "option") {
      m_option = odWcstol(value.getString());
    } else if (name == "idValue") {
      m_id = value.getString(); // no check of form or of uniqueness
    } else if (name == "Properties") {
      m_properties = this->template deliveredObject<OdTcProperties>(value);
    } else {
      return false;
    }
    return true;
  }

  // The part of writeBody that every item shares; concrete classes call it
  // first.
  void writeBody(OdTcFiler* filer) override
  {
    filer->writeAttribute("Revision", OdVariant(m_revision));
    filer->writeAttribute("option", OdVariant(std::int32_t(m_option)));
    filer->writeAttributeElement("ItemID", "idValue", OdVariant(m_id));
    filer->writeObject(m_properties);
  }

  OdString displayName() const override { return m_properties->displayName(); }

  // ---- OdTcCatalogItem

  void setName(const OdString& name) override
  {
    m_properties->setItemName(name);
    setModified();
  }
  void setOption(std::int32_t option) override
  {
    m_option = option;
    setModified();
  }
  void setDescription(const OdString& description) override
  {
    m_properties->setDescription(description);
    setModified();
  }
  void setId(const OdString& id) override { m_id = id; }
  void ensureImages() override
  {
    if (OdTcImageList* list = images())
      list->normalize();
  }
  void setFlagged() override { m_flagged = true; }
  void clearFlagged() override { m_flagged = false; }
  void addImage(OdTcImage* image) override
  {
    if (OdTcImageList* list = images())
      list->addImage(image);
    m_properties->refreshChanged();
    setModified();
  }
  void clearResource() override { m_properties->setResource(OdString(), OdString()); }
  bool setImageFile(const OdString& path) override
  {
    if (OdTcImageList* list = images())
      list->removeAll(false);
    for (int kind : {1, 3, 4}) {
      OdTcImagePtr image = OdTcImage::createObject();
      if (!image)
        break;
      image->setSizeClass(kind);
      image->setSource(path, OdString());
      addImage(image);
    }
    setModified();
    return true;
  }
  OdString id() const override { return m_id; }
  OdString revision() const override { return m_revision; }
  OdString description() const override { return m_properties->description(); }
  OdString resourceSource() const override { return m_properties->src(); }
  bool isModified() const override { return m_modified; }
  void setModified() override { m_modified = true; }
  bool addChild(OdTcCatalogItem*) override { return false; }
  bool removeChild(const OdString&) override { return false; }
  bool hasChild(const OdString&) const override { return false; }
  bool addReactor(OdTcCatalogItemReactor* reactor) override
  {
    m_reactors.push_back(reactor);
    return true;
  }
  bool removeReactor(OdTcCatalogItemReactor* reactor) override
  {
    auto it = std::find(m_reactors.begin(), m_reactors.end(), reactor);
    if (it == m_reactors.end())
      return false;
    m_reactors.erase(it);
    return true;
  }
  bool isFlagged() const override { return m_flagged; }
  bool isRemoved() const override { return m_removed; }
  std::int32_t option() const override { return m_option; }
  OdTcImageList* images() override { return m_properties->images(); }
  OdTcImage* image(int kind) override
  {
    OdTcImageList* list = images();
    return list ? list->image(kind) : nullptr;
  }
  OdTcEnumPtr<OdTcCatalogItem> children() override { return OdTcEnumPtr<OdTcCatalogItem>(); }
  OdArray<OdString>& itemOrder() override { return m_itemOrder->ids(); }
  void setItemOrder(const OdArray<OdString>& ids) override { m_itemOrder->ids() = ids; }

  OdTcProperties* properties() const { return m_properties; }
  OdTcCatalogItemOrderList* itemOrderList() const { return m_itemOrder; }
  void setRemoved(bool removed) { m_removed = removed; }

protected:
  // Tells the enabled reactors, in order, that a child came or is going.
  void fireItemAdded(OdTcCatalogItem* child)
  {
    for (OdTcCatalogItemReactor* r : std::vector<OdTcCatalogItemReactor*>(m_reactors))
      if (r->enabled)
        r->itemAdded(child);
  }
  void fireItemRemoved(OdTcCatalogItem* child)
  {
    for (OdTcCatalogItemReactor* r : std::vector<OdTcCatalogItemReactor*>(m_reactors))
      if (r->enabled)
        r->itemRemoved(child);
  }
  // Takes one occurrence of `id` out of the order of children.
  void removeFromItemOrder(const OdString& id) { m_itemOrder->ids().remove(id); }

  // The fields a clone of any item copies: everything but the reactors and
  // the transient marks; the display record is copied too.
  void copyItemFrom(const OdTcCatalogItemImplBase& source)
  {
    m_id = source.m_id;
    m_revision = source.m_revision;
    m_option = source.m_option;
    m_properties = OdTcPropertiesPtr(source.m_properties->clone());
    m_properties->setParent(this);
    m_itemOrder->ids() = source.m_itemOrder->ids();
  }

  OdString m_id;
  OdString m_revision;
  OdString m_unused; // kept by the files' layout, read and written by nobody
  std::int32_t m_option = 0;
  OdTcPropertiesPtr m_properties;
  bool m_modified = false;
  std::vector<OdTcCatalogItemReactor*> m_reactors; // not owned
  bool m_flagged = false;
  bool m_removed = false;
  OdSmartPtr<OdTcCatalogItemOrderList> m_itemOrder;
};

} // namespace tc
