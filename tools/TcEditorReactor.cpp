// The editor reactors.
#include "tools/TcEditorReactor.h"

#include "tools/TcToolPipeline.h"

#include "model/OdTcTool.h"

#include "host/TcGuard.h"
#include "host/TcHost.h"

#include "hostsdk/core/HostCore.h"

namespace tc {

ODRX_DEFINE_MEMBERS(TcEditorReactor, HostEditorReactor, ODRX_CREATE_IMPL(TcEditorReactor, TcEditorReactor))
ODRX_DEFINE_MEMBERS(TcEditorReactorEx, HostEditorReactor, ODRX_CREATE_IMPL(TcEditorReactorEx, TcEditorReactorEx))

namespace {
OdString reactorFailure()
{
  return Supp_Translate("The tool palettes could not follow the command: %s\n");
}
} // namespace

bool TcEditorReactor::canRunIn(HostDocument* document) const
{
  return !m_runningTool || m_runningTool->runningDocument() == document;
}

HostDocument* TcEditorReactor::runningDocument() const
{
  return m_runningTool ? m_runningTool->runningDocument() : nullptr;
}

OdString TcEditorReactor::runningDocumentName() const
{
  HostDocument* document = runningDocument();
  return document ? document->documentName() : OdString();
}

OdString TcEditorReactor::runningToolName() const
{
  return m_runningTool ? m_runningTool->displayName() : OdString();
}

bool TcEditorReactor::toolDocumentIsCurrent() const
{
  HostServices* services = hostServices();
  return services && services->currentDocument() == m_runningTool->runningDocument();
}

void TcEditorReactor::finishRun(bool armed)
{
  OdTcTool* tool = m_runningTool;
  if (!tool || !armed)
    return;
  // Cleared first: whatever restoring does, the watch is over.
  m_runningTool = nullptr;
  finishToolRun(tool);
}

void TcEditorReactor::forceStop()
{
  if (!m_runningTool)
    return;
  finishRun();
  m_cancelArmed = false;
}

void TcEditorReactor::stopAndRestore()
{
  finishRun();
}

void TcEditorReactor::cancelRun()
{
  if (!m_runningTool)
    return;
  finishRun(m_cancelArmed);
  m_cancelArmed = true;
}

void TcEditorReactor::commandEnded(const OdString& commandName)
{
  tcGuarded(reactorFailure(), [&] {
    if (!m_runningTool)
      return;
    for (const OdString& exempt : m_exemptCommands) {
      if (commandName == exempt) {
        m_runningTool = nullptr;
        return;
      }
    }
    // A run lives on through the commands that bring other drawings in.
    for (const char* kept : {"NewDocument", "OpenDocument", "Import"})
      if (commandName.iCompare(kept) == 0)
        return;
    if (toolDocumentIsCurrent())
      finishRun();
  });
}

void TcEditorReactor::commandCancelled(const OdString&)
{
  tcGuarded(reactorFailure(), [&] {
    if (m_runningTool && toolDocumentIsCurrent())
      cancelRun();
  });
}

void TcEditorReactor::commandFailed(const OdString&)
{
  tcGuarded(reactorFailure(), [&] {
    if (m_runningTool && toolDocumentIsCurrent())
      finishRun();
  });
}

void TcEditorReactorEx::sysVarChanged(OdDbDatabase*, const OdString& name)
{
  tcGuarded(reactorFailure(), [&] {
    if (name == "RefreshProperties" && m_sink)
      m_sink->update();
  });
}

} // namespace tc
