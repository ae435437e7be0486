// Order lists: identifiers of items in the order the user gave them. They
// hold no references, so they may name missing items and miss present ones.
#pragma once

#include "model/OdTcPersistImpl.h"

#include "sdk/kernel/OdArray.h"

namespace tc {

class OdTcCatalogItemOrderList : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcCatalogItemOrderList);

public:
  virtual OdArray<OdString>& ids() = 0;
};

class OdTcToolOrderList : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcToolOrderList);

public:
  virtual OdArray<OdString>& ids() = 0;
};

// The shared body: one text element "ID" per entry.
template <class I>
class OdTcOrderListImpl : public OdTcPersistImpl<I>
{
public:
  bool setValue(const OdString& name, const OdVariant& value) override
  {
    if (name != "ID")
      return false;
    m_ids.append(value.getString());
    return true;
  }
  void writeBody(OdTcFiler* filer) override
  {
    for (const OdString& id : m_ids)
      filer->writeTextElement("ID", OdVariant(id), false);
  }
  // A clone copies the parent link only.
  OdArray<OdString>& ids() override { return m_ids; }

protected:
  OdArray<OdString> m_ids;
};

class OdTcCatalogItemOrderListImpl : public OdTcOrderListImpl<OdTcCatalogItemOrderList>
{
public:
  static OdSmartPtr<OdTcCatalogItemOrderList> createNew();
  OdString tagName() const override { return "CatalogItemOrder"; }
};

class OdTcToolOrderListImpl : public OdTcOrderListImpl<OdTcToolOrderList>
{
public:
  static OdSmartPtr<OdTcToolOrderList> createNew();
  OdString tagName() const override { return "ToolOrder"; }
};

} // namespace tc
