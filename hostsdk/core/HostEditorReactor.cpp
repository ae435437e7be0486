// Class machinery of the event reactors, registered when the host core loads
// so that reactors of modules can name HostEditorReactor as their parent.
#include "hostsdk/core/HostEditorReactor.h"

#include "sdk/kernel/OdRxClass.h"

ODRX_NO_CONS_DEFINE_MEMBERS(OdRxEventReactor, OdRxObject)
ODRX_NO_CONS_DEFINE_MEMBERS(OdEditorReactor, OdRxEventReactor)
ODRX_NO_CONS_DEFINE_MEMBERS(HostEditorReactor, OdEditorReactor)

namespace {
struct ReactorClasses
{
  ReactorClasses()
  {
    OdRxEventReactor::rxInit();
    OdEditorReactor::rxInit();
    HostEditorReactor::rxInit();
  }
} g_reactorClasses;
} // namespace
