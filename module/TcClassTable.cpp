// The class table. Each class of the module takes its row here when it
// comes into the module, and its place in the order of deletion.
#include "module/TcClassTable.h"

#include "model/OdTcCatalogImpl.h"
#include "model/OdTcImageList.h"
#include "model/OdTcLists.h"
#include "model/OdTcOrderLists.h"
#include "model/OdTcPaletteUi.h"
#include "model/OdTcProperties.h"
#include "model/OdTcPropertyBag.h"
#include "model/OdTcPropertyFilter.h"
#include "module/OdTcPaletteManager.h"
#include "properties/OdTcLineTypeElements.h"
#include "properties/OdTcPropertyCreateInfo.h"
#include "properties/OdTcPropertyReference.h"
#include "properties/OdTcTextStyleTableRecordImpl.h"

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

// In the order of registration: parents before children.
const std::vector<Row>& rows()
{
  static const std::vector<Row> table = {
      row<OdTcPersist>("OdTcPersist"),
      row<OdTcSymbolTableRecord>("OdTcSymbolTableRecord"),
      row<OdTcCatalogItem>("OdTcCatalogItem"),
      row<OdTcDatabase>("OdTcDatabase"),
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
      row<OdTcPropertyBasicInfo>("OdTcPropertyBasicInfo"),
      row<OdTcPropertyCreateInfo>("OdTcPropertyCreateInfo"),
      row<OdTcLineTypeElement>("OdTcLineTypeElement"),
      row<OdTcComplexLineTypeElement>("OdTcComplexLineTypeElement"),
      row<OdTcTextStyleTableRecordCollection>("OdTcTextStyleTableRecordCollection"),
      row<OdTcPropertyReference>("OdTcPropertyReference"),
      row<OdTcToolOrderList>("OdTcToolOrderList"),
      row<OdTcCatalogItemOrderList>("OdTcCatalogItemOrderList"),
      row<OdTcCatalogView>("OdTcCatalogView"),
      row<OdTcList>("OdTcList"),
      row<OdTcLineTypeElementsList>("OdTcLineTypeElementsList"),
      row<OdTcToolList>("OdTcToolList"),
      row<OdTcCatalog>("OdTcCatalog"),
      row<OdTcGroup>("OdTcGroup"),
      row<OdTcPaletteLoader>("OdTcPaletteLoader"),
      row<OdTcPaletteLoaderList>("OdTcPaletteLoaderList"),
      row<OdTcGroupContentList>("OdTcGroupContentList"),
      row<OdTcPaletteSoftRef>("OdTcPaletteSoftRef"),
      row<OdTcGroupList>("OdTcGroupList"),
      row<OdTcCatalogItemList>("OdTcCatalogItemList"),
  };
  return table;
}

// The order of deletion. OdTcDatabase stands first in place of OdTcTool,
// which comes with the tools.
constexpr const char* kDeletionOrder[] = {
    "OdTcDatabase", "OdTcPersist", "OdTcSymbolTableRecord", "OdTcToolPalette", "OdTcPaletteManager",
    "OdTcPaletteUiProperties", "OdTcProperty", "OdTcDatabaseProperty", "OdTcPropertyBag", "OdTcImageList",
    "OdTcImage", "OdTcProperties", "OdTcPropertyBasicInfo", "OdTcPropertyCreateInfo", "OdTcLineTypeElement",
    "OdTcComplexLineTypeElement", "OdTcPropertyFilter", "OdTcTextStyleTableRecordCollection",
    "OdTcPropertyReference", "OdTcToolOrderList", "OdTcCatalogItemOrderList", "OdTcCatalogView",
    "OdTcCatalogItem", "OdTcCatalog", "OdTcGroup", "OdTcList", "OdTcLineTypeElementsList", "OdTcToolList",
    "OdTcPaletteLoader", "OdTcPaletteLoaderList", "OdTcGroupContentList", "OdTcPaletteSoftRef", "OdTcGroupList",
    "OdTcCatalogItemList"};

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
}

bool TcClassRegistration::firstOfDeletionRegistered()
{
  return rowNamed(kDeletionOrder[0]).desc() != nullptr;
}

} // namespace tc
