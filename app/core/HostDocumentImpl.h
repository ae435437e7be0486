// A document of the reference host. Until the host has drawings it is a
// name and a file path, with the host's command line.
#pragma once

#include "sdk/db/OdDbDatabase.h"

#include "hostsdk/core/HostServices.h"

class HostApp;

class HostDocumentImpl : public HostDocument
{
public:
  // `filePath` is empty for a new document that was never saved.
  HostDocumentImpl(HostApp& app, const OdString& name, const OdString& filePath, OdDbDatabasePtr database);

  HostCommandOutput* commandOutput() override;
  // "Drawing1.dxf" for a new one, the file's name for an opened one.
  OdString documentName() const override { return m_name; }
  // The host has one command line, shared by its documents: text sent to a
  // document that is not the current one still runs on the current one.
  void sendCommand(const OdString& text) override;
  bool getString(const OdString& prompt, OdString& out, bool allowSpaces = false) override;
  // Locks nest; each lock needs its unlock.
  OdDbDatabase* database() override { return m_database; }
  void lockDocument(const OdString& name) override;
  void unlockDocument() override;

  const OdString& filePath() const { return m_filePath; }
  // After a save under another name: the document is that file now.
  void setFilePath(const OdString& filePath, const OdString& name);
  bool isLocked() const { return m_lockDepth > 0; }
  const OdString& lockName() const { return m_lockName; }

private:
  HostApp& m_app;
  OdString m_name;
  OdString m_filePath;
  OdDbDatabasePtr m_database;
  int m_lockDepth = 0;
  OdString m_lockName;
};
