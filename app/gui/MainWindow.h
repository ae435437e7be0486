// Verdani's main window: a tab per open drawing with its view in the
// centre, the command line docked at the bottom, the dock areas on the
// sides for the palette set, the menus and the status bar with the
// cursor's coordinates. It starts and stops the host around itself.
#pragma once

#include "app/gui/DrawingView.h"
#include "hostsdk/core/HostEdCompletion.h"

#include <QDateTime>
#include <QMainWindow>

#include <memory>
#include <vector>

class CommandLineWidget;
class GuiCommandInput;
class HostApp;
class HostDocumentImpl;
class OdDbDatabase;
class QAction;
class QLabel;
class QMenu;
class QTabWidget;
struct GuiOptions;

class MainWindow : public QMainWindow
{
  Q_OBJECT

public:
  explicit MainWindow(HostApp& app);
  ~MainWindow() override;

  // Starts the host with this window as its main window: settings,
  // drawings, the module, the Startup list. Output goes to the command line.
  void startHost(const GuiOptions& options);
  // Closes what modules put into the window, then stops the host.
  void stopHost();

  DrawingView* currentView() const;
  CommandLineWidget* commandLine() const { return m_commandLine; }
  GuiCommandInput& input() { return *m_input; }
  QTabWidget* tabs() const { return m_tabs; }
  // A menu action by its path, "Edit/Undo" (the "&" marks left out).
  QAction* action(const QString& path) const;

  // Types a macro on the command line as a menu does: whatever waits is
  // cancelled first.
  void runMacro(const QString& macro);
  // Brings tabs, views and menus in line with the host's documents.
  void syncDocuments();
  // Closes without offering to save changed drawings (a script's end).
  void closeDiscardingChanges();

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  class DocumentListener;
  struct Page
  {
    HostDocumentImpl* document;
    OdDbDatabase* database;
    DrawingView* view;
    // The view's count of the drawing's changes when it was read or last
    // saved: with another number it has changes a close would lose.
    std::uint64_t savedAt = 0;
  };

  void buildMenus();
  void openDrawing();
  void saveDrawing(bool askName);
  void openRecent(const QString& path);
  void fillRecentMenu();
  void tabChosen(int index);
  void closeTab(int index);
  void commandFinished(const OdString& name);
  Page* pageOf(HostDocumentImpl* document);
  bool isModified(const Page& page) const;
  // Asks whether to save a changed drawing before it closes; false when
  // the user would rather keep it open (or the save failed). With
  // `mayCancel` false (the host exits already) only Yes and No are offered.
  bool askToSave(Page& page, bool mayCancel);
  // Saves through the host's commands, by name; true when the file was
  // written.
  bool saveNow(Page& page, bool askName);
  void closeDrawing(int index);
  void toolPalettesMenuShown();
  void updateEditActions();
  void undoOrRedo(bool undo);
  void documentGoes(HostDocumentImpl* document);
  int toolPalettesState() const;
  void updateTitle();
  DrawingView* makeView();
  DrawingView::InputWanted inputWanted() const;
  void promptChanged();

  HostApp& m_app;
  GuiCommandInput* m_input = nullptr;
  CommandLineWidget* m_commandLine = nullptr;
  QTabWidget* m_tabs = nullptr;
  QLabel* m_coordinates = nullptr;
  QMenu* m_recentMenu = nullptr;
  QAction* m_toolPalettes = nullptr;
  QAction* m_undo = nullptr;
  QAction* m_redo = nullptr;
  std::unique_ptr<DocumentListener> m_documentListener;
  std::vector<Page> m_pages;
  bool m_syncing = false;
  bool m_hostRunning = false;
  QDateTime m_commandStarted; // when the user's last command began
  bool m_discardChanges = false;
  // The host's commands as completion entries; registered while the host runs.
  HostEdCompletion::Provider m_commandEntries;
};
