// The user data folder.
#include "app/core/HostAppInteriorImpl.h"

#include "app/core/HostPaths.h"

CXStringW HostAppInteriorImpl::userDataFolder()
{
  return CXStringW(OdString(HostPaths::userDataFolder()));
}
