// TcFileStore: the file layer under the catalog model: catalog and palette
// files through the filers, written whole or not at all, and the rules for
// the files beside a catalog.
#pragma once

#include "model/OdTcFileStore.h"

namespace tc {

class TcFileStore : public OdTcFileStore
{
public:
  OdTcReadStatus readFile(const OdString& path, OdTcPersist* root, OdTcFileKind kind) override;
  bool writeFile(const OdString& path, OdTcPersist* root, OdTcFileKind kind, OdString& reason) override;
  OdString resolveHref(const OdString& href, const OdString& catalogPath) const override;
  OdString makeHref(const OdString& catalogPath, const OdString& palettePath) const override;
  OdString palettesFolder(const OdString& catalogPath) override;
  OdString newPaletteFile(const OdString& folder, const OdString& name, const OdString& id) const override;
  bool isInCatalogFolder(const OdString& path, const OdString& catalogPath) const override;
  bool fileExists(const OdString& path) const override;
  bool removeFile(const OdString& path, OdString& reason) override;
  OdString keepAside(const OdString& path, OdString& reason) override;
  OdTcPersistPtr createByTag(const OdString& tag) const override;
};

} // namespace tc
