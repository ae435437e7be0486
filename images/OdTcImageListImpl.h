// OdTcImageListImpl: the pictures of an item in their sizes.
#pragma once

#include "model/OdTcImageList.h"
#include "model/OdTcPersistImpl.h"

#include "sdk/kernel/OdArray.h"

namespace tc {

class OdTcImageListImpl : public OdTcPersistImpl<OdTcImageList>
{
public:
  static OdTcImageListPtr createNew();
  // The creation function bound to OdTcImageList's class description.
  static OdRxObjectPtr pseudoConstructor();

  OdString tagName() const override { return "Images"; }
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;
  void copyFrom(const OdRxObject* source) override;
  bool hasChildren() const override { return !m_images.isEmpty(); }

  // Marks the item the list belongs to as changed.
  void setOption(std::uint32_t option) override;
  std::uint32_t getOption() const override { return m_option; }
  void addImage(OdTcImage* image) override;
  // With files, each picture's file beside its palette is deleted first.
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
