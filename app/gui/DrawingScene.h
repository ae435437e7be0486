// The drawing as the view draws it: every entity of model space turned into
// primitives with resolved looks, a spatial index over them, and what picks
// and snaps need. Kept in step with the drawing after each change, so that
// only what changed is made again.
#pragma once

#include "app/gui/SceneIndex.h"
#include "app/gui/SceneTypes.h"

#include <QHash>

#include <optional>
#include <unordered_map>

class OdDbDatabase;

class DrawingScene
{
public:
  static constexpr QRgb kDefaultBackground = 0xFF212830;

  explicit DrawingScene(QRgb background = kDefaultBackground);
  ~DrawingScene();

  // Makes the scene of the drawing's model space anew (null: empty).
  void build(OdDbDatabase* db);
  // Follows the drawing: entities new in model space are added, erased ones
  // dropped, changed ones made again. True when anything changed.
  bool sync();
  OdDbDatabase* database() const { return m_db; }

  QRgb background() const { return m_background; }
  QRgb foreground() const { return m_foreground; }
  // The box of everything drawn; none when nothing is.
  std::optional<QRectF> extents() const;

  // The primitives whose boxes meet `world`, in the order they are drawn.
  void primsIn(const QRectF& world, std::vector<std::uint32_t>& out) const;

  // The entity nearest `world` within `tolerance` (drawing units); null
  // when none is that close. Pattern lines of hatches are not picked, their
  // boundaries are.
  OdDbObjectId pick(const QPointF& world, double tolerance) const;
  // The end point or centre nearest `world` within `aperture`.
  std::optional<SnapPoint> snap(const QPointF& world, double aperture) const;
  // The primitives of an entity (to show it selected); empty when the
  // scene has none of it.
  std::vector<std::uint32_t> primsOf(OdDbObjectId id) const;
  QRectF boxOf(OdDbObjectId id) const;
  std::size_t entityCount() const { return m_entityById.size(); }

  const std::vector<ScenePrim>& prims() const { return m_prims; }
  const std::vector<QPointF>& points() const { return m_points; }
  const std::vector<std::uint32_t>& rings() const { return m_rings; }
  const std::vector<SceneFill>& fills() const { return m_fills; }
  const std::vector<SceneText>& texts() const { return m_texts; }
  const std::vector<SceneImage>& images() const { return m_images; }
  const std::vector<SceneArc>& arcs() const { return m_arcs; }
  const std::vector<SceneGradient>& gradients() const { return m_gradients; }
  const std::vector<SceneStyle>& styles() const { return m_styles; }
  const std::vector<SceneEntity>& entities() const { return m_entities; }

private:
  friend class SceneBuilder;

  void clear();
  std::uint16_t styleIndex(const SceneStyle& style);
  void indexEntity(std::uint32_t entity);
  void unindexEntity(std::uint32_t entity);
  void reindex();
  double primDistance(std::uint32_t prim, const QPointF& p, double tolerance) const;

  OdDbDatabase* m_db = nullptr;
  QRgb m_background, m_foreground;

  std::vector<ScenePrim> m_prims;
  std::vector<QPointF> m_points;
  std::vector<std::uint32_t> m_rings;
  std::vector<SceneFill> m_fills;
  std::vector<SceneText> m_texts;
  std::vector<SceneImage> m_images;
  std::vector<SceneArc> m_arcs;
  std::vector<SceneGradient> m_gradients;
  std::vector<SceneStyle> m_styles;
  std::vector<SnapPoint> m_snaps;
  std::vector<SceneEntity> m_entities;
  std::vector<std::uint64_t> m_fingerprints; // per entity: what its data was when made
  std::unordered_map<OdDbObjectId, std::uint32_t> m_entityById; // the living entities
  std::size_t m_deadPrims = 0;
  SceneIndex m_index;
};
