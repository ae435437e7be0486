// IAppInterior of the reference host: its user data folder.
#pragma once

#include "hostsdk/core/AppInterfaces.h"

class HostAppInteriorImpl : public CRkUnknownImpl<IAppInterior>
{
public:
  // $XDG_DATA_HOME/verdani (~/.local/share/verdani), without a trailing "/".
  CXStringW userDataFolder() override;
};
