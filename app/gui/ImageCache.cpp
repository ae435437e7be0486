// Reading raster files for the view.
#include "app/gui/ImageCache.h"

#include <QFileInfo>
#include <QImageReader>

namespace {
constexpr int kLargestSide = 4096;
} // namespace

ImageCache& ImageCache::instance()
{
  static ImageCache cache;
  return cache;
}

std::shared_ptr<const QImage> ImageCache::image(const QString& path)
{
  const QFileInfo info(path);
  if (!info.isFile())
    return nullptr;
  const QString key = info.absoluteFilePath();
  auto it = m_images.constFind(key);
  if (it != m_images.constEnd() && it->modified == info.lastModified())
    return it->image;
  QImageReader reader(key);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (size.isValid() && (size.width() > kLargestSide || size.height() > kLargestSide))
    reader.setScaledSize(size.scaled(kLargestSide, kLargestSide, Qt::KeepAspectRatio));
  QImage picture = reader.read();
  std::shared_ptr<const QImage> shared;
  if (!picture.isNull())
    shared = std::make_shared<const QImage>(picture.convertToFormat(QImage::Format_ARGB32_Premultiplied));
  m_images.insert(key, Entry{info.lastModified(), shared});
  return shared;
}
