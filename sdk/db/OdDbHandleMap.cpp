// Linear probing over stub pointers; removal shifts the run back into place.
#include "sdk/db/OdDbHandleMap.h"

#include <algorithm>
#include <bit>

std::size_t OdDbHandleMap::slotOf(std::uint64_t handle) const
{
  // Handles of a drawing are mostly consecutive: spread them by Fibonacci
  // hashing and take the high bits.
  const int bits = std::countr_zero(m_slots.size());
  return std::size_t((handle * 0x9E3779B97F4A7C15ull) >> (64 - bits));
}

OdDbStub* OdDbHandleMap::find(std::uint64_t handle) const
{
  if (m_slots.empty())
    return nullptr;
  const std::size_t mask = m_slots.size() - 1;
  for (std::size_t i = slotOf(handle);; i = (i + 1) & mask) {
    OdDbStub* s = m_slots[i];
    if (!s || s->handle.value() == handle)
      return s;
  }
}

void OdDbHandleMap::insert(OdDbStub* stub)
{
  if ((m_count + 1) * 2 > m_slots.size())
    rehash(std::max<std::size_t>(16, m_slots.size() * 2));
  const std::size_t mask = m_slots.size() - 1;
  std::size_t i = slotOf(stub->handle.value());
  while (m_slots[i])
    i = (i + 1) & mask;
  m_slots[i] = stub;
  ++m_count;
}

void OdDbHandleMap::erase(std::uint64_t handle)
{
  if (m_slots.empty())
    return;
  const std::size_t mask = m_slots.size() - 1;
  std::size_t i = slotOf(handle);
  while (m_slots[i] && m_slots[i]->handle.value() != handle)
    i = (i + 1) & mask;
  if (!m_slots[i])
    return;
  m_slots[i] = nullptr;
  --m_count;
  // Entries after the hole that could not sit where they wanted, because
  // the hole was taken, move back into it.
  for (std::size_t j = (i + 1) & mask; m_slots[j]; j = (j + 1) & mask) {
    const std::size_t want = slotOf(m_slots[j]->handle.value());
    // Moves when `want` does not lie cyclically in (i, j].
    if (((j - want) & mask) >= ((j - i) & mask)) {
      m_slots[i] = m_slots[j];
      m_slots[j] = nullptr;
      i = j;
    }
  }
}

void OdDbHandleMap::reserve(std::size_t count)
{
  if (count * 2 > m_slots.size())
    rehash(std::bit_ceil(std::max<std::size_t>(16, count * 2)));
}

void OdDbHandleMap::rehash(std::size_t slotCount)
{
  std::vector<OdDbStub*> old(slotCount, nullptr);
  old.swap(m_slots);
  m_count = 0;
  for (OdDbStub* s : old)
    if (s)
      insert(s);
}
