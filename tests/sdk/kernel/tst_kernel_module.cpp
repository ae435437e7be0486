// A minimal module library for the loader's tests: it counts its calls in
// variables the test reads through dlsym.
#include "sdk/kernel/OdRxModule.h"

extern "C" {
int tst_initCount = 0;
int tst_uninitCount = 0;
int tst_deleteCount = 0;
}

namespace {
OdRxModule* g_module = nullptr;

class TestModule : public OdRxModule
{
public:
  void deleteModule() override
  {
    ++tst_deleteCount;
    g_module = nullptr;
    delete this;
  }
  void initApp() override { ++tst_initCount; }
  void uninitApp() override { ++tst_uninitCount; }
  OdString moduleName() const override { return "tst_kernel_module"; }
};
} // namespace

ODRX_DEFINE_DYNAMIC_MODULE(TestModule, g_module)
