// The runner installed for the model.
#include "model/OdTcToolRunner.h"

namespace tc {

namespace {
OdTcToolRunner* g_runner = nullptr; // not owned: the module keeps it
} // namespace

void odtcSetToolRunner(OdTcToolRunner* runner)
{
  g_runner = runner;
}

OdTcToolRunner* odtcToolRunner()
{
  return g_runner;
}

} // namespace tc
