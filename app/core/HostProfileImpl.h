// IProfile of the reference host: the root of its configuration tree.
#pragma once

#include "hostsdk/core/AppInterfaces.h"

class HostApp;

class HostProfileImpl : public CRkUnknownImpl<IProfile>
{
public:
  explicit HostProfileImpl(HostApp& app) : m_app(app) {}

  // Both fail while the host is not started: there is no tree then.
  bool getRoot(IConfigManager** out) override;
  // Without `create`, fails when a folder of the path or the value is missing.
  bool getParam(const char* path, const char* name, bool create, IConfigParam** out) override;

private:
  HostApp& m_app;
};
