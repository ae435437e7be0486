// The arena of a drawing: texts in growing chunks, pairs in large blocks.
#include "sdk/db/OdDbStringArena.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

std::string_view OdDbStringArena::store(std::string_view text)
{
  if (text.empty())
    return std::string_view();
  if (text.size() > 4096) {
    auto big = std::make_shared<std::string>(text);
    m_owners.push_back(big);
    return *big;
  }
  if (m_chunks.empty() || m_used + text.size() > m_chunkSize) {
    // Chunks grow with use, so that small arenas (one object) stay small.
    m_chunkSize = m_chunks.empty() ? 256 : std::min<std::size_t>(m_chunkSize * 2, 65536);
    m_chunks.emplace_back(new char[m_chunkSize]);
    m_used = 0;
  }
  char* p = m_chunks.back().get() + m_used;
  std::memcpy(p, text.data(), text.size());
  m_used += text.size();
  return std::string_view(p, text.size());
}

OdDbDxfPair* OdDbStringArena::allocatePairs(std::size_t count)
{
  // Blocks grow to a huge page: a drawing read holds millions of pairs, and
  // few large blocks are what makes reading it quick.
  constexpr std::size_t kLargest = OdLargeBuffer::kHugePage / sizeof(OdDbDxfPair);
  if (count > kLargest / 4) {
    m_pairBlocks.push_back(newPairBlock(count));
    OdDbDxfPair* own = m_pairBlocks.back().pairs();
    // The block in use stays the last one.
    if (m_pairBlocks.size() > 1)
      std::swap(m_pairBlocks.back(), m_pairBlocks[m_pairBlocks.size() - 2]);
    return own;
  }
  if (m_pairBlocks.empty() || m_pairsUsed + count > m_pairBlockSize) {
    m_pairBlockSize = m_pairBlocks.empty() ? 256 : std::min(m_pairBlockSize * 4, kLargest);
    m_pairBlocks.push_back(newPairBlock(m_pairBlockSize));
    m_pairsUsed = 0;
  }
  OdDbDxfPair* p = m_pairBlocks.back().pairs() + m_pairsUsed;
  m_pairsUsed += count;
  return p;
}

void OdDbStringArena::Free::operator()(void* p) const
{
  std::free(p);
}

OdDbStringArena::PairBlock OdDbStringArena::newPairBlock(std::size_t count)
{
  PairBlock b;
  const std::size_t bytes = count * sizeof(OdDbDxfPair);
  if (bytes >= OdLargeBuffer::kHugePage) {
    b.large = OdLargeBuffer(bytes);
    return b;
  }
  void* p = std::malloc(bytes);
  if (!p)
    throw std::bad_alloc();
  b.small.reset(static_cast<OdDbDxfPair*>(p));
  return b;
}
