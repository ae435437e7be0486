// Start, shutdown and the options of the reference host.
#include "app/core/HostApp.h"

#include "app/core/HostAppInteriorImpl.h"
#include "app/core/HostAppPropImpl.h"
#include "app/core/HostBuiltinCommands.h"
#include "app/core/HostCmdFactoryImpl.h"
#include "app/core/HostCommandLine.h"
#include "app/core/HostCompletionRegistryImpl.h"
#include "app/core/HostConfig.h"
#include "hostsdk/core/HostCore.h"
#include "app/core/HostDocumentManager.h"
#include "app/core/HostEditorEventsImpl.h"
#include "app/core/HostPaths.h"
#include "app/core/HostProfileImpl.h"
#include "app/core/HostServicesImpl.h"
#include "app/core/HostStdDirsImpl.h"
#include "app/core/HostSysVars.h"
#include "app/core/HostVariableStoreImpl.h"
#include "sdk/kernel/OdRxModule.h"

#include <exception>
#include <istream>
#include <string>

namespace {

constexpr const char* kStartupFolder = "Startup";
// The module's remembered window state lives below "cmddata"; a module
// finds nothing to write into unless the host has that branch.
constexpr const char* kCmdDataFolder = "cmddata";

// Message boxes of a host without windows: caption and text on the command
// line, and the default answer, so that a script never waits for a click.
int commandLineMessageBox(const OdString& text, const OdString& caption, unsigned style)
{
  HostOutput& out = HostApp::instance().output();
  out.printLine(caption.isEmpty() ? text : caption + ": " + text);
  return hostDefaultMessageBoxAnswer(style);
}

} // namespace

HostApp& HostApp::instance()
{
  // Never destroyed: modules keep pointers to it until the process ends.
  static HostApp* app = new HostApp;
  return *app;
}

HostApp::HostApp()
    : m_events(std::make_unique<HostEditorEventsImpl>()),
      m_completion(std::make_unique<HostCompletionRegistryImpl>()),
      m_documents(std::make_unique<HostDocumentManager>(*this)),
      m_commandLine(std::make_unique<HostCommandLine>(*this)),
      m_services(std::make_unique<HostServicesImpl>(*this)),
      m_sysVars(std::make_unique<HostSysVarsImpl>(*this)),
      m_variableStore(std::make_unique<HostVariableStoreImpl>()),
      m_profile(CRkPtr<HostProfileImpl>::attach(new HostProfileImpl(*this))),
      m_stdDirs(CRkPtr<HostStdDirsImpl>::attach(new HostStdDirsImpl(*this))),
      m_interior(CRkPtr<HostAppInteriorImpl>::attach(new HostAppInteriorImpl)),
      m_appProp(CRkPtr<HostAppPropImpl>::attach(new HostAppPropImpl)),
      m_cmdFactory(CRkPtr<HostCmdFactoryImpl>::attach(new HostCmdFactoryImpl))
{
  m_events->setErrorHandler(
      [this](const OdString& error) { m_output.printLine("An editor reactor failed: " + error); });
}

HostApp::~HostApp() = default;

bool HostApp::queryInterface(const char* iid, void** out)
{
  if (!out)
    return false;
  *out = nullptr;
  IRkUnknown* answer = nullptr;
  if (rkSameIID(iid, IRkUnknown::kIID) || rkSameIID(iid, IApp::kIID))
    answer = this;
  else if (rkSameIID(iid, IProfile::kIID))
    answer = static_cast<IProfile*>(m_profile.get());
  else if (rkSameIID(iid, IStdDirs::kIID))
    answer = static_cast<IStdDirs*>(m_stdDirs.get());
  else if (rkSameIID(iid, IAppInterior::kIID))
    answer = static_cast<IAppInterior*>(m_interior.get());
  else if (rkSameIID(iid, IAppProp::kIID))
    answer = static_cast<IAppProp*>(m_appProp.get());
  else if (rkSameIID(iid, ICmdFactory::kIID))
    answer = static_cast<ICmdFactory*>(m_cmdFactory.get());
  if (!answer)
    return false;
  answer->addRef();
  *out = answer;
  return true;
}

void HostApp::setOutputSink(HostOutput::Sink sink)
{
  m_output.setSink(std::move(sink));
}

void HostApp::ensureDefaultFolders()
{
  HostConfig::Batch batch(*m_config);
  for (const char* folder : {HostStdDirsImpl::kFolder, kStartupFolder, kCmdDataFolder})
    m_config->folder(folder, true);
}

void HostApp::start(const HostStartOptions& options)
{
  if (m_running)
    return;
  m_options = options;
  m_exitRequested = false;
  m_sysVars->reset();
  m_variableStore->reset();
  HostBuiltinCommands::registerAll();
  hostSetCmdRouteMap(OdString(HostPaths::installDataFolder() + QStringLiteral("/cmdroutemap.xml")));
  if (options.messageBoxesOnCommandLine) {
    hostSetMessageBoxHandler(&commandLineMessageBox);
    m_ownMessageBoxes = true;
  }

  m_config = std::make_unique<HostConfig>(HostPaths::configFile());
  m_config->setMessageHandler([this](const OdString& message) { m_output.printLine(message); });
  m_config->load();
  ensureDefaultFolders();
  m_config->setChangeHandler([this](HostConfigNode* folder, const std::string& name, const CRkVariant* value) {
    onConfigChange(folder, name, value);
  });
  m_running = true;
  hostSetContext(m_services.get(), this);

  if (!options.settings.empty()) {
    HostConfig::Batch batch(*m_config);
    for (const OdString& setting : options.settings) {
      OdString error;
      if (!applySetting(setting, &error))
        m_output.printLine(error);
    }
  }

  bool haveDocument = false;
  if (!options.drawing.isEmpty()) {
    OdString error;
    if (m_documents->openDocument(options.drawing, error))
      haveDocument = true;
    else
      m_output.printLine(OdString::formatted("Cannot open the drawing: %s. Verdani starts with a new one.", error));
  }
  if (!haveDocument && (options.newDocument || !options.drawing.isEmpty()))
    m_documents->newDocument();

  for (const OdString& module : options.modules)
    loadModule(module);
  if (options.runStartupList)
    runStartupList();
  m_events->fire([](HostEditorReactor* r) { r->hostInitialized(); });
}

void HostApp::shutdown()
{
  if (!m_running)
    return;
  // Modules go first, while everything they unregister from still exists.
  for (auto it = m_loadedModules.rbegin(); it != m_loadedModules.rend(); ++it) {
    try {
      odrxDynamicLinker()->unloadModule(*it);
    } catch (const std::exception& e) {
      m_output.printLine(OdString::formatted("Module %s failed while unloading: %s", *it, e.what()));
    } catch (...) {
      m_output.printLine(OdString::formatted("Module %s failed while unloading.", *it));
    }
  }
  m_loadedModules.clear();
  m_documents->closeAll();
  m_commandLine->clearInput();
  m_events->clear();
  m_completion->clear();
  m_appProp->clear();
  m_config.reset();
  hostSetContext(nullptr, nullptr);
  hostSetCmdRouteMap(OdString());
  if (m_ownMessageBoxes) {
    hostSetMessageBoxHandler(nullptr);
    m_ownMessageBoxes = false;
  }
  m_output.finishLine();
  m_running = false;
}

void HostApp::restart()
{
  const HostStartOptions options = m_options;
  shutdown();
  start(options);
}

void HostApp::typeLine(const OdString& line)
{
  m_commandLine->type(line + "\n");
}

bool HostApp::runScript(std::istream& in)
{
  // Commands that wait for input read the script's next lines.
  auto nextLine = [&in](const OdString&, OdString& line) {
    std::string text;
    if (!std::getline(in, text))
      return false;
    if (!text.empty() && text.back() == '\r')
      text.pop_back();
    line = OdString(text);
    return true;
  };
  m_commandLine->setInputProvider(nextLine);
  std::string text;
  while (!m_exitRequested && std::getline(in, text)) {
    if (!text.empty() && text.back() == '\r')
      text.pop_back();
    typeLine(OdString(text));
  }
  m_commandLine->setInputProvider(nullptr);
  return m_exitRequested;
}

bool HostApp::isOptionKey(const OdString& key)
{
  return HostStdDirsImpl::isKnownKey(key);
}

OdString HostApp::optionKeyName(const OdString& key)
{
  return HostStdDirsImpl::knownKeyName(key);
}

bool HostApp::setOption(const OdString& key, const OdString& value, OdString* error)
{
  if (!isOptionKey(key)) {
    if (error)
      *error = OdString::formatted("\"%s\" is no setting of Verdani: use ToolPaletteDir, CommonDirs or Shx.", key);
    return false;
  }
  if (!m_config) {
    if (error)
      *error = "The host is not running: there is no configuration to change.";
    return false;
  }
  HostConfigNode* folder = m_config->folder(HostStdDirsImpl::kFolder, true);
  return folder->setValue(optionKeyName(key).toUtf8().c_str(), CRkVariant(value));
}

OdString HostApp::option(const OdString& key)
{
  CRkVariant value;
  if (!m_stdDirs->getValue(key.toUtf8().c_str(), value))
    return OdString();
  return value.toString();
}

bool HostApp::parseSetting(const OdString& assignment, OdString& key, OdString& value, OdString* error)
{
  const int eq = assignment.find(u'=');
  key = eq < 0 ? assignment : assignment.left(eq);
  key.trimLeft();
  key.trimRight();
  value = eq < 0 ? OdString() : assignment.mid(eq + 1);
  if (eq < 0 || key.isEmpty()) {
    if (error)
      *error = OdString::formatted("The setting \"%s\" has no KEY=VALUE form, as in ToolPaletteDir=/path/to/folder.",
                                   assignment);
    return false;
  }
  if (isOptionKey(key)) {
    key = optionKeyName(key);
    return true;
  }
  // Any other value of the tree by its path: "Folder/Sub/Name".
  const int slash = std::max(key.reverseFind(u'/'), key.reverseFind(u'\\'));
  if (slash <= 0 || slash == key.getLength() - 1) {
    if (error)
      *error = OdString::formatted(
          "Unknown setting \"%s\": use ToolPaletteDir, CommonDirs, Shx, or a configuration path Folder/Name.", key);
    return false;
  }
  return true;
}

bool HostApp::applySetting(const OdString& assignment, OdString* error)
{
  OdString key, value;
  if (!parseSetting(assignment, key, value, error))
    return false;
  if (isOptionKey(key))
    return setOption(key, value, error);
  if (!m_config) {
    if (error)
      *error = "The host is not running: there is no configuration to change.";
    return false;
  }
  const int slash = std::max(key.reverseFind(u'/'), key.reverseFind(u'\\'));
  HostConfigNode* folder = m_config->folder(key.left(slash).toUtf8(), true);
  return folder && folder->setValue(key.mid(slash + 1).toUtf8().c_str(), CRkVariant(value));
}

void HostApp::onConfigChange(HostConfigNode* folder, const std::string& name, const CRkVariant* value)
{
  // Only the options are the host's options; what modules keep for
  // themselves (cmddata, Startup) changes without notice.
  if (!folder || QString::fromStdString(folder->path()).compare(QLatin1String(HostStdDirsImpl::kFolder),
                                                               Qt::CaseInsensitive) != 0)
    return;
  const CRkVariant told = value ? *value : CRkVariant();
  for (const OdString& failure : m_appProp->notify(name.c_str(), told))
    m_output.printLine(OdString::formatted("A module failed to follow the change of %s: %s", name, failure));
}

bool HostApp::loadModule(const OdString& name)
{
  try {
    odrxDynamicLinker()->loadModule(name);
  } catch (const OdError& e) {
    OdString reason = e.description();
    if (reason.find(OdString("Cannot load module")) != 0)
      reason = OdString::formatted("Cannot load module %s: %s", name, reason);
    m_output.printLine(reason);
    m_output.printLine(OdString::formatted(
        "Verdani goes on without %s. Build it, or put its folder in VERDANI_MODULE_PATH.", name));
    return false;
  } catch (const std::exception& e) {
    m_output.printLine(OdString::formatted("Cannot load module %s: %s", name, e.what()));
    return false;
  } catch (...) {
    m_output.printLine(OdString::formatted("Cannot load module %s: its start failed.", name));
    return false;
  }
  bool known = false;
  for (const OdString& m : m_loadedModules)
    known = known || m == name;
  if (!known)
    m_loadedModules.push_back(name);
  return true;
}

int HostApp::runStartupList()
{
  if (!m_config)
    return 0;
  HostConfigNode* folder = m_config->folder(kStartupFolder, false);
  if (!folder)
    return 0;
  // A copy: the commands may change the list (a toggle removes its entry).
  const std::vector<std::string> names = folder->valueNames();
  int ran = 0;
  for (const std::string& name : names) {
    if (m_exitRequested)
      break;
    const OdString command(name);
    if (!HostCommandTable::instance().find(command)) {
      m_output.printLine(OdString::formatted(
          "The Startup list names \"%s\", which is no command; it is skipped.", command));
      continue;
    }
    m_output.printLine("Command: " + command);
    m_commandLine->runCommandByName(command);
    ++ran;
  }
  return ran;
}
