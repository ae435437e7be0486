// File and folder dialogs.
#include "hostsdk/ui/HostUiFileDialogs.h"

#include "hostsdk/ui/HostUiCommandLine.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

QString withExtension(const QString& path, const OdString& defaultExtension)
{
  QString ext = defaultExtension.qstring();
  if (ext.startsWith(u'.'))
    ext.remove(0, 1);
  if (path.isEmpty() || ext.isEmpty() || !QFileInfo(path).suffix().isEmpty())
    return path;
  return path + u'.' + ext;
}

QString absolute(const QString& path)
{
  return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

// Asks for a name on the command line; a Windows path's "\" becomes "/".
bool askName(const OdString& title, const char* fallback, QString& name)
{
  OdString answer;
  const OdString prompt = (title.isEmpty() ? OdString(fallback) : title) + ": ";
  if (!HostUiCommandLine::ask(prompt, answer) || answer.isEmpty())
    return false;
  name = answer.qstring();
  name.replace(u'\\', u'/');
  return true;
}

} // namespace

QString hostUiQtFilter(const OdString& filter)
{
  const QStringList parts = filter.qstring().split(u'|');
  QStringList out;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString description = parts[i].trimmed();
    const QString patterns = parts[i + 1].trimmed();
    if (description.isEmpty() && patterns.isEmpty())
      break; // the "||" that ends the list
    // Qt reads patterns from the parentheses of the description, so any
    // there are replaced by the real ones, blank separated.
    description.remove(QRegularExpression(QStringLiteral("\\s*\\([^)]*\\)\\s*$")));
    QStringList list = patterns.split(u';', Qt::SkipEmptyParts);
    for (QString& p : list)
      p = p.trimmed();
    if (list.contains(QStringLiteral("*.*")))
      list.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
    out << QStringLiteral("%1 (%2)").arg(description.isEmpty() ? list.join(u' ') : description, list.join(u' '));
  }
  return out.join(QStringLiteral(";;"));
}

bool hostUiGetOpenFileName(QWidget* parent, const OdString& title, const OdString& filter,
                           const OdString& defaultExtension, const OdString& initialPath, OdString& path)
{
  QString chosen;
  if (!HostUiCommandLine::hasWindows()) {
    if (!askName(title, "File to open", chosen))
      return false;
    if (!QFileInfo(chosen).isFile())
      chosen = withExtension(chosen, defaultExtension);
    if (!QFileInfo(chosen).isFile()) {
      HostUiCommandLine::say(OdString::formatted("%s does not exist; nothing was opened.", OdString(chosen)));
      return false;
    }
  } else {
    QFileDialog dialog(parent, title.qstring(), initialPath.qstring(), hostUiQtFilter(filter));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
      return false;
    chosen = dialog.selectedFiles().first();
  }
  path = OdString(absolute(chosen));
  return true;
}

bool hostUiGetSaveFileName(QWidget* parent, const OdString& title, const OdString& filter,
                           const OdString& defaultExtension, const OdString& initialPath, bool overwritePrompt,
                           OdString& path)
{
  QString chosen;
  if (!HostUiCommandLine::hasWindows()) {
    if (!askName(title, "File to save", chosen))
      return false;
    chosen = withExtension(chosen, defaultExtension);
  } else {
    QFileDialog dialog(parent, title.qstring(), initialPath.qstring(), hostUiQtFilter(filter));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    QString ext = defaultExtension.qstring();
    if (ext.startsWith(u'.'))
      ext.remove(0, 1);
    dialog.setDefaultSuffix(ext);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !overwritePrompt);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
      return false;
    chosen = withExtension(dialog.selectedFiles().first(), defaultExtension);
  }
  path = OdString(absolute(chosen));
  return true;
}

bool hostUiBrowseForFolder(QWidget* parent, const OdString& title, const OdString& initialFolder, OdString& folder)
{
  QString chosen;
  if (!HostUiCommandLine::hasWindows()) {
    if (!askName(title, "Folder", chosen))
      return false;
    if (!QFileInfo(chosen).isDir()) {
      HostUiCommandLine::say(OdString::formatted("%s is no folder.", OdString(chosen)));
      return false;
    }
  } else {
    QFileDialog dialog(parent, title.qstring(), initialFolder.qstring());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
      return false;
    chosen = dialog.selectedFiles().first();
  }
  folder = OdString(absolute(chosen));
  return true;
}
