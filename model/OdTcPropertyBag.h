// OdTcPropertyBag: an ordered set of properties ("GeneralProperties" in a
// file). The order of insertion is the order of application, of display and
// of writing.
#pragma once

#include "model/OdTcEnum.h"
#include "model/OdTcProperty.h"

namespace tc {

class OdTcPropertyBag : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcPropertyBag);

public:
  // Appends; the bag becomes the property's parent.
  virtual void addProperty(OdTcProperty* property) = 0;
  virtual int count() const = 0;
  virtual void clear() = 0;
  virtual bool isEmpty() const = 0;
  virtual OdString getName() const = 0;
  virtual void setName(const OdString& name) = 0;
  // A cursor over a copy of the sequence, so that the bag may change while
  // it is walked.
  virtual OdTcEnumPtr<OdTcProperty> newEnumerator() const = 0;
  // The first property of that name, compared exactly; null if none.
  virtual OdTcProperty* findByName(const OdString& name) const = 0;
  virtual OdTcProperty* findByDisplayName(const OdString& name) const = 0;
};
using OdTcPropertyBagPtr = OdSmartPtr<OdTcPropertyBag>;

} // namespace tc
