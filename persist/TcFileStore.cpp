// Whole catalog and palette files, and the files beside a catalog.
#include "persist/TcFileStore.h"

#include "persist/OdTcCatalogFilerImpl.h"
#include "persist/OdTcPalettePropertiesFilerImpl.h"
#include "persist/OdTcTagTable.h"
#include "persist/TcPathTokens.h"

#include "sdk/kernel/OdRxSystemServices.h"
#include "sdk/kernel/OdSafeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <new>

namespace tc {

namespace {

OdTcFilerPtr filerFor(OdTcFileKind kind)
{
  return kind == OdTcFileKind::Catalog ? OdTcCatalogFilerImpl::createObject()
                                       : OdTcPalettePropertiesFilerImpl::createObject();
}

bool open(OdTcFiler* filer, OdStreamBuf* stream, OdTcPersist* root, OdTcFileKind kind, bool write)
{
  return kind == OdTcFileKind::Catalog ? filer->openCatalog(stream, root, write)
                                       : filer->openPalette(stream, root, write);
}

OdTcReadStatus status(OdTcReadStatus::Result result, const OdString& reason = OdString())
{
  OdTcReadStatus s;
  s.result = result;
  s.reason = reason;
  return s;
}

// The path with its folders' links resolved, for a file that may not exist
// yet: the folder must.
QString resolvedPath(const QString& path)
{
  const QFileInfo info(path);
  const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
  return folder.isEmpty() ? QString() : folder + QLatin1Char('/') + info.fileName();
}

bool sameBytes(const QString& a, const QString& b)
{
  QFile fa(a);
  QFile fb(b);
  if (!fa.open(QIODevice::ReadOnly) || !fb.open(QIODevice::ReadOnly) || fa.size() != fb.size())
    return false;
  while (!fa.atEnd())
    if (fa.read(1 << 20) != fb.read(1 << 20))
      return false;
  return true;
}

} // namespace

OdTcReadStatus TcFileStore::readFile(const OdString& path, OdTcPersist* root, OdTcFileKind kind)
{
  OdStreamBufPtr stream;
  try {
    stream = odrxSystemServices()->createFile(path, Oda::kFileRead, Oda::kShareDenyNo, Oda::kOpenExisting);
  } catch (const OdError_FileException& e) {
    if (e.code() == eFileNotFound)
      return status(OdTcReadStatus::kMissing);
    return status(OdTcReadStatus::kUnreadable, e.reason().isEmpty() ? e.description() : e.reason());
  }
  OdTcFilerPtr filer = filerFor(kind);
  auto* base = static_cast<OdTcFilerImplBase*>(filer.get());
  OdTcReadStatus result;
  try {
    result.filerResult = open(filer, stream, root, kind, false);
  } catch (const OdError_FileException& e) {
    return status(OdTcReadStatus::kUnreadable, e.reason().isEmpty() ? e.description() : e.reason());
  } catch (const OdError& e) {
    // A value of the wrong kind where an object belongs: the file is not
    // what its names say, and what came before it stays read.
    return status(OdTcReadStatus::kDamaged, e.description());
  } catch (const std::bad_alloc&) {
    return status(OdTcReadStatus::kUnreadable, "there is not enough memory to read it");
  } catch (const std::exception& e) {
    return status(OdTcReadStatus::kUnreadable, OdString(e.what()));
  }
  if (base->isRefused()) {
    result.result = OdTcReadStatus::kUnreadable;
    result.reason = base->readProblem();
  } else if (!base->readProblem().isEmpty()) {
    result.result = OdTcReadStatus::kDamaged;
    result.reason = base->readProblem();
  } else if (!base->document().FirstChildElement(kind == OdTcFileKind::Catalog ? "Catalog" : "Palette")) {
    result.result = OdTcReadStatus::kDamaged;
    result.reason = kind == OdTcFileKind::Catalog ? "it holds no catalog" : "it holds no palette";
  } else {
    result.result = OdTcReadStatus::kRead;
  }
  return result;
}

bool TcFileStore::writeFile(const OdString& path, OdTcPersist* root, OdTcFileKind kind, OdString& reason)
{
  try {
    OdSafeFile file(path);
    OdTcFilerPtr filer = filerFor(kind);
    if (!open(filer, file.stream(), root, kind, true)) {
      reason = "the filer refused to write it";
      return false;
    }
    filer->flush();
    file.commit();
    return true;
  } catch (const OdError_FileException& e) {
    reason = e.reason().isEmpty() ? e.description() : e.reason();
  } catch (const OdError& e) {
    reason = e.description();
  } catch (const std::bad_alloc&) {
    reason = "there is not enough memory to write it";
  } catch (const std::exception& e) {
    reason = OdString(e.what());
  }
  return false;
}

OdString TcFileStore::resolveHref(const OdString& href, const OdString& catalogPath) const
{
  return makeAbsolutePath(pathFromFile(href), catalogPath);
}

OdString TcFileStore::makeHref(const OdString& catalogPath, const OdString& palettePath) const
{
  OdString href;
  makeRelativePath(catalogPath, palettePath, href);
  return href;
}

OdString TcFileStore::palettesFolder(const OdString& catalogPath)
{
  const QString folder = QFileInfo(catalogPath.qstring()).path() + QStringLiteral("/Palettes");
  if (!QFileInfo::exists(folder)) {
    QDir().mkpath(folder);
    QDir().mkpath(folder + QStringLiteral("/Images"));
  }
  return OdString(folder);
}

OdString TcFileStore::newPaletteFile(const OdString& folder, const OdString& name, const OdString& id) const
{
  return folder + "/" + OdString::formatted("%s_%s", cleanFileName(name), cleanFileName(id)) + ".vtc";
}

bool TcFileStore::isInCatalogFolder(const OdString& path, const OdString& catalogPath) const
{
  const QString folder = QFileInfo(resolvedPath(catalogPath.qstring())).path();
  const QString file = resolvedPath(path.qstring());
  return !folder.isEmpty() && !file.isEmpty() && file.startsWith(folder + QLatin1Char('/'));
}

bool TcFileStore::fileExists(const OdString& path) const
{
  return QFileInfo::exists(path.qstring());
}

bool TcFileStore::removeFile(const OdString& path, OdString& reason)
{
  QFile file(path.qstring());
  if (file.remove())
    return true;
  reason = OdString(file.errorString());
  return false;
}

OdString TcFileStore::keepAside(const OdString& path, OdString& reason)
{
  // The same damage found at every start is kept once.
  QString copy = path.qstring() + QStringLiteral(".unreadable");
  for (int n = 2; QFileInfo::exists(copy); ++n) {
    if (sameBytes(path.qstring(), copy))
      return OdString(copy);
    copy = path.qstring() + QStringLiteral(".unreadable.%1").arg(n);
  }
  QFile file(path.qstring());
  if (file.copy(copy))
    return OdString(copy);
  reason = OdString(file.errorString());
  return OdString();
}

OdTcPersistPtr TcFileStore::createByTag(const OdString& tag) const
{
  return OdTcTagTable::instance().createByTag(tag);
}

} // namespace tc
