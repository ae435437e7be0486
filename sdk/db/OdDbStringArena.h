// OdDbStringArena: where the pairs of a drawing and their texts live.
#pragma once

#include "sdk/db/OdDbDxfPairArray.h"
#include "sdk/kernel/OdLargeBuffer.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

// Append-only storage of one drawing, freed with it: the buffers of files
// read (adopted whole, so that reading copies no text), texts set later, and
// the pairs of the objects read. Objects hold the arena as long as they live.
class OdDbStringArena
{
public:
  std::string_view store(std::string_view text);
  // Keeps `owner` (of a file's text) as long as the arena lives.
  void adopt(std::shared_ptr<const void> owner) { m_owners.push_back(std::move(owner)); }
  // Room for `count` pairs, for one object's array to borrow.
  OdDbDxfPair* allocatePairs(std::size_t count);

private:
  // Small pair blocks come from malloc, as it gives them (every pair is
  // written before it is read), large ones are large buffers.
  struct Free
  {
    void operator()(void* p) const;
  };
  struct PairBlock
  {
    std::unique_ptr<OdDbDxfPair[], Free> small;
    OdLargeBuffer large;
    OdDbDxfPair* pairs() const { return small ? small.get() : reinterpret_cast<OdDbDxfPair*>(large.data()); }
  };
  static PairBlock newPairBlock(std::size_t count);

  std::vector<std::shared_ptr<const void>> m_owners;
  std::vector<std::unique_ptr<char[]>> m_chunks;
  std::size_t m_used = 0;
  std::size_t m_chunkSize = 0;
  std::vector<PairBlock> m_pairBlocks;
  std::size_t m_pairsUsed = 0;
  std::size_t m_pairBlockSize = 0;
};
using OdDbStringArenaPtr = std::shared_ptr<OdDbStringArena>;
