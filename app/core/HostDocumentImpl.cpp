// Documents.
#include "app/core/HostDocumentImpl.h"

#include "app/core/HostApp.h"
#include "app/core/HostCommandLine.h"
#include "app/core/HostOutput.h"

HostDocumentImpl::HostDocumentImpl(HostApp& app, const OdString& name, const OdString& filePath,
                                   OdDbDatabasePtr database)
    : m_app(app), m_name(name), m_filePath(filePath), m_database(std::move(database))
{
}

void HostDocumentImpl::setFilePath(const OdString& filePath, const OdString& name)
{
  m_filePath = filePath;
  m_name = name;
}

HostCommandOutput* HostDocumentImpl::commandOutput()
{
  return &m_app.output();
}

void HostDocumentImpl::sendCommand(const OdString& text)
{
  m_app.commandLine().type(text);
}

bool HostDocumentImpl::getString(const OdString& prompt, OdString& out, bool allowSpaces)
{
  return m_app.commandLine().getString(prompt, out, allowSpaces);
}

void HostDocumentImpl::lockDocument(const OdString& name)
{
  if (m_lockDepth++ == 0)
    m_lockName = name;
}

void HostDocumentImpl::unlockDocument()
{
  if (m_lockDepth > 0 && --m_lockDepth == 0)
    m_lockName = OdString();
}
