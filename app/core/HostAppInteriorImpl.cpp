// The user data folder.
#include "HostAppInteriorImpl.h"

#include "HostPaths.h"

CXStringW HostAppInteriorImpl::userDataFolder()
{
  return CXStringW(OdString(HostPaths::userDataFolder()));
}
