// OdDbHandleMap: the stubs of a drawing by handle.
#pragma once

#include "sdk/db/OdDbObjectId.h"

#include <cstdint>
#include <vector>

// An open-addressing table of stub pointers, each found by the handle its
// stub holds. A drawing has a stub for every object, so a table of plain
// pointers (no node per entry) keeps reading quick and small.
class OdDbHandleMap
{
public:
  // The stub of the handle, or null.
  OdDbStub* find(std::uint64_t handle) const;
  // Adds a stub whose handle is not in the table yet.
  void insert(OdDbStub* stub);
  void erase(std::uint64_t handle);
  // Makes room for `count` stubs in all.
  void reserve(std::size_t count);
  std::size_t size() const { return m_count; }

private:
  std::size_t slotOf(std::uint64_t handle) const;
  void rehash(std::size_t slotCount);

  std::vector<OdDbStub*> m_slots; // a power of two of them, at most half used; null: free
  std::size_t m_count = 0;
};
