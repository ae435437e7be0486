// Documents.
#include "app/core/HostDocumentImpl.h"

#include "app/core/HostApp.h"
#include "app/core/HostCommandLine.h"
#include "app/core/HostDocumentManager.h"
#include "app/core/HostEditorEventsImpl.h"
#include "app/core/HostOutput.h"

HostDocumentImpl::HostDocumentImpl(HostApp& app, const OdString& name, const OdString& filePath,
                                   OdDbDatabasePtr database)
    : m_app(app), m_name(name), m_filePath(filePath), m_database(std::move(database)), m_undo(m_database.get())
{
  if (m_database.get())
    m_database->addReactor(this);
}

HostDocumentImpl::~HostDocumentImpl()
{
  if (m_database.get())
    m_database->removeReactor(this);
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

bool HostDocumentImpl::canUndo() const
{
  return !m_app.commandLine().isCommandActive() && m_undo.canUndo();
}

bool HostDocumentImpl::canRedo() const
{
  return !m_app.commandLine().isCommandActive() && m_undo.canRedo();
}

bool HostDocumentImpl::runEditCommand(const char* name)
{
  if (m_app.documents().current() != this && !m_app.documents().makeCurrent(this))
    return false;
  return m_app.commandLine().runCommandByName(name) == HostCommandLine::kEnded;
}

bool HostDocumentImpl::undo()
{
  return canUndo() && runEditCommand("U");
}

bool HostDocumentImpl::redo()
{
  return canRedo() && runEditCommand("REDO");
}

void HostDocumentImpl::headerSysVarChanged(const OdDbDatabase* database, const OdString& name)
{
  OdDbDatabase* db = const_cast<OdDbDatabase*>(database);
  m_app.editorEvents().fire([&](HostEditorReactor* r) { r->sysVarChanged(db, name); });
}
