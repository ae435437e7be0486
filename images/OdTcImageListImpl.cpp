// The image list of an item.
#include "images/OdTcImageListImpl.h"

#include "images/OdTcImageImpl.h"
#include "model/OdTcCatalogItem.h"

#include "sdk/kernel/OdWcstol.h"

namespace tc {

OdTcImageListPtr OdTcImageListImpl::createNew()
{
  return OdRxObjectImpl<OdTcImageListImpl, OdTcImageList>::createObject();
}

OdRxObjectPtr OdTcImageListImpl::pseudoConstructor()
{
  return OdRxObjectPtr(createNew());
}

void OdTcImageListImpl::writeBody(OdTcFiler* filer)
{
  filer->writeAttribute("option", OdVariant(std::int32_t(m_option)));
  for (const OdTcImagePtr& image : m_images)
    filer->writeObject(image);
}

bool OdTcImageListImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name == "option") {
    m_option = std::uint32_t(odWcstol(value.getString()));
    return true;
  }
  if (name == "Image") {
    m_images.append(deliveredObject<OdTcImage>(value));
    return true;
  }
  return false;
}

void OdTcImageListImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcImageList>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcImageListImpl*>(source)) {
    m_option = src->m_option;
    m_images.clear();
    for (const OdTcImagePtr& image : src->m_images) {
      OdTcImagePtr copy(image->clone());
      copy->setParent(this);
      m_images.append(copy);
    }
  }
}

void OdTcImageListImpl::setOption(std::uint32_t option)
{
  m_option = option;
  // The list is saved with the item that shows it.
  for (OdTcPersist* owner = parent(); owner && owner->parent() != owner; owner = owner->parent()) {
    if (OdTcCatalogItemPtr item = OdTcCatalogItem::cast(owner)) {
      item->setModified();
      break;
    }
  }
}

void OdTcImageListImpl::addImage(OdTcImage* image)
{
  if (!image)
    return;
  image->setParent(this);
  m_images.append(OdTcImagePtr(image));
}

void OdTcImageListImpl::removeAll(bool withFiles)
{
  if (withFiles)
    for (const OdTcImagePtr& image : m_images)
      if (auto* impl = dynamic_cast<OdTcImageImpl*>(image.get()))
        impl->deleteFile();
  m_images.clear();
}

OdTcEnumPtr<OdTcImage> OdTcImageListImpl::newEnumerator() const
{
  // A snapshot: the list may change while the caller walks it.
  class SnapshotEnum : public OdTcEnum<OdTcImage>
  {
  public:
    OdArray<OdTcImagePtr> m_items;
    unsigned m_position = 0;
    OdTcImage* next() override { return m_position < m_items.size() ? m_items[m_position++].get() : nullptr; }
    void reset() override { m_position = 0; }
  };
  auto e = OdSmartPtr<SnapshotEnum>(new OdRxObjectImpl<SnapshotEnum>, kOdRxObjAttach);
  e->m_items = m_images;
  return OdTcEnumPtr<OdTcImage>(e.get());
}

OdTcImage* OdTcImageListImpl::image(int sizeClass) const
{
  for (const OdTcImagePtr& image : m_images)
    if (image->getSizeClass() == sizeClass)
      return image.get();
  return nullptr;
}

void OdTcImageListImpl::normalize()
{
  bool hasSmall = false;
  bool hasBig = false;
  for (const OdTcImagePtr& image : m_images) {
    hasSmall = hasSmall || image->getSizeClass() == 1;
    hasBig = hasBig || image->getSizeClass() == 3 || image->getSizeClass() == 4;
  }
  if (!hasBig) {
    // A resource name of the long form "...RCDATA..._name" gives the picture.
    OdString name;
    for (const OdTcImagePtr& image : m_images) {
      const OdString resource = image->resource();
      const int underscore = resource.reverseFind(u'_');
      if (resource.find("RCDATA") >= 0 && underscore >= 0) {
        name = resource.mid(underscore + 1);
        name.makeLower();
        break;
      }
    }
    addImage(OdTcImageImpl::createNew(3, kProgramBtnRes, name));
    addImage(OdTcImageImpl::createNew(4, kProgramBtnRes, name));
  }
  // The pictures come into memory under names of their own, so that the
  // next write puts them beside this list's palette, wherever they were read.
  for (const OdTcImagePtr& image : m_images) {
    image->loadFile();
    if (!image->src().isEmpty() && !isImageResourceMarker(image->src()))
      image->setSource(uniqueBlockImageSource(), image->resource());
  }
  if (!hasSmall)
    if (OdTcImage* big = image(3))
      addImage(big->cloneAtSize(1));
}

} // namespace tc
