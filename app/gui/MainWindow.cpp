// The main window.
#include "app/gui/MainWindow.h"
#include "app/gui/PatternChoiceDialog.h"
#include "hostsdk/patterns/VerdaniCmd1.h"

#include "app/core/HostApp.h"
#include "app/core/HostCommandLine.h"
#include "app/core/HostCommandTable.h"
#include "hostsdk/core/CmdInterfaces.h"
#include "app/core/HostCompletionRegistryImpl.h"
#include "app/core/HostDocumentManager.h"
#include "app/core/HostEditorEventsImpl.h"
#include "app/core/HostServicesImpl.h"
#include "app/gui/CommandLineWidget.h"
#include "app/gui/DrawingView.h"
#include "app/gui/GuiCommandInput.h"
#include "app/gui/GuiOptions.h"
#include "app/gui/RecentFiles.h"
#include "hostsdk/core/HostCore.h"
#include "hostsdk/ui/HostUiFileDialogs.h"
#include "hostsdk/ui/HostUiMessageBox.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>

#include "hostsdk/core/HostDocManagerReactor.h"

#include <exception>

namespace {

constexpr const char* kDrawingFilter = "Drawing (*.dxf)|*.dxf|All files (*.*)|*.*||";

// Message boxes of the host shown over whatever window is active.
int windowMessageBox(const OdString& text, const OdString& caption, unsigned style)
{
  return hostUiShowMessageBox(QApplication::activeWindow(), text, caption, style);
}

QString plain(QString text)
{
  return text.remove(u'&');
}

} // namespace

// Follows the host's documents: tabs come when documents do, and a tab
// goes before its drawing does.
class MainWindow::DocumentListener : public HostDocManagerReactor
{
public:
  explicit DocumentListener(MainWindow& window) : m_window(window) {}
  void documentCreated(HostDocument*) override { later(); }
  void documentActivated(HostDocument*) override { later(); }
  void documentToBeDestroyed(HostDocument* document) override
  {
    m_window.documentGoes(static_cast<HostDocumentImpl*>(document));
    later();
  }

private:
  void later() { QTimer::singleShot(0, &m_window, &MainWindow::syncDocuments); }
  MainWindow& m_window;
};

MainWindow::MainWindow(HostApp& app) : m_app(app), m_documentListener(std::make_unique<DocumentListener>(*this))
{
  setObjectName(QStringLiteral("VerdaniMainWindow"));
  setWindowTitle(QStringLiteral("Verdani"));
  m_input = new GuiCommandInput(app, this);

  m_tabs = new QTabWidget(this);
  m_tabs->setTabsClosable(true);
  m_tabs->setDocumentMode(true);
  setCentralWidget(m_tabs);

  m_commandLine = new CommandLineWidget(*m_input, app.completionRegistry(), this);
  auto* dock = new QDockWidget(tr("Command Line"), this);
  dock->setObjectName(QStringLiteral("CommandLine"));
  dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
  dock->setAllowedAreas(Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea);
  dock->setWidget(m_commandLine);
  addDockWidget(Qt::BottomDockWidgetArea, dock);
  // The palette set docks at the sides; the command line spans below them.
  setCorner(Qt::BottomLeftCorner, Qt::BottomDockWidgetArea);
  setCorner(Qt::BottomRightCorner, Qt::BottomDockWidgetArea);
  setDockOptions(AnimatedDocks | AllowNestedDocks | AllowTabbedDocks);
  resizeDocks({dock}, {150}, Qt::Vertical);

  m_coordinates = new QLabel(this);
  m_coordinates->setMinimumWidth(220);
  statusBar()->addPermanentWidget(m_coordinates);
  buildMenus();

  connect(m_tabs, &QTabWidget::currentChanged, this, &MainWindow::tabChosen);
  connect(m_tabs, &QTabWidget::tabCloseRequested, this, &MainWindow::closeTab);
  connect(m_input, &GuiCommandInput::commandFinished, this, &MainWindow::commandFinished);
  connect(m_input, &GuiCommandInput::commandStarted, this,
          [this] { m_commandStarted = QDateTime::currentDateTime().addSecs(-1); });
  connect(m_input, &GuiCommandInput::waitingChanged, this, &MainWindow::promptChanged);
  connect(m_commandLine, &CommandLineWidget::escapeWithNothingToCancel, this, [this] {
    if (DrawingView* view = currentView())
      if (!view->cancelViewAction())
        view->clearSelection();
  });

  m_commandEntries = [this](const HostEdCompletion::EntryCallback& callback) {
    for (const OdString& group : HostCommandTable::instance().groups()) {
      for (const HostCommandPtr& command : HostCommandTable::instance().commandsInGroup(group)) {
        const OdString name = command->globalName;
        // Commands that modules run for themselves are not offered.
        if (name.qstring().startsWith(QLatin1String("__")))
          continue;
        auto action = std::make_shared<HostEdCompletion::CallFunction>([this, name] { runMacro("^C^C" + name.qstring()); });
        callback(std::make_shared<HostEdCompletion::Entry>(name, OdString(), nullptr, action));
      }
    }
  };
}

MainWindow::~MainWindow()
{
  if (m_hostRunning)
    stopHost();
}

void MainWindow::buildMenus()
{
  QMenu* file = menuBar()->addMenu(tr("&File"));
  file->addAction(tr("&New"), QKeySequence::New, this, [this] { runMacro("^C^CNewDocument"); });
  file->addAction(tr("&Open..."), QKeySequence::Open, this, [this] { openDrawing(); });
  file->addAction(tr("&Save"), QKeySequence::Save, this, [this] { saveDrawing(false); });
  file->addAction(tr("Save &As..."), QKeySequence::SaveAs, this, [this] { saveDrawing(true); });
  file->addAction(tr("&Close"), QKeySequence::Close, this, [this] { closeDrawing(m_tabs->currentIndex()); });
  file->addSeparator();
  m_recentMenu = file->addMenu(tr("&Recent Drawings"));
  connect(m_recentMenu, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
  file->addSeparator();
  file->addAction(tr("E&xit"), QKeySequence::Quit, this, [this] { close(); });

  QMenu* edit = menuBar()->addMenu(tr("&Edit"));
  m_undo = edit->addAction(tr("&Undo"), QKeySequence::Undo, this, [this] { undoOrRedo(true); });
  m_redo = edit->addAction(tr("&Redo"), QKeySequence::Redo, this, [this] { undoOrRedo(false); });
  m_undo->setObjectName(QStringLiteral("Undo"));
  m_redo->setObjectName(QStringLiteral("Redo"));
  connect(edit, &QMenu::aboutToShow, this, &MainWindow::updateEditActions);

  QMenu* view = menuBar()->addMenu(tr("&View"));
  view->addAction(tr("Zoom &Extents"), this, [this] {
    if (DrawingView* v = currentView())
      v->zoomExtents();
  });
  view->addAction(tr("Zoom &Window"), this, [this] {
    if (DrawingView* v = currentView()) {
      v->startZoomWindow();
      v->setFocus();
    }
  });
  view->addSeparator();
  m_toolPalettes = view->addAction(tr("&Tool Palettes"));
  m_toolPalettes->setCheckable(true);
  m_toolPalettes->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_3));
  connect(m_toolPalettes, &QAction::triggered, this, [this] {
    runMacro("^C^CToolPalettes");
    m_toolPalettes->setChecked(toolPalettesState() == 3);
  });
  connect(view, &QMenu::aboutToShow, this, &MainWindow::toolPalettesMenuShown);
  view->addSeparator();
  QAction* snap = view->addAction(tr("Object &Snap"));
  snap->setCheckable(true);
  snap->setChecked(true);
  snap->setShortcut(QKeySequence(Qt::Key_F3));
  connect(snap, &QAction::toggled, this, [this](bool on) {
    for (const Page& page : m_pages)
      page.view->setSnapEnabled(on);
  });
  QAction* smooth = view->addAction(tr("Smooth &Lines"));
  smooth->setCheckable(true);
  smooth->setChecked(true);
  connect(smooth, &QAction::toggled, this, [this](bool on) {
    for (const Page& page : m_pages)
      page.view->setAntialiased(on);
  });
}

QAction* MainWindow::action(const QString& path) const
{
  const QStringList parts = path.split(u'/');
  QList<QAction*> level = menuBar()->actions();
  QAction* found = nullptr;
  for (const QString& part : parts) {
    found = nullptr;
    // By the text, or by the name of an entry whose text changes ("Undo
    // LINE" is "Undo").
    for (QAction* a : level)
      if (plain(a->text()).compare(part, Qt::CaseInsensitive) == 0 || a->objectName().compare(part, Qt::CaseInsensitive) == 0)
        found = a;
    if (!found)
      return nullptr;
    level = found->menu() ? found->menu()->actions() : QList<QAction*>();
  }
  return found;
}

void MainWindow::startHost(const GuiOptions& options)
{
  m_app.setOutputSink([this](const OdString& text) { m_commandLine->appendOutput(text); });
  m_app.services().setMainWindow(this);
  hostSetMessageBoxHandler(&windowMessageBox);
  hostSetHatchPatternDialog(&PatternChoiceDialog::run);
  HostStartOptions start;
  start.settings = options.settings;
  start.modules = {OdString("toolpalettes"), OdString("tpcommands")};
  start.messageBoxesOnCommandLine = false;
  if (!options.drawings.empty())
    start.drawing = options.drawings.front();
  m_input->attach();
  m_app.editorEvents().addDocManagerReactor(m_documentListener.get());
  m_app.start(start);
  m_hostRunning = true;
  m_app.completionRegistry().addProvider("commands", &m_commandEntries);
  for (std::size_t i = 1; i < options.drawings.size(); ++i) {
    OdString error;
    if (!m_app.documents().openDocument(options.drawings[i], error))
      m_app.output().printLine(OdString::formatted("Cannot open the drawing: %s.", error));
  }
  syncDocuments();
  m_commandLine->focusInput();
}

void MainWindow::stopHost()
{
  if (!m_hostRunning)
    return;
  m_hostRunning = false;
  if (!m_app.exitRequested())
    m_app.requestExit();
  m_input->endWaits();
  m_app.completionRegistry().removeProvider("commands", &m_commandEntries);
  // Windows that modules docked here go while their modules still run.
  for (QDockWidget* dock : findChildren<QDockWidget*>())
    if (dock->widget() != m_commandLine)
      delete dock;
  m_syncing = true;
  while (m_tabs->count())
    delete m_tabs->widget(0);
  m_pages.clear();
  m_syncing = false;
  m_input->detach();
  m_app.editorEvents().removeDocManagerReactor(m_documentListener.get());
  m_app.shutdown();
  m_app.setOutputSink(nullptr);
  m_app.services().setMainWindow(nullptr);
  hostSetMessageBoxHandler(nullptr);
  hostSetHatchPatternDialog(nullptr);
}

DrawingView* MainWindow::currentView() const
{
  return qobject_cast<DrawingView*>(m_tabs->currentWidget());
}

DrawingView* MainWindow::makeView()
{
  auto* view = new DrawingView(m_tabs);
  view->setInputWanted(inputWanted());
  connect(view, &DrawingView::pointPicked, this, [this](const QPointF& p) { m_input->submitPoint(p); });
  connect(view, &DrawingView::entityPicked, this, [this](const OdDbObjectId& id) { m_input->submitEntity(id); });
  connect(view, &DrawingView::cancelRequested, this, [this] { m_input->cancel(); });
  connect(view, &DrawingView::cursorMoved, this, [this](const QPointF& p) {
    m_coordinates->setText(QStringLiteral("%1, %2").arg(p.x(), 0, 'f', 4).arg(p.y(), 0, 'f', 4));
  });
  connect(view, &DrawingView::keyTyped, this, [this](QKeyEvent* event) {
    // Typing over the drawing goes to the command line.
    m_commandLine->focusInput();
    QKeyEvent copy(event->type(), event->key(), event->modifiers(), event->text());
    QApplication::sendEvent(m_commandLine->inputLine(), &copy);
  });
  return view;
}

DrawingView::InputWanted MainWindow::inputWanted() const
{
  DrawingView::InputWanted wanted;
  if (!m_input->isWaiting())
    return wanted;
  const HostPrompt& prompt = m_input->prompt();
  wanted.point = prompt.takesPoint();
  wanted.entity = prompt.takesEntity();
  if (prompt.hasBasePoint)
    wanted.basePoint = QPointF(prompt.basePoint.x, prompt.basePoint.y);
  return wanted;
}

void MainWindow::promptChanged()
{
  const DrawingView::InputWanted wanted = inputWanted();
  for (const Page& page : m_pages)
    page.view->setInputWanted(wanted);
  // What a command drew so far shows while it asks for more.
  if (DrawingView* view = currentView())
    view->syncWithDrawing();
}

void MainWindow::runMacro(const QString& macro)
{
  QString text = macro;
  // With nothing to cancel, the cancels would only print.
  if (!m_input->isCommandActive())
    while (text.startsWith(QLatin1String("^C"), Qt::CaseInsensitive))
      text.remove(0, 2);
  m_input->submit(OdString(text));
}

void MainWindow::syncDocuments()
{
  if (m_syncing || !m_hostRunning)
    return;
  m_syncing = true;
  const std::vector<HostDocumentImpl*> documents = m_app.documents().documents();
  auto isOpen = [&](const Page& page) {
    return std::find(documents.begin(), documents.end(), page.document) != documents.end() &&
           page.document->database() == page.database;
  };
  for (std::size_t i = 0; i < m_pages.size();) {
    if (isOpen(m_pages[i])) {
      ++i;
      continue;
    }
    delete m_pages[i].view;
    m_pages.erase(m_pages.begin() + std::ptrdiff_t(i));
  }
  for (HostDocumentImpl* document : documents) {
    const bool shown = std::any_of(m_pages.begin(), m_pages.end(), [&](const Page& p) { return p.document == document; });
    if (shown)
      continue;
    DrawingView* view = makeView();
    m_tabs->addTab(view, document->documentName().qstring());
    view->setDatabase(document->database());
    m_pages.push_back(Page{document, document->database(), view});
  }
  for (const Page& page : m_pages) {
    const int index = m_tabs->indexOf(page.view);
    m_tabs->setTabText(index, page.document->documentName().qstring());
    m_tabs->setTabToolTip(index, page.document->filePath().qstring());
    if (!page.document->filePath().isEmpty())
      RecentFiles::add(m_app.config(), page.document->filePath().qstring());
    if (page.document == m_app.documents().current()) {
      m_tabs->setCurrentIndex(index);
      page.view->syncWithDrawing();
    }
  }
  m_syncing = false;
  m_toolPalettes->setChecked(toolPalettesState() == 3);
  updateEditActions();
  updateTitle();
}

void MainWindow::documentGoes(HostDocumentImpl* document)
{
  for (auto it = m_pages.begin(); it != m_pages.end(); ++it) {
    if (it->document != document)
      continue;
    m_syncing = true;
    delete it->view;
    m_pages.erase(it);
    m_syncing = false;
    return;
  }
}

void MainWindow::updateEditActions()
{
  HostDocumentImpl* document = m_hostRunning ? m_app.documents().current() : nullptr;
  const bool canUndo = document && document->canUndo(), canRedo = document && document->canRedo();
  m_undo->setEnabled(canUndo);
  m_redo->setEnabled(canRedo);
  const OdString undoName = canUndo ? document->undoJournal().undoName() : OdString();
  const OdString redoName = canRedo ? document->undoJournal().redoName() : OdString();
  m_undo->setText(undoName.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(undoName.qstring()));
  m_redo->setText(redoName.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(redoName.qstring()));
}

void MainWindow::undoOrRedo(bool undo)
{
  HostDocumentImpl* document = m_app.documents().current();
  if (!document)
    return;
  // In the middle of a command the command goes first, as typing U does.
  if (m_input->isCommandActive()) {
    runMacro(undo ? "^C^CU" : "^C^CREDO");
    return;
  }
  if (!(undo ? document->undo() : document->redo()))
    m_app.output().printLine(undo ? "Nothing to undo." : "Nothing to redo.");
  syncDocuments();
}

void MainWindow::updateTitle()
{
  HostDocumentImpl* document = m_hostRunning ? m_app.documents().current() : nullptr;
  setWindowTitle(document ? QStringLiteral("Verdani - %1").arg(document->documentName().qstring())
                          : QStringLiteral("Verdani"));
}

void MainWindow::tabChosen(int index)
{
  if (m_syncing || index < 0)
    return;
  DrawingView* view = qobject_cast<DrawingView*>(m_tabs->widget(index));
  for (const Page& page : m_pages) {
    if (page.view != view || page.document == m_app.documents().current())
      continue;
    if (m_input->isCommandActive()) {
      // A drawing is switched between commands, not in the middle of one.
      m_app.output().printLine("Finish or cancel the running command before switching drawings.");
      QTimer::singleShot(0, this, &MainWindow::syncDocuments);
      return;
    }
    m_app.documents().makeCurrent(page.document);
    page.view->syncWithDrawing();
  }
  updateTitle();
}

void MainWindow::closeTab(int index)
{
  closeDrawing(index);
}

void MainWindow::closeDrawing(int index)
{
  DrawingView* view = qobject_cast<DrawingView*>(m_tabs->widget(index));
  for (Page& page : m_pages) {
    if (page.view != view)
      continue;
    if (m_input->isCommandActive()) {
      m_app.output().printLine("Finish or cancel the running command before closing a drawing.");
      return;
    }
    if (!askToSave(page, true))
      return;
    m_app.documents().makeCurrent(page.document);
    runMacro("CloseDocument");
    return;
  }
}

MainWindow::Page* MainWindow::pageOf(HostDocumentImpl* document)
{
  for (Page& page : m_pages)
    if (page.document == document)
      return &page;
  return nullptr;
}

bool MainWindow::isModified(const Page& page) const
{
  return page.view->changeCount() != page.savedAt;
}

bool MainWindow::askToSave(Page& page, bool mayCancel)
{
  if (!isModified(page))
    return true;
  const int answer = hostUiShowMessageBox(
      this, OdString(tr("Save the changes to %1?").arg(page.document->documentName().qstring())), "Verdani",
      (mayCancel ? 3 : 4) | 0x20);
  if (answer == kHostIdNo)
    return true;
  if (answer != kHostIdYes)
    return false;
  return saveNow(page, page.document->filePath().isEmpty());
}

bool MainWindow::saveNow(Page& page, bool askName)
{
  OdString path = page.document->filePath();
  if (askName && !hostUiGetSaveFileName(this, tr("Save Drawing As"), kDrawingFilter, "dxf",
                                        path.isEmpty() ? page.document->documentName() : path, true, path))
    return false;
  HostDocumentImpl* current = m_app.documents().current();
  m_app.documents().makeCurrent(page.document);
  CRkPtr<IMemParam> parameters = CRkPtr<IMemParam>::attach(new_MemParam());
  parameters->setValue("FileName", CRkVariant(path));
  const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
  // By name, not typed: the host may be exiting, when typed input no
  // longer runs.
  m_app.commandLine().runCommandByName(askName ? "SaveAsDocument" : "SaveDocument", parameters.get());
  m_app.documents().makeCurrent(current);
  const QFileInfo written(page.document->filePath().qstring());
  const bool saved = written.exists() && written.lastModified() >= before;
  if (saved)
    page.savedAt = page.view->changeCount();
  return saved;
}

void MainWindow::commandFinished(const OdString& name)
{
  // A save of the current drawing that wrote its file marks it unchanged.
  if (name.iCompare("SaveDocument") == 0 || name.iCompare("SaveAsDocument") == 0) {
    if (Page* page = pageOf(m_app.documents().current())) {
      const QFileInfo written(page->document->filePath().qstring());
      if (written.exists() && written.lastModified() >= m_commandStarted)
        page->savedAt = page->view->changeCount();
    }
  }
  // Once the command processor is done with it (its undo step closes after
  // the events that end it).
  if (m_app.exitRequested())
    QTimer::singleShot(0, this, &QWidget::close);
  else
    QTimer::singleShot(0, this, &MainWindow::syncDocuments);
}

void MainWindow::openDrawing()
{
  HostDocumentImpl* document = m_app.documents().current();
  const QString folder =
      document && !document->filePath().isEmpty() ? QFileInfo(document->filePath().qstring()).absolutePath() : QString();
  OdString path;
  if (hostUiGetOpenFileName(this, tr("Open Drawing"), kDrawingFilter, "dxf", OdString(folder), path))
    runMacro("^C^COpenDocument\n" + path.qstring());
}

void MainWindow::saveDrawing(bool askName)
{
  HostDocumentImpl* document = m_app.documents().current();
  if (!document)
    return;
  if (!askName && !document->filePath().isEmpty()) {
    runMacro("^C^CSaveDocument");
    return;
  }
  const OdString initial = document->filePath().isEmpty() ? document->documentName() : document->filePath();
  OdString path;
  if (hostUiGetSaveFileName(this, tr("Save Drawing As"), kDrawingFilter, "dxf", initial, true, path))
    runMacro("^C^CSaveAsDocument\n" + path.qstring());
}

void MainWindow::fillRecentMenu()
{
  m_recentMenu->clear();
  const QStringList files = RecentFiles::list(m_app.config());
  if (files.isEmpty()) {
    m_recentMenu->addAction(tr("(none)"))->setEnabled(false);
    return;
  }
  int n = 0;
  for (const QString& path : files)
    m_recentMenu->addAction(QStringLiteral("&%1 %2").arg(++n).arg(QFileInfo(path).fileName()), this,
                            [this, path] { openRecent(path); })
        ->setToolTip(path);
}

void MainWindow::openRecent(const QString& path)
{
  if (!QFileInfo(path).isFile()) {
    RecentFiles::remove(m_app.config(), path);
    hostUiShowMessageBox(this, OdString(tr("%1 no longer exists; it is taken off the list of recent drawings.").arg(path)),
                         "Verdani", 48);
    return;
  }
  runMacro("^C^COpenDocument\n" + path);
}

int MainWindow::toolPalettesState() const
{
  const HostCommandPtr command = HostCommandTable::instance().find(OdString("ToolPalettes"));
  if (!command || command->kind != HostCommand::kClass || !command->creator)
    return 0;
  try {
    ICmdProcess* made = nullptr;
    if (!command->creator(&made, nullptr) || !made)
      return 0;
    CRkPtr<ICmdProcess> process = CRkPtr<ICmdProcess>::attach(made);
    return process->getState();
  } catch (...) {
    return 0;
  }
}

void MainWindow::toolPalettesMenuShown()
{
  const int state = toolPalettesState();
  m_toolPalettes->setEnabled(state != 0);
  m_toolPalettes->setChecked(state == 3);
}

void MainWindow::closeDiscardingChanges()
{
  m_discardChanges = true;
  close();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
  if (m_input->isCommandActive()) {
    // The waiting command is cancelled first (or, when the host exits
    // already, ends as cancelled); the window closes after.
    if (m_app.exitRequested())
      m_input->endWaits();
    else
      runMacro("^C^C");
    event->ignore();
    QTimer::singleShot(0, this, &QWidget::close);
    return;
  }
  // Changed drawings are offered a save; once the host exits (the Exit
  // command), there is no way back, and only Yes or No are asked.
  const bool mayCancel = !m_app.exitRequested();
  for (Page& page : m_pages) {
    if (m_discardChanges)
      break;
    if (!askToSave(page, mayCancel)) {
      event->ignore();
      return;
    }
  }
  if (!m_app.exitRequested())
    m_app.requestExit();
  event->accept();
}
