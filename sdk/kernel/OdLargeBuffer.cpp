// Anonymous mappings aligned to huge pages, and madvise to ask for them.
#include "sdk/kernel/OdLargeBuffer.h"

#include <cstring>
#include <new>
#include <utility>

#include <sys/mman.h>

namespace {

std::size_t roundUp(std::size_t size, std::size_t to)
{
  return (size + to - 1) / to * to;
}

// A mapping of `length` bytes (a multiple of the huge page) that starts on
// a huge page, so that the kernel can back all of it with them.
char* mapAligned(std::size_t length)
{
  const std::size_t extra = length + OdLargeBuffer::kHugePage;
  void* p = mmap(nullptr, extra, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (p == MAP_FAILED)
    throw std::bad_alloc();
  char* start = static_cast<char*>(p);
  char* aligned = reinterpret_cast<char*>(roundUp(reinterpret_cast<std::size_t>(start), OdLargeBuffer::kHugePage));
  if (aligned > start)
    munmap(start, std::size_t(aligned - start));
  const std::size_t tail = std::size_t(start + extra - (aligned + length));
  if (tail > 0)
    munmap(aligned + length, tail);
  // Advice only: without transparent huge pages the block works the same.
  madvise(aligned, length, MADV_HUGEPAGE);
  return aligned;
}

} // namespace

OdLargeBuffer::OdLargeBuffer(std::size_t size)
{
  resize(size);
}

OdLargeBuffer::OdLargeBuffer(OdLargeBuffer&& other) noexcept
    : m_data(std::exchange(other.m_data, nullptr)), m_size(std::exchange(other.m_size, 0)),
      m_mapped(std::exchange(other.m_mapped, 0))
{
}

OdLargeBuffer& OdLargeBuffer::operator=(OdLargeBuffer&& other) noexcept
{
  if (this != &other) {
    if (m_data)
      munmap(m_data, m_mapped);
    m_data = std::exchange(other.m_data, nullptr);
    m_size = std::exchange(other.m_size, 0);
    m_mapped = std::exchange(other.m_mapped, 0);
  }
  return *this;
}

OdLargeBuffer::~OdLargeBuffer()
{
  if (m_data)
    munmap(m_data, m_mapped);
}

void OdLargeBuffer::resize(std::size_t size)
{
  if (size <= m_mapped) {
    m_size = size;
    return;
  }
  const std::size_t length = roundUp(size, kHugePage);
  char* data = mapAligned(length);
  if (m_data) {
    std::memcpy(data, m_data, m_size);
    munmap(m_data, m_mapped);
  }
  m_data = data;
  m_size = size;
  m_mapped = length;
}
