// The standard folders and their defaults.
#include "app/core/HostStdDirsImpl.h"

#include "app/core/HostApp.h"
#include "app/core/HostConfig.h"
#include "app/core/HostPaths.h"

namespace {
const char* const kKnownKeys[] = {"ToolPaletteDir", "CommonDirs", "Shx"};
} // namespace

bool HostStdDirsImpl::isKnownKey(const OdString& key)
{
  return !knownKeyName(key).isEmpty();
}

OdString HostStdDirsImpl::knownKeyName(const OdString& key)
{
  for (const char* known : kKnownKeys)
    if (key.iCompare(known) == 0)
      return OdString(known);
  return OdString();
}

OdString HostStdDirsImpl::defaultValue(const OdString& key)
{
  const OdString name = knownKeyName(key);
  if (name == "ToolPaletteDir")
    return OdString(HostPaths::defaultToolPaletteDir());
  if (name == "CommonDirs")
    return OdString(HostPaths::installDataFolder());
  return OdString(); // "Shx": no font folder unless the user names one
}

bool HostStdDirsImpl::getValue(const char* key, CRkVariant& out)
{
  out.clear();
  if (!key || !*key)
    return false;
  if (HostConfig* config = m_app.config()) {
    if (HostConfigNode* folder = config->folder(kFolder, false)) {
      CRkVariant stored;
      if (folder->getValue(key, stored)) {
        out = CRkVariant(stored.toString());
        return true;
      }
    }
  }
  if (!isKnownKey(OdString(key)))
    return false;
  out = CRkVariant(defaultValue(OdString(key)));
  return true;
}
