// A running host as the UI kit sees it, made of fakes: a document whose
// command line answers from a list, an output that records, and an
// application whose configuration is a tree in memory.
#pragma once

#include "hostsdk/core/AppInterfaces.h"
#include "hostsdk/core/HostCore.h"
#include "hostsdk/core/HostServices.h"

#include <QStringList>

#include <map>
#include <memory>
#include <string>

namespace uitest {

class FakeOutput : public HostCommandOutput
{
public:
  void printText(const OdString& text) override { printed += text.qstring(); }
  QString printed;
};

class FakeDocument : public HostDocument
{
public:
  explicit FakeDocument(FakeOutput& out) : m_out(out) {}
  HostCommandOutput* commandOutput() override { return &m_out; }
  OdString documentName() const override { return "Drawing1.dxf"; }
  void sendCommand(const OdString&) override {}
  bool getString(const OdString& prompt, OdString& out, bool) override
  {
    prompts << prompt.qstring();
    if (answers.isEmpty())
      return false;
    out = OdString(answers.takeFirst());
    return true;
  }
  QStringList answers; // what the user types, one per question
  QStringList prompts;

private:
  FakeOutput& m_out;
};

class FakeServices : public HostServices
{
public:
  HostDocument* currentDocument() override { return hasDocument ? &document : nullptr; }
  HostCommandOutput* commandOutput() override { return &output; }
  HostEditorEvents* editorEvents() override { return nullptr; }
  HostEdCompletion::Registry* completionRegistry() override { return nullptr; }
  QWidget* mainWindow() override { return window; }

  FakeOutput output;
  FakeDocument document{output};
  bool hasDocument = true;
  QWidget* window = nullptr;
};

// A folder of the configuration: values by name, sub-folders by name.
class FakeFolder : public CRkUnknownImpl<IConfigManager>
{
public:
  explicit FakeFolder(std::string name) : m_name(std::move(name)) {}
  CXStringW name() const override { return CXStringW(m_name.c_str()); }
  bool openFolder(const char* path, bool create, IConfigManager** out) override
  {
    std::string p(path);
    const auto slash = p.find('/');
    const std::string first = p.substr(0, slash);
    auto it = m_folders.find(first);
    if (it == m_folders.end()) {
      if (!create)
        return false;
      it = m_folders.emplace(first, CRkPtr<FakeFolder>::attach(new FakeFolder(first))).first;
    }
    if (slash != std::string::npos)
      return it->second->openFolder(p.substr(slash + 1).c_str(), create, out);
    it->second->addRef();
    *out = it->second.get();
    return true;
  }
  bool deleteFolder(const char* n) override { return m_folders.erase(n) > 0; }
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
  bool deleteValue(const char* n) override { return m_values.erase(n) > 0; }
  std::vector<std::string> valueNames() const override { return {}; }
  std::vector<std::string> folderNames() const override { return {}; }

private:
  std::string m_name;
  std::map<std::string, CRkVariant> m_values;
  std::map<std::string, CRkPtr<FakeFolder>> m_folders;
};

class FakeApp : public CRkUnknownImpl<IApp>, public IProfile
{
public:
  long addRef() override { return CRkUnknownImpl<IApp>::addRef(); }
  long release() override { return CRkUnknownImpl<IApp>::release(); }
  bool queryInterface(const char* iid, void** out) override
  {
    if (rkSameIID(iid, IProfile::kIID)) {
      addRef();
      *out = static_cast<IProfile*>(this);
      return true;
    }
    return CRkUnknownImpl<IApp>::queryInterface(iid, out);
  }
  bool getRoot(IConfigManager** out) override
  {
    m_root->addRef();
    *out = m_root.get();
    return true;
  }
  bool getParam(const char*, const char*, bool, IConfigParam**) override { return false; }

private:
  CRkPtr<FakeFolder> m_root = CRkPtr<FakeFolder>::attach(new FakeFolder(""));
};

// Installs the fakes as the running host for the life of a test.
class ScopedHost
{
public:
  ScopedHost() { hostSetContext(&services, app.get()); }
  ~ScopedHost() { hostSetContext(nullptr, nullptr); }
  FakeServices services;
  CRkPtr<FakeApp> app = CRkPtr<FakeApp>::attach(new FakeApp);
};

} // namespace uitest
