// The drawing view: shows a document's model space, pans (middle button, or
// a drag), zooms at the cursor (wheel), zooms to the extents or a window,
// shows a cross-hair, snaps to end points and centres while a point is
// wanted, and picks entities. Pans scroll the last picture and draw only
// what came into sight.
#pragma once

#include "app/gui/DrawingScene.h"
#include "app/gui/SceneRenderer.h"
#include "app/gui/ViewTransform.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

class OdDbDatabase;

class DrawingView : public QWidget
{
  Q_OBJECT

public:
  explicit DrawingView(QWidget* parent = nullptr);
  ~DrawingView() override;

  // Shows a drawing (null: nothing) and zooms to its extents. The view
  // listens to the drawing: it must go (or show another) before the
  // drawing does.
  void setDatabase(OdDbDatabase* db);
  OdDbDatabase* database() const { return m_scene.database(); }
  // Follows changes of the drawing since the last call; true when the
  // picture changed.
  bool syncWithDrawing();
  // How many changes the drawing has told of since it was shown: it grows
  // with every change, undone ones too.
  std::uint64_t changeCount() const { return m_changes; }
  const DrawingScene& scene() const { return m_scene; }

  ViewTransform& view() { return m_view; }
  const ViewTransform& view() const { return m_view; }
  void setView(const ViewTransform& view);
  void zoomExtents();
  // The next two clicks give the corners of the area to show.
  void startZoomWindow();
  bool isZoomingWindow() const { return m_zoomWindow; }
  void zoomAt(const QPointF& screen, double factor);
  void pan(const QPointF& screenDelta);

  // What a waiting command takes from the view: a point (clicks answer it,
  // the cursor snaps to end points and centres, and a rubber band runs from
  // the base point), an object (a click picks it), or both.
  struct InputWanted
  {
    bool point = false;
    bool entity = false;
    std::optional<QPointF> basePoint;
  };
  void setInputWanted(const InputWanted& wanted);
  bool isPointWanted() const { return m_wanted.point; }
  void setSnapEnabled(bool on) { m_snapEnabled = on; }
  // Where a click at `screen` lands: on a snap point within the aperture,
  // else under the cursor.
  QPointF pointAt(const QPointF& screen, std::optional<SnapPoint>* snapped = nullptr) const;

  const std::vector<OdDbObjectId>& selection() const { return m_selection; }
  void setSelection(const std::vector<OdDbObjectId>& ids);
  void clearSelection() { setSelection({}); }

  void setAntialiased(bool on);
  // Cancels what the view itself waits for (a zoom window); false when
  // there was nothing.
  bool cancelViewAction();

  // The drawing as this view shows it, into an image of its size (without
  // cross-hair or selection).
  QImage renderImage(const ViewTransform& view) const;

  static constexpr int kPickBox = 5;   // half a side, pixels
  static constexpr int kAperture = 10; // pixels

signals:
  void pointPicked(const QPointF& world);
  void entityPicked(const OdDbObjectId& id);
  void selectionChanged();
  void cursorMoved(const QPointF& world);
  void viewChanged();
  // Escape pressed in the view.
  void cancelRequested();
  // Keys typed while the view has the focus belong to the command line.
  void keyTyped(QKeyEvent* event);

protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

private:
  class DrawingListener;
  void updateFrame();
  void renderFull(bool draft);
  void drawOverlay(QPainter& painter);
  void click(const QPointF& screen, Qt::KeyboardModifiers modifiers);
  void viewMoved();

  DrawingScene m_scene;
  std::unique_ptr<DrawingListener> m_listener;
  bool m_drawingChanged = false; // since the last sync
  bool m_rebuildScene = false;   // a change that entities alone do not tell
  std::uint64_t m_changes = 0;
  ViewTransform m_view;
  SceneRenderer::Options m_options;
  QImage m_frame;
  std::optional<ViewTransform> m_frameView; // the view m_frame shows; none: draw anew
  // While the view moves, frames are drawn without smoothing; a moment
  // after it stops, the frame is drawn again smooth.
  bool m_frameDraft = false;
  QTimer* m_smoothTimer = nullptr;

  InputWanted m_wanted;
  bool m_snapEnabled = true;
  // Until the user moves the view, a drawing just shown stays framed
  // whole while the window settles into its size.
  bool m_keepFramed = false;
  bool m_zoomWindow = false;
  std::optional<QPointF> m_windowCorner; // world
  std::vector<OdDbObjectId> m_selection;

  std::optional<QPointF> m_cursor; // screen
  std::optional<SnapPoint> m_snap;
  // A press of the left or middle button, until it is a click or a drag.
  std::optional<QPointF> m_pressAt;
  QPointF m_lastDrag;
  bool m_dragging = false;
  Qt::MouseButton m_pressButton = Qt::NoButton;
};
