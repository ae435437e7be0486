// The source of editor events: reactors added by modules hear the commands
// of the host, and the documents' comings and goings.
#pragma once

#include "hostsdk/core/HostDocManagerReactor.h"
#include "hostsdk/core/HostServices.h"

#include <functional>
#include <vector>

class HostEditorEventsImpl : public HostEditorEvents
{
public:
  // A reactor is added once; adding it again does nothing.
  void addReactor(HostEditorReactor* reactor) override;
  void removeReactor(HostEditorReactor* reactor) override;
  void addDocManagerReactor(HostDocManagerReactor* reactor) override;
  void removeDocManagerReactor(HostDocManagerReactor* reactor) override;

  // Calls `event` on each reactor in the order they came. A reactor removed
  // during the round (by itself or another) is not called afterwards; one
  // added during it hears from the next event on. Exceptions are caught and
  // handed to `onError` with the reactor's class name.
  void fire(const std::function<void(HostEditorReactor*)>& event);
  void fireDocManager(const std::function<void(HostDocManagerReactor*)>& event);

  void commandWillStart(const OdString& name);
  void commandEnded(const OdString& name);
  void commandCancelled(const OdString& name);
  void commandFailed(const OdString& name);

  void setErrorHandler(std::function<void(const OdString&)> onError) { m_onError = std::move(onError); }
  std::size_t reactorCount() const { return m_reactors.size(); }
  void clear()
  {
    m_reactors.clear();
    m_docReactors.clear();
  }

private:
  template <class R>
  void fireAll(std::vector<R*>& reactors, const std::function<void(R*)>& event);

  std::vector<HostEditorReactor*> m_reactors;       // not owned: a reactor removes itself before it goes
  std::vector<HostDocManagerReactor*> m_docReactors; // likewise
  std::function<void(const OdString&)> m_onError;
};
