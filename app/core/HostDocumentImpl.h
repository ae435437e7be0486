// A document of the reference host: a drawing with its file, its undo
// journal and the last point given on its command line.
#pragma once

#include "app/core/HostUndo.h"

#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDatabaseReactor.h"

#include "hostsdk/core/HostServices.h"

class HostApp;

class HostDocumentImpl : public HostDocument, private OdDbDatabaseReactor
{
public:
  // `filePath` is empty for a new document that was never saved.
  HostDocumentImpl(HostApp& app, const OdString& name, const OdString& filePath, OdDbDatabasePtr database);
  ~HostDocumentImpl() override;

  HostCommandOutput* commandOutput() override;
  // "Drawing1.dxf" for a new one, the file's name for an opened one.
  OdString documentName() const override { return m_name; }
  // The host has one command line, shared by its documents: text sent to a
  // document that is not the current one still runs on the current one.
  void sendCommand(const OdString& text) override;
  bool getString(const OdString& prompt, OdString& out, bool allowSpaces = false) override;
  // Locks nest; each lock needs its unlock. What changes while the
  // document is locked outside a command joins the next command's undo
  // step (see HostUndo::beginStep).
  OdDbDatabase* database() override { return m_database; }
  void lockDocument(const OdString& name) override;
  void unlockDocument() override;

  const OdString& filePath() const { return m_filePath; }
  // After a save under another name: the document is that file now.
  void setFilePath(const OdString& filePath, const OdString& name);
  bool isLocked() const { return m_lockDepth > 0; }
  const OdString& lockName() const { return m_lockName; }

  // Undo and redo of whole commands, as an Edit menu offers them: they run
  // the commands U and REDO on this document (made current first), with
  // the events of any command. Nothing to take back, or a command that
  // runs already, gives false.
  bool canUndo() const;
  bool canRedo() const;
  bool undo();
  bool redo();
  HostUndo& undoJournal() { return m_undo; }

  // Where "@" input is relative to: the last point given or made.
  const OdGePoint3d& lastPoint() const { return m_lastPoint; }
  void setLastPoint(const OdGePoint3d& point) { m_lastPoint = point; }

private:
  // Header variables changed by any means are told to the editor
  // reactors as system variables.
  void headerSysVarChanged(const OdDbDatabase* database, const OdString& name) override;
  bool runEditCommand(const char* name);

  HostApp& m_app;
  OdString m_name;
  OdString m_filePath;
  OdDbDatabasePtr m_database;
  HostUndo m_undo;
  int m_lockDepth = 0;
  OdString m_lockName;
  OdGePoint3d m_lastPoint;
};
