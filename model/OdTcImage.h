// OdTcImage: one size of an item's picture, as the model holds it. The
// images subsystem implements it and binds its creation when the module
// registers classes.
#pragma once

#include "model/OdTcPersist.h"

#include "sdk/kernel/OdVariant.h"

class QImage;
class QPainter;

namespace tc {

class OdTcFiler;

class OdTcImage : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcImage);

public:
  // The picture as it came from the button resource, with its transparency.
  virtual void setIcon(const QImage& icon) = 0;
  // Size classes 1, 2, 3, 4 for 16, 24, 32 and 64 pixels.
  virtual void setSizeClass(int sizeClass) = 0;
  virtual void setSource(const OdString& src, const OdString& resource) = 0;
  // Drops the pictures held in memory; they load again when next asked for.
  // Not "release", which is the reference count's.
  virtual void releasePictures() = 0;
  virtual int getSizeClass() const = 0;
  // The file format of the source: 1 bmp, 2 wmf, 3 ico, 4 emf, 5 jpeg, 6 png,
  // 7 gif, 8 tiff, -1 unknown.
  virtual int getFormat() const = 0;
  // The picture, loaded from its file or drawn from the button resource
  // over the background colour at first use; null when neither gives one.
  virtual QImage getBitmap() = 0;
  // The button resource's picture of `resource` at this size class.
  virtual QImage getIcon() = 0;
  // Writes the picture in a format of the table above; a path without an
  // extension gets the format's. False without a picture, for a format with
  // no encoder here (wmf, emf, unknown), or when the file cannot be written.
  virtual bool saveAs(const OdString& path, int format) = 0;
  virtual bool save(const OdString& path) = 0;
  // Copies the picture, unscaled from its top left, into the rectangle.
  virtual bool draw(QPainter* device, int x, int y, int width, int height) = 0;
  // The same picture at another size class.
  virtual OdSmartPtr<OdTcImage> cloneAtSize(int sizeClass) const = 0;
  virtual void writeAttributes(OdTcFiler* filer) = 0;
  virtual bool readAttribute(const OdString& name, const OdVariant& value) = 0;
  // Loads the picture's file into memory; false when it cannot be read.
  virtual bool loadFile() = 0;

  // The source as a path of this system, "/" separated, or a marker of the
  // button resource.
  virtual OdString src() const = 0;
  virtual OdString resource() const = 0;
  // The full path the source resolves to; empty for the button resource,
  // and while no file is found for the source.
  virtual OdString file() = 0;
  virtual int cx() const = 0;
  virtual int cy() const = 0;
};
using OdTcImagePtr = OdSmartPtr<OdTcImage>;

} // namespace tc
