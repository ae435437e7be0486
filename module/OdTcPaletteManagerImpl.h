// OdTcPaletteManagerImpl: the palette manager's one implementation.
#pragma once

#include "model/OdTcCatalogImpl.h"
#include "module/OdTcPaletteManager.h"
#include "module/OdTcValueStorageImpl.h"
#include "module/TcCfgChangeReactor.h"

#include <map>
#include <vector>

namespace tc {

class OdTcPaletteManagerImpl : public OdTcPaletteManager
{
public:
  // `storage` tells where the catalogs live; without one there are none.
  static OdTcPaletteManagerPtr createNew(OdTcValueStorageImpl* storage);
  explicit OdTcPaletteManagerImpl(OdTcValueStorageImpl* storage);
  ~OdTcPaletteManagerImpl() override;

  void addReactor(OdTcPaletteManagerReactor* reactor) override;
  void removeReactor(OdTcPaletteManagerReactor* reactor) override;
  OdTcCatalog* currentCatalog() override { return m_currentCatalog; }
  bool loadCatalogs() override;
  bool addCatalog(const OdString& path) override;
  bool removeCatalog(const OdString& id) override;
  OdTcEnumCatalogPtr catalogs() override;
  void saveCatalogs() override;
  std::int32_t iconSize() const override { return m_iconSize; }
  void setIconSize(std::int32_t size) override { m_iconSize = size; }
  void cancelProcessing() override { m_processingBlocks = false; }
  void openConfig() override;
  OdTcTool* findTool(const OdString& id) override;
  bool hasTool(const OdString& id) override { return findTool(id) != nullptr; }
  OdTcCatalog* setCurrentCatalog(OdTcCatalog* catalog) override;
  void refreshCatalogs() override;
  bool openCatalog(const OdString& path) override;
  bool isProcessingBlocks() const override { return m_processingBlocks; }

  const OdArray<OdString>& imageExtensions() const { return m_imageExtensions; }
  const OdArray<OdString>& drawingExtensions() const { return m_drawingExtensions; }

  // The split of a ";"-separated list: a text without ";" is one entry even
  // when empty; otherwise empty pieces are dropped.
  static OdArray<OdString> splitPathList(const OdString& list);

private:
  class EnumImpl;

  OdString userCatalogFolder() const;
  OdString catalogPathList() const;
  OdString defaultCatalogPath() const;
  // A new catalog named after its folder, written at once and read back.
  void createCatalog(const OdString& file);
  template <class Call>
  void forEachReactor(const Call& call)
  {
    for (OdTcPaletteManagerReactor* r : std::vector<OdTcPaletteManagerReactor*>(m_reactors))
      call(r);
  }

  std::map<OdString, OdTcCatalogPtr> m_catalogs; // by file path as opened
  // The current catalog. A catalog closed while current stays current, so
  // the manager keeps it alive rather than let the pointer dangle.
  OdTcCatalogPtr m_currentCatalog;
  std::int32_t m_iconSize = 3;
  std::vector<OdTcPaletteManagerReactor*> m_reactors; // not owned
  bool m_processingBlocks = false;
  bool m_configEnabled = false;
  OdArray<OdString> m_imageExtensions;
  OdArray<OdString> m_drawingExtensions;
  OdTcValueStorageImplPtr m_valueStorage;
  CRkPtr<TcCfgChangeReactor> m_cfgReactor;
};

} // namespace tc
