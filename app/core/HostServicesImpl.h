// HostServices of the reference host: what get_host_funcptr(2) leads to.
#pragma once

#include "hostsdk/core/HostServices.h"

class HostApp;

class HostServicesImpl : public HostServices
{
public:
  explicit HostServicesImpl(HostApp& app) : m_app(app) {}

  HostDocument* currentDocument() override;
  HostCommandOutput* commandOutput() override;
  HostEditorEvents* editorEvents() override;
  HostEdCompletion::Registry* completionRegistry() override;
  // The console has no window; the desktop program sets its main window.
  QWidget* mainWindow() override { return m_mainWindow; }
  void setMainWindow(QWidget* window) { m_mainWindow = window; }
  HostSystemVariables* systemVariables() override;
  HostVariableStore* variableStore() override;
  const HostCommandTableInfo* commandTable() override;
  void post(std::function<void()> action) override;

private:
  HostApp& m_app;
  QWidget* m_mainWindow = nullptr; // not owned
};
