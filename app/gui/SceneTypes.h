// What the drawing view draws: entities of the drawing turned into simple
// primitives in world coordinates (top view), with their resolved colours
// and weights. Built once per entity and kept, so that a pan or a zoom only
// draws again what it has.
#pragma once

#include "sdk/db/OdDbObjectId.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QTransform>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

// Boxes of points and lines may have no width or no height; Qt's own
// rectangle tests take those for empty, so the scene has its own.
namespace SceneBox {
inline bool touches(const QRectF& a, const QRectF& b)
{
  return a.left() <= b.right() && a.right() >= b.left() && a.top() <= b.bottom() && a.bottom() >= b.top();
}
inline bool inside(const QRectF& inner, const QRectF& outer)
{
  return inner.left() >= outer.left() && inner.right() <= outer.right() && inner.top() >= outer.top() &&
         inner.bottom() <= outer.bottom();
}
} // namespace SceneBox

// Grows a box point by point.
struct SceneBoxBuilder
{
  double x0 = 1e300, y0 = 1e300, x1 = -1e300, y1 = -1e300;
  void add(const QPointF& p)
  {
    x0 = std::min(x0, p.x());
    y0 = std::min(y0, p.y());
    x1 = std::max(x1, p.x());
    y1 = std::max(y1, p.y());
  }
  void add(const QRectF& r)
  {
    add(r.topLeft());
    add(r.bottomRight());
  }
  bool valid() const { return x0 <= x1 && y0 <= y1; }
  QRectF rect() const { return valid() ? QRectF(QPointF(x0, y0), QPointF(x1, y1)) : QRectF(); }
};

// How a primitive is drawn: colour and weight, kept once in a table.
struct SceneStyle
{
  QRgb color = 0xFFFFFFFF;
  float widthPx = 0.0f; // line weight on screen; 0 is the thinnest line
  friend bool operator==(const SceneStyle& a, const SceneStyle& b)
  {
    return a.color == b.color && a.widthPx == b.widthPx;
  }
};

enum class ScenePrimKind : std::uint8_t
{
  Polyline, // `count` points from `first`
  Segments, // pairs of points: separate dashes and pattern lines
  Fill,     // a filled area: the fill record `first`
  Text,     // the text record `first`
  Image,    // the image record `first`
  Point,    // one point at `first`
  Arc       // the arc record `first`, made into points as fine as the zoom asks
};

namespace ScenePrimFlag {
enum : std::uint8_t
{
  kClosed = 1,   // a polyline that returns to its first point
  kPickOnly = 2, // not drawn, only found by picking (a hatch's boundary)
  kNoPick = 4    // drawn, never picked (a hatch's pattern lines)
};
}

struct ScenePrim
{
  QRectF box; // in world coordinates
  std::uint32_t first = 0;
  std::uint32_t count = 0;
  std::uint32_t entity = 0; // index of its entity in the scene
  std::uint16_t style = 0;
  ScenePrimKind kind = ScenePrimKind::Polyline;
  std::uint8_t flags = 0;
};

// An elliptical arc: center + u cos t + v sin t for t from t0 to t1. Circles,
// arcs and ellipses stay this way whatever inserts did to them, and are
// made into points only when drawn, as fine as their size on screen needs.
struct SceneArc
{
  QPointF center, u, v;
  double t0 = 0.0, t1 = 6.283185307179586;
};

// A gradient fill of a hatch.
struct SceneGradient
{
  enum Shape
  {
    Linear,
    Cylinder,
    InvCylinder,
    Spherical,
    InvSpherical,
    Hemispherical,
    InvHemispherical,
    Curved,
    InvCurved
  };
  Shape shape = Linear;
  QRgb color1 = 0xFF0000FF, color2 = 0xFFFFFF00;
  double angle = 0.0; // radians, in world
  bool centered = true;
};

// Rings of points (odd-even filled): `ringCount` sizes from `ringFirst` in the
// scene's ring table, their points one after the other from `pointFirst`.
struct SceneFill
{
  std::uint32_t pointFirst = 0;
  std::uint32_t ringFirst = 0;
  std::uint32_t ringCount = 0;
  std::int32_t gradient = -1; // index in the gradient table, or a plain fill
  // The background colour instead of the style's (a wipeout).
  bool background = false;
  // A partly transparent fill: a pattern too dense to draw line by line.
  bool faint = false;
};

// One run of text on one baseline, in the font at a reference size:
// `toWorld` maps the run's own coordinates (as Qt lays out text: baseline
// at y 0, y down, one unit one reference pixel) into the world. The outline
// is made the first time the run is drawn large enough to read.
struct SceneText
{
  QString text;
  QFont font;
  QTransform toWorld;
  QRectF box; // in the run's own coordinates: advance by ascent and descent
  double capHeight = 0.0; // in the run's own coordinates
  bool underline = false;
  mutable std::shared_ptr<QPainterPath> outline;
};

// A raster image placed in the world; `toWorld` maps its pixels (0,0 top
// left). An image whose file is missing draws its frame.
struct SceneImage
{
  std::shared_ptr<const QImage> image;
  QString fileName;
  QSizeF pixels;
  QTransform toWorld;
  QPolygonF clip; // in world; empty: the whole image
  int fade = 0;   // 0..100
};

enum class SnapKind : std::uint8_t
{
  End,
  Center
};

struct SnapPoint
{
  QPointF point;
  SnapKind kind = SnapKind::End;
};

// A drawing entity of model space and what it became.
struct SceneEntity
{
  OdDbObjectId id;
  std::uint32_t primFirst = 0, primCount = 0;
  std::uint32_t snapFirst = 0, snapCount = 0;
  QRectF box;         // of what is drawn
  bool hasBox = false; // false when nothing of it is drawn
  bool alive = true;
};
