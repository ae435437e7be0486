// Loading modules by name.
#include "sdk/kernel/OdRxModule.h"

#include <dlfcn.h>

#include <gtest/gtest.h>

TEST(DynamicLinker, loadByName_runsInitOnceAndUninitOnUnload)
{
  odrxDynamicLinker()->addSearchPath(TEST_MODULE_DIR);
  OdRxModule* m = odrxDynamicLinker()->loadModule("tst_kernel_module");
  ASSERT_NE(m, nullptr);
  EXPECT_NE(m->sysData(), nullptr);
  EXPECT_EQ(odrxDynamicLinker()->loadModule("tst_kernel_module"), m); // loaded once
  auto* init = static_cast<int*>(dlsym(RTLD_DEFAULT, "tst_initCount"));
  auto* uninit = static_cast<int*>(dlsym(RTLD_DEFAULT, "tst_uninitCount"));
  auto* deleted = static_cast<int*>(dlsym(RTLD_DEFAULT, "tst_deleteCount"));
  ASSERT_TRUE(init && uninit && deleted);
  EXPECT_EQ(*init, 1);
  EXPECT_TRUE(odrxDynamicLinker()->unloadModule("tst_kernel_module"));
  EXPECT_EQ(*uninit, 1);
  EXPECT_EQ(*deleted, 1);
  EXPECT_FALSE(odrxDynamicLinker()->unloadModule("tst_kernel_module"));
}

TEST(DynamicLinker, missingModule_throwsWithItsName)
{
  try {
    odrxDynamicLinker()->loadModule("no_such_module_here");
    FAIL() << "no error";
  } catch (const OdError& e) {
    EXPECT_EQ(e.code(), eFileNotFound);
    EXPECT_NE(e.description().find("no_such_module_here"), -1);
  }
}
