// The main window driven by events: the command line runs commands and
// answers their prompts, clicks answer point prompts, Escape cancels,
// completion runs its entries, undo and redo, and drawings in tabs.
#include "app/core/HostCommandLine.h"
#include "app/core/HostCompletionRegistryImpl.h"
#include "app/gui/CommandLineWidget.h"
#include "app/gui/DrawingView.h"
#include "app/gui/GuiCommandInput.h"
#include "app/gui/PatternChoiceDialog.h"
#include "hostsdk/patterns/VerdaniCmd1.h"
#include "app/gui/RecentFiles.h"
#include "sdk/dxf/OdDxf.h"
#include "tests/app/gui/GuiTestSupport.h"

#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QTabWidget>
#include <QTest>

namespace {

using namespace guitest;

class WindowTest : public WindowFixture
{
protected:
  QLineEdit* input() { return m_window->commandLine()->inputLine(); }
  DrawingView* view() { return m_window->currentView(); }
  QString history() { return m_window->commandLine()->historyText(); }
  QString prompt() { return m_window->commandLine()->promptLabel()->text(); }

  // Types a line into the command line and presses Enter.
  std::function<void()> enter(const QString& text)
  {
    return [this, text] {
      input()->setFocus();
      QTest::keyClicks(input(), text);
      QTest::keyClick(input(), Qt::Key_Return);
    };
  }
  std::function<void()> key(Qt::Key k)
  {
    return [this, k] { QTest::keyClick(input(), k); };
  }
  std::function<void()> click(const QPointF& world)
  {
    return [this, world] {
      const QPoint at = view()->view().toScreen(world).toPoint();
      QTest::mouseMove(view(), at);
      QTest::mouseClick(view(), Qt::LeftButton, {}, at);
    };
  }
  void play(std::deque<std::function<void()>> steps)
  {
    m_player.play(std::move(steps));
    ASSERT_TRUE(waitFor([this] { return m_player.done() && !m_window->input().isCommandActive(); }))
        << history().toStdString();
    // What the window does once a command is over.
    QApplication::processEvents();
  }

  OdDbLinePtr onlyLine()
  {
    for (const OdDbObjectId& id : modelSpace(drawing())->entityIds())
      if (OdDbLinePtr l = OdDbLine::cast(id.openObject()); l.get())
        return l;
    return OdDbLinePtr();
  }
};

TEST_F(WindowTest, typedLineWithTwoPointsAndEnter_makesALine)
{
  ASSERT_EQ(entityCount(), 0u);
  play({enter("LINE"), enter("10,20"), enter("110,70"), enter("")});
  ASSERT_EQ(entityCount(), 1u);
  OdDbLinePtr line = onlyLine();
  ASSERT_TRUE(line.get());
  EXPECT_TRUE(line->startPoint().isEqualTo(OdGePoint3d(10, 20, 0)));
  EXPECT_TRUE(line->endPoint().isEqualTo(OdGePoint3d(110, 70, 0)));
  EXPECT_EQ(view()->scene().entityCount(), 1u) << "the view shows it";
  EXPECT_TRUE(history().contains("Command: LINE"));
  EXPECT_EQ(prompt(), "Command:");
}

TEST_F(WindowTest, clickedPointsAnswerPointPrompts)
{
  QString duringPrompt;
  bool wantedPoint = false;
  play({enter("LINE"), click(QPointF(30, 40)),
        [&] {
          duringPrompt = prompt();
          wantedPoint = view()->isPointWanted();
        },
        click(QPointF(130, 90)), key(Qt::Key_Return)});
  EXPECT_TRUE(wantedPoint);
  EXPECT_TRUE(duringPrompt.contains("next point")) << duringPrompt.toStdString();
  ASSERT_EQ(entityCount(), 1u);
  OdDbLinePtr line = onlyLine();
  // A click lands within a pixel of where it was aimed.
  const double pixel = 1.0 / view()->view().scale();
  EXPECT_TRUE(line->startPoint().isEqualTo(OdGePoint3d(30, 40, 0), pixel));
  EXPECT_TRUE(line->endPoint().isEqualTo(OdGePoint3d(130, 90, 0), pixel));
}

TEST_F(WindowTest, typedAndClickedPointsMix)
{
  play({enter("LINE"), enter("0,0"), click(QPointF(50, 50)), enter("@10,0"), key(Qt::Key_Return)});
  EXPECT_EQ(entityCount(), 2u);
}

TEST_F(WindowTest, escapeCancelsTheWaitingCommand)
{
  QString duringPrompt;
  play({enter("LINE"), [&] { duringPrompt = prompt(); }, key(Qt::Key_Escape)});
  EXPECT_TRUE(duringPrompt.contains("first point")) << duringPrompt.toStdString();
  EXPECT_TRUE(history().contains("*Cancel*"));
  EXPECT_EQ(entityCount(), 0u);
  EXPECT_EQ(prompt(), "Command:");
  EXPECT_FALSE(view()->isPointWanted());
}

TEST_F(WindowTest, escapeInTheViewCancelsToo)
{
  play({enter("LINE"), enter("0,0"), [this] { QTest::keyClick(view(), Qt::Key_Escape); }});
  EXPECT_EQ(entityCount(), 0u);
  EXPECT_FALSE(m_window->input().isCommandActive());
}

TEST_F(WindowTest, emptyEnterRepeatsTheLastCommand)
{
  QString again;
  play({enter("LINE"), enter("0,0"), enter("5,5"), enter(""), enter(""), [&] { again = prompt(); },
        key(Qt::Key_Escape)});
  EXPECT_TRUE(again.contains("first point")) << again.toStdString();
  EXPECT_EQ(history().count("Command: LINE"), 2);
}

TEST_F(WindowTest, upAndDownWalkWhatWasEntered)
{
  play({enter("NewDocument"), enter("CloseDocument")});
  input()->setFocus();
  QTest::keyClick(input(), Qt::Key_Up);
  EXPECT_EQ(input()->text(), "CloseDocument");
  QTest::keyClick(input(), Qt::Key_Up);
  EXPECT_EQ(input()->text(), "NewDocument");
  QTest::keyClick(input(), Qt::Key_Up);
  EXPECT_EQ(input()->text(), "NewDocument") << "stays at the oldest";
  QTest::keyClick(input(), Qt::Key_Down);
  QTest::keyClick(input(), Qt::Key_Down);
  EXPECT_EQ(input()->text(), "");
}

// A red square, so that the list's picture can be told from none.
class RedSquare : public HostEdCompletion::Pictogram
{
public:
  void draw(QPainter* device, int x, int y, int w, int h) override { device->fillRect(x, y, w, h, Qt::red); }
};

TEST_F(WindowTest, completionOffersProviderEntriesAndRunsTheChosenOne)
{
  int brick = 0, bolt = 0;
  HostEdCompletion::Provider provider = [&](const HostEdCompletion::EntryCallback& callback) {
    callback(std::make_shared<HostEdCompletion::Entry>(
        "TOOL:Brick", "A brick hatch", std::make_shared<RedSquare>(),
        std::make_shared<HostEdCompletion::CallFunction>([&] { ++brick; })));
    callback(std::make_shared<HostEdCompletion::Entry>(
        "TOOL:Bolt", "", nullptr, std::make_shared<HostEdCompletion::CallFunction>([&] { ++bolt; })));
  };
  app().completionRegistry().addProvider("test", &provider);
  input()->setFocus();
  QTest::keyClicks(input(), "TOOL:B");
  QListWidget* list = m_window->commandLine()->completionList();
  ASSERT_NE(list, nullptr);
  ASSERT_TRUE(list->isVisible());
  ASSERT_EQ(list->count(), 2);
  EXPECT_EQ(list->item(0)->text(), "TOOL:Brick (A brick hatch)");
  EXPECT_EQ(list->item(1)->text(), "TOOL:Bolt");
  const QImage picture = list->item(0)->icon().pixmap(16, 16).toImage();
  EXPECT_EQ(picture.pixelColor(8, 8), QColor(Qt::red));

  QTest::keyClick(input(), Qt::Key_Down);
  QTest::keyClick(input(), Qt::Key_Down);
  QTest::keyClick(input(), Qt::Key_Return);
  EXPECT_EQ(bolt, 1);
  EXPECT_EQ(brick, 0);
  EXPECT_FALSE(list->isVisible());
  EXPECT_TRUE(input()->text().isEmpty());

  // A tool's name without the prefix finds it too; a click chooses it.
  QTest::keyClicks(input(), "bri");
  ASSERT_EQ(list->count(), 1);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
  EXPECT_EQ(brick, 1);
  app().completionRegistry().removeProvider("test", &provider);
}

TEST_F(WindowTest, completionOffersTheHostsCommands)
{
  input()->setFocus();
  QTest::keyClicks(input(), "NewDoc");
  QListWidget* list = m_window->commandLine()->completionList();
  ASSERT_NE(list, nullptr);
  ASSERT_GE(list->count(), 1);
  EXPECT_EQ(list->item(0)->text(), "NewDocument");
  QTest::keyClick(input(), Qt::Key_Escape);
  EXPECT_FALSE(list->isVisible());
  EXPECT_EQ(input()->text(), "NewDoc") << "Escape closes the list, the text stays";
}

TEST_F(WindowTest, undoRemovesWhatTheLastCommandMadeAndRedoBringsItBack)
{
  play({enter("LINE"), enter("0,0"), enter("50,0"), enter("50,50"), enter("")});
  ASSERT_EQ(entityCount(), 2u);
  QAction* undo = m_window->action("Edit/Undo");
  QAction* redo = m_window->action("Edit/Redo");
  ASSERT_TRUE(undo && redo);
  EXPECT_TRUE(undo->isEnabled());
  EXPECT_TRUE(undo->text().contains("LINE"));
  EXPECT_FALSE(redo->isEnabled());

  undo->trigger();
  EXPECT_EQ(entityCount(), 0u) << "both segments were one command";
  EXPECT_EQ(view()->scene().entityCount(), 0u);
  EXPECT_TRUE(redo->isEnabled());
  redo->trigger();
  EXPECT_EQ(entityCount(), 2u);
  EXPECT_EQ(view()->scene().entityCount(), 2u);
}

TEST_F(WindowTest, drawingsOpenInTabsAndCloseWithThem)
{
  const QString file = m_home.filePath("plan.dxf");
  OdDbDatabasePtr plan = odDbCreateDatabase();
  addLine(modelSpace(plan), 0, 0, 10, 10);
  odDxfWriteFile(plan.get(), OdString(file));
  play({enter("OpenDocument"), enter(file)});
  ASSERT_EQ(m_window->tabs()->count(), 2);
  EXPECT_EQ(m_window->tabs()->tabText(m_window->tabs()->currentIndex()), QFileInfo(file).fileName());
  EXPECT_GT(view()->scene().entityCount(), 0u);
  EXPECT_TRUE(RecentFiles::list(app().config()).contains(QFileInfo(file).absoluteFilePath()));

  // Choosing a tab makes its drawing the current one.
  m_window->tabs()->setCurrentIndex(0);
  EXPECT_EQ(app().documents().current()->documentName(), OdString("Drawing1.dxf"));
  emit m_window->tabs()->tabCloseRequested(1);
  ASSERT_TRUE(waitFor([this] { return m_window->tabs()->count() == 1; }));
  EXPECT_EQ(app().documents().documents().size(), 1u);
}

TEST_F(WindowTest, drawingsAreNotSwitchedInTheMiddleOfACommand)
{
  play({enter("NewDocument")});
  ASSERT_EQ(m_window->tabs()->count(), 2);
  HostDocumentImpl* second = app().documents().current();
  play({enter("LINE"), [this] { m_window->tabs()->setCurrentIndex(0); }, key(Qt::Key_Escape)});
  EXPECT_EQ(app().documents().current(), second);
  EXPECT_TRUE(history().contains("before switching drawings"));
}

TEST_F(WindowTest, patternChoiceIsTheWindowsDialog)
{
  QString shown;
  onNextModal([&](QWidget* w) {
    auto* dialog = qobject_cast<PatternChoiceDialog*>(w);
    ASSERT_NE(dialog, nullptr);
    ASSERT_GT(dialog->list()->count(), 2);
    EXPECT_FALSE(dialog->list()->item(0)->icon().isNull()) << "each pattern with its picture";
    dialog->list()->setCurrentRow(2);
    shown = dialog->list()->item(2)->text();
    dialog->accept();
  });
  OdString file, name;
  OdArray<OdString> list;
  ASSERT_TRUE(hostGetHatchPatterns(kHostHatchStandard, file, list, name));
  EXPECT_EQ(name.qstring(), shown);
  EXPECT_GT(list.size(), 2u);

  onNextModal([](QWidget* w) { static_cast<PatternChoiceDialog*>(w)->reject(); });
  EXPECT_FALSE(hostGetHatchPatterns(kHostHatchStandard, file, list, name)) << "cancelled";
}

TEST_F(WindowTest, closingAChangedDrawingOffersToSave)
{
  play({enter("LINE"), enter("0,0"), enter("9,9"), enter("")});
  // Cancel keeps the window; No closes it without saving.
  onNextModal([](QWidget* w) {
    auto* box = qobject_cast<QMessageBox*>(w);
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->text().contains("Drawing1.dxf"));
    box->button(QMessageBox::Cancel)->click();
  });
  m_window->close();
  EXPECT_TRUE(m_window->isVisible());
  EXPECT_FALSE(app().exitRequested());
  onNextModal([](QWidget* w) { static_cast<QMessageBox*>(w)->button(QMessageBox::No)->click(); });
  m_window->close();
  EXPECT_FALSE(m_window->isVisible());
  EXPECT_TRUE(app().exitRequested());
}

TEST_F(WindowTest, yesSavesANewDrawingUnderTheChosenNameBeforeItsTabCloses)
{
  play({enter("NewDocument"), enter("LINE"), enter("0,0"), enter("9,9"), enter("")});
  ASSERT_EQ(m_window->tabs()->count(), 2);
  const QString file = m_home.filePath("kept.dxf");
  onNextModal([file](QWidget* w) {
    onNextModal([file](QWidget* dialog) {
      static_cast<QFileDialog*>(dialog)->selectFile(file);
      QMetaObject::invokeMethod(dialog, "accept");
    });
    static_cast<QMessageBox*>(w)->button(QMessageBox::Yes)->click();
  });
  emit m_window->tabs()->tabCloseRequested(1);
  ASSERT_TRUE(waitFor([this] { return m_window->tabs()->count() == 1; }));
  ASSERT_TRUE(QFileInfo::exists(file));
  OdDbDatabasePtr kept = odDxfReadFile(OdString(file));
  EXPECT_EQ(modelSpace(kept)->entityIds().size(), 1u);
}

TEST_F(WindowTest, unchangedAndSavedDrawingsCloseWithoutAQuestion)
{
  const QString file = m_home.filePath("saved.dxf");
  play({enter("LINE"), enter("0,0"), enter("9,9"), enter(""), enter("SaveAsDocument"), enter(file)});
  ASSERT_TRUE(QFileInfo::exists(file));
  bool asked = false;
  onNextModal([&](QWidget* w) {
    asked = true;
    static_cast<QMessageBox*>(w)->button(QMessageBox::Cancel)->click();
  });
  m_window->close();
  EXPECT_FALSE(asked);
  EXPECT_FALSE(m_window->isVisible());
}

TEST_F(WindowTest, toolPalettesEntryFollowsTheCommandsState)
{
  QAction* palettes = m_window->action("View/Tool Palettes");
  ASSERT_NE(palettes, nullptr);
  EXPECT_TRUE(palettes->isCheckable());
  EXPECT_FALSE(palettes->isChecked()) << "no palette window before the command runs";
}

} // namespace
