// Whole-file reads and writes.
#include "persist/TcFileIo.h"

#include "persist/OdTcCatalogFilerImpl.h"
#include "persist/OdTcPalettePropertiesFilerImpl.h"

#include "sdk/kernel/OdRxSystemServices.h"
#include "sdk/kernel/OdSafeFile.h"

namespace tc {

namespace {
OdTcFilerPtr filerFor(TcFileKind kind)
{
  return kind == TcFileKind::Catalog ? OdTcCatalogFilerImpl::createObject()
                                     : OdTcPalettePropertiesFilerImpl::createObject();
}

bool open(OdTcFiler* filer, OdStreamBuf* stream, OdTcPersist* root, TcFileKind kind, bool write)
{
  return kind == TcFileKind::Catalog ? filer->openCatalog(stream, root, write)
                                     : filer->openPalette(stream, root, write);
}
} // namespace

bool readTcFile(const OdString& path, OdTcPersist* root, TcFileKind kind)
{
  try {
    OdTcFilerPtr filer = filerFor(kind);
    OdStreamBufPtr stream =
        odrxSystemServices()->createFile(path, Oda::kFileRead, Oda::kShareDenyNo, Oda::kOpenExisting);
    return open(filer, stream, root, kind, false);
  } catch (const OdError&) {
    return false;
  }
}

bool writeTcFile(const OdString& path, OdTcPersist* root, TcFileKind kind)
{
  try {
    OdSafeFile file(path);
    OdTcFilerPtr filer = filerFor(kind);
    if (!open(filer, file.stream(), root, kind, true))
      return false;
    filer->flush();
    file.commit();
    return true;
  } catch (const OdError&) {
    return false;
  }
}

} // namespace tc
