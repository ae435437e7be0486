// Draws a scene into a painter for a view: what lies in a rectangle of the
// viewport, fills and pictures first, then lines batched by colour and
// weight, then text. Details smaller than a pixel are drawn as dots, and
// text too small to read as a stroke.
#pragma once

#include "app/gui/DrawingScene.h"
#include "app/gui/ViewTransform.h"

#include <QPainter>

class SceneRenderer
{
public:
  struct Options
  {
    bool antialiased = true;
    // A draft (drawn while the view moves) shows text whose outline was
    // never made as a stroke, rather than stop to make it.
    bool draft = false;
  };

  // Draws the scene's part in `deviceRect` (the painter is clipped to it).
  static void render(QPainter& painter, const DrawingScene& scene, const ViewTransform& view, const QRect& deviceRect,
                     const Options& options);
  // Draws the given primitives again in one colour and weight (a
  // selection's highlight).
  static void renderPrims(QPainter& painter, const DrawingScene& scene, const ViewTransform& view,
                          const std::vector<std::uint32_t>& prims, const QColor& color, float widthPx,
                          const Options& options);
};
