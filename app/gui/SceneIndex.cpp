// The grid.
#include "app/gui/SceneIndex.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr int kLargeCells = 64; // a primitive over more cells than this is "large"
constexpr int kMaxSide = 1024;
} // namespace

void SceneIndex::reset(const QRectF& bounds, std::size_t expected)
{
  m_bounds = bounds;
  // About four primitives a cell, in cells as square as the bounds allow.
  const double cells = std::max(1.0, double(expected) / 4.0);
  const double aspect = bounds.height() > 0 && bounds.width() > 0 ? bounds.width() / bounds.height() : 1.0;
  m_columns = std::clamp(int(std::sqrt(cells * aspect)), 1, kMaxSide);
  m_rows = std::clamp(int(cells / m_columns), 1, kMaxSide);
  m_cellW = std::max(bounds.width() / m_columns, 1e-12);
  m_cellH = std::max(bounds.height() / m_rows, 1e-12);
  m_cells.assign(std::size_t(m_columns) * std::size_t(m_rows), {});
  m_large.clear();
}

bool SceneIndex::cellRange(const QRectF& box, int& x0, int& y0, int& x1, int& y1) const
{
  if (m_cells.empty())
    return false;
  x0 = std::clamp(int(std::floor((box.left() - m_bounds.left()) / m_cellW)), 0, m_columns - 1);
  x1 = std::clamp(int(std::floor((box.right() - m_bounds.left()) / m_cellW)), 0, m_columns - 1);
  y0 = std::clamp(int(std::floor((box.top() - m_bounds.top()) / m_cellH)), 0, m_rows - 1);
  y1 = std::clamp(int(std::floor((box.bottom() - m_bounds.top()) / m_cellH)), 0, m_rows - 1);
  return true;
}

void SceneIndex::insert(std::uint32_t prim, const QRectF& box)
{
  int x0, y0, x1, y1;
  if (!cellRange(box, x0, y0, x1, y1))
    return;
  if ((x1 - x0 + 1) * (y1 - y0 + 1) > kLargeCells) {
    m_large.push_back(prim);
    return;
  }
  for (int y = y0; y <= y1; ++y)
    for (int x = x0; x <= x1; ++x)
      m_cells[std::size_t(y) * std::size_t(m_columns) + std::size_t(x)].push_back(prim);
}

void SceneIndex::remove(std::uint32_t prim, const QRectF& box)
{
  int x0, y0, x1, y1;
  if (!cellRange(box, x0, y0, x1, y1))
    return;
  auto drop = [prim](std::vector<std::uint32_t>& list) {
    auto it = std::find(list.begin(), list.end(), prim);
    if (it != list.end())
      list.erase(it);
  };
  if ((x1 - x0 + 1) * (y1 - y0 + 1) > kLargeCells) {
    drop(m_large);
    return;
  }
  for (int y = y0; y <= y1; ++y)
    for (int x = x0; x <= x1; ++x)
      drop(m_cells[std::size_t(y) * std::size_t(m_columns) + std::size_t(x)]);
}

void SceneIndex::query(const QRectF& rect, const std::vector<ScenePrim>& prims, std::vector<std::uint32_t>& out) const
{
  if (m_seen.size() < prims.size())
    m_seen.resize(prims.size(), 0);
  if (++m_query == 0) {
    std::fill(m_seen.begin(), m_seen.end(), 0);
    m_query = 1;
  }
  auto take = [&](std::uint32_t prim) {
    if (m_seen[prim] == m_query)
      return;
    m_seen[prim] = m_query;
    if (SceneBox::touches(prims[prim].box, rect))
      out.push_back(prim);
  };
  for (std::uint32_t prim : m_large)
    take(prim);
  int x0, y0, x1, y1;
  if (!cellRange(rect, x0, y0, x1, y1) || !SceneBox::touches(rect, m_bounds))
    return;
  for (int y = y0; y <= y1; ++y)
    for (int x = x0; x <= x1; ++x)
      for (std::uint32_t prim : m_cells[std::size_t(y) * std::size_t(m_columns) + std::size_t(x)])
        take(prim);
}

bool SceneIndex::covers(const QRectF& box) const
{
  return !m_cells.empty() && SceneBox::inside(box, m_bounds);
}
