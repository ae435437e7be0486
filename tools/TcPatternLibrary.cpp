// Finding the host's hatch pattern library.
#include "tools/TcPatternLibrary.h"

#include <dlfcn.h>

namespace tc {

HostGetHatchPatternsFn hostHatchPatternsFunction()
{
  // A loaded library is kept for the life of the process, as the host keeps
  // it.
  static void* library = nullptr;
  if (!library)
    library = dlopen(kVerdaniCmd1File, RTLD_NOW | RTLD_GLOBAL);
  return library ? reinterpret_cast<HostGetHatchPatternsFn>(dlsym(library, kHostGetHatchPatternsName)) : nullptr;
}

} // namespace tc
