// The kit's windows: the dockable pane, the dialog frame and the splitter.
#include "hostsdk/ui/hostUiColoredSplitter.h"
#include "hostsdk/ui/hostUiDialog.h"
#include "hostsdk/ui/hostUiPaletteSet.h"
#include "tests/WidgetTestEnvironment.h"

#include <QLabel>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

class RecordingPane : public hostUiPaletteSet
{
public:
  int created = 0, closeButton = 0;
  bool refuse = false;
  QSize lastSize;

protected:
  bool OnCreate() override
  {
    ++created;
    SetContent(new QLabel("content"));
    return !refuse;
  }
  void OnPressCloseButton() override { ++closeButton; }
  void OnSize(int w, int h) override { lastSize = QSize(w, h); }
};

TEST(PaletteSet, create_docksIntoTheMainWindowAndShows)
{
  QMainWindow main;
  main.setCentralWidget(new QLabel("drawing"));
  main.resize(800, 600);
  main.show();
  auto* pane = new RecordingPane;
  ASSERT_TRUE(pane->Create("Tool Palettes Manager", hostUiPaletteSet::kStyleChild | hostUiPaletteSet::kStyleVisible,
                           QRect(), &main, 46));
  EXPECT_EQ(pane->created, 1);
  EXPECT_EQ(main.dockWidgetArea(pane), Qt::RightDockWidgetArea);
  EXPECT_EQ(pane->windowTitle(), "Tool Palettes Manager");
  EXPECT_TRUE(pane->IsPaneVisible());
  EXPECT_FALSE(pane->Create("again", 0, QRect(), &main, 46)) << "a pane is created once";
}

TEST(PaletteSet, create_withoutParentOrRefusedFails)
{
  RecordingPane orphan;
  EXPECT_FALSE(orphan.Create("x", hostUiPaletteSet::kStyleVisible, QRect(), nullptr, 1));
  QMainWindow main;
  auto* refused = new RecordingPane;
  refused->refuse = true;
  EXPECT_FALSE(refused->Create("x", hostUiPaletteSet::kStyleVisible, QRect(), &main, 1));
  EXPECT_FALSE(refused->IsPaneVisible());
}

struct DockingRow
{
  unsigned alignment;
  Qt::DockWidgetAreas areas;
  friend void PrintTo(const DockingRow& r, std::ostream* os) { *os << "alignment " << std::hex << r.alignment; }
};

class PaletteSetDocking : public ::testing::TestWithParam<DockingRow>
{
};

TEST_P(PaletteSetDocking, enableDocking_mapsSidesToAreas)
{
  QMainWindow main;
  auto* pane = new RecordingPane;
  ASSERT_TRUE(pane->Create("p", 0, QRect(), &main, 2));
  pane->EnableDocking(GetParam().alignment);
  EXPECT_EQ(pane->allowedAreas(), GetParam().areas);
}

INSTANTIATE_TEST_SUITE_P(
    Sides, PaletteSetDocking,
    ::testing::Values(DockingRow{hostUiPaletteSet::kAlignAny, Qt::AllDockWidgetAreas},
                      DockingRow{hostUiPaletteSet::kAlignLeft, Qt::LeftDockWidgetArea},
                      DockingRow{hostUiPaletteSet::kAlignLeft | hostUiPaletteSet::kAlignRight,
                                 Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea},
                      DockingRow{hostUiPaletteSet::kAlignTop | hostUiPaletteSet::kAlignBottom,
                                 Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea}));

TEST(PaletteSet, closeButton_isReportedButHidingIsNot)
{
  QMainWindow main;
  main.show();
  auto* pane = new RecordingPane;
  ASSERT_TRUE(pane->Create("p", hostUiPaletteSet::kStyleVisible, QRect(), &main, 3));
  QSignalSpy closed(pane, &hostUiPaletteSet::paneClosedByUser);
  pane->ShowPane(false);
  pane->ShowPane(true);
  EXPECT_EQ(closed.count(), 0);
  EXPECT_EQ(pane->closeButton, 0);
  pane->close(); // what the title bar's button does
  EXPECT_EQ(closed.count(), 1);
  EXPECT_EQ(pane->closeButton, 1);
  EXPECT_FALSE(pane->IsPaneVisible());
}

TEST(PaletteSet, floatsAtTheGivenRectangle)
{
  QMainWindow main;
  main.show();
  auto* pane = new RecordingPane;
  ASSERT_TRUE(pane->Create("p", hostUiPaletteSet::kStyleVisible, QRect(40, 50, 300, 400), &main, 4));
  EXPECT_TRUE(pane->isFloating());
  EXPECT_EQ(pane->size(), QSize(300, 400));
  pane->setFloating(false);
  EXPECT_EQ(main.dockWidgetArea(pane), Qt::RightDockWidgetArea);
}

TEST(PaletteSet, ownerIsTheParentUnlessSet)
{
  QMainWindow main;
  QWidget other;
  auto* pane = new RecordingPane;
  ASSERT_TRUE(pane->Create("p", 0, QRect(), &main, 5));
  EXPECT_EQ(pane->GetOwner(), &main);
  pane->SetOwner(&other);
  EXPECT_EQ(pane->GetOwner(), &other);
}

class RecordingDialog : public hostUiDialog
{
public:
  bool initResult = true;
  QStringList steps;

protected:
  bool OnInitDialog() override
  {
    steps << "init";
    return initResult;
  }
  void OnOK() override
  {
    steps << "ok";
    hostUiDialog::OnOK();
  }
  void OnCancel() override
  {
    steps << "cancel";
    hostUiDialog::OnCancel();
  }
  void OnClose() override
  {
    steps << "close";
    EndDialog(kIdCancel);
  }
};

enum class DialogEnd
{
  Accept,
  EscapeKey,
  CloseButton
};

struct DialogRow
{
  DialogEnd end;
  int result;
  const char* lastStep;
  friend void PrintTo(const DialogRow& r, std::ostream* os) { *os << r.lastStep; }
};

class DialogEnding : public ::testing::TestWithParam<DialogRow>
{
};

TEST_P(DialogEnding, doModal_runsTheHandlerOfHowItEnded)
{
  RecordingDialog dialog;
  const DialogEnd end = GetParam().end;
  QTimer::singleShot(0, &dialog, [&] {
    switch (end) {
    case DialogEnd::Accept: dialog.accept(); break;
    case DialogEnd::EscapeKey: QTest::keyClick(&dialog, Qt::Key_Escape); break;
    case DialogEnd::CloseButton: dialog.close(); break;
    }
  });
  EXPECT_EQ(dialog.DoModal(), GetParam().result);
  ASSERT_EQ(dialog.steps.size(), 2);
  EXPECT_EQ(dialog.steps[0], "init");
  EXPECT_EQ(dialog.steps[1], GetParam().lastStep);
}

INSTANTIATE_TEST_SUITE_P(Ends, DialogEnding,
                         ::testing::Values(DialogRow{DialogEnd::Accept, hostUiDialog::kIdOk, "ok"},
                                           DialogRow{DialogEnd::EscapeKey, hostUiDialog::kIdCancel, "cancel"},
                                           DialogRow{DialogEnd::CloseButton, hostUiDialog::kIdCancel, "close"}));

TEST(Dialog, refusedInit_endsAtOnce)
{
  RecordingDialog dialog;
  dialog.initResult = false;
  EXPECT_EQ(dialog.DoModal(), -1);
  EXPECT_FALSE(dialog.isVisible());
}

TEST(Dialog, closeHandlerThatKeepsItOpen_leavesItShown)
{
  struct Stubborn : hostUiDialog
  {
    void OnClose() override {}
  } dialog;
  ASSERT_TRUE(dialog.Create());
  dialog.close();
  EXPECT_TRUE(dialog.isVisible());
  dialog.EndDialog(hostUiDialog::kIdCancel);
  EXPECT_FALSE(dialog.isVisible());
}

TEST(ColoredSplitter, createStatic_acceptsOneRowOrOneColumn)
{
  hostUiColoredSplitter a, b, c;
  EXPECT_TRUE(a.CreateStatic(nullptr, 1, 2));
  EXPECT_EQ(a.orientation(), Qt::Horizontal);
  EXPECT_TRUE(b.CreateStatic(nullptr, 3, 1));
  EXPECT_EQ(b.orientation(), Qt::Vertical);
  EXPECT_FALSE(c.CreateStatic(nullptr, 2, 2));
}

TEST(ColoredSplitter, columnOfWidthZero_showsTheOtherPaneAlone)
{
  hostUiColoredSplitter splitter;
  ASSERT_TRUE(splitter.CreateStatic(nullptr, 1, 2));
  splitter.AddPane(new QLabel("tree"));
  splitter.AddPane(new QLabel("list"));
  splitter.resize(600, 300);
  splitter.show();
  splitter.SetColumnInfo(0, 200, 10);
  splitter.SetColumnInfo(1, 200, 10);
  splitter.RecalcLayout();
  int current = 0, minimum = 0;
  splitter.GetColumnInfo(0, current, minimum);
  EXPECT_GT(current, 1);
  EXPECT_EQ(minimum, 10);

  splitter.SetColumnInfo(0, 0, 0);
  splitter.SetColumnInfo(1, 600, 0);
  splitter.RecalcLayout();
  splitter.GetColumnInfo(0, current, minimum);
  EXPECT_EQ(current, 0);
  splitter.GetColumnInfo(1, current, minimum);
  EXPECT_GT(current, 500);
}

TEST(ColoredSplitter, barIsDrawnInItsColour)
{
  hostUiColoredSplitter splitter;
  ASSERT_TRUE(splitter.CreateStatic(nullptr, 1, 2));
  splitter.AddPane(new QLabel("a"));
  splitter.AddPane(new QLabel("b"));
  splitter.setHandleWidth(8);
  splitter.resize(200, 100);
  splitter.SetSplitterColor(QColor(255, 0, 0));
  splitter.show();
  const QImage image = splitter.grab().toImage();
  const QRect bar = splitter.handle(1)->geometry();
  EXPECT_EQ(image.pixelColor(bar.center()), QColor(255, 0, 0));
}

} // namespace
