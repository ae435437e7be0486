// OdTcEnum<T>: the one cursor over any list of the model. It sees the
// container itself, not a copy, and must not outlive it.
#pragma once

#include "sdk/kernel/OdRxObject.h"

namespace tc {

template <class T>
class OdTcEnum : public OdRxObject
{
public:
  // The next element, or null at the end.
  virtual T* next() = 0;
  // Back to the first element.
  virtual void reset() = 0;
};

template <class T>
using OdTcEnumPtr = OdSmartPtr<OdTcEnum<T>>;

// Turns an element of a container of smart pointers into a plain pointer.
template <class P>
struct DirectAccessor
{
  template <class Element>
  static P* get(const Element& element)
  {
    return element.get();
  }
};

template <class T, class Container, class Accessor = DirectAccessor<T>>
class OdTcEnumImpl : public OdTcEnum<T>
{
public:
  explicit OdTcEnumImpl(const Container* container) : m_container(container) {}

  static OdTcEnumPtr<T> create(const Container* container)
  {
    return OdTcEnumPtr<T>(new OdRxObjectImpl<OdTcEnumImpl>(container), kOdRxObjAttach);
  }

  T* next() override
  {
    if (!m_container || m_position >= size_t(m_container->size()))
      return nullptr;
    return Accessor::get((*m_container)[m_position++]);
  }
  void reset() override { m_position = 0; }

private:
  const Container* m_container; // not owned
  size_t m_position = 0;
};

} // namespace tc
