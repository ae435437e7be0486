// OdTcPropertyReference: a reference from a property to another item of the
// persistent tree ("Reference"). No tool follows it; it is kept with its
// attributes so that a file keeps it.
#pragma once

#include "model/OdTcPersistImpl.h"

#include <utility>
#include <vector>

namespace tc {

class OdTcPropertyReference : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcPropertyReference);

public:
  // The attributes of the element, as read.
  virtual std::vector<std::pair<OdString, OdString>> attributes() const = 0;
};
using OdTcPropertyReferencePtr = OdSmartPtr<OdTcPropertyReference>;

class OdTcPropertyReferenceImpl : public OdTcPersistImpl<OdTcPropertyReference>
{
public:
  static OdTcPropertyReferencePtr createNew();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;

  OdString tagName() const override { return "Reference"; }
  // Keeps every attribute; a child element's values are not the
  // reference's own and are dropped.
  bool readAttributes(OdTcFiler* filer) override;
  void writeBody(OdTcFiler* filer) override;
  std::vector<std::pair<OdString, OdString>> attributes() const override { return m_attributes; }

private:
  std::vector<std::pair<OdString, OdString>> m_attributes;
};

} // namespace tc
