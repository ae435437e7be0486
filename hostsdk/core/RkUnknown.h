// IRkUnknown: the host's counted interface root, its implementation frame
// and a holder. Counts here are plain, not atomic: host objects live on the
// main thread.
#pragma once

#include <cstring>
#include <utility>

// Interfaces are asked for by the text of their name (kIID), the host's
// equivalent of a type description.
#define RK_DECLARE_IID(Name) static constexpr const char* kIID = #Name

class IRkUnknown
{
public:
  RK_DECLARE_IID(IRkUnknown);
  virtual long addRef() = 0;
  virtual long release() = 0;
  // On success stores a counted pointer in `out` and returns true.
  virtual bool queryInterface(const char* iid, void** out) = 0;

protected:
  virtual ~IRkUnknown() = default;
};

inline bool rkSameIID(const char* a, const char* b)
{
  return a && b && std::strcmp(a, b) == 0;
}

// Implements the three operations of IRkUnknown for an interface I; the count
// starts at 1 for the creator. queryInterface answers IRkUnknown and I;
// classes with more interfaces override it and call this one last.
template <class I>
class CRkUnknownImpl : public I
{
public:
  long addRef() override { return ++m_refCount; }
  long release() override
  {
    const long n = --m_refCount;
    if (n == 0)
      delete this;
    return n;
  }
  bool queryInterface(const char* iid, void** out) override
  {
    if (!out)
      return false;
    if (rkSameIID(iid, IRkUnknown::kIID) || rkSameIID(iid, I::kIID)) {
      *out = static_cast<I*>(this);
      addRef();
      return true;
    }
    *out = nullptr;
    return false;
  }
  long refCount() const { return m_refCount; }

protected:
  long m_refCount = 1;
};

// Holds one reference to a host interface.
template <class I>
class CRkPtr
{
public:
  CRkPtr() = default;
  CRkPtr(I* p) : m_p(p) { if (m_p) m_p->addRef(); }
  CRkPtr(const CRkPtr& o) : CRkPtr(o.m_p) {}
  CRkPtr(CRkPtr&& o) noexcept : m_p(std::exchange(o.m_p, nullptr)) {}
  ~CRkPtr() { reset(); }
  CRkPtr& operator=(CRkPtr o) noexcept
  {
    std::swap(m_p, o.m_p);
    return *this;
  }
  // Takes over a reference the caller holds already.
  static CRkPtr attach(I* p)
  {
    CRkPtr r;
    r.m_p = p;
    return r;
  }
  // Asks `from` for I; null when it does not answer.
  template <class From>
  static CRkPtr query(From* from)
  {
    void* out = nullptr;
    if (from && from->queryInterface(I::kIID, &out))
      return attach(static_cast<I*>(out));
    return CRkPtr();
  }
  void reset()
  {
    if (I* p = std::exchange(m_p, nullptr))
      p->release();
  }
  // For functions that fill an `I**` with a counted pointer.
  I** put()
  {
    reset();
    return &m_p;
  }
  I* get() const { return m_p; }
  I* operator->() const { return m_p; }
  explicit operator bool() const { return m_p != nullptr; }

private:
  I* m_p = nullptr;
};
