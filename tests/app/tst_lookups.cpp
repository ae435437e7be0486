// The exported lookups: what a module finds in any program that links the
// host core.
#include "tests/app/AppTestSupport.h"

#include "app/core/HostCmdFactoryImpl.h"
#include "app/core/HostCompletionRegistryImpl.h"
#include "hostsdk/core/HostLookup.h"
#include "app/core/HostServicesImpl.h"

#include <dlfcn.h>

using namespace apptest;

namespace {

class AppLookups : public HostFixture
{
};

TEST_F(AppLookups, mainLibraryLookup_leadsToHostServices)
{
  auto instance = reinterpret_cast<GetMainDllInstanceFn>(dlsym(RTLD_DEFAULT, "GetMainDllInstance"));
  ASSERT_NE(instance, nullptr);
  void* library = instance();
  ASSERT_NE(library, nullptr);
  auto funcPtr = reinterpret_cast<GetHostFuncPtrFn>(dlsym(library, "get_host_funcptr"));
  ASSERT_NE(funcPtr, nullptr);
  EXPECT_EQ(funcPtr(1), nullptr);
  auto services = reinterpret_cast<HostServicesFn>(funcPtr(kHostServicesFuncId));
  ASSERT_NE(services, nullptr);
  HostServices* host = services();
  ASSERT_EQ(host, &app().services());
  EXPECT_EQ(host->mainWindow(), nullptr);
  ASSERT_NE(host->currentDocument(), nullptr);
  EXPECT_EQ(host->currentDocument()->commandOutput(), host->commandOutput());
  ASSERT_NE(host->editorEvents(), nullptr);
  ASSERT_NE(host->completionRegistry(), nullptr);
}

TEST_F(AppLookups, libraryName_isTheLoadedLibrary)
{
  auto name = reinterpret_cast<GetMainDllNameWFn>(dlsym(RTLD_DEFAULT, "GetMainDllNameW"));
  ASSERT_NE(name, nullptr);
  const OdString file(name());
  EXPECT_NE(file.find(OdString("libverdanicore.so")), -1) << file;
  void* byName = dlopen(file.toUtf8().c_str(), RTLD_NOW | RTLD_NOLOAD);
  ASSERT_NE(byName, nullptr);
  auto instance = reinterpret_cast<GetMainDllInstanceFn>(dlsym(RTLD_DEFAULT, "GetMainDllInstance"));
  EXPECT_EQ(byName, instance());
  dlclose(byName);
  EXPECT_NE(dlsym(byName, "new_ICmdFactory"), nullptr);
}

TEST_F(AppLookups, getApp_answersEveryInterface)
{
  auto getApp = reinterpret_cast<GetAppFn>(dlsym(RTLD_DEFAULT, "GetApp"));
  ASSERT_NE(getApp, nullptr);
  CRkPtr<IApp> application = CRkPtr<IApp>::attach(getApp());
  ASSERT_TRUE(application);
  for (const char* iid : {IRkUnknown::kIID, IApp::kIID, IProfile::kIID, IAppProp::kIID, IStdDirs::kIID,
                          IAppInterior::kIID, ICmdFactory::kIID}) {
    void* out = nullptr;
    EXPECT_TRUE(application->queryInterface(iid, &out)) << iid;
    ASSERT_NE(out, nullptr) << iid;
    static_cast<IRkUnknown*>(out)->release();
  }
  void* out = reinterpret_cast<void*>(1);
  EXPECT_FALSE(application->queryInterface("IUnheardOf", &out));
  EXPECT_EQ(out, nullptr);
}

void lookedUpCommand()
{
  HostApp::instance().output().printLine("looked-up command ran");
}

TEST_F(AppLookups, factoryFoundByName_registersCommandsTheHostRuns)
{
  auto create = reinterpret_cast<NewICmdFactoryFn>(dlsym(RTLD_DEFAULT, "new_ICmdFactory"));
  ASSERT_NE(create, nullptr);
  CRkPtr<ICmdFactory> factory;
  create(factory.put());
  ASSERT_TRUE(factory);
  ASSERT_TRUE(factory->registerCommandFunction(kTestGroup, "__tstlookup", "__tstlookup", 0, &lookedUpCommand, 0, 0));
  app().typeLine("__TSTLOOKUP");
  EXPECT_NE(m_output.find("looked-up command ran"), std::string::npos) << m_output;
}

TEST_F(AppLookups, completionProviders_byKey)
{
  using namespace HostEdCompletion;
  auto offer = [](const char* text) {
    return Provider([text](const EntryCallback& add) {
      add(std::make_shared<Entry>(OdString(text), OdString(), nullptr, nullptr));
    });
  };
  const Provider tools = offer("TOOL:Door"), other = offer("TOOL:Window"), blocks = offer("BLOCK:Chair");
  Registry* registry = app().services().completionRegistry();
  registry->addProvider("tools", &tools);
  registry->addProvider("blocks", &blocks);
  registry->addProvider("tools", &other); // the same key: replaced, order kept
  auto texts = [&] {
    std::vector<std::string> list;
    for (const EntryPtr& e : app().completionRegistry().entries())
      list.push_back(e->text.toUtf8());
    return list;
  };
  EXPECT_EQ(texts(), (std::vector<std::string>{"TOOL:Window", "BLOCK:Chair"}));
  registry->removeProvider("tools", &tools); // not the one registered there
  EXPECT_EQ(app().completionRegistry().provider("tools"), &other);
  registry->removeProvider("tools", nullptr);
  EXPECT_EQ(texts(), (std::vector<std::string>{"BLOCK:Chair"}));
  registry->removeProvider("blocks", &blocks);
  EXPECT_TRUE(app().completionRegistry().keys().empty());
}

TEST_F(AppLookups, servicesOutliveRestart)
{
  // Modules keep what the lookups gave them; a restart must not pull it away.
  HostServices* before = &app().services();
  IApp* appBefore = &app();
  restart();
  EXPECT_EQ(before, &app().services());
  EXPECT_EQ(appBefore, static_cast<IApp*>(&app()));
  EXPECT_NE(before->currentDocument(), nullptr);
  app().shutdown();
  EXPECT_EQ(before->currentDocument(), nullptr);
  CRkPtr<IProfile> profile = CRkPtr<IProfile>::query(appBefore);
  CRkPtr<IConfigManager> root;
  EXPECT_FALSE(profile->getRoot(root.put())) << "no tree while the host is down";
  app().start(m_options);
}

} // namespace
