// Listing and saving the module's catalogs, through what the module exports.
#include "app/tpcommands/TpCatalogList.h"

#include "model/OdTcCatalog.h"
#include "model/OdTcGroup.h"
#include "model/OdTcPaletteSoftRef.h"
#include "model/OdTcTool.h"
#include "model/OdTcToolPalette.h"
#include "module/OdTcPaletteManager.h"
#include "module/TcExports.h"

#include "hostsdk/core/HostServices.h"

namespace tpcommands {

namespace {

using namespace tc;

void line(HostCommandOutput& out, int depth, const char* kind, const OdString& name,
          const OdString& flags = OdString())
{
  out.print("%s\n", OdString(u' ', depth * 2) + kind + " " + name + flags);
}

void listPalette(HostCommandOutput& out, OdTcToolPalette* palette, int depth)
{
  line(out, depth, "palette", palette->displayName());
  for (const OdTcCatalogItemPtr& item : palette->sortedTools()) {
    OdTcToolPtr tool = OdTcTool::cast(item);
    OdTcToolActionAgent* agent = tool ? tool->agent() : nullptr;
    const OdString kind = agent ? agent->tagName().makeLower() : OdString("none");
    line(out, depth + 1, "tool", item->displayName(), " [" + kind + "]");
  }
}

void listGroup(HostCommandOutput& out, OdTcCatalogItem* group, int depth)
{
  line(out, depth, "group", group->displayName());
  auto children = group->children();
  while (OdTcCatalogItem* item = children ? children->next() : nullptr) {
    if (OdTcGroup::cast(item)) {
      listGroup(out, item, depth + 1);
    } else if (OdTcPaletteSoftRefPtr ref = OdTcPaletteSoftRef::cast(item)) {
      // A reference whose palette is gone shows nothing.
      if (OdTcToolPalette* palette = ref->palette())
        listPalette(out, palette, depth + 1);
    }
  }
}

void listCatalog(HostCommandOutput& out, OdTcCatalog* catalog, OdTcCatalog* current)
{
  OdString flags;
  if (catalog->isDefaultCatalog())
    flags += " default";
  if (catalog->isLocked())
    flags += " locked";
  if (catalog == current)
    flags += " current";
  line(out, 0, "catalog", catalog->displayName(), flags);
  auto groups = catalog->enumerateGroups();
  while (OdTcCatalogItem* group = groups->next())
    listGroup(out, group, 1);
  auto palettes = catalog->enumeratePalettes();
  while (OdTcCatalogItem* item = palettes->next()) {
    OdTcToolPalettePtr palette = OdTcToolPalette::cast(item);
    if (palette && !palette->isGrouped())
      listPalette(out, palette, 1);
  }
}

} // namespace

void listCatalogs(HostCommandOutput& out)
{
  out.print("%s\n", OdString("paths: ") + OdString(odtcCatalogPathsUtf8()));
  OdTcPaletteManager* manager = odtcToolPaletteManager();
  if (!manager) {
    out.print("%s\n", OdString("The tool palettes module is not started: there are no catalogs to list."));
    return;
  }
  OdTcCatalog* current = manager->currentCatalog();
  auto catalogs = manager->catalogs();
  OdString path;
  OdTcCatalog* catalog = nullptr;
  while (catalogs->next(path, catalog))
    listCatalog(out, catalog, current);
}

void saveCatalogs(HostCommandOutput& out)
{
  OdTcPaletteManager* manager = odtcToolPaletteManager();
  if (!manager) {
    out.print("%s\n", OdString("The tool palettes module is not started: there is nothing to save."));
    return;
  }
  manager->saveCatalogs();
  out.print("%s\n", OdString("Catalogs saved."));
}

} // namespace tpcommands
