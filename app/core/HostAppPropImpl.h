// IAppProp of the reference host: the reactors told of every change of the
// host's options.
#pragma once

#include "hostsdk/core/AppInterfaces.h"

#include <vector>

class HostAppPropImpl : public CRkUnknownImpl<IAppProp>
{
public:
  ~HostAppPropImpl() override { clear(); }

  bool addPropReactor(IPropReactor* reactor) override;
  bool removePropReactor(IPropReactor* reactor) override;

  // Tells every reactor, in the order they came. A reactor removed by an
  // earlier one during the round is not called; one added is called from
  // the next change on. What a reactor throws is caught and returned as a
  // message, so that one bad reactor does not silence the others.
  std::vector<OdString> notify(const char* property, const CRkVariant& value);
  // Drops every reactor (the host going down).
  void clear();
  std::size_t reactorCount() const { return m_reactors.size(); }

private:
  std::vector<CRkPtr<IPropReactor>> m_reactors; // counted until removed, as IAppProp promises
};
