// Raster images: the IMAGE entity and the IMAGEDEF object it shows.
#pragma once

#include "sdk/db/OdDbEntity.h"

class OdDbRasterImageDef : public OdDbObject
{
  ODRX_DECLARE_MEMBERS(OdDbRasterImageDef);

public:
  static constexpr const char* kSub = "AcDbRasterImageDef";
  // The path as the drawing keeps it (may be relative, with backslashes).
  OdString sourceFileName() const { return getString(kSub, 1); }
  void setSourceFileName(const OdString& path) { setString(kSub, 1, path); }
  // The path of the file as found: backslashes turned into slashes and a
  // relative path taken against the drawing's folder; the source path
  // itself when no file is found.
  OdString activeFileName() const;
  OdGeVector2d size() const;
  void setImageSize(double widthPixels, double heightPixels);
  OdGeVector2d resolutionMMPerPixel() const;
  bool isLoaded() const { return getInt(kSub, 280, 1) != 0; }
  int resolutionUnits() const { return int(getInt(kSub, 281, 0)); }

protected:
  OdDbRasterImageDef();
};
using OdDbRasterImageDefPtr = OdSmartPtr<OdDbRasterImageDef>;

// Ties an image to its definition: owned by the image, listed among the
// definition's persistent reactors.
class OdDbRasterImageDefReactor : public OdDbObject
{
  ODRX_DECLARE_MEMBERS(OdDbRasterImageDefReactor);

public:
  static constexpr const char* kSub = "AcDbRasterImageDefReactor";

protected:
  OdDbRasterImageDefReactor();
};
using OdDbRasterImageDefReactorPtr = OdSmartPtr<OdDbRasterImageDefReactor>;

class OdDbRasterImage : public OdDbEntity
{
  ODRX_DECLARE_MEMBERS(OdDbRasterImage);

public:
  static constexpr const char* kSub = "AcDbRasterImage";
  OdDbObjectId imageDefId() const { return getId(kSub, 340); }
  // Also takes the size in pixels from the definition.
  void setImageDefId(OdDbObjectId id);
  // The image's reactor on its definition (code 360).
  OdDbObjectId reactorId() const { return getId(kSub, 360); }
  void setReactorId(OdDbObjectId id);
  void getOrientation(OdGePoint3d& origin, OdGeVector3d& u, OdGeVector3d& v) const;
  // u and v span the whole image; the file keeps one pixel's vectors.
  void setOrientation(const OdGePoint3d& origin, const OdGeVector3d& u, const OdGeVector3d& v);
  OdGeVector2d imageSize() const;
  int brightness() const { return int(getInt(kSub, 281, 50)); }
  void setBrightness(int v) { setInt(kSub, 281, v); }
  int contrast() const { return int(getInt(kSub, 282, 50)); }
  void setContrast(int v) { setInt(kSub, 282, v); }
  int fade() const { return int(getInt(kSub, 283, 0)); }
  void setFade(int v) { setInt(kSub, 283, v); }
  bool isClipped() const { return getInt(kSub, 280, 0) != 0; }
  int displayOptions() const { return int(getInt(kSub, 70, 7)); }
  void setDisplayOptions(int v) { setInt(kSub, 70, v); }
  OdGePoint2dArray clipBoundary() const;

protected:
  OdDbRasterImage();
};
using OdDbRasterImagePtr = OdSmartPtr<OdDbRasterImage>;
