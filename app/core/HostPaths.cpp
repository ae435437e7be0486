// XDG and installation folders of the reference host.
#include "app/core/HostPaths.h"

#include <QDir>
#include <QFileInfo>

namespace {

// An XDG variable counts only when it holds an absolute path; anything else
// is to be ignored, as the XDG base directory rules say.
QString xdgFolder(const char* variable, const char* fallbackBelowHome)
{
  const QString value = qEnvironmentVariable(variable);
  if (!value.isEmpty() && QDir::isAbsolutePath(value))
    return QDir::cleanPath(value);
  QString home = qEnvironmentVariable("HOME");
  if (home.isEmpty())
    home = QDir::homePath();
  return QDir::cleanPath(home + QLatin1Char('/') + QLatin1String(fallbackBelowHome));
}

} // namespace

namespace HostPaths {

QString configFolder()
{
  return xdgFolder("XDG_CONFIG_HOME", ".config") + QStringLiteral("/verdani");
}

QString configFile()
{
  return configFolder() + QStringLiteral("/config.xml");
}

QString userDataFolder()
{
  return xdgFolder("XDG_DATA_HOME", ".local/share") + QStringLiteral("/verdani");
}

QString defaultToolPaletteDir()
{
  return userDataFolder() + QStringLiteral("/ToolPalette");
}

QString programFolder()
{
  return QFileInfo(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget()).absolutePath();
}

QString installDataFolder()
{
  const QString installed = QDir::cleanPath(programFolder() + QStringLiteral("/../share/verdani"));
  if (QFileInfo(installed).isDir())
    return installed;
#ifdef VERDANI_SOURCE_DATA_DIR
  // A program run from the build tree uses the sources' data.
  return QDir::cleanPath(QStringLiteral(VERDANI_SOURCE_DATA_DIR));
#else
  return QString();
#endif
}

} // namespace HostPaths
