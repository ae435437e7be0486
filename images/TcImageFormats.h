// The file formats of item pictures: their numbers, their extensions, and
// the encoders that write them.
#pragma once

#include "sdk/kernel/OdString.h"

class QByteArray;
class QImage;

namespace tc {

enum TcImageFormat
{
  kImageFormatUndefined = -1,
  kImageFormatBmp = 1,
  kImageFormatWmf = 2,
  kImageFormatIco = 3,
  kImageFormatEmf = 4,
  kImageFormatJpeg = 5,
  kImageFormatPng = 6,
  kImageFormatGif = 7,
  kImageFormatTiff = 8
};

// ".bmp", ".wmf", ...; ".png" for every number not in the table, and empty
// for the undefined format.
OdString imageFormatExtension(int format);
// The format a file name's extension stands for; undefined for any other.
int imageFormatOfFile(const OdString& path);
// The picture in the file format; false for the formats without an encoder
// here (wmf, emf, undefined) and when the encoder fails.
bool encodeImage(const QImage& picture, int format, QByteArray& out);

} // namespace tc
