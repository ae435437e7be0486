// TcCfgChangeReactor: follows changes of the host's options, which may have
// moved the catalog folders, and refreshes the catalogs.
#pragma once

#include "hostsdk/core/AppInterfaces.h"

#include <functional>

namespace tc {

class TcCfgChangeReactor : public CRkUnknownImpl<IPropReactor>
{
public:
  // Registers itself with the host's IAppProp when there is one.
  // `refreshCatalogs` is the manager's refresh.
  explicit TcCfgChangeReactor(std::function<void()> refreshCatalogs);

  // Ignores what changed: refreshes the catalogs, then the list view of a
  // visible window. Returns 1; a failure is told on the command line.
  int onChange(const char* property, const CRkVariant& value) override;

  // Stops listening; the host drops its reference.
  void detach();

private:
  std::function<void()> m_refreshCatalogs;
  bool m_registered = false;
};

} // namespace tc
