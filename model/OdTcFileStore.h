// OdTcFileStore: what the catalog model needs of the file layer: whole
// catalog and palette files read into an object tree and written from one,
// the file a palette stub names, and the files beside a catalog. persist/
// implements it; the module installs it when it starts, and tests in their
// fixtures.
#pragma once

#include "model/OdTcPersist.h"

namespace tc {

enum class OdTcFileKind
{
  Catalog,
  Palette
};

// How the read of a file went.
struct OdTcReadStatus
{
  enum Result
  {
    kNotRead,    // nothing asked yet: an object that was not read from a file
    kRead,       // read whole
    kMissing,    // no file there
    kUnreadable, // a file is there but nothing of it could be read: no
                 // permission, not a regular file, nested too deep
    kDamaged     // read in part: broken XML, cut short, or not of its kind
  };
  Result result = kNotRead;
  OdString reason; // for the user, when not kRead
  // What the filer answered: false when a catalog file holds no catalog,
  // or when the read stopped on an error.
  bool filerResult = false;

  // Whether the object holds something of the file.
  bool hasContent() const { return result == kRead || result == kDamaged; }
};

class OdTcFileStore
{
public:
  virtual ~OdTcFileStore() = default;

  // Fills `root` from the file. Nothing that goes wrong escapes.
  virtual OdTcReadStatus readFile(const OdString& path, OdTcPersist* root, OdTcFileKind kind) = 0;
  // Writes `root` as the whole file, which is replaced at once or not at
  // all. False with the reason when it could not be written.
  virtual bool writeFile(const OdString& path, OdTcPersist* root, OdTcFileKind kind, OdString& reason) = 0;

  // The file that a stub's href names; the href is relative to the catalog
  // file `catalogPath`, "\" and "/" both separate.
  virtual OdString resolveHref(const OdString& href, const OdString& catalogPath) const = 0;
  // The href of a new stub for `palettePath`: relative to the catalog file,
  // empty when the two share no folder.
  virtual OdString makeHref(const OdString& catalogPath, const OdString& palettePath) const = 0;
  // The folder "Palettes" beside the catalog file, made with its "Images"
  // folder when it is missing.
  virtual OdString palettesFolder(const OdString& catalogPath) = 0;
  // The file of a new palette in `folder`: its name, cleaned of what a file
  // name cannot hold or could climb out of the folder with, and its id.
  virtual OdString newPaletteFile(const OdString& folder, const OdString& name, const OdString& id) const = 0;
  // Whether `path` lies in the folder of the catalog file `catalogPath` or
  // below it, once "..", "." and links are resolved.
  virtual bool isInCatalogFolder(const OdString& path, const OdString& catalogPath) const = 0;

  virtual bool fileExists(const OdString& path) const = 0;
  // False with the reason when the file could not be deleted.
  virtual bool removeFile(const OdString& path, OdString& reason) = 0;
  // A new object of the class that the files name `tag` (an element
  // name, "Color"), or null for a name no class has taken: how the model
  // makes objects of the layers above it.
  virtual OdTcPersistPtr createByTag(const OdString& tag) const = 0;

  // Keeps a copy of a file that did not read whole beside it, as
  // "<file>.unreadable" (numbered when an older, different copy is there).
  // The copy's path; empty, with the reason, when none could be made.
  virtual OdString keepAside(const OdString& path, OdString& reason) = 0;
};

// The store the model uses; not owned. Null removes it.
void odtcSetFileStore(OdTcFileStore* store);
// The store installed; throws OdError when there is none.
OdTcFileStore& odtcFileStore();
// createByTag of the store installed; null without a store.
OdTcPersistPtr odtcCreateByTag(const OdString& tag);

} // namespace tc
