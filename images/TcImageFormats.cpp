// Encoding pictures by format number: Qt's writers, and giflib for GIF.
#include "images/TcImageFormats.h"

#include "images/TcGifWriter.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>

namespace tc {

namespace {

struct FormatRow
{
  int format;
  const char* extension;
  const char* qtWriter; // null: no encoder of Qt's
};

constexpr FormatRow kFormats[] = {
    {kImageFormatBmp, ".bmp", "bmp"},   {kImageFormatWmf, ".wmf", nullptr},  {kImageFormatIco, ".ico", "ico"},
    {kImageFormatEmf, ".emf", nullptr}, {kImageFormatJpeg, ".jpeg", "jpeg"}, {kImageFormatPng, ".png", "png"},
    {kImageFormatGif, ".gif", nullptr}, {kImageFormatTiff, ".tiff", "tiff"}};

const FormatRow& rowOf(int format)
{
  for (const FormatRow& row : kFormats)
    if (row.format == format)
      return row;
  return kFormats[5]; // png stands for every number the table lacks
}

} // namespace

OdString imageFormatExtension(int format)
{
  return format == kImageFormatUndefined ? OdString() : OdString(rowOf(format).extension);
}

int imageFormatOfFile(const OdString& path)
{
  QString suffix = QFileInfo(path.qstring()).suffix().toLower();
  // The short forms that files from other programs carry.
  if (suffix == QLatin1String("jpg"))
    suffix = QStringLiteral("jpeg");
  else if (suffix == QLatin1String("tif"))
    suffix = QStringLiteral("tiff");
  for (const FormatRow& row : kFormats)
    if (suffix == QLatin1String(row.extension + 1))
      return row.format;
  return kImageFormatUndefined;
}

bool encodeImage(const QImage& picture, int format, QByteArray& out)
{
  if (picture.isNull() || format == kImageFormatUndefined)
    return false;
  if (format == kImageFormatGif)
    return writeGif(picture, out);
  const FormatRow& row = rowOf(format);
  if (!row.qtWriter)
    return false;
  QBuffer buffer(&out);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, row.qtWriter);
  return writer.write(picture);
}

} // namespace tc
