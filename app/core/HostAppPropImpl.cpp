// Reactors of the host's options.
#include "app/core/HostAppPropImpl.h"

#include <algorithm>
#include <exception>

bool HostAppPropImpl::addPropReactor(IPropReactor* reactor)
{
  if (!reactor)
    return false;
  for (const auto& r : m_reactors)
    if (r.get() == reactor)
      return false;
  m_reactors.emplace_back(reactor);
  return true;
}

bool HostAppPropImpl::removePropReactor(IPropReactor* reactor)
{
  auto it = std::find_if(m_reactors.begin(), m_reactors.end(), [&](const auto& r) { return r.get() == reactor; });
  if (it == m_reactors.end())
    return false;
  // Moved out first: the release may run the reactor's destructor, which may
  // come back here.
  CRkPtr<IPropReactor> gone = std::move(*it);
  m_reactors.erase(it);
  return true;
}

std::vector<OdString> HostAppPropImpl::notify(const char* property, const CRkVariant& value)
{
  std::vector<OdString> failures;
  // A copy holds each reactor alive for the round, whatever the others do.
  const std::vector<CRkPtr<IPropReactor>> round = m_reactors;
  for (const auto& reactor : round) {
    const bool stillThere = std::any_of(m_reactors.begin(), m_reactors.end(),
                                        [&](const auto& r) { return r.get() == reactor.get(); });
    if (!stillThere)
      continue;
    try {
      reactor->onChange(property, value);
    } catch (const std::exception& e) {
      failures.push_back(OdString(e.what()));
    } catch (...) {
      failures.push_back(OdString("unknown error"));
    }
  }
  return failures;
}

void HostAppPropImpl::clear()
{
  std::vector<CRkPtr<IPropReactor>> gone;
  gone.swap(m_reactors);
}
