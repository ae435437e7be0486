// Pattern files on disk: search folders, the setting of the custom file,
// and a cache of parsed files.
#include "hostsdk/patterns/PatLibrary.h"

#include "hostsdk/core/HostCore.h"
#include "hostsdk/patterns/PatHost.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <dlfcn.h>

#include <map>

namespace {

struct CachedFile
{
  QDateTime modified;
  qint64 size = -1;
  std::shared_ptr<const PatFile> file;
  OdString error;
};

// Host libraries run on the host's main thread only.
std::map<QString, CachedFile>& cache()
{
  static std::map<QString, CachedFile> files;
  return files;
}

QString ownLibraryFolder()
{
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&PatLibrary::dataFolder), &info) && info.dli_fname)
    return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absolutePath();
  return QString();
}

// Paths written on Windows arrive with backslashes.
QString slashed(const OdString& path)
{
  QString text = path.qstring().trimmed();
  text.replace(QLatin1Char('\\'), QLatin1Char('/'));
  return text;
}

OdString userPatternFolder()
{
  auto interior = CRkPtr<IAppInterior>::query(patHostApp().get());
  if (!interior)
    return OdString();
  const OdString folder = interior->userDataFolder();
  return folder.isEmpty() ? OdString() : folder + "/patterns";
}

} // namespace

OdString PatLibrary::dataFolder()
{
  const QString installed = QDir::cleanPath(ownLibraryFolder() + QStringLiteral("/../share/verdani"));
  if (QFileInfo(installed).isDir())
    return OdString(installed);
#ifdef VERDANI_SOURCE_DATA_DIR
  return OdString(QDir::cleanPath(QStringLiteral(VERDANI_SOURCE_DATA_DIR)));
#else
  return OdString();
#endif
}

std::vector<OdString> PatLibrary::searchFolders()
{
  std::vector<OdString> folders;
  const OdString user = userPatternFolder();
  if (!user.isEmpty())
    folders.push_back(user);
  const OdString data = dataFolder();
  if (!data.isEmpty())
    folders.push_back(data + "/patterns");
  return folders;
}

OdString PatLibrary::findFile(const OdString& file)
{
  const QString path = file.isEmpty() ? QString::fromLatin1(kDefaultFileName) : slashed(file);
  if (QDir::isAbsolutePath(path) && QFileInfo(path).isFile())
    return OdString(QDir::cleanPath(path));
  // A relative path is looked for as it stands below each folder first,
  // then by its name alone.
  const QString name = QFileInfo(path).fileName();
  for (const QString& candidate : {path, name}) {
    if (candidate.isEmpty() || QDir::isAbsolutePath(candidate))
      continue;
    for (const OdString& folder : searchFolders()) {
      const QFileInfo info(QDir(folder.qstring()).filePath(candidate));
      if (info.isFile())
        return OdString(info.absoluteFilePath());
    }
  }
  return OdString();
}

OdString PatLibrary::customPatternFile()
{
  auto profile = CRkPtr<IProfile>::query(patHostApp().get());
  if (!profile)
    return OdString();
  CRkPtr<IConfigParam> param;
  if (!profile->getParam(kSettingsFolder, kCustomFileValue, false, param.put()) || !param)
    return OdString();
  CRkVariant value;
  if (!param->getValue(value))
    return OdString();
  return OdString(slashed(value.toString()));
}

std::shared_ptr<const PatFile> PatLibrary::loadFile(const OdString& file, OdString* error)
{
  const OdString path = findFile(file);
  if (path.isEmpty()) {
    if (error) {
      QStringList folders;
      for (const OdString& folder : searchFolders())
        folders << folder.qstring();
      *error = OdString::formatted(Supp_Translate("Cannot find the pattern file %s (looked in: %s)."),
                                   file.isEmpty() ? OdString(kDefaultFileName) : file, folders.join(QStringLiteral(", ")));
    }
    return nullptr;
  }
  const QFileInfo info(path.qstring());
  CachedFile& entry = cache()[path.qstring()];
  if (entry.modified != info.lastModified() || entry.size != info.size()) {
    auto parsed = std::make_shared<PatFile>();
    entry.modified = info.lastModified();
    entry.size = info.size();
    entry.error = OdString();
    entry.file = parsed->load(path, &entry.error) ? std::move(parsed) : nullptr;
  }
  if (!entry.file && error)
    *error = entry.error;
  return entry.file;
}

bool PatLibrary::findPattern(const OdString& name, const OdString& file, PatPattern& out, OdString* foundIn,
                             OdString* error)
{
  // Each candidate file, and whether its absence is worth telling.
  std::vector<std::pair<OdString, bool>> files;
  if (!file.isEmpty()) {
    files.emplace_back(file, true);
  } else {
    files.emplace_back(OdString(kDefaultFileName), true);
    const OdString custom = customPatternFile();
    if (!custom.isEmpty())
      files.emplace_back(custom, true);
    // A pattern in a file of its own, as CAD programs keep custom patterns.
    if (!name.isEmpty() && name.find(u'/') < 0 && name.find(u'\\') < 0) {
      files.emplace_back(name + ".pat", false);
      files.emplace_back(OdString(name).makeLower() + ".pat", false);
    }
  }
  OdString firstError;
  for (const auto& [candidate, required] : files) {
    if (!required && findFile(candidate).isEmpty())
      continue;
    OdString problem;
    if (auto parsed = loadFile(candidate, &problem)) {
      if (const PatPattern* pattern = parsed->find(name)) {
        out = *pattern;
        if (foundIn)
          *foundIn = parsed->path();
        if (error)
          *error = OdString();
        return true;
      }
    } else if (firstError.isEmpty()) {
      firstError = problem;
    }
  }
  if (error)
    *error = firstError;
  return false;
}
