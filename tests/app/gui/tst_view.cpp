// The drawing view driven by events: zoom at the cursor, pans, zoom
// extents and window, picking, snapping, and the pictures it draws.
#include "app/gui/DrawingView.h"
#include "tests/app/gui/GuiTestSupport.h"

#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

namespace {

using namespace guitest;

class ViewTest : public ::testing::Test
{
protected:
  void SetUp() override
  {
    m_db = odDbCreateDatabase();
    OdDbBlockTableRecordPtr ms = modelSpace(m_db);
    m_line = addLine(ms, 0, 0, 100, 0)->objectId();
    addLine(ms, 0, 0, 0, 50);
    OdDbCirclePtr c = OdDbCircle::createObject();
    c->setCenter(OdGePoint3d(200, 80, 0));
    c->setRadius(10);
    ms->appendOdDbEntity(c);
    m_circle = c->objectId();
    m_view = std::make_unique<DrawingView>();
    m_view->resize(800, 600);
    m_view->show();
    m_view->setDatabase(m_db.get());
  }
  void TearDown() override { m_view.reset(); }

  void wheel(const QPointF& at, int delta)
  {
    QWheelEvent e(at, m_view->mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                  Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_view.get(), &e);
  }
  QPoint screenOf(const QPointF& world) const { return m_view->view().toScreen(world).toPoint(); }

  OdDbDatabasePtr m_db;
  OdDbObjectId m_line, m_circle;
  std::unique_ptr<DrawingView> m_view;
};

TEST_F(ViewTest, zoomExtentsFramesEveryEntity)
{
  m_view->zoomAt(QPointF(10, 10), 20); // far away from it all first
  m_view->zoomExtents();
  const QRectF shown = m_view->view().worldRect();
  for (const SceneEntity& e : m_view->scene().entities())
    EXPECT_TRUE(SceneBox::inside(e.box, shown)) << "entity " << e.id.getHandle().text();
  // Framed, not lost in space: the drawing fills most of one side.
  const QRectF all = *m_view->scene().extents();
  EXPECT_GT(std::max(all.width() / shown.width(), all.height() / shown.height()), 0.8);
}

TEST_F(ViewTest, wheelZoomsAtTheCursor)
{
  const QPointF cursor(612, 140);
  const QPointF before = m_view->view().toWorld(cursor);
  const double scale = m_view->view().scale();
  wheel(cursor, 120);
  EXPECT_NEAR(m_view->view().scale(), scale * 1.2, 1e-9);
  const QPointF after = m_view->view().toWorld(cursor);
  EXPECT_NEAR(after.x(), before.x(), 1e-9);
  EXPECT_NEAR(after.y(), before.y(), 1e-9);
  wheel(cursor, -240);
  EXPECT_NEAR(m_view->view().scale(), scale / 1.2, 1e-9);
}

struct PanRow
{
  Qt::MouseButton button;
  friend void PrintTo(const PanRow& r, std::ostream* os) { *os << (r.button == Qt::LeftButton ? "left" : "middle"); }
};

class ViewPan : public ViewTest, public ::testing::WithParamInterface<PanRow>
{
};

TEST_P(ViewPan, dragMovesThePictureWithTheMouse)
{
  const QPoint from(400, 300), to(460, 260);
  const QPointF grabbed = m_view->view().toWorld(from);
  QTest::mousePress(m_view.get(), GetParam().button, {}, from);
  for (int i = 1; i <= 6; ++i)
    QTest::mouseMove(m_view.get(), from + (to - from) * i / 6);
  QTest::mouseRelease(m_view.get(), GetParam().button, {}, to);
  const QPointF now = m_view->view().toWorld(to);
  EXPECT_NEAR(now.x(), grabbed.x(), 1e-9);
  EXPECT_NEAR(now.y(), grabbed.y(), 1e-9);
  EXPECT_TRUE(m_view->selection().empty()) << "a drag is no pick";
}

INSTANTIATE_TEST_SUITE_P(Buttons, ViewPan, ::testing::Values(PanRow{Qt::MiddleButton}, PanRow{Qt::LeftButton}));

TEST_F(ViewTest, pannedPictureEqualsAFreshOne)
{
  m_view->zoomAt(QPointF(400, 300), 2);
  m_view->repaint();
  m_view->pan(QPointF(37, -23));
  m_view->repaint(); // scrolls the last picture and draws the strips
  const QImage scrolled = m_view->grab().toImage().convertToFormat(QImage::Format_RGB32);
  const QImage fresh = m_view->renderImage(m_view->view()).convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(scrolled.size(), fresh.size());
  int different = 0;
  for (int y = 0; y < fresh.height(); ++y)
    for (int x = 0; x < fresh.width(); ++x)
      different += scrolled.pixel(x, y) != fresh.pixel(x, y);
  // Smoothing may differ on a seam; the drawing may not.
  EXPECT_LT(different, 40);
}

TEST_F(ViewTest, clickPicksShiftAddsEscapeDrops)
{
  QSignalSpy changed(m_view.get(), &DrawingView::selectionChanged);
  QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, screenOf(QPointF(50, 0)) + QPoint(0, 2));
  ASSERT_EQ(m_view->selection(), std::vector<OdDbObjectId>{m_line});
  QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::ShiftModifier, screenOf(QPointF(210, 80)));
  EXPECT_EQ(m_view->selection(), (std::vector<OdDbObjectId>{m_line, m_circle}));
  QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, screenOf(QPointF(150, 30)));
  EXPECT_TRUE(m_view->selection().empty()) << "a click on nothing starts afresh";
  QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, screenOf(QPointF(50, 0)));
  QTest::keyClick(m_view.get(), Qt::Key_Escape);
  EXPECT_TRUE(m_view->selection().empty());
  EXPECT_EQ(changed.count(), 5);
}

TEST_F(ViewTest, pointPromptTakesTheSnappedPoint)
{
  DrawingView::InputWanted wanted;
  wanted.point = true;
  m_view->setInputWanted(wanted);
  QSignalSpy picked(m_view.get(), &DrawingView::pointPicked);
  // Four pixels off the end of the line: the end point it is.
  QTest::mouseMove(m_view.get(), screenOf(QPointF(100, 0)) + QPoint(3, -3));
  QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, screenOf(QPointF(100, 0)) + QPoint(3, -3));
  ASSERT_EQ(picked.count(), 1);
  EXPECT_EQ(picked[0][0].toPointF(), QPointF(100, 0));
  // Near the circle's centre.
  QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, screenOf(QPointF(200, 80)) + QPoint(4, 2));
  EXPECT_EQ(picked[1][0].toPointF(), QPointF(200, 80));
  // With snapping off, where the cursor is.
  m_view->setSnapEnabled(false);
  const QPoint at = screenOf(QPointF(100, 0)) + QPoint(3, -3);
  QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, at);
  EXPECT_NEAR(picked[2][0].toPointF().x(), m_view->view().toWorld(at).x(), 1e-3);
  EXPECT_TRUE(m_view->selection().empty()) << "answering a prompt selects nothing";
}

TEST_F(ViewTest, objectPromptTakesThePickedObject)
{
  DrawingView::InputWanted wanted;
  wanted.entity = true;
  m_view->setInputWanted(wanted);
  QSignalSpy picked(m_view.get(), &DrawingView::entityPicked);
  QSignalSpy points(m_view.get(), &DrawingView::pointPicked);
  QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, screenOf(QPointF(190, 80)));
  ASSERT_EQ(picked.count(), 1);
  EXPECT_EQ(picked[0][0].value<OdDbObjectId>(), m_circle);
  QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, screenOf(QPointF(150, 30)));
  EXPECT_EQ(picked.count(), 1);
  EXPECT_EQ(points.count(), 0) << "an object prompt takes no points";
}

TEST_F(ViewTest, zoomWindowShowsTheTwoCorners)
{
  m_view->startZoomWindow();
  QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, screenOf(QPointF(180, 60)));
  QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, screenOf(QPointF(220, 100)));
  EXPECT_FALSE(m_view->isZoomingWindow());
  const QRectF shown = m_view->view().worldRect();
  EXPECT_NEAR(shown.center().x(), 200, 1);
  EXPECT_NEAR(shown.center().y(), 80, 1);
  EXPECT_NEAR(shown.height(), 40, 1) << "the window fills the view's height";
  EXPECT_TRUE(m_view->selection().empty());
}

TEST_F(ViewTest, drawingChangesShowAtTheNextSync)
{
  EXPECT_FALSE(m_view->syncWithDrawing()) << "nothing changed yet";
  addLine(modelSpace(m_db), 0, 0, 500, 500);
  ASSERT_TRUE(m_view->syncWithDrawing());
  EXPECT_EQ(m_view->scene().entityCount(), 4u);
  // A layer turned off changes no entity, but what shows.
  OdDbLayerTableRecordPtr zero = OdDbLayerTableRecord::cast(m_db->getLayerZeroId().openObject(OdDb::kForWrite));
  zero->setIsOff(true);
  ASSERT_TRUE(m_view->syncWithDrawing());
  EXPECT_FALSE(m_view->scene().extents().has_value()) << "everything is on layer 0";
}

} // namespace
