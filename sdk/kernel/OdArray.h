// OdArray: the SDK's shared array. Copies share their storage until one of
// them is changed (copy on write), so arrays pass by value cheaply.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <vector>

template <class T>
class OdArray
{
public:
  using size_type = unsigned int;
  using iterator = typename std::vector<T>::iterator;
  using const_iterator = typename std::vector<T>::const_iterator;

  OdArray() = default;
  explicit OdArray(size_type reserve) { if (reserve) mut().reserve(reserve); }
  OdArray(std::initializer_list<T> items) : m_data(std::make_shared<std::vector<T>>(items)) {}
  OdArray(const std::vector<T>& items) : m_data(std::make_shared<std::vector<T>>(items)) {}

  size_type size() const { return m_data ? size_type(m_data->size()) : 0; }
  size_type length() const { return size(); }
  size_type logicalLength() const { return size(); }
  bool isEmpty() const { return size() == 0; }
  bool empty() const { return isEmpty(); }

  const T& operator[](size_type i) const { return (*m_data)[i]; }
  T& operator[](size_type i) { return mut()[i]; }
  const T& at(size_type i) const { return m_data->at(i); }
  T& at(size_type i) { return mut().at(i); }
  const T& getAt(size_type i) const { return at(i); }
  OdArray& setAt(size_type i, const T& v) { mut().at(i) = v; return *this; }
  const T& first() const { return m_data->front(); }
  const T& last() const { return m_data->back(); }
  T& first() { return mut().front(); }
  T& last() { return mut().back(); }

  size_type append(const T& v) { mut().push_back(v); return size() - 1; }
  OdArray& append(const OdArray& other)
  {
    if (!other.isEmpty()) {
      const std::vector<T> copy = *other.m_data; // other may be *this
      mut().insert(mut().end(), copy.begin(), copy.end());
    }
    return *this;
  }
  void push_back(const T& v) { mut().push_back(v); }
  OdArray& insertAt(size_type i, const T& v) { mut().insert(mut().begin() + i, v); return *this; }
  OdArray& removeAt(size_type i) { mut().erase(mut().begin() + i); return *this; }
  OdArray& removeSubArray(size_type from, size_type to)
  {
    mut().erase(mut().begin() + from, mut().begin() + to + 1);
    return *this;
  }
  OdArray& removeFirst() { return removeAt(0); }
  OdArray& removeLast() { mut().pop_back(); return *this; }
  bool remove(const T& v, size_type start = 0)
  {
    size_type i = 0;
    if (!find(v, i, start))
      return false;
    removeAt(i);
    return true;
  }
  bool find(const T& v, size_type& index, size_type start = 0) const
  {
    for (size_type i = start; i < size(); ++i) {
      if ((*m_data)[i] == v) {
        index = i;
        return true;
      }
    }
    return false;
  }
  bool contains(const T& v, size_type start = 0) const
  {
    size_type i = 0;
    return find(v, i, start);
  }
  OdArray& clear() { m_data.reset(); return *this; }
  OdArray& resize(size_type n) { mut().resize(n); return *this; }
  OdArray& resize(size_type n, const T& v) { mut().resize(n, v); return *this; }
  OdArray& reserve(size_type n) { mut().reserve(n); return *this; }
  OdArray& reverse() { std::reverse(mut().begin(), mut().end()); return *this; }

  iterator begin() { return mut().begin(); }
  iterator end() { return mut().end(); }
  const_iterator begin() const { return m_data ? m_data->cbegin() : kNone.cbegin(); }
  const_iterator end() const { return m_data ? m_data->cend() : kNone.cend(); }
  const T* asArrayPtr() const { return m_data ? m_data->data() : nullptr; }
  const T* getPtr() const { return asArrayPtr(); }

  friend bool operator==(const OdArray& a, const OdArray& b)
  {
    if (a.size() != b.size())
      return false;
    return a.isEmpty() || *a.m_data == *b.m_data;
  }
  friend bool operator!=(const OdArray& a, const OdArray& b) { return !(a == b); }

  // How many arrays share this storage now; a test hook for copy on write.
  long sharedCount() const { return m_data ? m_data.use_count() : 0; }

private:
  std::vector<T>& mut()
  {
    if (!m_data)
      m_data = std::make_shared<std::vector<T>>();
    else if (m_data.use_count() > 1)
      m_data = std::make_shared<std::vector<T>>(*m_data);
    return *m_data;
  }

  static inline const std::vector<T> kNone{};
  std::shared_ptr<std::vector<T>> m_data;
};
