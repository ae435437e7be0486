// OdTcToolPalette: the catalog item of a palette. It wraps one palette
// database, where the tools, the name and the display settings live.
#pragma once

#include "model/OdTcDatabase.h"

namespace tc {

class OdTcProperties;

class OdTcToolPalette : public OdTcCatalogItem
{
  ODRX_DECLARE_MEMBERS(OdTcToolPalette);

public:
  // Not supported on a palette: throws OdError 3.
  virtual void setPath(const OdString& path) = 0;
  virtual OdString path() const = 0;
  // The file path relative to the catalog's file; what a new stub stores.
  virtual OdString href() = 0;
  virtual std::int32_t previewStyle() const = 0;
  // An explicit order switches the palette to sort type 2 (stored order).
  virtual void setToolOrder(const OdArray<OdString>& ids) = 0;
  virtual OdArray<OdString> toolOrder() const = 0;
  // Not supported: throws OdError 3.
  virtual void setFileRevision(const OdString& revision) = 0;
  virtual void setGrouped(bool grouped) = 0;
  virtual void setSortType(std::int32_t sortType) = 0;
  virtual void setPreviewSize(std::int32_t size) = 0;
  virtual void setPreviewStyle(std::int32_t style) = 0;
  virtual void setExporting(bool exporting) = 0;
  virtual bool isGrouped() const = 0;
  virtual bool load(const OdString& path) = 0;
  virtual bool save(const OdString& path) = 0;
  virtual bool save() = 0;
  virtual bool isNameFromSource() const = 0;
  // Writes the palette to another file; its own path stays.
  virtual bool saveCopy(const OdString& path) = 0;
  virtual OdTcProperties* properties() = 0;
  virtual OdTcEnumPtr<OdTcCatalogItem> enumerateTools() = 0;
  // The database the palette wraps. (database() is the upward walk of every
  // persistent object.)
  virtual OdTcDatabase* paletteDatabase() = 0;
  virtual std::int32_t sortType() const = 0;
  virtual OdTcPaletteUiImpl* paletteUi() = 0;
  // The tools in the order the sort type gives them: 0 by name ignoring
  // case, 1 by type, 2 in the stored order, where tools the order does not
  // name come last; ties keep the order of the palette.
  virtual OdArray<OdTcCatalogItemPtr> sortedTools() = 0;

  virtual void setNameFromSource(bool fromSource) = 0;
  // Saving after each added tool, off for runs that add many.
  virtual void disableUpdate() = 0;
  virtual void enableUpdate(bool saveNow) = 0;
  virtual void setRemoved(bool removed) = 0;
  // What the palette holds that this system cannot run, one line per kind
  // and tool.
  virtual OdArray<OdString> unsupportedTools() = 0;
};
using OdTcToolPalettePtr = OdSmartPtr<OdTcToolPalette>;

} // namespace tc
