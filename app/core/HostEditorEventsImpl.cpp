// Dispatch of editor events.
#include "app/core/HostEditorEventsImpl.h"

#include <algorithm>
#include <exception>

namespace {

template <class R>
void addOnce(std::vector<R*>& list, R* reactor)
{
  if (reactor && std::find(list.begin(), list.end(), reactor) == list.end())
    list.push_back(reactor);
}

} // namespace

void HostEditorEventsImpl::addReactor(HostEditorReactor* reactor)
{
  addOnce(m_reactors, reactor);
}

void HostEditorEventsImpl::removeReactor(HostEditorReactor* reactor)
{
  std::erase(m_reactors, reactor);
}

void HostEditorEventsImpl::addDocManagerReactor(HostDocManagerReactor* reactor)
{
  addOnce(m_docReactors, reactor);
}

void HostEditorEventsImpl::removeDocManagerReactor(HostDocManagerReactor* reactor)
{
  std::erase(m_docReactors, reactor);
}

template <class R>
void HostEditorEventsImpl::fireAll(std::vector<R*>& reactors, const std::function<void(R*)>& event)
{
  const std::vector<R*> round = reactors;
  for (R* reactor : round) {
    if (std::find(reactors.begin(), reactors.end(), reactor) == reactors.end())
      continue;
    try {
      event(reactor);
    } catch (const OdError& e) {
      if (m_onError)
        m_onError(e.description());
    } catch (const std::exception& e) {
      if (m_onError)
        m_onError(OdString(e.what()));
    } catch (...) {
      if (m_onError)
        m_onError(OdString("unknown error"));
    }
  }
}

void HostEditorEventsImpl::fire(const std::function<void(HostEditorReactor*)>& event)
{
  fireAll(m_reactors, event);
}

void HostEditorEventsImpl::fireDocManager(const std::function<void(HostDocManagerReactor*)>& event)
{
  fireAll(m_docReactors, event);
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
