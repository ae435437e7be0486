// The fake host's objects and its exported lookups.
#include "tests/module/FakeHost.h"

#include <algorithm>

#include <dlfcn.h>

namespace fakehost {

State& state()
{
  static State s;
  return s;
}

void reset()
{
  std::vector<Command> commands = std::move(state().commands);
  state() = State();
  state().commands = std::move(commands);
}

void changeOption(const char* name)
{
  for (IPropReactor* r : std::vector<IPropReactor*>(state().propReactors))
    r->onChange(name, CRkVariant(OdString("value")));
}

namespace {

class Output : public HostCommandOutput
{
public:
  void printText(const OdString& text) override { state().printed += text.toUtf8(); }
};

class Events : public HostEditorEvents
{
public:
  void addReactor(HostEditorReactor* r) override { state().reactors.push_back(r); }
  void removeReactor(HostEditorReactor* r) override
  {
    auto& v = state().reactors;
    v.erase(std::remove(v.begin(), v.end(), r), v.end());
  }
};

class Completion : public HostEdCompletion::Registry
{
public:
  void addProvider(const OdString& key, const HostEdCompletion::Provider* p) override
  {
    state().providers[key.toUtf8()] = p;
  }
  void removeProvider(const OdString& key, const HostEdCompletion::Provider*) override
  {
    state().providers.erase(key.toUtf8());
  }
};

class Services : public HostServices
{
public:
  HostDocument* currentDocument() override { return nullptr; }
  HostCommandOutput* commandOutput() override { return &m_output; }
  HostEditorEvents* editorEvents() override { return &m_events; }
  HostEdCompletion::Registry* completionRegistry() override { return &m_completion; }
  QWidget* mainWindow() override { return nullptr; }

private:
  Output m_output;
  Events m_events;
  Completion m_completion;
};

class Factory : public CRkUnknownImpl<ICmdFactory>
{
public:
  bool registerCommandClass(const char* name, CmdCreatorFn creator, const OdString& group, int, int, int) override
  {
    state().commands.push_back({group.toUtf8(), name, creator, nullptr});
    return true;
  }
  bool registerCommandFunction(const OdString& group, const OdString& localName, const OdString&, int,
                               CmdFunction function, int, int) override
  {
    state().commands.push_back({group.toUtf8(), localName.toUtf8(), nullptr, function});
    return true;
  }
  bool getCommand(const OdString&, ICmdRun**) override { return false; }
};

// The "Startup" folder; the root answers only that one.
class StartupFolder : public CRkUnknownImpl<IConfigManager>
{
public:
  CXStringW name() const override { return "Startup"; }
  bool openFolder(const char*, bool, IConfigManager**) override { return false; }
  bool deleteFolder(const char*) override { return false; }
  bool getValue(const char* n, CRkVariant& v) const override
  {
    auto it = state().startup.find(n);
    if (it == state().startup.end())
      return false;
    v = it->second;
    return true;
  }
  bool setValue(const char* n, const CRkVariant& v) override
  {
    state().startup[n] = v;
    return true;
  }
  bool deleteValue(const char* n) override { return state().startup.erase(n) != 0; }
  std::vector<std::string> valueNames() const override { return {}; }
  std::vector<std::string> folderNames() const override { return {}; }
};

// A folder of values kept in the fake host's state.
class ValueFolder : public CRkUnknownImpl<IConfigManager>
{
public:
  ValueFolder(const char* name, std::map<std::string, CRkVariant>& values) : m_name(name), m_values(values) {}
  CXStringW name() const override { return m_name; }
  bool openFolder(const char*, bool, IConfigManager**) override { return false; }
  bool deleteFolder(const char*) override { return false; }
  bool getValue(const char* n, CRkVariant& v) const override
  {
    auto it = m_values.find(n);
    if (it == m_values.end())
      return false;
    v = it->second;
    return true;
  }
  bool setValue(const char* n, const CRkVariant& v) override
  {
    m_values[n] = v;
    return true;
  }
  bool deleteValue(const char* n) override { return m_values.erase(n) != 0; }
  std::vector<std::string> valueNames() const override { return {}; }
  std::vector<std::string> folderNames() const override { return {}; }

private:
  const char* m_name;
  std::map<std::string, CRkVariant>& m_values;
};

// "cmddata": no values of its own, the one folder "ToolPaletteManager".
class CmdDataFolder : public CRkUnknownImpl<IConfigManager>
{
public:
  CXStringW name() const override { return "cmddata"; }
  bool openFolder(const char* n, bool create, IConfigManager** out) override
  {
    if (std::string(n) != "ToolPaletteManager" || !(create || state().hasToolPaletteManager))
      return false;
    state().hasToolPaletteManager = true;
    *out = new ValueFolder("ToolPaletteManager", state().toolPaletteManager);
    return true;
  }
  bool deleteFolder(const char*) override { return false; }
  bool getValue(const char*, CRkVariant&) const override { return false; }
  bool setValue(const char*, const CRkVariant&) override { return false; }
  bool deleteValue(const char*) override { return false; }
  std::vector<std::string> valueNames() const override { return {}; }
  std::vector<std::string> folderNames() const override { return {}; }
};

class Root : public CRkUnknownImpl<IConfigManager>
{
public:
  CXStringW name() const override { return ""; }
  bool openFolder(const char* n, bool, IConfigManager** out) override
  {
    const std::string name(n);
    if (name == "cmddata" && state().hasCmdData) {
      *out = new CmdDataFolder;
      return true;
    }
    if (name != "Startup")
      return false;
    *out = new StartupFolder;
    return true;
  }
  bool deleteFolder(const char*) override { return false; }
  bool getValue(const char*, CRkVariant&) const override { return false; }
  bool setValue(const char*, const CRkVariant&) override { return false; }
  bool deleteValue(const char*) override { return false; }
  std::vector<std::string> valueNames() const override { return {}; }
  std::vector<std::string> folderNames() const override { return {"Startup"}; }
};

class App : public CRkUnknownImpl<IApp>, public IProfile, public IAppProp, public IStdDirs, public IAppInterior
{
public:
  long addRef() override { return CRkUnknownImpl<IApp>::addRef(); }
  long release() override { return CRkUnknownImpl<IApp>::release(); }
  bool queryInterface(const char* iid, void** out) override
  {
    if (rkSameIID(iid, IProfile::kIID)) {
      *out = static_cast<IProfile*>(this);
    } else if (rkSameIID(iid, IAppProp::kIID)) {
      *out = static_cast<IAppProp*>(this);
    } else if (rkSameIID(iid, IStdDirs::kIID)) {
      *out = static_cast<IStdDirs*>(this);
    } else if (rkSameIID(iid, IAppInterior::kIID)) {
      *out = static_cast<IAppInterior*>(this);
    } else {
      return CRkUnknownImpl<IApp>::queryInterface(iid, out);
    }
    addRef();
    return true;
  }
  bool getRoot(IConfigManager** out) override
  {
    if (state().brokenProfile)
      throw OdError(eInvalidInput, "the configuration tree is broken");
    *out = new Root;
    return true;
  }
  bool getParam(const char*, const char*, bool, IConfigParam**) override { return false; }
  bool getValue(const char* key, CRkVariant& out) override
  {
    if (key == state().brokenKey)
      throw OdError(eInvalidInput, OdString::formatted("the value %s is broken", OdString(key)));
    auto it = state().stdDirs.find(key);
    if (it == state().stdDirs.end())
      return false;
    out = it->second;
    return true;
  }
  CXStringW userDataFolder() override { return state().userDataFolder; }
  bool addPropReactor(IPropReactor* r) override
  {
    r->addRef();
    state().propReactors.push_back(r);
    return true;
  }
  bool removePropReactor(IPropReactor* r) override
  {
    auto& v = state().propReactors;
    auto it = std::find(v.begin(), v.end(), r);
    if (it == v.end())
      return false;
    v.erase(it);
    r->release();
    return true;
  }
};

HostServices* services()
{
  static Services s;
  return &s;
}

} // namespace
} // namespace fakehost

extern "C" {

void* GetMainDllInstance()
{
  return dlopen(nullptr, RTLD_NOW);
}

void* get_host_funcptr(int id)
{
  return id == 2 ? reinterpret_cast<void*>(&fakehost::services) : nullptr;
}

IApp* GetApp()
{
  static IApp* app = new fakehost::App;
  app->addRef();
  return app;
}

const wchar_t* GetMainDllNameW()
{
  return L"the test program";
}

void new_ICmdFactory(ICmdFactory** out)
{
  *out = new fakehost::Factory;
}
}
