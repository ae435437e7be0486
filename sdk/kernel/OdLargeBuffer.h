// OdLargeBuffer: a block of many megabytes in a mapping of its own.
#pragma once

#include <cstddef>

// For the big buffers of a drawing (its file text, its pairs, the text
// written): the block is asked to be backed by huge pages where the system
// offers them, so that filling it takes a page fault per two megabytes
// instead of one per four kilobytes. Its bytes start out zero.
class OdLargeBuffer
{
public:
  OdLargeBuffer() = default;
  // Throws std::bad_alloc when the system has no memory for it.
  explicit OdLargeBuffer(std::size_t size);
  OdLargeBuffer(OdLargeBuffer&& other) noexcept;
  OdLargeBuffer& operator=(OdLargeBuffer&& other) noexcept;
  OdLargeBuffer(const OdLargeBuffer&) = delete;
  OdLargeBuffer& operator=(const OdLargeBuffer&) = delete;
  ~OdLargeBuffer();

  char* data() const { return m_data; }
  std::size_t size() const { return m_size; }
  // Makes the block `size` bytes long, keeping what it holds (as far as it
  // reaches); the block may move.
  void resize(std::size_t size);

  // Blocks smaller than this gain nothing from a mapping of their own.
  static constexpr std::size_t kHugePage = 2u << 20;

private:
  char* m_data = nullptr;
  std::size_t m_size = 0;
  std::size_t m_mapped = 0; // the length of the mapping, whole pages
};
