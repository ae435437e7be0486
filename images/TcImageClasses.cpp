// Binding the picture classes to their implementations.
#include "images/TcImageClasses.h"

#include "images/OdTcImageImpl.h"
#include "images/OdTcImageListImpl.h"
#include "persist/OdTcTagTable.h"

#include "sdk/kernel/OdRxClass.h"

namespace tc {

namespace {
OdTcPersistPtr makeImageList()
{
  return OdTcImageListImpl::createNew();
}
OdTcPersistPtr makeImage()
{
  return OdTcImageImpl::createNew();
}
} // namespace

void registerImageClasses(OdTcTagTable& tags)
{
  OdTcImageList::desc()->setConstructor(&OdTcImageListImpl::pseudoConstructor);
  OdTcImage::desc()->setConstructor(&OdTcImageImpl::pseudoConstructor);
  tags.registerTag("Images", &makeImageList);
  tags.registerTag("Image", &makeImage);
}

} // namespace tc
