// The class table. Each class of the module takes its row here when it
// comes into the module, and its place in the order of deletion.
#include "module/TcClassTable.h"

#include "model/OdTcCatalog.h"
#include "model/OdTcGroup.h"
#include "model/OdTcImageList.h"
#include "model/OdTcList.h"
#include "model/OdTcOrderLists.h"
#include "model/OdTcPaletteSoftRef.h"
#include "model/OdTcPaletteUi.h"
#include "model/OdTcProperties.h"
#include "model/OdTcProperty.h"
#include "model/OdTcPropertyBag.h"
#include "model/OdTcPropertyFilter.h"
#include "model/OdTcTool.h"
#include "model/OdTcToolRecords.h"
#include "module/OdTcPaletteManager.h"
#include "properties/OdTcLineTypeElements.h"
#include "properties/OdTcPropertyCreateInfo.h"
#include "properties/OdTcPropertyReference.h"
#include "properties/OdTcTextStyleTableRecordImpl.h"
#include "tools/OdTcCommandConveyor.h"
#include "tools/OdTcToolBlockCommand.h"
#include "tools/OdTcToolCommand.h"
#include "tools/OdTcToolHatchCommand.h"
#include "tools/OdTcToolRasterCommand.h"
#include "tools/TcEditorReactor.h"

#include "sdk/kernel/OdRxClass.h"

#include <cstring>
#include <vector>

namespace tc {

namespace {

struct Row
{
  const char* name;
  void (*rxInit)();
  void (*rxUninit)();
  OdRxClass* (*desc)();
};

template <class C>
Row row(const char* name)
{
  return Row{name, &C::rxInit, &C::rxUninit, &C::desc};
}

// In the order of registration: parents before children. The classes of
// table record snapshots, create-infos and property references join with
// the properties subsystem.
const std::vector<Row>& rows()
{
  static const std::vector<Row> table = {
      row<OdTcPersist>("OdTcPersist"),
      row<OdTcSymbolTableRecord>("OdTcSymbolTableRecord"),
      row<OdTcCatalogItem>("OdTcCatalogItem"),
      row<OdTcDatabase>("OdTcDatabase"),
      row<OdTcTool>("OdTcTool"),
      row<OdTcToolPalette>("OdTcToolPalette"),
      row<OdTcPaletteManager>("OdTcPaletteManager"),
      row<OdTcPaletteUiProperties>("OdTcPaletteUiProperties"),
      row<OdTcProperty>("OdTcProperty"),
      row<OdTcDatabaseProperty>("OdTcDatabaseProperty"),
      row<OdTcPropertyBag>("OdTcPropertyBag"),
      row<OdTcPropertyFilter>("OdTcPropertyFilter"),
      row<OdTcImageList>("OdTcImageList"),
      row<OdTcImage>("OdTcImage"),
      row<OdTcProperties>("OdTcProperties"),
      row<OdTcToolCustomData>("OdTcToolCustomData"),
      row<OdTcToolFlyout>("OdTcToolFlyout"),
      row<OdTcStockToolRef>("OdTcStockToolRef"),
      row<OdTcToolData>("OdTcToolData"),
      row<OdTcPropertyBasicInfo>("OdTcPropertyBasicInfo"),
      row<OdTcToolActionAgent>("OdTcToolActionAgent"),
      row<OdTcToolCommand>("OdTcToolCommand"),
      row<OdTcToolBlockCommand>("OdTcToolBlockCommand"),
      row<OdTcToolRasterCommand>("OdTcToolRasterCommand"),
      row<OdTcToolHatchCommand>("OdTcToolHatchCommand"),
      row<OdTcPropertyCreateInfo>("OdTcPropertyCreateInfo"),
      row<OdTcLineTypeElement>("OdTcLineTypeElement"),
      row<OdTcComplexLineTypeElement>("OdTcComplexLineTypeElement"),
      row<OdTcTextStyleTableRecordCollection>("OdTcTextStyleTableRecordCollection"),
      row<OdTcPropertyReference>("OdTcPropertyReference"),
      row<OdTcToolOrderList>("OdTcToolOrderList"),
      row<OdTcCatalogItemOrderList>("OdTcCatalogItemOrderList"),
      row<OdTcToolSource>("OdTcToolSource"),
      row<OdTcCatalogView>("OdTcCatalogView"),
      row<OdTcList>("OdTcList"),
      row<OdTcLineTypeElementsList>("OdTcLineTypeElementsList"),
      row<OdTcToolList>("OdTcToolList"),
      row<OdTcCatalog>("OdTcCatalog"),
      row<OdTcGroup>("OdTcGroup"),
      row<OdTcPaletteLoader>("OdTcPaletteLoader"),
      row<OdTcPaletteLoaderList>("OdTcPaletteLoaderList"),
      row<OdTcSource>("OdTcSource"),
      row<OdTcGroupContentList>("OdTcGroupContentList"),
      row<OdTcPaletteSoftRef>("OdTcPaletteSoftRef"),
      row<OdTcGroupList>("OdTcGroupList"),
      row<OdTcCatalogItemList>("OdTcCatalogItemList"),
      row<OdTcCommandConveyor>("OdTcCommandConveyor"),
      row<TcEditorReactor>("TcEditorReactor"),
      row<TcEditorReactorEx>("TcEditorReactorEx"),
  };
  return table;
}

// The order of deletion, which differs on purpose from that of
// registration. The two editor reactors are not in it: they go after it.
constexpr const char* kDeletionOrder[] = {
    "OdTcTool", "OdTcDatabase", "OdTcPersist", "OdTcSymbolTableRecord", "OdTcToolPalette", "OdTcPaletteManager",
    "OdTcPaletteUiProperties", "OdTcProperty", "OdTcDatabaseProperty", "OdTcPropertyBag", "OdTcImageList",
    "OdTcImage", "OdTcProperties", "OdTcToolCustomData", "OdTcToolFlyout", "OdTcStockToolRef", "OdTcToolData",
    "OdTcPropertyBasicInfo", "OdTcToolActionAgent", "OdTcToolCommand", "OdTcToolBlockCommand",
    "OdTcToolRasterCommand", "OdTcToolHatchCommand", "OdTcPropertyCreateInfo", "OdTcLineTypeElement",
    "OdTcComplexLineTypeElement", "OdTcPropertyFilter", "OdTcTextStyleTableRecordCollection",
    "OdTcPropertyReference", "OdTcToolOrderList", "OdTcCatalogItemOrderList", "OdTcToolSource", "OdTcCatalogView",
    "OdTcCatalogItem", "OdTcCatalog", "OdTcGroup", "OdTcList", "OdTcLineTypeElementsList", "OdTcToolList",
    "OdTcPaletteLoader", "OdTcPaletteLoaderList", "OdTcSource", "OdTcGroupContentList", "OdTcPaletteSoftRef",
    "OdTcGroupList", "OdTcCatalogItemList", "OdTcCommandConveyor"};
constexpr const char* kReactorClasses[] = {"TcEditorReactor", "TcEditorReactorEx"};

const Row& rowNamed(const char* name)
{
  for (const Row& r : rows())
    if (std::strcmp(r.name, name) == 0)
      return r;
  throw OdError(eNotRegistered, OdString("no such class in the module: ") + name);
}

} // namespace

TcClassRegistration::TcClassRegistration()
{
  std::size_t done = 0;
  try {
    for (; done < rows().size(); ++done)
      rows()[done].rxInit();
  } catch (...) {
    while (done > 0)
      rows()[--done].rxUninit();
    throw;
  }
}

TcClassRegistration::~TcClassRegistration()
{
  for (const Row& r : rows()) {
    if (r.desc()) {
      try {
        r.rxUninit();
      } catch (...) {
      }
    }
  }
}

void TcClassRegistration::unregisterAll()
{
  for (const char* name : kDeletionOrder) {
    const Row& r = rowNamed(name);
    if (!r.desc())
      throw OdError(eNotRegistered, OdString("class not registered: ") + name);
    r.rxUninit();
  }
  for (const char* name : kReactorClasses)
    rowNamed(name).rxUninit();
}

bool TcClassRegistration::firstOfDeletionRegistered()
{
  return rowNamed(kDeletionOrder[0]).desc() != nullptr;
}

} // namespace tc
