// The recent drawings list.
#include "app/gui/RecentFiles.h"

#include "app/core/HostConfig.h"

namespace {
constexpr const char* kFolder = "RecentFiles";
} // namespace

QStringList RecentFiles::list(HostConfig* config)
{
  QStringList files;
  HostConfigNode* folder = config ? config->folder(kFolder, false) : nullptr;
  if (!folder)
    return files;
  for (int i = 1; i <= kMax; ++i) {
    CRkVariant value;
    if (folder->getValue(QStringLiteral("File%1").arg(i).toUtf8().constData(), value)) {
      const QString path = value.toString().qstring();
      if (!path.isEmpty() && !files.contains(path))
        files << path;
    }
  }
  return files;
}

void RecentFiles::add(HostConfig* config, const QString& path)
{
  if (!config || path.isEmpty())
    return;
  QStringList files = list(config);
  files.removeAll(path);
  files.prepend(path);
  write(config, files.mid(0, kMax));
}

void RecentFiles::remove(HostConfig* config, const QString& path)
{
  if (!config)
    return;
  QStringList files = list(config);
  if (files.removeAll(path))
    write(config, files);
}

void RecentFiles::write(HostConfig* config, const QStringList& files)
{
  HostConfig::Batch batch(*config);
  HostConfigNode* folder = config->folder(kFolder, true);
  for (int i = 1; i <= kMax; ++i) {
    const std::string name = QStringLiteral("File%1").arg(i).toStdString();
    if (i <= files.size())
      folder->setValue(name.c_str(), CRkVariant(OdString(files[i - 1])));
    else
      folder->deleteValue(name.c_str());
  }
}
