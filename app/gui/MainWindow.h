// Verdani's main window: a tab per open drawing with its view in the
// centre, the command line docked at the bottom, the dock areas on the
// sides for the palette set, the menus and the status bar with the
// cursor's coordinates. It starts and stops the host around itself.
#pragma once

#include "app/gui/DrawingView.h"
#include "hostsdk/core/HostEdCompletion.h"

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

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  class DocumentListener;
  struct Page
  {
    HostDocumentImpl* document;
    OdDbDatabase* database;
    DrawingView* view;
  };

  void buildMenus();
  void openDrawing();
  void saveDrawing(bool askName);
  void openRecent(const QString& path);
  void fillRecentMenu();
  void tabChosen(int index);
  void closeTab(int index);
  void commandFinished();
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
  // The host's commands as completion entries; registered while the host runs.
  HostEdCompletion::Provider m_commandEntries;
};
