// The concrete item lists. They differ in their element, in the children
// they take and in how they write.
#pragma once

#include "model/OdTcListImplBase.h"

namespace tc {

class OdTcListImpl : public OdTcListImplBase<OdTcList>
{
};

class OdTcToolListImpl : public OdTcListImplBase<OdTcToolList>
{
public:
  OdString tagName() const override { return "Tools"; }
  // Takes "Tool" through add, and answers true for every name.
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override { writeItems(filer); }
  OdTcEnumPtr<OdTcCatalogItem> enumerate() override { return enumerateItems(); }
};

class OdTcGroupListImpl : public OdTcListImplBase<OdTcGroupList>
{
public:
  OdString tagName() const override { return "Groups"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override { writeItems(filer); }
  OdTcEnumPtr<OdTcCatalogItem> enumerate() override { return enumerateItems(); }
};

class OdTcPaletteLoaderListImpl : public OdTcListImplBase<OdTcPaletteLoaderList>
{
public:
  OdString tagName() const override { return "Palettes"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override { writeItems(filer); }
  OdTcEnumPtr<OdTcCatalogItem> enumerate() override { return enumerateItems(); }
};

// The contents of a group: nested groups, and references to palettes.
class OdTcGroupContentListImpl : public OdTcListImplBase<OdTcGroupContentList>
{
public:
  OdString tagName() const override { return "Contents"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  OdTcEnumPtr<OdTcCatalogItem> enumerate() override { return enumerateItems(); }
};

class OdTcCatalogItemListImpl : public OdTcPersistImpl<OdTcCatalogItemList>
{
public:
  OdTcEnumPtr<OdTcCatalogItem> enumerate() override
  {
    return OdTcEnumImpl<OdTcCatalogItem, OdTcCatalogItemVector>::create(&m_items);
  }
  void append(OdTcCatalogItem* item) { m_items.push_back(OdTcCatalogItemPtr(item)); }

private:
  OdTcCatalogItemVector m_items;
};

} // namespace tc
