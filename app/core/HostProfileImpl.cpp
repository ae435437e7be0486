// The configuration tree as the modules see it.
#include "HostProfileImpl.h"

#include "HostApp.h"
#include "HostConfig.h"
#include "HostConfigParam.h"

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
