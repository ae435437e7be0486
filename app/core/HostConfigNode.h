// One folder of the host's configuration tree: named values and named
// sub-folders, handed to modules as IConfigManager.
#pragma once

#include "hostsdk/core/AppInterfaces.h"

#include <string>
#include <vector>

class HostConfig;

class HostConfigNode : public CRkUnknownImpl<IConfigManager>
{
public:
  struct Value
  {
    std::string name;
    CRkVariant value;
  };

  HostConfigNode(HostConfig* store, HostConfigNode* parent, std::string name);

  // IConfigManager. Names are UTF-8 and compared ignoring case, as in the
  // registry of the desktop CAD hosts; a name keeps the case it was first
  // written with. openFolder also takes a path "A/B" (or "A\B").
  CXStringW name() const override;
  bool openFolder(const char* name, bool create, IConfigManager** out) override;
  bool deleteFolder(const char* name) override;
  bool getValue(const char* name, CRkVariant& value) const override;
  bool setValue(const char* name, const CRkVariant& value) override;
  bool deleteValue(const char* name) override;
  std::vector<std::string> valueNames() const override;
  std::vector<std::string> folderNames() const override;

  // The host's side: plain pointers, owned by the tree.
  HostConfigNode* folder(const std::string& path, bool create);
  HostConfigNode* parent() const { return m_parent; }
  const std::string& nodeName() const { return m_name; }
  // "A/B" from the root (the root itself is "").
  std::string path() const;
  const std::vector<Value>& values() const { return m_values; }
  std::vector<HostConfigNode*> folders() const;

  // Cuts the node and everything below it off the store: a module may still
  // hold it, but its changes no longer reach the file.
  void detach();
  // Fills without telling the store; used while reading the file.
  void loadValue(const std::string& name, const CRkVariant& value);
  HostConfigNode* loadFolder(const std::string& name);

private:
  HostConfigNode* childNamed(const std::string& name) const;
  Value* valueNamed(const std::string& name);
  const Value* valueNamed(const std::string& name) const;
  void changed(const std::string& valueName, const CRkVariant* value);

  HostConfig* m_store;      // not owned; null once detached
  HostConfigNode* m_parent; // not owned; null for the root and once detached
  std::string m_name;
  std::vector<Value> m_values;                   // in the order first written
  std::vector<CRkPtr<HostConfigNode>> m_folders; // owned, counted: modules may hold one
};
