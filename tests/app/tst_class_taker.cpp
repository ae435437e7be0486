// A library that takes the name of one of the tool palettes module's classes
// while it loads, as another module with a class of the same name would:
// preloaded into the console host, it makes the module's start fail in the
// middle of its work.
#include "sdk/kernel/OdRxClass.h"

namespace {
struct TakeName
{
  TakeName() { newOdRxClass("OdTcCatalogView", OdRxObject::desc()); }
} g_takeName;
} // namespace
