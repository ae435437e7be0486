// Turns entities of the drawing into the scene's primitives: each kind of
// entity the drawing database models, with blocks and their attributes
// expanded, dimensions through their blocks, hatches filled, linetypes cut
// into dashes, text laid out, and layers that are off or frozen left out.
#pragma once

#include "app/gui/SceneGeometry.h"
#include "app/gui/SceneStyleResolver.h"
#include "app/gui/TextShaper.h"

#include <unordered_set>

class DrawingScene;
class OdDbBlockReference;
class OdDbEntity;
class OdDbHatch;

class SceneBuilder
{
public:
  SceneBuilder(DrawingScene& scene, OdDbDatabase* db);

  // Adds an entity of model space (its record even when nothing of it shows).
  void add(const OdDbEntity& entity);
  // What an entity's data is now, to tell later whether it changed: it
  // covers the entity and what it owns (attributes, vertices).
  static std::uint64_t fingerprint(const OdDbEntity& entity);

private:
  struct Context
  {
    Affine3 toWorld;
    SceneInherit inherit;
    int depth = 0;
  };

  void draw(const OdDbEntity& e, const Context& c);
  void line(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void circleOrArc(const OdDbEntity& e, const SceneLook& look, const Context& c, bool isArc);
  void ellipse(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void lightPolyline(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void polyline(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void spline(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void point(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void solid(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void face(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void text(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void mtext(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void blockReference(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void dimension(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void hatch(const OdDbEntity& e, const SceneLook& look, const Context& c);
  void image(const OdDbEntity& e, const SceneLook& look, const Context& c, bool wipeout);
  void leader(const OdDbEntity& e, const SceneLook& look, const Context& c);
  // The entities of a block under a map, handing down `look`.
  void block(OdDbObjectId blockId, const Affine3& toWorld, const SceneLook& look, const Context& c);

  // Emitting primitives for the entity in progress.
  std::uint16_t style(const SceneLook& look);
  void emitCurve(const std::vector<QPointF>& world, bool closed, const SceneLook& look, const Context& c,
                 std::uint8_t flags = 0);
  void emitArc(const QPointF& center, const QPointF& u, const QPointF& v, double t0, double t1,
               const SceneLook& look, const Context& c);
  void emitSegments(const std::vector<QPointF>& pairs, std::uint16_t style, std::uint8_t flags);
  void emitFill(const std::vector<std::vector<QPointF>>& rings, std::uint16_t style, int gradient, bool background,
                bool faint, std::uint8_t flags = 0);
  void emitWidePolyline(const std::vector<QPointF>& centre, const std::vector<double>& startWidths,
                        const std::vector<double>& endWidths, bool closed, std::uint16_t style);
  void emitPoint(const QPointF& p, std::uint16_t style);
  void addSnap(const QPointF& p, SnapKind kind);
  void pushPrim(ScenePrim prim);
  // The scale of lengths under the map: how much dashes stretch.
  static double lengthScale(const Affine3& toWorld);

  DrawingScene& m_scene;
  OdDbDatabase* m_db;
  SceneStyleResolver m_resolver;
  TextShaper m_shaper;
  std::uint32_t m_entity = 0; // the entity in progress
  SceneBoxBuilder m_box;
  std::vector<OdDbStub*> m_blockStack; // blocks being expanded: a block in itself is drawn once
};
