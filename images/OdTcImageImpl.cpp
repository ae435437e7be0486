// Pictures of items: size classes and their XML attributes.
#include "images/OdTcImageImpl.h"

#include "persist/TcPathTokens.h"

#include "sdk/kernel/OdWcstol.h"

namespace tc {

const OdString kProgramBtnRes("%ProgramBtnRes%");
const OdString kAcadBtnResource("acadbtn.xmx");

bool isImageResourceMarker(const OdString& src)
{
  return src == kProgramBtnRes || src == kAcadBtnResource;
}

int imageSizeOfClass(int sizeClass)
{
  switch (sizeClass) {
  case 2: return 24;
  case 3: return 32;
  case 4: return 64;
  default: return 16;
  }
}

OdString imageSuffixOfClass(int sizeClass)
{
  switch (sizeClass) {
  case 1: return "16";
  case 4: return "64";
  default: return "32";
  }
}

int imageClassOfSize(int size)
{
  switch (size) {
  case 16: return 1;
  case 24: return 2;
  case 64: return 4;
  default: return 3;
  }
}

OdTcImagePtr OdTcImageImpl::createNew(int sizeClass, const OdString& src, const OdString& resource)
{
  auto image = OdRxObjectImpl<OdTcImageImpl, OdTcImage>::createObject();
  image->setSizeClass(sizeClass);
  image->setSource(src, resource);
  return image;
}

OdRxObjectPtr OdTcImageImpl::pseudoConstructor()
{
  return OdRxObjectPtr(OdRxObjectImpl<OdTcImageImpl, OdTcImage>::createObject());
}

OdString OdTcImageImpl::src() const
{
  return pathFromFile(m_src);
}

void OdTcImageImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcImage>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcImageImpl*>(source)) {
    m_sizeClass = src->m_sizeClass;
    m_format = src->m_format;
    m_cx = src->m_cx;
    m_cy = src->m_cy;
    m_resource = src->m_resource;
    m_src = src->m_src;
  }
}

void OdTcImageImpl::setSizeClass(int sizeClass)
{
  m_sizeClass = sizeClass;
  m_cx = m_cy = imageSizeOfClass(sizeClass);
}

void OdTcImageImpl::setSource(const OdString& src, const OdString& resource)
{
  m_src = src;
  m_resource = resource;
}

OdTcImagePtr OdTcImageImpl::cloneAtSize(int sizeClass) const
{
  OdTcImagePtr copy = createNew(sizeClass, m_src, m_resource);
  copy->setParent(const_cast<OdTcPersist*>(parent()));
  return copy;
}

void OdTcImageImpl::writeBody(OdTcFiler* filer)
{
  filer->writeAttribute("cx", OdVariant(std::int32_t(m_cx)));
  filer->writeAttribute("cy", OdVariant(std::int32_t(m_cy)));
  if (!m_src.isEmpty())
    filer->writeAttribute("src", OdVariant(m_src));
  if (!m_resource.isEmpty())
    filer->writeAttribute("resource", OdVariant(m_resource));
}

bool OdTcImageImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name == "cx") {
    m_cx = odWcstol(value.getString());
    m_sizeClass = imageClassOfSize(m_cx);
  } else if (name == "cy") {
    m_cy = odWcstol(value.getString());
  } else if (name == "src") {
    m_src = value.getString();
  } else if (name == "resource") {
    m_resource = value.getString();
  } else {
    return false;
  }
  return true;
}

} // namespace tc
