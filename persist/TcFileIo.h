// Reading and writing a whole catalog or palette file through its filer.
#pragma once

#include "model/OdTcPersist.h"

namespace tc {

enum class TcFileKind
{
  Catalog,
  Palette
};

// Fills `root` from the file. False when the file cannot be opened or the
// filer refuses it; errors of the stream never escape.
bool readTcFile(const OdString& path, OdTcPersist* root, TcFileKind kind);

// Writes `root` to the file, beside it first and renamed over it at the end,
// so that a failure leaves the old file whole. False on any failure.
bool writeTcFile(const OdString& path, OdTcPersist* root, TcFileKind kind);

} // namespace tc
