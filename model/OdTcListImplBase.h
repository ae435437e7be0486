// OdTcListImplBase<I>: a list over a vector of smart pointers to items.
#pragma once

#include "model/OdTcList.h"
#include "model/OdTcPersistImpl.h"

#include <vector>

namespace tc {

using OdTcCatalogItemVector = std::vector<OdTcCatalogItemPtr>;

template <class I>
class OdTcListImplBase : public OdTcPersistImpl<I>
{
public:
  void add(OdTcCatalogItem* item) override
  {
    if (!item)
      return;
    item->setParent(this);
    m_items.push_back(OdTcCatalogItemPtr(item));
  }
  bool remove(const OdString& id) override
  {
    for (auto it = m_items.begin(); it != m_items.end(); ++it) {
      if ((*it)->id() == id) {
        m_items.erase(it);
        return true;
      }
    }
    return false;
  }
  void clear() override { m_items.clear(); }
  bool contains(const OdString& id) const override { return find(id) != nullptr; }
  bool hasChildren() const override { return !m_items.empty(); }

  // The first item of that identifier, compared exactly, or null.
  virtual OdTcCatalogItem* find(const OdString& id) const
  {
    for (const auto& item : m_items)
      if (item->id() == id)
        return item.get();
    return nullptr;
  }

  OdTcEnumPtr<OdTcCatalogItem> enumerateItems()
  {
    return OdTcEnumImpl<OdTcCatalogItem, OdTcCatalogItemVector>::create(&m_items);
  }
  const OdTcCatalogItemVector& items() const { return m_items; }

protected:
  // What setValue does with a child the filer delivered: it is attached to
  // the list already, so it is appended without setParent.
  bool takeDelivered(const OdVariant& value)
  {
    OdTcCatalogItemPtr item(value.getRxObjectPtr());
    if (item.isNull())
      return false;
    m_items.push_back(item);
    return true;
  }
  void writeItems(OdTcFiler* filer)
  {
    for (const auto& item : m_items)
      filer->writeObject(item);
  }

  OdTcCatalogItemVector m_items;
};

} // namespace tc
