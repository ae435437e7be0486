// The host's editor events. A reactor overrides the events it wants; the
// others do nothing.
#pragma once

#include "sdk/kernel/OdRxObject.h"

class OdDbDatabase;

class OdRxEventReactor : public OdRxObject
{
  ODRX_DECLARE_MEMBERS(OdRxEventReactor);
};

class OdEditorReactor : public OdRxEventReactor
{
  ODRX_DECLARE_MEMBERS(OdEditorReactor);

public:
  virtual void sysVarChanged(OdDbDatabase* database, const OdString& name) {}
};

class HostEditorReactor : public OdEditorReactor
{
  ODRX_DECLARE_MEMBERS(HostEditorReactor);

public:
  virtual void commandWillStart(const OdString& commandName) {}
  virtual void commandEnded(const OdString& commandName) {}
  virtual void commandCancelled(const OdString& commandName) {}
  virtual void commandFailed(const OdString& commandName) {}
  virtual void beginDwgOpen(const OdString& fileName) {}
  virtual void endDwgOpen(const OdString& fileName) {}
  virtual void DestroyWillStart() {}
  virtual void DestroyFinished() {}
  virtual void beginDocClose(OdDbDatabase* database) {}
  virtual void docCloseAborted(OdDbDatabase* database) {}
  virtual void docCloseWillStart(OdDbDatabase* database) {}
  virtual void layoutToBeSwitched(const OdString& oldLayout, const OdString& newLayout) {}
  virtual void dwgViewResized() {}
  virtual void veto() {}
  virtual void hostInitialized() {}
  virtual void undoWillStart() {}
  virtual void undoFinished() {}
  virtual void undoVetoed() {}
  virtual void clearVeto() {}
  virtual bool getVeto() { return false; }
  virtual void lispWillStart(const OdString& expression) {}
  virtual void lispEnded() {}
  virtual void lispCancelled() {}
};
using HostEditorReactorPtr = OdSmartPtr<HostEditorReactor>;
