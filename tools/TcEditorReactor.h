// The editor reactors: TcEditorReactor watches the one running tool and ends
// its run when the host says that the tool's command ended, was cancelled or
// failed; TcEditorReactorEx tells an open tool properties dialog that the
// host asked for a refresh of properties.
#pragma once

#include "hostsdk/core/HostEditorReactor.h"
#include "hostsdk/core/HostServices.h"

namespace tc {

class OdTcTool;

class TcEditorReactor : public HostEditorReactor
{
  ODRX_DECLARE_MEMBERS(TcEditorReactor);

public:
  // Whether a tool may run in `document`: none runs, or it runs there.
  bool canRunIn(HostDocument* document) const;
  // Not counted: a tool that goes away ends its run first.
  void setRunningTool(OdTcTool* tool) { m_runningTool = tool; }
  OdTcTool* runningTool() const { return m_runningTool; }
  HostDocument* runningDocument() const;
  OdString runningDocumentName() const;
  OdString runningToolName() const;
  bool isCancelArmed() const { return m_cancelArmed; }

  // A second click in the tool's document: restores the running tool and
  // clears it, and lets the cancel that the click typed pass once.
  void forceStop();
  // Restores the running tool's settings and clears it.
  void stopAndRestore();
  // What a cancel of the tool's command does, in whatever document.
  void cancelRun();

  void commandEnded(const OdString& commandName) override;
  void commandCancelled(const OdString& commandName) override;
  void commandFailed(const OdString& commandName) override;

private:
  bool toolDocumentIsCurrent() const;
  void finishRun(bool armed = true);

  OdTcTool* m_runningTool = nullptr; // not owned; at most one in the process
  bool m_cancelArmed = true;
  // Commands whose end drops the watch without restoring: the document or
  // the host is going away. Compared exactly.
  const OdString m_exemptCommands[2] = {"CloseDocument", "Exit"};
};
using TcEditorReactorPtr = OdSmartPtr<TcEditorReactor>;

// What an open tool properties dialog is told.
class IUpdateSink
{
public:
  virtual ~IUpdateSink() = default;
  virtual void update() = 0;
};

class TcEditorReactorEx : public HostEditorReactor
{
  ODRX_DECLARE_MEMBERS(TcEditorReactorEx);

public:
  // Not owned: the dialog clears it before it goes.
  void setSink(IUpdateSink* sink) { m_sink = sink; }
  // "RefreshProperties" is the host's signal to refresh; other variables
  // are not the dialog's business.
  void sysVarChanged(OdDbDatabase* database, const OdString& name) override;

private:
  IUpdateSink* m_sink = nullptr;
};
using TcEditorReactorExPtr = OdSmartPtr<TcEditorReactorEx>;

} // namespace tc
