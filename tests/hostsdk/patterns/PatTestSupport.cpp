// Where the pattern tests find their files.
#include "tests/hostsdk/patterns/PatTestSupport.h"

#include <QDir>
#include <QFileInfo>

namespace PatTest {

QString externalFolder()
{
  const QString folder = QStringLiteral(VERDANI_EXTERNAL_DATA);
  return QFileInfo(folder).isDir() ? folder : QString();
}

QString externalFile(const QString& relative)
{
  const QString folder = externalFolder();
  return folder.isEmpty() ? QString() : QDir(folder).filePath(relative);
}

QString defaultPatternFile()
{
  return QStringLiteral(VERDANI_DATA_DIR "/patterns/verdaniiso.pat");
}

} // namespace PatTest
