// Pictures of items: size classes, their XML attributes, where their files
// lie, loading, saving and drawing.
#include "images/OdTcImageImpl.h"

#include "images/TcImageFormats.h"
#include "model/OdTcCatalog.h"
#include "model/OdTcDatabase.h"
#include "persist/TcPathTokens.h"

#include "hostsdk/btnres/HostButtonResource.h"
#include "hostsdk/core/HostCore.h"
#include "sdk/kernel/OdRxSystemServices.h"
#include "sdk/kernel/OdSafeFile.h"
#include "sdk/kernel/OdWcstol.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

namespace tc {

const OdString kProgramBtnRes("%ProgramBtnRes%");
const OdString kAcadBtnResource("acadbtn.xmx");

namespace {

// No picture of a palette is this big; a size read from a broken file must
// not make the module allocate gigabytes.
constexpr int kLargestPicture = 1024;

// Only regular files are read: a FIFO or a device named by a catalog would
// block the host for ever.
bool isRegularFile(const OdString& path)
{
  return !path.isEmpty() && QFileInfo(path.qstring()).isFile();
}

// Whether `path` lies in `folder` or below it once links are followed; the
// folders must exist.
bool liesInFolder(const OdString& path, const OdString& folder)
{
  const QString base = QFileInfo(folder.qstring()).canonicalFilePath();
  const QString parent = QFileInfo(QFileInfo(path.qstring()).absolutePath()).canonicalFilePath();
  return !base.isEmpty() && !parent.isEmpty() && (parent == base || parent.startsWith(base + QLatin1Char('/')));
}

// The source as a path below a folder: "/" separated, without the leading
// separator of "\Images\...".
OdString relativeSource(const OdString& src)
{
  OdString relative = pathFromFile(src);
  relative.trimLeft(u'/');
  return relative;
}

int formatOfSource(const OdString& src)
{
  return src.isEmpty() || isImageResourceMarker(src) ? int(kImageFormatPng) : imageFormatOfFile(pathFromFile(src));
}

} // namespace

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

OdString uniqueBlockImageSource()
{
  return OdString::formatted("/Images/%s_%s.png", Supp_Translate("Block tool instrument"),
                             odrxSystemServices()->createGuid());
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

// ---- the file format

bool OdTcImageImpl::readAttributes(OdTcFiler* filer)
{
  OdTcPersistImpl<OdTcImage>::readAttributes(filer);
  resolveFile();
  return true;
}

bool OdTcImageImpl::readAttribute(const OdString& name, const OdVariant& value)
{
  if (name == "cx") {
    m_cx = odWcstol(value.getString());
    m_sizeClass = imageClassOfSize(m_cx);
  } else if (name == "cy") {
    m_cy = odWcstol(value.getString());
  } else if (name == "src") {
    m_src = value.getString();
    m_format = formatOfSource(m_src);
  } else if (name == "resource") {
    m_resource = value.getString();
  } else {
    return false;
  }
  return true;
}

void OdTcImageImpl::writeAttributes(OdTcFiler* filer)
{
  filer->writeAttribute("cx", OdVariant(std::int32_t(m_cx)));
  filer->writeAttribute("cy", OdVariant(std::int32_t(m_cy)));
  if (!m_src.isEmpty()) {
    filer->writeAttribute("src", OdVariant(m_src));
    if (!isImageResourceMarker(m_src))
      ensurePictureFile();
    else
      releasePictures();
  }
  if (!m_resource.isEmpty())
    filer->writeAttribute("resource", OdVariant(m_resource));
}

void OdTcImageImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcImage>::copyFrom(source);
  auto* other = dynamic_cast<const OdTcImageImpl*>(source);
  if (!other)
    return;
  m_sizeClass = other->m_sizeClass;
  m_format = other->m_format;
  m_cx = other->m_cx;
  m_cy = other->m_cy;
  m_resource = other->m_resource;
  m_src = other->m_src;
  m_file = other->m_file;
  // The clone has the source's parent, so the source's file is found from
  // here too.
  if (!other->m_bitmap.isNull())
    m_bitmap = other->m_bitmap;
  else if (!file().isEmpty())
    loadFile();
  if (!m_src.isEmpty() && !isImageResourceMarker(m_src)) {
    m_src = uniqueBlockImageSource();
    m_format = formatOfSource(m_src);
    m_file = OdString(); // its own file is made at the next write
  } else {
    getIcon();
  }
}

// ---- fields

void OdTcImageImpl::setSizeClass(int sizeClass)
{
  m_sizeClass = sizeClass;
  m_cx = m_cy = imageSizeOfClass(sizeClass);
}

void OdTcImageImpl::setSource(const OdString& src, const OdString& resource)
{
  m_src = src;
  m_resource = resource;
  m_format = formatOfSource(src);
  m_file = OdString();
}

OdString OdTcImageImpl::src() const
{
  return pathFromFile(m_src);
}

OdString OdTcImageImpl::file()
{
  if (m_file.isEmpty())
    resolveFile();
  return m_file;
}

int OdTcImageImpl::width() const
{
  return m_cx > 0 && m_cx <= kLargestPicture ? m_cx : imageSizeOfClass(m_sizeClass);
}

int OdTcImageImpl::height() const
{
  return m_cy > 0 && m_cy <= kLargestPicture ? m_cy : imageSizeOfClass(m_sizeClass);
}

// ---- where the file lies

OdString OdTcImageImpl::ownerFile()
{
  if (OdTcDatabase* db = database())
    return db->path();
  OdTcCatalog* owner = catalog();
  return owner ? owner->path() : OdString();
}

OdString OdTcImageImpl::pathBesideOwner(OdString& folder)
{
  const OdString owner = ownerFile();
  if (owner.isEmpty())
    return OdString();
  folder = OdString(QFileInfo(owner.qstring()).path());
  OdString path = folder + "/" + relativeSource(m_src);
  // A source such as "..\..\x.png" must not reach beside the palette.
  if (!normalizePath(path) || path.qstring().indexOf(folder.qstring() + QLatin1Char('/')) != 0)
    return OdString();
  return path;
}

OdString OdTcImageImpl::writeTarget(OdString& folder, bool& exporting)
{
  OdTcDatabase* db = database();
  exporting = db && db->isExporting();
  if (!exporting)
    return pathBesideOwner(folder);
  // An exported palette's pictures go into a folder of their own beside the
  // export file, named after it.
  const QFileInfo exported(db->path().qstring());
  folder = OdString(exported.path() + QLatin1Char('/') + exported.completeBaseName());
  OdString path = folder + "/" + relativeSource(m_src);
  if (!normalizePath(path) || path.qstring().indexOf(folder.qstring() + QLatin1Char('/')) != 0)
    return OdString();
  return path;
}

void OdTcImageImpl::resolveFile()
{
  m_file = OdString();
  if (m_src.isEmpty() || isImageResourceMarker(m_src))
    return;
  const OdString owner = ownerFile();
  OdString candidate;
  const qsizetype xtp = owner.qstring().indexOf(QLatin1String(".xtp"), 0, Qt::CaseInsensitive);
  if (xtp >= 0) {
    // The pictures of an exported palette stand in the folder named after
    // its file.
    candidate = makeAbsolutePath(relativeSource(m_src), owner.left(int(xtp)) + "/");
  } else if (owner.qstring().contains(QLatin1String(".vtc"), Qt::CaseInsensitive)) {
    OdString folder;
    candidate = pathBesideOwner(folder);
  }
  if (isRegularFile(candidate))
    m_file = candidate;
}

void OdTcImageImpl::ensurePictureFile()
{
  OdString folder;
  bool exporting = false;
  const OdString target = writeTarget(folder, exporting);
  if (target.isEmpty())
    return;
  if (Fio_IsFileExist(target)) {
    if (!exporting)
      m_file = target;
    releasePictures();
    return;
  }
  if (getBitmap().isNull())
    return;
  QDir().mkpath(QFileInfo(target.qstring()).path());
  if (exporting)
    QDir().mkpath(folder.qstring() + QStringLiteral("/Images"));
  // A picture that cannot be written stays in memory for the next save.
  if (!liesInFolder(target, folder) || !save(target))
    return;
  if (!exporting)
    m_file = target;
  releasePictures();
}

void OdTcImageImpl::deleteFile()
{
  if (!m_icon.isNull() || m_src.isEmpty() || isImageResourceMarker(m_src))
    return;
  OdString folder;
  const OdString path = pathBesideOwner(folder);
  if (!isRegularFile(path) || !liesInFolder(path, folder))
    return;
  if (Fio_DeleteFile(path))
    m_file = OdString();
}

// ---- pictures

void OdTcImageImpl::releasePictures()
{
  m_icon = QImage();
  m_bitmap = QImage();
}

bool OdTcImageImpl::loadFile()
{
  if (!isRegularFile(file()))
    return false;
  QImage picture;
  if (!picture.load(m_file.qstring()))
    return false;
  m_bitmap = picture;
  return true;
}

QImage OdTcImageImpl::getBitmap()
{
  if (!m_bitmap.isNull())
    return m_bitmap;
  if (isImageResourceMarker(m_src)) {
    const QImage icon = HostButtonResource::image(m_resource, m_sizeClass);
    if (icon.isNull())
      return QImage();
    QImage bitmap(width(), height(), QImage::Format_RGB32);
    bitmap.fill(kImageBackground);
    QPainter painter(&bitmap);
    painter.drawImage(bitmap.rect(), icon);
    painter.end();
    m_bitmap = bitmap;
    return m_bitmap;
  }
  loadFile();
  return m_bitmap;
}

QImage OdTcImageImpl::getIcon()
{
  if (m_icon.isNull())
    m_icon = HostButtonResource::image(m_resource, m_sizeClass);
  return m_icon;
}

bool OdTcImageImpl::saveAs(const OdString& path, int format)
{
  if (m_bitmap.isNull() || path.isEmpty())
    return false;
  OdString target = path;
  if (QFileInfo(path.qstring()).suffix().isEmpty())
    target += imageFormatExtension(format);
  QByteArray bytes;
  if (!encodeImage(m_bitmap, format, bytes))
    return false;
  try {
    odWriteFileSafely(target, [&](OdStreamBuf& stream) { stream.putBytes(bytes.constData(), std::uint32_t(bytes.size())); });
  } catch (const OdError&) {
    return false;
  }
  return true;
}

bool OdTcImageImpl::save(const OdString& path)
{
  return saveAs(path, kImageFormatPng);
}

bool OdTcImageImpl::draw(QPainter* device, int x, int y, int width, int height)
{
  if (!device)
    return false;
  const QImage picture = getBitmap();
  if (picture.isNull())
    return false;
  // Copied as it is, transparency and all, and never stretched.
  device->save();
  device->setCompositionMode(QPainter::CompositionMode_Source);
  device->drawImage(QPoint(x, y), picture, QRect(0, 0, width, height));
  device->restore();
  return true;
}

OdTcImagePtr OdTcImageImpl::cloneAtSize(int sizeClass) const
{
  OdTcImagePtr copy = createNew(sizeClass);
  auto* impl = static_cast<OdTcImageImpl*>(copy.get());
  impl->setParent(const_cast<OdTcPersist*>(parent()));
  const QSize size(impl->width(), impl->height());
  if (!m_bitmap.isNull()) {
    impl->setSource(uniqueBlockImageSource(), m_resource);
    impl->m_bitmap = m_bitmap.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  } else {
    impl->setSource(m_src, m_resource);
    if (!m_icon.isNull())
      impl->m_icon = m_icon.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  return copy;
}

} // namespace tc
