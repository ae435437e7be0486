// A uniform grid over the drawing: which primitives lie in a rectangle,
// without looking at the others. Primitives that cover many cells are kept
// aside in one list and always tested.
#pragma once

#include "app/gui/SceneTypes.h"

#include <QRectF>

#include <cstdint>
#include <vector>

class SceneIndex
{
public:
  // A grid over `bounds` for about `expected` primitives.
  void reset(const QRectF& bounds, std::size_t expected);
  void insert(std::uint32_t prim, const QRectF& box);
  void remove(std::uint32_t prim, const QRectF& box);
  // The primitives whose boxes meet `rect`, each once, in no order.
  void query(const QRectF& rect, const std::vector<ScenePrim>& prims, std::vector<std::uint32_t>& out) const;
  // Whether a box lies inside the grid (a box outside asks for a new one).
  bool covers(const QRectF& box) const;
  const QRectF& bounds() const { return m_bounds; }
  bool isReady() const { return !m_cells.empty(); }

private:
  bool cellRange(const QRectF& box, int& x0, int& y0, int& x1, int& y1) const;

  QRectF m_bounds;
  int m_columns = 0, m_rows = 0;
  double m_cellW = 1, m_cellH = 1;
  std::vector<std::vector<std::uint32_t>> m_cells;
  std::vector<std::uint32_t> m_large;
  mutable std::vector<std::uint32_t> m_seen; // per primitive: the query that last returned it
  mutable std::uint32_t m_query = 0;
};
