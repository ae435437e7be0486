// The desktop program's pattern choice for hatches: every pattern of a
// pattern file with its picture and description; a custom hatch may take
// another file. Installed into the host's pattern library while the main
// window runs, in place of the choice on the command line.
#pragma once

#include "hostsdk/ui/hostUiDialog.h"
#include "sdk/kernel/OdString.h"

class QLabel;
class QListWidget;

class PatternChoiceDialog : public hostUiDialog
{
  Q_OBJECT

public:
  // `file` as the pattern library names it (empty: its default file).
  PatternChoiceDialog(int hatchType, const OdString& file, QWidget* parent = nullptr);

  // False (with the reason shown) when the file cannot be read.
  bool showFile(const OdString& file);
  OdString file() const { return m_file; }
  OdString chosen() const;
  QListWidget* list() const { return m_list; }

  // The host's dialog function: shows the dialog over the active window.
  static bool run(int hatchType, OdString& file, OdString& name);

protected:
  void OnOK() override;

private:
  void browse();

  int m_type;
  OdString m_file;
  QLabel* m_fileLabel = nullptr;
  QListWidget* m_list = nullptr;
};
