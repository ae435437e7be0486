// The undo journal of one drawing: what each command changed (objects
// added, modified, erased; table records made; header variables), kept as
// the state of each touched object before and after, so that whole
// commands are taken back and brought back. Nothing else of the drawing is
// copied: a step costs what its command touched.
#pragma once

#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDatabaseReactor.h"

#include <string>
#include <unordered_map>
#include <vector>

class HostUndo : public OdDbDatabaseReactor
{
public:
  explicit HostUndo(OdDbDatabase* database);
  ~HostUndo() override;
  HostUndo(const HostUndo&) = delete;
  HostUndo& operator=(const HostUndo&) = delete;

  // A command begins: its step opens under its name. Changes made outside
  // any command before it (between a document lock and unlock, as a tool
  // does when it sets the current layer before its command runs) belong to
  // this step: they are taken back together with what the command made.
  void beginStep(const OdString& name);
  // The command is over: its step joins the undo list if it changed
  // anything, and then nothing can be redone any more.
  void endStep();
  // A command runs inside the one that opened the step. A step opened by a
  // private command ("__executetool", which tools type and users never
  // see) takes the name of the command it runs ("InsertBlock").
  void innerCommand(const OdString& name);

  bool canUndo() const { return !m_undo.empty() || !m_open.empty(); }
  bool canRedo() const { return !m_redo.empty(); }
  // The name of the command that undo() or redo() takes back or brings back.
  OdString undoName() const;
  OdString redoName() const;
  // Takes back the last step; changes still open (made outside a command
  // since the last one) are a step of their own and go first. False when
  // there is nothing to undo.
  bool undo();
  bool redo();

  void objectAppended(const OdDbDatabase* database, const OdDbObject* object) override;
  void objectOpenedForModify(const OdDbDatabase* database, const OdDbObject* object) override;
  void headerSysVarWillChange(const OdDbDatabase* database, const OdString& name) override;

private:
  struct ObjectState
  {
    bool exists = true; // false before an object was added
    bool erased = false;
    OdDbObjectId owner;
    std::string type;
    OdDbDxfPairArray pairs;
    OdDbStringArenaPtr arena; // keeps the pairs' texts alive
  };
  struct ObjectChange
  {
    OdDbObjectId id;
    ObjectState before, after;
  };
  struct HeaderChange
  {
    std::string name; // with the "$"
    bool existedBefore = false, existsAfter = false;
    OdDbDxfPairArray before, after;
  };
  struct Step
  {
    OdString name;
    std::vector<ObjectChange> objects;
    std::vector<HeaderChange> header;
    std::unordered_map<OdDbStub*, std::size_t> touched;
    std::unordered_map<std::string, std::size_t> touchedHeader;
    bool empty() const { return objects.empty() && header.empty(); }
  };

  ObjectState stateOf(const OdDbObject* object) const;
  void applyState(OdDbObjectId id, const ObjectState& state);
  void takeBack(Step& step);
  void bringBack(Step& step);
  void afterReplay();
  void replay(std::vector<Step>& from, std::vector<Step>& to, void (HostUndo::*apply)(Step&));

  OdDbDatabase* m_database; // not owned: the document owns both
  Step m_open;              // being recorded
  bool m_inCommand = false;
  bool m_replaying = false;
  std::vector<Step> m_undo, m_redo;
};
