// Listing and saving the module's catalogs from the command line.
#include "app/core/HostToolPalettes.h"

#include "app/core/HostApp.h"
#include "app/core/HostBuiltinCommands.h"
#include "app/core/HostCommandTable.h"
#include "app/core/HostOutput.h"

#include "module/OdTcPaletteManager.h"
#include "model/OdTcPaletteSoftRef.h"

#include "sdk/kernel/OdRxClass.h"

#include <dlfcn.h>

#include <algorithm>
#include <vector>

namespace {

using namespace tc;

HostOutput& out()
{
  return HostApp::instance().output();
}

// The module's exported functions, found by name in the loaded module; the
// host never links the module.
template <class Fn>
Fn moduleFunction(const char* symbol)
{
  return reinterpret_cast<Fn>(dlsym(RTLD_DEFAULT, symbol));
}

OdTcPaletteManager* paletteManager()
{
  auto fn = moduleFunction<OdTcPaletteManager* (*)()>("_ZN2tc22odtcToolPaletteManagerEv");
  return fn ? fn() : nullptr;
}

bool isClass(OdTcCatalogItem* item, const char* name)
{
  OdRxClass* cls = item->isA();
  return cls && cls->name() == name;
}

void line(int depth, const char* kind, const OdString& name, const OdString& flags = OdString())
{
  out().printLine(OdString(u' ', depth * 2) + kind + " " + name + flags);
}

// Tools in the order the palette's sort mode gives: by name, or in the
// stored order (sorting by type falls back to stored order here).
std::vector<OdTcCatalogItem*> orderedTools(OdTcToolPalette* palette)
{
  std::vector<OdTcCatalogItem*> tools;
  auto e = palette->enumerateTools();
  while (OdTcCatalogItem* tool = e->next())
    tools.push_back(tool);
  if (palette->sortType() == 0) {
    std::stable_sort(tools.begin(), tools.end(), [](OdTcCatalogItem* a, OdTcCatalogItem* b) {
      return a->displayName().iCompare(b->displayName()) < 0;
    });
  } else if (palette->sortType() == 2) {
    const OdArray<OdString> order = palette->toolOrder();
    auto rank = [&](OdTcCatalogItem* t) {
      unsigned i = 0;
      return order.find(t->id(), i) ? i : order.size();
    };
    std::stable_sort(tools.begin(), tools.end(),
                     [&](OdTcCatalogItem* a, OdTcCatalogItem* b) { return rank(a) < rank(b); });
  }
  return tools;
}

void listPalette(OdTcToolPalette* palette, int depth)
{
  line(depth, "palette", palette->displayName());
  for (OdTcCatalogItem* tool : orderedTools(palette))
    line(depth + 1, "tool", tool->displayName());
}

void listGroup(OdTcCatalogItem* group, int depth)
{
  line(depth, "group", group->displayName());
  auto children = group->children();
  while (OdTcCatalogItem* item = children ? children->next() : nullptr) {
    if (isClass(item, "OdTcGroup")) {
      listGroup(item, depth + 1);
    } else if (isClass(item, "OdTcPaletteSoftRef")) {
      // A reference whose palette is gone shows nothing.
      if (OdTcToolPalette* palette = static_cast<OdTcPaletteSoftRef*>(item)->palette())
        listPalette(palette, depth + 1);
    }
  }
}

void listCatalog(OdTcCatalog* catalog, OdTcCatalog* current)
{
  OdString flags;
  if (catalog->isDefaultCatalog())
    flags += " default";
  if (catalog->isLocked())
    flags += " locked";
  if (catalog == current)
    flags += " current";
  line(0, "catalog", catalog->displayName(), flags);
  auto groups = catalog->enumerateGroups();
  while (OdTcCatalogItem* group = groups->next())
    listGroup(group, 1);
  auto palettes = catalog->enumeratePalettes();
  while (OdTcCatalogItem* item = palettes->next()) {
    auto* palette = static_cast<OdTcToolPalette*>(item);
    if (!palette->isGrouped())
      listPalette(palette, 1);
  }
}

void toolPalettesList(IMemParam*)
{
  auto paths = moduleFunction<const char* (*)()>("odtcCatalogPathsUtf8");
  out().printLine(OdString("paths: ") + (paths ? OdString(paths()) : OdString()));
  OdTcPaletteManager* manager = paletteManager();
  if (!manager) {
    out().printLine("The tool palettes module is not loaded: there are no catalogs to list.");
    return;
  }
  OdTcCatalog* current = manager->currentCatalog();
  auto catalogs = manager->catalogs();
  OdString path;
  OdTcCatalog* catalog = nullptr;
  while (catalogs->next(path, catalog))
    listCatalog(catalog, current);
}

void toolPalettesSave(IMemParam*)
{
  OdTcPaletteManager* manager = paletteManager();
  if (!manager) {
    out().printLine("The tool palettes module is not loaded: there is nothing to save.");
    return;
  }
  manager->saveCatalogs();
  out().printLine("Catalogs saved.");
}

} // namespace

namespace HostToolPalettes {

void registerCommands()
{
  static bool done = false;
  if (done)
    return;
  done = true;
  HostBuiltinCommands::add("ToolPalettesList", &toolPalettesList);
  HostBuiltinCommands::add("ToolPalettesSave", &toolPalettesSave);
}

} // namespace HostToolPalettes
