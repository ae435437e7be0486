// OdTcImage: one size of an item's picture, as the model holds it. The
// images subsystem implements it and binds its creation when the module
// registers classes.
#pragma once

#include "model/OdTcPersist.h"

namespace tc {

class OdTcImage : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcImage);

public:
  // Size classes 1, 2, 3, 4 for 16, 24, 32 and 64 pixels.
  virtual void setSizeClass(int sizeClass) = 0;
  virtual void setSource(const OdString& src, const OdString& resource) = 0;
  virtual int getSizeClass() const = 0;
  virtual int getFormat() const = 0;
  // The picture's file as a path of this system, "/" separated.
  virtual OdString src() const = 0;
  virtual OdString resource() const = 0;
  virtual int cx() const = 0;
  virtual int cy() const = 0;
  // The same picture at another size class.
  virtual OdSmartPtr<OdTcImage> cloneAtSize(int sizeClass) const = 0;
};
using OdTcImagePtr = OdSmartPtr<OdTcImage>;

} // namespace tc
