// The entry "ToolPalettes" in the host's "Startup" folder.
#include "module/TcStartupList.h"

#include "host/TcHost.h"

namespace tc {

namespace {
constexpr const char* kEntry = "ToolPalettes";

CRkPtr<IConfigManager> startupFolder(bool create)
{
  CRkPtr<IApp> app = hostApp();
  auto profile = CRkPtr<IProfile>::query(app.get());
  CRkPtr<IConfigManager> root;
  if (!profile || !profile->getRoot(root.put()) || !root)
    return CRkPtr<IConfigManager>();
  CRkPtr<IConfigManager> folder;
  if (!root->openFolder("Startup", create, folder.put()))
    return CRkPtr<IConfigManager>();
  return folder;
}
} // namespace

void writeStartupEntry(bool add)
{
  CRkPtr<IConfigManager> folder = startupFolder(true);
  if (!folder)
    return;
  if (add)
    folder->setValue(kEntry, CRkVariant(OdString(kEntry)));
  else
    folder->deleteValue(kEntry);
}

bool hasStartupEntry()
{
  CRkPtr<IConfigManager> folder = startupFolder(false);
  CRkVariant value;
  return folder && folder->getValue(kEntry, value);
}

} // namespace tc
