// The services a module asks of the host.
#include "HostServicesImpl.h"

#include "HostApp.h"
#include "HostCompletionRegistryImpl.h"
#include "HostDocumentManager.h"
#include "HostEditorEventsImpl.h"
#include "HostOutput.h"

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
