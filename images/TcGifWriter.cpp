// Writing GIF with giflib into memory: the caller puts the bytes on disk
// itself, since giflib's own file opening makes files only the owner can
// read.
#include "images/TcGifWriter.h"

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QList>

#include <gif_lib.h>

#include <memory>
#include <vector>

namespace tc {

namespace {

int appendBytes(GifFileType* gif, const GifByteType* bytes, int count)
{
  static_cast<QByteArray*>(gif->UserData)->append(reinterpret_cast<const char*>(bytes), count);
  return count;
}

// For pictures of more colours than a GIF holds: a 6x6x6 cube and the greys
// between its steps, less than 255 entries, so a place is left for
// transparency.
QList<QRgb> fixedColourTable()
{
  QList<QRgb> table;
  for (int r = 0; r < 6; ++r)
    for (int g = 0; g < 6; ++g)
      for (int b = 0; b < 6; ++b)
        table.append(qRgb(r * 51, g * 51, b * 51));
  for (int i = 1; i < 40; ++i) {
    const int grey = i * 255 / 40;
    if (grey % 51 != 0)
      table.append(qRgb(grey, grey, grey));
  }
  return table;
}

struct GifCloser
{
  void operator()(GifFileType* gif) const
  {
    int error = 0;
    EGifCloseFile(gif, &error);
  }
};

} // namespace

bool writeGif(const QImage& picture, QByteArray& out)
{
  if (picture.isNull())
    return false;
  const QImage argb = picture.convertToFormat(QImage::Format_ARGB32);
  const int width = argb.width();
  const int height = argb.height();
  if (width > 65535 || height > 65535)
    return false; // the format's sizes are 16 bits

  bool transparent = false;
  QHash<QRgb, int> exact;
  QList<QRgb> table;
  for (int y = 0; y < height; ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(argb.constScanLine(y));
    for (int x = 0; x < width; ++x) {
      if (qAlpha(line[x]) < 128) {
        transparent = true;
        continue;
      }
      const QRgb colour = line[x] | 0xff000000u;
      if (table.size() <= 256 && !exact.contains(colour)) {
        exact.insert(colour, int(table.size()));
        table.append(colour);
      }
    }
  }
  const int room = transparent ? 255 : 256;
  std::vector<GifPixelType> indices(std::size_t(width) * std::size_t(height));
  if (table.size() <= room) {
    for (int y = 0; y < height; ++y) {
      const auto* line = reinterpret_cast<const QRgb*>(argb.constScanLine(y));
      for (int x = 0; x < width; ++x)
        indices[std::size_t(y) * width + x] =
            qAlpha(line[x]) < 128 ? 0 : GifPixelType(exact.value(line[x] | 0xff000000u));
    }
  } else {
    const QImage mapped = argb.convertToFormat(QImage::Format_RGB32)
                              .convertToFormat(QImage::Format_Indexed8, fixedColourTable(), Qt::ThresholdDither);
    table = mapped.colorTable();
    for (int y = 0; y < height; ++y) {
      const uchar* line = mapped.constScanLine(y);
      for (int x = 0; x < width; ++x)
        indices[std::size_t(y) * width + x] = line[x];
    }
  }
  const int transparentIndex = transparent ? int(table.size()) : NO_TRANSPARENT_COLOR;
  if (transparent) {
    table.append(qRgb(192, 192, 192));
    for (int y = 0; y < height; ++y) {
      const auto* line = reinterpret_cast<const QRgb*>(argb.constScanLine(y));
      for (int x = 0; x < width; ++x)
        if (qAlpha(line[x]) < 128)
          indices[std::size_t(y) * width + x] = GifPixelType(transparentIndex);
    }
  }

  // giflib takes colour maps of a power of two only.
  const int mapSize = 1 << GifBitSize(std::max<int>(2, int(table.size())));
  std::unique_ptr<ColorMapObject, void (*)(ColorMapObject*)> map(GifMakeMapObject(mapSize, nullptr),
                                                                 &GifFreeMapObject);
  if (!map)
    return false;
  for (int i = 0; i < mapSize; ++i) {
    const QRgb colour = i < table.size() ? table[i] : qRgb(0, 0, 0);
    map->Colors[i] = GifColorType{GifByteType(qRed(colour)), GifByteType(qGreen(colour)), GifByteType(qBlue(colour))};
  }

  QByteArray bytes;
  int error = 0;
  std::unique_ptr<GifFileType, GifCloser> gif(EGifOpen(&bytes, &appendBytes, &error));
  if (!gif)
    return false;
  EGifSetGifVersion(gif.get(), transparent);
  if (EGifPutScreenDesc(gif.get(), width, height, 8, 0, map.get()) != GIF_OK)
    return false;
  if (transparent) {
    GraphicsControlBlock control{DISPOSAL_UNSPECIFIED, false, 0, transparentIndex};
    GifByteType extension[4];
    const size_t length = EGifGCBToExtension(&control, extension);
    if (EGifPutExtension(gif.get(), GRAPHICS_EXT_FUNC_CODE, int(length), extension) != GIF_OK)
      return false;
  }
  if (EGifPutImageDesc(gif.get(), 0, 0, width, height, false, nullptr) != GIF_OK)
    return false;
  for (int y = 0; y < height; ++y)
    if (EGifPutLine(gif.get(), indices.data() + std::size_t(y) * width, width) != GIF_OK)
      return false;
  // Closing writes the trailer; only a clean close gives a whole file.
  GifFileType* open = gif.release();
  if (EGifCloseFile(open, &error) != GIF_OK)
    return false;
  out = bytes;
  return true;
}

} // namespace tc
