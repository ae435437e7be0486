// The kernel's own classes are registered the moment the library loads, so
// that every module finds the root of the class tree in place.
#include "sdk/kernel/OdRxModule.h"
#include "sdk/kernel/OdStreamBuf.h"

namespace {
struct KernelClasses
{
  KernelClasses()
  {
    OdRxObject::rxInit();
    OdStreamBuf::rxInit();
    OdRxModule::rxInit();
  }
} g_kernelClasses;
} // namespace
