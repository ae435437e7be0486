// OdTcImageList: one logical picture of an item in several pixel sizes, as
// the model holds it. The images subsystem implements it and binds its
// creation when the module registers classes.
#pragma once

#include "model/OdTcEnum.h"
#include "model/OdTcImage.h"

#include <cstdint>

namespace tc {

class OdTcImageList : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcImageList);

public:
  virtual void setOption(std::uint32_t option) = 0;
  virtual std::uint32_t getOption() const = 0;
  virtual void addImage(OdTcImage* image) = 0;
  virtual void removeAll(bool withFiles) = 0;
  virtual OdTcEnumPtr<OdTcImage> newEnumerator() const = 0;
  // The first image of that size class, or null.
  virtual OdTcImage* image(int sizeClass) const = 0;
  // Makes sure the big sizes are there, and the small one when a big one
  // can stand for it.
  virtual void normalize() = 0;
  virtual int count() const = 0;
};
using OdTcImageListPtr = OdSmartPtr<OdTcImageList>;

} // namespace tc
