// Groups of palettes, and the stubs that stand for palette files inside a
// catalog.
#pragma once

#include "model/OdTcCatalogItem.h"

namespace tc {

class OdTcGroupContentList;
class OdTcProperties;
class OdTcToolPalette;

class OdTcGroup : public OdTcCatalogItem
{
  ODRX_DECLARE_MEMBERS(OdTcGroup);

public:
  virtual std::int32_t activePaletteIndex() const = 0;
  virtual void setActivePaletteIndex(std::int32_t index) = 0;
  virtual OdTcGroupContentList* contents() = 0;
};
using OdTcGroupPtr = OdSmartPtr<OdTcGroup>;

class OdTcPaletteLoader : public OdTcCatalogItem
{
  ODRX_DECLARE_MEMBERS(OdTcPaletteLoader);

public:
  // The palette of the file that `href` names, resolved against the file
  // path `basePath`; null when no file is there.
  virtual OdSmartPtr<OdTcToolPalette> load(const OdString& basePath) = 0;
  virtual OdSmartPtr<OdTcToolPalette> load() = 0;
  virtual void setHref(const OdString& href) = 0;
  virtual OdString href() const = 0;
  // Shares the display record of the palette it stands for.
  virtual void shareProperties(OdTcProperties* properties) = 0;
};
using OdTcPaletteLoaderPtr = OdSmartPtr<OdTcPaletteLoader>;

} // namespace tc
