// Group-code pairs, the storage of every drawing object, and the array that
// keeps the pairs of one object.
#pragma once

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>

// The text of a pair: a view of characters that live in a string arena (or
// are a literal). Twelve bytes with an alignment of four, so that a pair
// with its code takes sixteen: a drawing holds millions of pairs.
class OdDbDxfText
{
public:
  OdDbDxfText() = default;
  OdDbDxfText(std::string_view text) : m_size(std::uint32_t(text.size()))
  {
    if (text.size() > UINT32_MAX)
      tooLong();
    const char* p = text.data();
    std::memcpy(m_data, &p, sizeof p);
  }
  OdDbDxfText(const char* text) : OdDbDxfText(std::string_view(text)) {}
  OdDbDxfText(const std::string& text) : OdDbDxfText(std::string_view(text)) {}

  const char* data() const
  {
    const char* p;
    std::memcpy(&p, m_data, sizeof p);
    return p;
  }
  std::size_t size() const { return m_size; }
  bool empty() const { return m_size == 0; }
  char operator[](std::size_t i) const { return data()[i]; }
  char front() const { return data()[0]; }
  char back() const { return data()[m_size - 1]; }
  const char* begin() const { return data(); }
  const char* end() const { return data() + m_size; }
  std::string_view view() const { return std::string_view(data(), m_size); }
  operator std::string_view() const { return view(); }

  friend bool operator==(const OdDbDxfText& a, std::string_view b) { return a.view() == b; }

private:
  // Throws OdError: no line of a file comes near four gigabytes.
  [[noreturn]] static void tooLong();

  std::uint32_t m_data[2] = {0, 0}; // the address of the characters
  std::uint32_t m_size = 0;
};

// One group code with its value as text. Pairs are cheap to copy and never
// own memory.
struct OdDbDxfPair
{
  int code = 0;
  OdDbDxfText value;
};
static_assert(sizeof(OdDbDxfPair) == 16, "pairs are the bulk of a drawing in memory");

// The pairs of one object: a vector of pairs with storage of its own, a
// slice of a block that the drawing's arena owns, as reading a file leaves
// them, or a constant table (a class's default pairs). The slice belongs to
// this array alone, so it is changed in place; only growing past it moves
// the pairs to storage of their own. A constant table is copied before the
// first change: any access that could change a pair makes the copy. A copy
// of an array always has storage of its own.
class OdDbDxfPairArray
{
public:
  using value_type = OdDbDxfPair;
  using iterator = OdDbDxfPair*;
  using const_iterator = const OdDbDxfPair*;

  OdDbDxfPairArray() = default;
  OdDbDxfPairArray(std::initializer_list<OdDbDxfPair> pairs) : OdDbDxfPairArray(pairs.begin(), pairs.end()) {}
  OdDbDxfPairArray(const OdDbDxfPair* first, const OdDbDxfPair* last);
  OdDbDxfPairArray(const OdDbDxfPairArray& other) : OdDbDxfPairArray(other.begin(), other.end()) {}
  OdDbDxfPairArray(OdDbDxfPairArray&& other) noexcept;
  OdDbDxfPairArray& operator=(const OdDbDxfPairArray& other);
  OdDbDxfPairArray& operator=(OdDbDxfPairArray&& other) noexcept;
  ~OdDbDxfPairArray();

  // An array over `size` pairs at `slice`: storage that outlives the array
  // and that nothing else uses.
  static OdDbDxfPairArray borrowing(OdDbDxfPair* slice, std::size_t size);
  // An array over a table that lives as long as the program and never
  // changes.
  static OdDbDxfPairArray sharing(const OdDbDxfPair* table, std::size_t size);
  bool isBorrowed() const { return (m_capacity & kBorrowed) != 0; }

  std::size_t size() const { return m_size; }
  bool empty() const { return m_size == 0; }
  std::size_t capacity() const { return m_capacity & ~(kBorrowed | kShared); }
  OdDbDxfPair* data() { return writable(); }
  const OdDbDxfPair* data() const { return m_data; }
  iterator begin() { return writable(); }
  iterator end() { return writable() + m_size; }
  const_iterator begin() const { return m_data; }
  const_iterator end() const { return m_data + m_size; }
  OdDbDxfPair& operator[](std::size_t i) { return writable()[i]; }
  const OdDbDxfPair& operator[](std::size_t i) const { return m_data[i]; }
  OdDbDxfPair& front() { return writable()[0]; }
  const OdDbDxfPair& front() const { return m_data[0]; }
  OdDbDxfPair& back() { return writable()[m_size - 1]; }
  const OdDbDxfPair& back() const { return m_data[m_size - 1]; }

  void reserve(std::size_t n);
  void clear() { m_size = 0; }
  void push_back(const OdDbDxfPair& pair);
  iterator insert(const_iterator at, const OdDbDxfPair& pair) { return insert(at, &pair, &pair + 1); }
  iterator insert(const_iterator at, std::initializer_list<OdDbDxfPair> pairs)
  {
    return insert(at, pairs.begin(), pairs.end());
  }
  iterator insert(const_iterator at, const OdDbDxfPair* first, const OdDbDxfPair* last);
  iterator erase(const_iterator at) { return erase(at, at + 1); }
  iterator erase(const_iterator first, const_iterator last);

private:
  static constexpr std::uint32_t kBorrowed = 0x80000000u;
  static constexpr std::uint32_t kShared = 0x40000000u;
  // Room for `needed` pairs in storage that may be changed.
  void grow(std::size_t needed);
  OdDbDxfPair* writable()
  {
    if (m_capacity & kShared)
      unshare();
    return m_data;
  }
  void unshare();

  OdDbDxfPair* m_data = nullptr;
  std::uint32_t m_size = 0;
  std::uint32_t m_capacity = 0; // with kBorrowed: a slice of the arena's; kShared: a constant table
};
