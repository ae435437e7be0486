// IStdDirs of the reference host: the folders the user may set
// ("ToolPaletteDir", "CommonDirs", "Shx"), kept in the configuration folder
// "StdDirs", with defaults for those not set.
#pragma once

#include "hostsdk/core/AppInterfaces.h"

class HostApp;

class HostStdDirsImpl : public CRkUnknownImpl<IStdDirs>
{
public:
  static constexpr const char* kFolder = "StdDirs";

  explicit HostStdDirsImpl(HostApp& app) : m_app(app) {}

  // The value as a wide string (type 19). A value written in the
  // configuration wins, even when empty; a known key without one gives its
  // default; an unknown key without one fails.
  bool getValue(const char* key, CRkVariant& out) override;

  // The keys the host knows, and their defaults.
  static bool isKnownKey(const OdString& key);
  static OdString knownKeyName(const OdString& key); // as spelt by the host
  static OdString defaultValue(const OdString& key);

private:
  HostApp& m_app;
};
