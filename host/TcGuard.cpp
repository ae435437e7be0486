// Catching at the module's edge.
#include "host/TcGuard.h"

#include "host/TcHost.h"

#include "sdk/kernel/OdError.h"

#include <exception>
#include <new>

namespace tc {

namespace {
// Telling must not fail in turn: without memory or a command line the
// message is lost, and the host lives on.
template <class Reason>
void tell(const OdString& failure, const Reason& reason)
{
  try {
    hostPrint(failure, reason());
  } catch (...) {
  }
}
} // namespace

bool tcGuarded(const OdString& failure, const std::function<void()>& body)
{
  try {
    body();
    return true;
  } catch (const OdError& e) {
    tell(failure, [&] { return e.description(); });
  } catch (const std::bad_alloc&) {
    tell(failure, [] { return OdString("there is not enough memory"); });
  } catch (const std::exception& e) {
    tell(failure, [&] { return OdString(e.what()); });
  } catch (...) {
    tell(failure, [] { return OdString("an unknown error"); });
  }
  return false;
}

} // namespace tc
