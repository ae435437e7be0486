// The test program as a host of the pattern library.
#include "tests/hostsdk/patterns/PatTestHost.h"

#include "hostsdk/core/AppInterfaces.h"
#include "hostsdk/core/HostLookup.h"
#include "hostsdk/core/HostServices.h"

#include <dlfcn.h>

namespace pattesthost {

State& state()
{
  static State s;
  return s;
}

void reset()
{
  state() = State();
}

namespace {

class Output : public HostCommandOutput
{
public:
  void printText(const OdString& text) override { state().printed += text.toUtf8(); }
};

Output g_output;

class Document : public HostDocument
{
public:
  HostCommandOutput* commandOutput() override { return &g_output; }
  OdString documentName() const override { return "Drawing1.dxf"; }
  void sendCommand(const OdString&) override {}
  bool getString(const OdString& prompt, OdString& out, bool) override
  {
    out = OdString();
    state().printed += prompt.toUtf8();
    if (state().input.empty() || state().input.front() == "^C") {
      state().printed += "*Cancel*\n";
      return false;
    }
    out = state().input.front();
    state().input.pop_front();
    state().printed += out.toUtf8() + "\n";
    return true;
  }
};

class Services : public HostServices
{
public:
  HostDocument* currentDocument() override { return state().hasDocument ? &m_document : nullptr; }
  HostCommandOutput* commandOutput() override { return &g_output; }
  HostEditorEvents* editorEvents() override { return nullptr; }
  HostEdCompletion::Registry* completionRegistry() override { return nullptr; }
  QWidget* mainWindow() override { return nullptr; }

private:
  Document m_document;
};

HostServices* services()
{
  static Services s;
  return &s;
}

class Param : public CRkUnknownImpl<IConfigParam>
{
public:
  explicit Param(std::string name) : m_name(std::move(name)) {}
  CXStringW name() const override { return CXStringW(m_name.c_str()); }
  bool getValue(CRkVariant& value) const override
  {
    auto it = state().hatchSettings.find(m_name);
    if (it == state().hatchSettings.end())
      return false;
    value = CRkVariant(it->second);
    return true;
  }
  bool setValue(const CRkVariant& value) override
  {
    state().hatchSettings[m_name] = value.toString();
    return true;
  }

private:
  std::string m_name;
};

class Profile : public CRkUnknownImpl<IProfile>
{
public:
  bool getRoot(IConfigManager** out) override
  {
    *out = nullptr;
    return false;
  }
  bool getParam(const char* path, const char* name, bool create, IConfigParam** out) override
  {
    *out = nullptr;
    if (std::string(path) != "Hatch" || (!create && !state().hatchSettings.count(name)))
      return false;
    *out = new Param(name);
    return true;
  }
};

class Interior : public CRkUnknownImpl<IAppInterior>
{
public:
  CXStringW userDataFolder() override { return CXStringW(state().userDataFolder); }
};

class App : public CRkUnknownImpl<IApp>
{
public:
  bool queryInterface(const char* iid, void** out) override
  {
    if (rkSameIID(iid, IProfile::kIID)) {
      *out = static_cast<IProfile*>(new Profile);
      return true;
    }
    if (rkSameIID(iid, IAppInterior::kIID)) {
      *out = static_cast<IAppInterior*>(new Interior);
      return true;
    }
    return CRkUnknownImpl<IApp>::queryInterface(iid, out);
  }
};

} // namespace
} // namespace pattesthost

extern "C" {

__attribute__((visibility("default"))) void* GetMainDllInstance()
{
  return dlopen(nullptr, RTLD_NOW);
}

__attribute__((visibility("default"))) void* get_host_funcptr(int id)
{
  if (!pattesthost::state().present || id != kHostServicesFuncId)
    return nullptr;
  return reinterpret_cast<void*>(&pattesthost::services);
}

__attribute__((visibility("default"))) IApp* GetApp()
{
  if (!pattesthost::state().present)
    return nullptr;
  static IApp* app = new pattesthost::App;
  app->addRef();
  return app;
}
}
