// OdTcPaletteSoftRef: a group's reference to a palette of its catalog, by
// the palette's identifier.
#pragma once

#include "model/OdTcCatalogItem.h"

namespace tc {

class OdTcToolPalette;

class OdTcPaletteSoftRef : public OdTcCatalogItem
{
  ODRX_DECLARE_MEMBERS(OdTcPaletteSoftRef);

public:
  // The palette the reference stands for, looked up in the catalog; null
  // when it is gone.
  virtual OdTcToolPalette* palette() = 0;
};
using OdTcPaletteSoftRefPtr = OdSmartPtr<OdTcPaletteSoftRef>;

} // namespace tc
