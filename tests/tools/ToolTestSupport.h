// What the tool tests share: the classes and element names the module
// registers for tools, their properties and their files.
#pragma once

#include "tests/properties/PropertyTestSupport.h"

#include "tools/OdTcCommandConveyor.h"
#include "tools/OdTcToolBlockCommand.h"
#include "tools/OdTcToolCommand.h"
#include "tools/OdTcToolHatchCommand.h"
#include "tools/OdTcToolRasterCommand.h"
#include "tools/TcToolClasses.h"

#include "model/OdTcFileStore.h"
#include "model/OdTcToolImpl.h"
#include "persist/TcFileStore.h"

namespace tst {

inline void registerToolClasses()
{
  using namespace tc;
  registerPropertyClasses();
  ensureRegistered<OdTcTool, OdTcToolCustomData, OdTcToolFlyout, OdTcStockToolRef, OdTcToolData, OdTcToolActionAgent,
                   OdTcToolCommand, OdTcToolBlockCommand, OdTcToolRasterCommand, OdTcToolHatchCommand, OdTcToolSource,
                   OdTcCatalog, OdTcGroup, OdTcPaletteLoader, OdTcPaletteLoaderList, OdTcSource, OdTcGroupContentList,
                   OdTcPaletteSoftRef, OdTcGroupList, OdTcCatalogItemList>();
  registerToolTags(OdTcTagTable::instance());
  static TcFileStore store;
  odtcSetFileStore(&store);
}

} // namespace tst
