// The command line at the bottom of the main window: the history of what
// the command line printed, the prompt of the waiting command, and the
// input line. Enter runs what is typed (an empty Enter repeats the last
// command), Escape cancels, Up and Down walk what was entered before, and
// while a command name is typed a list offers every entry of the host's
// completion sources, with its picture; choosing one runs it.
#pragma once

#include "hostsdk/core/HostEdCompletion.h"

#include <QStringList>
#include <QWidget>

#include <vector>

class GuiCommandInput;
class HostCompletionRegistryImpl;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;

class CommandLineWidget : public QWidget
{
  Q_OBJECT

public:
  CommandLineWidget(GuiCommandInput& input, HostCompletionRegistryImpl& completion, QWidget* parent = nullptr);
  ~CommandLineWidget() override;

  // What the host printed; pieces of lines come as they are printed.
  void appendOutput(const OdString& text);
  QString historyText() const;

  QLineEdit* inputLine() const { return m_line; }
  QLabel* promptLabel() const { return m_prompt; }
  QListWidget* completionList() const { return m_list; }
  void focusInput();

  // Entries offered for a text, best first: those whose text (or the part
  // after its "PREFIX:") starts with it, then those that contain it.
  static std::vector<HostEdCompletion::EntryPtr> matching(const std::vector<HostEdCompletion::EntryPtr>& entries,
                                                          const QString& typed, std::size_t limit);

signals:
  // Escape with nothing to cancel: the window drops the selection.
  void escapeWithNothingToCancel();

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void onReturn();
  void updateCompletion();
  void hideCompletion();
  void choose(int row);
  void showPrompt();
  void walkHistory(int step);
  void placeList();

  GuiCommandInput& m_input;
  HostCompletionRegistryImpl& m_registry;
  QPlainTextEdit* m_history = nullptr;
  QLabel* m_prompt = nullptr;
  QLineEdit* m_line = nullptr;
  QListWidget* m_list = nullptr; // floats over the window, above the input line
  std::vector<HostEdCompletion::EntryPtr> m_shown;
  QStringList m_entered; // lines entered, oldest first
  int m_walk = -1;       // where Up and Down are in m_entered; -1: at the end
};
