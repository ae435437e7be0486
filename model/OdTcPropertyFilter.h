// OdTcPropertyFilter: the names of the general properties that a kind of
// tool does not use; such a property is neither applied nor restored when
// the tool runs.
#pragma once

#include "model/OdTcPersist.h"

namespace tc {

class OdTcPropertyFilter : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcPropertyFilter);

public:
  // True if the filter holds an equal name.
  virtual bool contains(const OdString& name) const = 0;
  virtual void add(const OdString& name) = 0;
};
using OdTcPropertyFilterPtr = OdSmartPtr<OdTcPropertyFilter>;

} // namespace tc
