// Tool kinds that do not run yet.
#include "tools/TcNotYetRunnable.h"

#include "host/TcHost.h"

#include "hostsdk/core/HostCore.h"

namespace tc {

bool tellNotYetRunnable(const OdString& kind)
{
  hostPrint(Supp_Translate("\n%s tools are not available yet: this version keeps them in their palettes but cannot "
                           "run them.\n"),
            Supp_Translate(kind));
  return false;
}

} // namespace tc
