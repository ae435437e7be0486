// The pair array of drawing objects: its own storage, or a borrowed slice.
#include "sdk/db/OdDbDxfPairArray.h"

#include "sdk/kernel/OdError.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <vector>

void OdDbDxfText::tooLong()
{
  throw OdError(eInvalidInput, "a text of four gigabytes or more cannot be kept in a drawing");
}

OdDbDxfPairArray::OdDbDxfPairArray(const OdDbDxfPair* first, const OdDbDxfPair* last)
{
  const std::size_t n = std::size_t(last - first);
  if (n == 0)
    return;
  grow(n);
  std::memcpy(m_data, first, n * sizeof(OdDbDxfPair));
  m_size = std::uint32_t(n);
}

OdDbDxfPairArray::OdDbDxfPairArray(OdDbDxfPairArray&& other) noexcept
    : m_data(other.m_data), m_size(other.m_size), m_capacity(other.m_capacity)
{
  other.m_data = nullptr;
  other.m_size = other.m_capacity = 0;
}

OdDbDxfPairArray& OdDbDxfPairArray::operator=(const OdDbDxfPairArray& other)
{
  if (this != &other) {
    OdDbDxfPairArray copy(other);
    *this = std::move(copy);
  }
  return *this;
}

OdDbDxfPairArray& OdDbDxfPairArray::operator=(OdDbDxfPairArray&& other) noexcept
{
  if (this != &other) {
    if (!(m_capacity & (kBorrowed | kShared)))
      std::free(m_data);
    m_data = other.m_data;
    m_size = other.m_size;
    m_capacity = other.m_capacity;
    other.m_data = nullptr;
    other.m_size = other.m_capacity = 0;
  }
  return *this;
}

OdDbDxfPairArray::~OdDbDxfPairArray()
{
  if (!(m_capacity & (kBorrowed | kShared)))
    std::free(m_data);
}

OdDbDxfPairArray OdDbDxfPairArray::borrowing(OdDbDxfPair* slice, std::size_t size)
{
  if (size >= kShared)
    throw OdError(eInvalidInput, "too many pairs for one object");
  OdDbDxfPairArray a;
  a.m_data = slice;
  a.m_size = a.m_capacity = std::uint32_t(size);
  a.m_capacity |= kBorrowed;
  return a;
}

OdDbDxfPairArray OdDbDxfPairArray::sharing(const OdDbDxfPair* table, std::size_t size)
{
  if (size >= kShared)
    throw OdError(eInvalidInput, "too many pairs for one object");
  OdDbDxfPairArray a;
  a.m_data = const_cast<OdDbDxfPair*>(table); // never written: unshare() copies first
  a.m_size = a.m_capacity = std::uint32_t(size);
  a.m_capacity |= kShared;
  return a;
}

void OdDbDxfPairArray::unshare()
{
  // The copy has room for a few more: the change that comes is often one.
  const std::size_t size = m_size;
  OdDbDxfPair* table = m_data;
  m_data = nullptr;
  m_size = m_capacity = 0;
  grow(size + 4);
  if (size)
    std::memcpy(m_data, table, size * sizeof(OdDbDxfPair));
  m_size = std::uint32_t(size);
}

void OdDbDxfPairArray::grow(std::size_t needed)
{
  if (needed >= kShared)
    throw OdError(eInvalidInput, "too many pairs for one object");
  if (needed <= capacity() && !(m_capacity & kShared))
    return;
  // Pairs are plain values: storage is moved with memcpy and realloc.
  const std::size_t room = std::min<std::size_t>(kShared - 1, std::max<std::size_t>(needed, capacity() * 2));
  OdDbDxfPair* data = nullptr;
  if ((m_capacity & (kBorrowed | kShared)) || !m_data) {
    data = static_cast<OdDbDxfPair*>(std::malloc(room * sizeof(OdDbDxfPair)));
    if (data && m_size)
      std::memcpy(data, m_data, m_size * sizeof(OdDbDxfPair));
  } else {
    data = static_cast<OdDbDxfPair*>(std::realloc(m_data, room * sizeof(OdDbDxfPair)));
  }
  if (!data)
    throw std::bad_alloc();
  m_data = data;
  m_capacity = std::uint32_t(room);
}

void OdDbDxfPairArray::reserve(std::size_t n)
{
  if (n > capacity())
    grow(n);
}

void OdDbDxfPairArray::push_back(const OdDbDxfPair& pair)
{
  if (m_size == capacity() || (m_capacity & kShared)) {
    const OdDbDxfPair copy = pair; // `pair` may be one of ours
    grow(std::size_t(m_size) + 1);
    m_data[m_size++] = copy;
    return;
  }
  m_data[m_size++] = pair;
}

OdDbDxfPairArray::iterator OdDbDxfPairArray::insert(const_iterator at, const OdDbDxfPair* first,
                                                    const OdDbDxfPair* last)
{
  // Positions count from the pairs as they are, before any copy is made.
  const std::size_t pos = std::size_t(at - m_data);
  const std::size_t n = std::size_t(last - first);
  if (n == 0)
    return writable() + pos;
  // Pairs of this very array move while room is made: copy them first.
  std::vector<OdDbDxfPair> own;
  if (first >= m_data && first < m_data + m_size) {
    own.assign(first, last);
    first = own.data();
  }
  if (m_size + n > capacity() || (m_capacity & kShared))
    grow(m_size + n);
  std::memmove(m_data + pos + n, m_data + pos, (m_size - pos) * sizeof(OdDbDxfPair));
  std::memcpy(m_data + pos, first, n * sizeof(OdDbDxfPair));
  m_size += std::uint32_t(n);
  return m_data + pos;
}

OdDbDxfPairArray::iterator OdDbDxfPairArray::erase(const_iterator first, const_iterator last)
{
  const std::size_t pos = std::size_t(first - m_data);
  const std::size_t n = std::size_t(last - first);
  writable();
  if (n == 0)
    return m_data + pos;
  std::memmove(m_data + pos, m_data + pos + n, (m_size - pos - n) * sizeof(OdDbDxfPair));
  m_size -= std::uint32_t(n);
  return m_data + pos;
}
