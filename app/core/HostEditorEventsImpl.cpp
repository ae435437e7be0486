// Dispatch of editor events.
#include "app/core/HostEditorEventsImpl.h"

#include <algorithm>
#include <exception>

void HostEditorEventsImpl::addReactor(HostEditorReactor* reactor)
{
  if (reactor && !contains(reactor))
    m_reactors.push_back(reactor);
}

void HostEditorEventsImpl::removeReactor(HostEditorReactor* reactor)
{
  std::erase(m_reactors, reactor);
}

bool HostEditorEventsImpl::contains(HostEditorReactor* reactor) const
{
  return std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end();
}

void HostEditorEventsImpl::fire(const std::function<void(HostEditorReactor*)>& event)
{
  const std::vector<HostEditorReactor*> round = m_reactors;
  for (HostEditorReactor* reactor : round) {
    if (!contains(reactor))
      continue;
    try {
      event(reactor);
    } catch (const std::exception& e) {
      if (m_onError)
        m_onError(OdString(e.what()));
    } catch (...) {
      if (m_onError)
        m_onError(OdString("unknown error"));
    }
  }
}

void HostEditorEventsImpl::commandWillStart(const OdString& name)
{
  fire([&](HostEditorReactor* r) { r->commandWillStart(name); });
}

void HostEditorEventsImpl::commandEnded(const OdString& name)
{
  fire([&](HostEditorReactor* r) { r->commandEnded(name); });
}

void HostEditorEventsImpl::commandCancelled(const OdString& name)
{
  fire([&](HostEditorReactor* r) { r->commandCancelled(name); });
}

void HostEditorEventsImpl::commandFailed(const OdString& name)
{
  fire([&](HostEditorReactor* r) { r->commandFailed(name); });
}
