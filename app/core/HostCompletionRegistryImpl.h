// The command-line completion registry: providers of entries by key.
#pragma once

#include "hostsdk/core/HostEdCompletion.h"

#include <vector>

class HostCompletionRegistryImpl : public HostEdCompletion::Registry
{
public:
  // A provider under a key already used replaces the one there.
  void addProvider(const OdString& key, const HostEdCompletion::Provider* provider) override;
  void removeProvider(const OdString& key, const HostEdCompletion::Provider* provider) override;

  const HostEdCompletion::Provider* provider(const OdString& key) const;
  std::vector<OdString> keys() const;
  // Every entry of every provider, in the order of the keys' registration.
  std::vector<HostEdCompletion::EntryPtr> entries() const;
  void clear() { m_providers.clear(); }

private:
  struct Slot
  {
    OdString key;
    const HostEdCompletion::Provider* provider; // not owned: it outlives its registration
  };
  std::vector<Slot> m_providers;
};
