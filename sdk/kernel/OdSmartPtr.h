// OdSmartPtr: a counted pointer to a run-time object. Assigning an object of
// another class narrows it through queryX and throws when that fails.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

class OdRxObject;

enum OdRxObjMod
{
  kOdRxObjAttach // take over a reference the caller already holds
};

// Throws OdError_NotThatKindOfClass; out of line so this header stays light.
[[noreturn]] void odrxThrowNotThatKindOfClass(const OdRxObject* from, const void* toClass);

template <class T>
class OdSmartPtr
{
public:
  OdSmartPtr() = default;
  OdSmartPtr(std::nullptr_t) {}
  OdSmartPtr(const T* p) : m_p(const_cast<T*>(p)) { grab(); }
  OdSmartPtr(const T* p, OdRxObjMod) : m_p(const_cast<T*>(p)) {}
  OdSmartPtr(const OdSmartPtr& other) : m_p(other.m_p) { grab(); }
  OdSmartPtr(OdSmartPtr&& other) noexcept : m_p(std::exchange(other.m_p, nullptr)) {}

  // From a pointer of another class: a plain upcast when the classes allow
  // it, otherwise a checked narrowing through the run-time class system.
  template <class U>
  OdSmartPtr(const OdSmartPtr<U>& other)
  {
    if constexpr (std::is_convertible_v<U*, T*>) {
      m_p = other.get();
      grab();
    } else {
      narrow(other.get());
    }
  }
  template <class U>
  OdSmartPtr(const U* p) requires(!std::is_convertible_v<U*, T*> && std::is_base_of_v<OdRxObject, U>)
  {
    narrow(p);
  }
  template <class U>
  OdSmartPtr(const U* p, OdRxObjMod) requires(!std::is_convertible_v<U*, T*> && std::is_base_of_v<OdRxObject, U>)
  {
    narrow(p);
    if (p)
      const_cast<U*>(p)->release();
  }

  ~OdSmartPtr() { drop(); }

  OdSmartPtr& operator=(const OdSmartPtr& other)
  {
    if (m_p != other.m_p) {
      T* old = m_p;
      m_p = other.m_p;
      grab();
      if (old)
        old->release();
    }
    return *this;
  }
  OdSmartPtr& operator=(OdSmartPtr&& other) noexcept
  {
    if (this != &other) {
      drop();
      m_p = std::exchange(other.m_p, nullptr);
    }
    return *this;
  }
  OdSmartPtr& operator=(std::nullptr_t)
  {
    drop();
    return *this;
  }
  OdSmartPtr& operator=(const T* p)
  {
    OdSmartPtr tmp(p);
    return *this = std::move(tmp);
  }
  template <class U>
  OdSmartPtr& operator=(const OdSmartPtr<U>& other)
  {
    OdSmartPtr tmp(other);
    return *this = std::move(tmp);
  }

  void attach(const T* p)
  {
    drop();
    m_p = const_cast<T*>(p);
  }
  T* detach() { return std::exchange(m_p, nullptr); }
  void release() { drop(); }

  T* get() const { return m_p; }
  T* operator->() const { return m_p; }
  T& operator*() const { return *m_p; }
  operator T*() const { return m_p; }
  bool isNull() const { return m_p == nullptr; }
  explicit operator bool() const { return m_p != nullptr; }

private:
  void grab()
  {
    if (m_p)
      m_p->addRef();
  }
  void drop()
  {
    if (T* p = std::exchange(m_p, nullptr))
      p->release();
  }
  template <class U>
  void narrow(const U* p)
  {
    if (!p)
      return;
    // queryX hands back a counted reference to the asked-for class.
    auto* q = p->queryX(T::desc());
    if (!q)
      odrxThrowNotThatKindOfClass(p, T::desc());
    m_p = static_cast<T*>(q);
  }

  T* m_p = nullptr;
};

template <class T, class U>
bool operator==(const OdSmartPtr<T>& a, const OdSmartPtr<U>& b)
{
  return static_cast<const void*>(a.get()) == static_cast<const void*>(b.get());
}
