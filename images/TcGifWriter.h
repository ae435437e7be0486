// GIF pictures through giflib, which writes what Qt only reads.
#pragma once

class QByteArray;
class QImage;

namespace tc {

// The picture as a GIF file in memory: at most 256 colours, exact when the
// picture has no more, else the nearest of a fixed table; pixels that are
// more than half transparent become the transparent colour.
bool writeGif(const QImage& picture, QByteArray& out);

} // namespace tc
