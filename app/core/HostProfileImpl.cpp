// The configuration tree as the modules see it.
#include "app/core/HostProfileImpl.h"

#include "app/core/HostApp.h"
#include "app/core/HostConfig.h"
#include "app/core/HostConfigParam.h"

bool HostProfileImpl::getRoot(IConfigManager** out)
{
  if (!out)
    return false;
  *out = nullptr;
  HostConfig* config = m_app.config();
  if (!config)
    return false;
  HostConfigNode* root = config->root();
  root->addRef();
  *out = root;
  return true;
}

bool HostProfileImpl::getParam(const char* path, const char* name, bool create, IConfigParam** out)
{
  if (!out)
    return false;
  *out = nullptr;
  HostConfig* config = m_app.config();
  if (!config || !name || !*name)
    return false;
  HostConfigNode* folder = config->folder(path ? path : "", create);
  if (!folder)
    return false;
  CRkVariant value;
  if (!create && !folder->getValue(name, value))
    return false;
  *out = new HostConfigParam(folder, name);
  return true;
}
