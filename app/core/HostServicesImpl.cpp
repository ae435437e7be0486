// The services a module asks of the host.
#include "app/core/HostServicesImpl.h"

#include "app/core/HostApp.h"
#include "app/core/HostCommandLine.h"
#include "app/core/HostCommandTable.h"
#include "app/core/HostCompletionRegistryImpl.h"
#include "app/core/HostDocumentManager.h"
#include "app/core/HostEditorEventsImpl.h"
#include "app/core/HostOutput.h"
#include "app/core/HostSysVars.h"
#include "app/core/HostVariableStoreImpl.h"

HostDocument* HostServicesImpl::currentDocument()
{
  return m_app.documents().current();
}

HostCommandOutput* HostServicesImpl::commandOutput()
{
  return &m_app.output();
}

HostEditorEvents* HostServicesImpl::editorEvents()
{
  return &m_app.editorEvents();
}

HostEdCompletion::Registry* HostServicesImpl::completionRegistry()
{
  return &m_app.completionRegistry();
}

HostSystemVariables* HostServicesImpl::systemVariables()
{
  return &m_app.sysVars();
}

HostVariableStore* HostServicesImpl::variableStore()
{
  return &m_app.variableStore();
}

const HostCommandTableInfo* HostServicesImpl::commandTable()
{
  return &HostCommandTable::instance();
}

void HostServicesImpl::post(std::function<void()> action)
{
  m_app.commandLine().post(std::move(action));
}
