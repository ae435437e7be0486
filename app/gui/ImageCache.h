// The raster files that drawings show, read once per file and shared by
// every image entity that shows them (until the file changes).
#pragma once

#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QString>

#include <memory>

class ImageCache
{
public:
  static ImageCache& instance();
  // The picture of the file, or null when it cannot be read. Pictures far
  // larger than any screen are kept at a size a screen can show.
  std::shared_ptr<const QImage> image(const QString& path);
  void clear() { m_images.clear(); }

private:
  struct Entry
  {
    QDateTime modified;
    std::shared_ptr<const QImage> image;
  };
  QHash<QString, Entry> m_images;
};
