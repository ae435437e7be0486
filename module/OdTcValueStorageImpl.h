// OdTcValueStorageImpl: where catalogs live, the user's own folders, and a
// few fixed tables that several parts of the module share.
#pragma once

#include "model/OdTcPersistImpl.h"

#include <map>
#include <utility>

namespace tc {

class OdTcValueStorageImpl : public OdTcPersistImpl<OdTcPersist>
{
public:
  static OdSmartPtr<OdTcValueStorageImpl> createNew();
  OdTcValueStorageImpl();

  // The catalog folders, each closed by ";": first "ToolPaletteDir" as it
  // stands, then every folder named "ToolPalette" found below the folders
  // of "CommonDirs". The host is asked anew on every call.
  virtual OdString catalogPaths();

  OdString toolPaletteDir() const;
  OdString shxFolder() const;
  OdArray<OdString> shxFolders() const;
  // The folder of the user's own catalog: the host's user data folder and
  // "ToolPalette".
  OdString userCatalogFolder() const;
  OdString documentsFolder() const;
  // The resource library that palette files of other programs refer to.
  OdString foreignResourceFile() const { return "AcTpCatalogRes.dll"; }

  bool gradientDisplayName(const OdString& hostName, OdString& out) const;
  bool gradientHostName(const OdString& displayName, OdString& out) const;
  bool gradientIndex(const OdString& hostName, std::int32_t& out) const;
  OdArray<OdString> gradientDisplayNames() const;
  bool isSpecialCommand(const OdString& name) const;
  bool toolKindLabel(const OdString& kind, OdString& out) const;

private:
  // Index to (host name, display text), display texts translated once.
  std::map<std::int32_t, std::pair<OdString, OdString>> m_gradients;
  OdArray<OdString> m_specialCommands;
  std::map<OdString, OdString> m_toolKindLabels;
};
using OdTcValueStorageImplPtr = OdSmartPtr<OdTcValueStorageImpl>;

} // namespace tc
