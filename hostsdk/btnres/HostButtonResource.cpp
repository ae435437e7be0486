// Loading the pictures of the button resource from its Qt resource file.
#include "hostsdk/btnres/HostButtonResource.h"

#include <QDir>
#include <QFileInfo>
#include <QResource>

#include <dlfcn.h>

namespace {

// Where the file's pictures appear in Qt's resource tree, away from the
// resources of the program and of other libraries.
const QString kMapRoot = QStringLiteral("/verdanibtn");

QString ownLibraryFolder()
{
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&HostButtonResource::filePath), &info) && info.dli_fname)
    return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absolutePath();
  return QString();
}

// Found and registered once for the process.
const QString& registeredFile()
{
  static const QString file = [] {
    const QString folder = ownLibraryFolder();
    for (const QString& candidate : {folder + QLatin1Char('/') + QLatin1String(HostButtonResource::kFileName),
                                     folder + QStringLiteral("/../share/verdani/") +
                                         QLatin1String(HostButtonResource::kFileName)}) {
      const QFileInfo info(candidate);
      if (info.isFile() && QResource::registerResource(info.absoluteFilePath(), kMapRoot))
        return QDir::cleanPath(info.absoluteFilePath());
    }
    return QString();
  }();
  return file;
}

int pixelSize(int sizeClass)
{
  switch (sizeClass) {
  case 2:
    return 24;
  case 3:
    return 32;
  case 4:
    return 64;
  default:
    return 16;
  }
}

} // namespace

OdString HostButtonResource::resourceKey(const OdString& name)
{
  QString key = name.qstring();
  const qsizetype underscore = key.lastIndexOf(QLatin1Char('_'));
  if (key.contains(QLatin1String("RCDATA"), Qt::CaseInsensitive) && underscore >= 0)
    key = key.mid(underscore + 1);
  return OdString(key.toLower());
}

OdString HostButtonResource::filePath()
{
  return OdString(registeredFile());
}

QImage HostButtonResource::image(const OdString& name, int sizeClass)
{
  const QString key = resourceKey(name).qstring();
  // A key is one folder of the resource; nothing may reach beside it.
  if (key.isEmpty() || key.contains(QLatin1Char('/')) || key.startsWith(QLatin1Char('.')) ||
      registeredFile().isEmpty())
    return QImage();
  return QImage(QStringLiteral(":%1/%2/%3.png").arg(kMapRoot, key).arg(pixelSize(sizeClass)));
}
