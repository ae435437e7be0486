// The run-time classes of the module: registered by initApp in one order,
// deleted by uninitApp in another.
#pragma once

#include "sdk/kernel/OdRxClass.h"

#include <vector>

namespace tc {

struct TcClassRow
{
  const char* name;
  void (*rxInit)();
  void (*rxUninit)();
  OdRxClass* (*desc)();
};

// Parents before children.
const std::vector<TcClassRow>& classRegistrationOrder();
// The order of uninitApp, which differs on purpose from registration.
const std::vector<TcClassRow>& classDeletionOrder();

// rxInit of every class in order; an exception (313 for a class registered
// already) leaves the classes before it registered.
void registerModuleClasses();
// Throws OdError 255 at once when the first class of the deletion order is
// not registered, and stops at the first null description on the way.
void unregisterModuleClasses();

} // namespace tc
