// A minimal module library for the loader's tests: it counts its calls in
// variables the test reads through dlsym.
#include "sdk/kernel/OdRxModule.h"

extern "C" {
int tst_initCount = 0;
int tst_uninitCount = 0;
int tst_deleteCount = 0;
}

namespace {
class TestModule : public OdRxModule
{
public:
  void deleteModule() override
  {
    ++tst_deleteCount;
    delete this;
  }
  void initApp() override { ++tst_initCount; }
  void uninitApp() override { ++tst_uninitCount; }
  OdString moduleName() const override { return "tst_kernel_module"; }
};
OdRxModule* g_module = nullptr;
} // namespace

extern "C" OdRxModule* odrxCreateModuleObject(void*& instance)
{
  if (!g_module)
    g_module = new OdRxWin32Module<TestModule>(instance);
  return g_module;
}

extern "C" void odrxGetAPIVersion(int& a, int& b, int& c, int& d)
{
  a = 4;
  b = 3;
  c = 1;
  d = 0;
}
