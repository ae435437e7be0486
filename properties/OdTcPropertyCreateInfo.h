// OdTcPropertyCreateInfo: the definition a general property carries beyond
// its value: the snapshot of the drawing record it names, or its colour.
#pragma once

#include "properties/OdTcSymbolTableRecord.h"
#include "properties/TcDelivered.h"

#include "model/OdTcPersistImpl.h"

namespace tc {

class OdTcPropertyCreateInfo : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcPropertyCreateInfo);

public:
  // The snapshot; null for the colour, and while none was taken.
  virtual OdTcSymbolTableRecord* record() const = 0;
  virtual void setRecord(OdTcSymbolTableRecord* record) = 0;
};
using OdTcPropertyCreateInfoPtr = OdSmartPtr<OdTcPropertyCreateInfo>;

// The element is "CreateInfo" whatever the kind; which kind a file's
// element makes is told by the property that holds it.
template <class I>
class OdTcPropertyCreateInfoImplBase : public OdTcPersistImpl<I>
{
public:
  OdString tagName() const override { return "CreateInfo"; }
  OdTcSymbolTableRecord* record() const override { return m_record; }
  void setRecord(OdTcSymbolTableRecord* record) override
  {
    m_record = record;
    if (m_record)
      m_record->setParent(this);
  }

  void writeBody(OdTcFiler* filer) override { filer->writeObject(m_record); }
  // Takes the snapshot under the element name of the kind's record.
  bool setValue(const OdString& name, const OdVariant& value) override
  {
    if (name != recordTag())
      return false;
    setRecord(OdSmartPtr<OdTcSymbolTableRecord>(tcDeliveredAs<OdTcSymbolTableRecord>(value)));
    return true;
  }
  void copyFrom(const OdRxObject* source) override
  {
    OdTcPersistImpl<I>::copyFrom(source);
    if (auto* src = dynamic_cast<const OdTcPropertyCreateInfoImplBase*>(source))
      setRecord(src->m_record ? OdTcSymbolTableRecordPtr(src->m_record->clone()) : OdTcSymbolTableRecordPtr());
  }

protected:
  // The element of the snapshot this kind takes; empty takes none.
  virtual OdString recordTag() const { return OdString(); }

  OdTcSymbolTableRecordPtr m_record;
};

// The plain create-info: what the class description makes.
class OdTcPropertyCreateInfoImpl : public OdTcPropertyCreateInfoImplBase<OdTcPropertyCreateInfo>
{
public:
  static OdTcPropertyCreateInfoPtr createNew();
  OdRxObjectPtr clone() const override;
};

} // namespace tc
