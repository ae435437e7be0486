// The application object of the reference host: owns the configuration,
// the documents, the command line and the services that modules reach
// through the exported lookups. One per process; it can be started, shut
// down and started again (as a restart of the program would).
#pragma once

#include "hostsdk/core/AppInterfaces.h"
#include "app/core/HostOutput.h"

#include <iosfwd>
#include <memory>
#include <vector>

class HostAppInteriorImpl;
class HostAppPropImpl;
class HostCmdFactoryImpl;
class HostCommandLine;
class HostCompletionRegistryImpl;
class HostConfig;
class HostConfigNode;
class HostDocumentManager;
class HostEditorEventsImpl;
class HostProfileImpl;
class HostServicesImpl;
class HostStdDirsImpl;
class HostSysVarsImpl;
class HostVariableStoreImpl;

struct HostStartOptions
{
  // "KEY=VALUE" settings written to the configuration before modules load:
  // an option key ("ToolPaletteDir", "CommonDirs", "Shx") or a path
  // "Folder/Name" in the configuration tree.
  std::vector<OdString> settings;
  // Modules loaded by name, in this order (the console loads
  // "toolpalettes", then "tpcommands", its commands over that module).
  std::vector<OdString> modules;
  // Runs the commands that the configuration's "Startup" folder names.
  bool runStartupList = true;
  // A drawing to open at start; without one (or when it cannot be opened)
  // a new document is made, unless `newDocument` is false.
  OdString drawing;
  bool newDocument = true;
  // Message boxes print on the command line and answer their default button
  // (a host without windows); the desktop program shows real ones.
  bool messageBoxesOnCommandLine = true;
};

class HostApp : public IApp
{
public:
  static HostApp& instance();

  // Reads the configuration, applies the settings, opens the first
  // document, loads the modules and runs the Startup list. Problems are
  // told on the command line and the host starts all the same. A host that
  // runs already is left as it is.
  void start(const HostStartOptions& options = HostStartOptions());
  // Unloads the modules, closes the documents, drops every reactor and
  // provider, and forgets the configuration (which is on disk already).
  void shutdown();
  // shutdown(), then start() with the options of the last start.
  void restart();
  bool isRunning() const { return m_running; }

  // The command line, as typed: the text and then Enter.
  void typeLine(const OdString& line);
  // Types each line of `in` until its end or until Exit; commands waiting
  // for input read the following lines. True when Exit ended it.
  bool runScript(std::istream& in);
  // Where the command line's output goes (standard output by default).
  void setOutputSink(HostOutput::Sink sink);

  bool exitRequested() const { return m_exitRequested; }
  void requestExit() { m_exitRequested = true; }

  // The host's options: the standard folders.
  static bool isOptionKey(const OdString& key);
  static OdString optionKeyName(const OdString& key);
  // Writes an option (saved at once) and tells the property reactors.
  bool setOption(const OdString& key, const OdString& value, OdString* error = nullptr);
  // The value the modules see through IStdDirs (the default when not set).
  OdString option(const OdString& key);
  // Checks "KEY=VALUE" without applying it; false with the reason.
  static bool parseSetting(const OdString& assignment, OdString& key, OdString& value, OdString* error);
  bool applySetting(const OdString& assignment, OdString* error = nullptr);

  // Loads a module by name through the SDK's dynamic linker; a failure is
  // told on the command line and the host goes on.
  bool loadModule(const OdString& name);
  // Runs each command named in the "Startup" folder once; the number run.
  int runStartupList();

  // The parts. config() is null while the host is not running.
  HostConfig* config() { return m_config.get(); }
  HostCommandLine& commandLine() { return *m_commandLine; }
  HostDocumentManager& documents() { return *m_documents; }
  HostOutput& output() { return m_output; }
  HostServicesImpl& services() { return *m_services; }
  HostEditorEventsImpl& editorEvents() { return *m_events; }
  HostCompletionRegistryImpl& completionRegistry() { return *m_completion; }
  HostAppPropImpl& appProp() { return *m_appProp.get(); }
  HostStdDirsImpl& stdDirs() { return *m_stdDirs.get(); }
  HostCmdFactoryImpl& cmdFactory() { return *m_cmdFactory.get(); }
  HostSysVarsImpl& sysVars() { return *m_sysVars; }
  HostVariableStoreImpl& variableStore() { return *m_variableStore; }
  const std::vector<OdString>& loadedModules() const { return m_loadedModules; }

  // IApp: answers IProfile, IAppProp, IStdDirs, IAppInterior, ICmdFactory.
  // The object lives as long as the process; the count only tells users
  // apart.
  long addRef() override { return ++m_refCount; }
  long release() override { return m_refCount > 1 ? --m_refCount : 1; }
  bool queryInterface(const char* iid, void** out) override;

private:
  HostApp();
  ~HostApp() override;
  void onConfigChange(HostConfigNode* folder, const std::string& name, const CRkVariant* value);
  void ensureDefaultFolders();

  long m_refCount = 1;
  bool m_running = false;
  bool m_exitRequested = false;
  bool m_ownMessageBoxes = false;
  HostStartOptions m_options;
  std::vector<OdString> m_loadedModules; // by this host, in the order loaded

  HostOutput m_output;
  std::unique_ptr<HostConfig> m_config;
  std::unique_ptr<HostEditorEventsImpl> m_events;
  std::unique_ptr<HostCompletionRegistryImpl> m_completion;
  std::unique_ptr<HostDocumentManager> m_documents;
  std::unique_ptr<HostCommandLine> m_commandLine;
  std::unique_ptr<HostServicesImpl> m_services;
  std::unique_ptr<HostSysVarsImpl> m_sysVars;
  std::unique_ptr<HostVariableStoreImpl> m_variableStore;
  CRkPtr<HostProfileImpl> m_profile;
  CRkPtr<HostStdDirsImpl> m_stdDirs;
  CRkPtr<HostAppInteriorImpl> m_interior;
  CRkPtr<HostAppPropImpl> m_appProp;
  CRkPtr<HostCmdFactoryImpl> m_cmdFactory;
};
