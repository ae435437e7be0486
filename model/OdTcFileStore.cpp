// The file store installed for the model.
#include "model/OdTcFileStore.h"

namespace tc {

namespace {
OdTcFileStore* g_store = nullptr; // not owned: the module or a test keeps it
} // namespace

void odtcSetFileStore(OdTcFileStore* store)
{
  g_store = store;
}

OdTcFileStore& odtcFileStore()
{
  if (!g_store)
    throw OdError(eNullPtr, "the catalog files cannot be reached: the tool palettes module is not started");
  return *g_store;
}

OdTcPersistPtr odtcCreateByTag(const OdString& tag)
{
  return g_store ? g_store->createByTag(tag) : OdTcPersistPtr();
}

} // namespace tc
