// Listing and saving the module's catalogs, through what the module exports.
#include "app/tpcommands/TpCatalogList.h"

#include "model/OdTcCatalog.h"
#include "model/OdTcGroup.h"
#include "model/OdTcImageList.h"
#include "model/OdTcPaletteSoftRef.h"
#include "model/OdTcTool.h"
#include "model/OdTcToolPalette.h"
#include "module/OdTcPaletteManager.h"
#include "module/TcExports.h"

#include "hostsdk/core/HostServices.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>

#include <utility>

namespace tpcommands {

namespace {

using namespace tc;

// Prints the tree of catalogs; with pictures, each item is followed by one
// line per picture.
class Lister
{
public:
  Lister(HostCommandOutput& out, bool withImages) : m_out(out), m_withImages(withImages) {}

  void catalog(OdTcCatalog* catalog, OdTcCatalog* current)
  {
    OdString flags;
    if (catalog->isDefaultCatalog())
      flags += " default";
    if (catalog->isLocked())
      flags += " locked";
    if (catalog == current)
      flags += " current";
    m_ownerFile = catalog->path();
    item(0, "catalog", catalog, flags);
    auto groups = catalog->enumerateGroups();
    while (OdTcCatalogItem* group = groups->next())
      this->group(group, 1);
    auto palettes = catalog->enumeratePalettes();
    while (OdTcCatalogItem* item = palettes->next()) {
      OdTcToolPalettePtr palette = OdTcToolPalette::cast(item);
      if (palette && !palette->isGrouped())
        this->palette(palette, 1);
    }
  }

private:
  void item(int depth, const char* kind, OdTcCatalogItem* item, const OdString& flags = OdString())
  {
    m_out.print("%s\n", OdString(u' ', depth * 2) + kind + " " + item->displayName() + flags);
    if (m_withImages)
      images(item, depth + 1);
  }

  // "image CLASS WxH SOURCE loaded|missing": the source is the file's full
  // path, the resource name of a button picture, or, for a file not found,
  // where it was looked for beside the file the item is kept in.
  void images(OdTcCatalogItem* item, int depth)
  {
    OdTcImageList* list = item->images();
    auto images = list ? list->newEnumerator() : OdTcEnumPtr<OdTcImage>();
    while (OdTcImage* image = images ? images->next() : nullptr) {
      const bool button = image->src() == "%ProgramBtnRes%" || image->src() == "acadbtn.xmx";
      OdString source = button ? image->resource() : image->file();
      if (source.isEmpty() && !m_ownerFile.isEmpty())
        source = QDir::cleanPath(QFileInfo(m_ownerFile.qstring()).path() + u'/' + image->src().qstring());
      if (source.isEmpty())
        source = image->src();
      const bool loaded = !image->getBitmap().isNull();
      m_out.print("%s\n", OdString(u' ', depth * 2) +
                              OdString::formatted("image %d %dx%d %s %s", image->getSizeClass(), image->cx(),
                                                  image->cy(), source, loaded ? "loaded" : "missing"));
    }
  }

  void palette(OdTcToolPalette* palette, int depth)
  {
    // A palette and its tools keep their pictures beside the palette's file.
    const OdString catalogFile = std::exchange(m_ownerFile, palette->path());
    item(depth, "palette", palette);
    for (const OdTcCatalogItemPtr& item : palette->sortedTools()) {
      OdTcToolPtr tool = OdTcTool::cast(item);
      OdTcToolActionAgent* agent = tool ? tool->agent() : nullptr;
      const OdString kind = agent ? agent->tagName().makeLower() : OdString("none");
      this->item(depth + 1, "tool", item, " [" + kind + "]");
    }
    m_ownerFile = catalogFile;
  }

  void group(OdTcCatalogItem* group, int depth)
  {
    item(depth, "group", group);
    auto children = group->children();
    while (OdTcCatalogItem* child = children ? children->next() : nullptr) {
      if (OdTcGroup::cast(child)) {
        this->group(child, depth + 1);
      } else if (OdTcPaletteSoftRefPtr ref = OdTcPaletteSoftRef::cast(child)) {
        // A reference whose palette is gone shows nothing.
        if (OdTcToolPalette* palette = ref->palette())
          this->palette(palette, depth + 1);
      }
    }
  }

  HostCommandOutput& m_out;
  bool m_withImages;
  OdString m_ownerFile;
};

} // namespace

void listCatalogs(HostCommandOutput& out, bool withImages)
{
  out.print("%s\n", OdString("paths: ") + OdString(odtcCatalogPathsUtf8()));
  OdTcPaletteManager* manager = odtcToolPaletteManager();
  if (!manager) {
    out.print("%s\n", OdString("The tool palettes module is not started: there are no catalogs to list."));
    return;
  }
  Lister lister(out, withImages);
  OdTcCatalog* current = manager->currentCatalog();
  auto catalogs = manager->catalogs();
  OdString path;
  OdTcCatalog* catalog = nullptr;
  while (catalogs->next(path, catalog))
    lister.catalog(catalog, current);
}

void saveCatalogs(HostCommandOutput& out)
{
  OdTcPaletteManager* manager = odtcToolPaletteManager();
  if (!manager) {
    out.print("%s\n", OdString("The tool palettes module is not started: there is nothing to save."));
    return;
  }
  // Catalog by catalog, as the manager saves them, to say which reached
  // its file; the module tells why one did not.
  int failed = 0;
  int saved = 0;
  auto catalogs = manager->catalogs();
  OdString path;
  OdTcCatalog* catalog = nullptr;
  while (catalogs->next(path, catalog)) {
    if (catalog->save(path)) {
      ++saved;
      out.print("Saved the catalog \"%s\" to %s.\n", catalog->displayName(), path);
    } else {
      ++failed;
      out.print("The catalog \"%s\" was not saved to %s.\n", catalog->displayName(), path);
    }
  }
  if (failed + saved == 0)
    out.print("%s\n", OdString("There is no catalog to save."));
  else if (failed == 0)
    out.print("%s\n", OdString("Catalogs saved."));
  else
    out.print("%d of %d catalogs could not be saved.\n", failed, failed + saved);
}

} // namespace tpcommands
