// Completion providers.
#include "app/core/HostCompletionRegistryImpl.h"

void HostCompletionRegistryImpl::addProvider(const OdString& key, const HostEdCompletion::Provider* provider)
{
  if (!provider)
    return;
  for (Slot& slot : m_providers) {
    if (slot.key == key) {
      slot.provider = provider;
      return;
    }
  }
  m_providers.push_back({key, provider});
}

void HostCompletionRegistryImpl::removeProvider(const OdString& key, const HostEdCompletion::Provider* provider)
{
  std::erase_if(m_providers, [&](const Slot& s) { return s.key == key && (!provider || s.provider == provider); });
}

const HostEdCompletion::Provider* HostCompletionRegistryImpl::provider(const OdString& key) const
{
  for (const Slot& slot : m_providers)
    if (slot.key == key)
      return slot.provider;
  return nullptr;
}

std::vector<OdString> HostCompletionRegistryImpl::keys() const
{
  std::vector<OdString> list;
  for (const Slot& slot : m_providers)
    list.push_back(slot.key);
  return list;
}

std::vector<HostEdCompletion::EntryPtr> HostCompletionRegistryImpl::entries() const
{
  std::vector<HostEdCompletion::EntryPtr> list;
  const std::vector<Slot> round = m_providers;
  for (const Slot& slot : round)
    if (slot.provider && *slot.provider)
      (*slot.provider)([&](const HostEdCompletion::EntryPtr& e) {
        if (e)
          list.push_back(e);
      });
  return list;
}
