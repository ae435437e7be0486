// OdTcPropertyFilterImpl: the names of the general properties a kind of tool
// leaves alone.
#pragma once

#include "model/OdTcPersistImpl.h"
#include "model/OdTcPropertyFilter.h"

#include <vector>

namespace tc {

class OdTcPropertyFilterImpl : public OdTcPersistImpl<OdTcPropertyFilter>
{
public:
  static OdTcPropertyFilterPtr createNew();
  static OdRxObjectPtr pseudoConstructor();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;

  bool contains(const OdString& name) const override;
  void add(const OdString& name) override { m_names.push_back(name); }

private:
  std::vector<OdString> m_names;
};

} // namespace tc
