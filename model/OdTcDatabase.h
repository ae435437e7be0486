// OdTcDatabase: the content of one palette file: the tools and the display
// settings of a palette.
#pragma once

#include "model/OdTcCatalogItem.h"
#include "model/OdTcFileStore.h"

namespace tc {

class OdTcPaletteUiImpl;
class OdTcToolList;

class OdTcDatabase : public OdTcCatalogItem
{
  ODRX_DECLARE_MEMBERS(OdTcDatabase);

public:
  virtual OdTcEnumPtr<OdTcCatalogItem> enumerateTools() = 0;
  // Reads the palette file; false when it cannot be opened. The path is
  // not stored: the caller does that.
  virtual bool load(const OdString& path) = 0;
  // Writes the palette file and remembers the path. A file that did not
  // read as a palette is kept aside before it is written over, and never
  // written over outside the catalog's folder.
  virtual bool save(const OdString& path) = 0;
  // Keeps an object attached while a palette file is read.
  virtual void addMember(OdTcPersist* member) = 0;
  virtual OdString path() const = 0;
  virtual bool save() = 0;
  virtual bool isExporting() const = 0;
  virtual OdTcPaletteUiImpl* paletteUi() = 0;

  virtual void setPath(const OdString& path) = 0;
  virtual void setExporting(bool exporting) = 0;
  virtual OdString fileRevision() const = 0;
  virtual std::int32_t paletteStyle() const = 0;
  virtual OdTcToolList* tools() = 0;
  // How the palette's file read; kRead too once this system wrote it.
  // kNotRead for a palette that has no file of its own yet.
  virtual OdTcReadStatus fileStatus() const = 0;
};
using OdTcDatabasePtr = OdSmartPtr<OdTcDatabase>;

} // namespace tc
