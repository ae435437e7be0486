// OdTcImageList: one logical picture of an item, in several pixel sizes.
#pragma once

#include "model/OdTcEnum.h"
#include "images/OdTcImage.h"

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

class OdTcImageListImpl : public OdTcPersistImpl<OdTcImageList>
{
public:
  static OdTcImageListPtr createNew();

  OdString tagName() const override { return "Images"; }
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;
  void copyFrom(const OdRxObject* source) override;
  bool hasChildren() const override { return !m_images.isEmpty(); }

  void setOption(std::uint32_t option) override { m_option = option; }
  std::uint32_t getOption() const override { return m_option; }
  void addImage(OdTcImage* image) override;
  void removeAll(bool withFiles) override;
  OdTcEnumPtr<OdTcImage> newEnumerator() const override;
  OdTcImage* image(int sizeClass) const override;
  void normalize() override;
  int count() const override { return int(m_images.size()); }

private:
  std::uint32_t m_option = 0;
  OdArray<OdTcImagePtr> m_images;
};

} // namespace tc
