// OdRxObject: root of the run-time class system. Objects are counted, know
// their class description (isA) and answer queries for other classes.
#pragma once

#include "sdk/kernel/OdError.h"
#include "sdk/kernel/OdSmartPtr.h"

#include <atomic>
#include <utility>

class OdRxClass;
class OdRxObject;
using OdRxObjectPtr = OdSmartPtr<OdRxObject>;
using OdPseudoConstructorType = OdRxObjectPtr (*)();

class OdRxObject
{
public:
  OdRxObject() = default;
  OdRxObject(const OdRxObject&) = delete;
  OdRxObject& operator=(const OdRxObject&) = delete;
  virtual ~OdRxObject() = default;

  // The class machinery of the root; classes below get theirs from the
  // ODRX_DECLARE_MEMBERS / ODRX_DEFINE_MEMBERS pair.
  static OdRxClass* g_pDesc;
  static OdRxClass* desc();
  static OdRxObjectPtr cast(const OdRxObject* p);
  static void rxInit();
  static void rxUninit();

  // A counted reference to this object seen as `cls`, or null.
  virtual OdRxObject* queryX(const OdRxClass* cls) const;
  // As queryX, but throws OdError_NotThatKindOfClass instead of giving null.
  virtual OdRxObject* x(const OdRxClass* cls) const;
  virtual OdRxClass* isA() const;
  virtual void addRef() = 0;
  virtual void release() = 0;
  virtual long numRefs() const;
  virtual OdRxObjectPtr clone() const;
  virtual void copyFrom(const OdRxObject* source);

  bool isKindOf(const OdRxClass* cls) const;
};

// Shared body of the generated queryX: this class, then the parent chain.
OdRxObject* odrxQueryXSelf(const OdRxObject* self, const OdRxClass* cls, const OdRxClass* own);

#define ODRX_DECLARE_MEMBERS(ClassName)                           \
public:                                                           \
  static OdRxClass* g_pDesc;                                      \
  static OdRxClass* desc();                                       \
  OdRxClass* isA() const override;                                \
  OdRxObject* queryX(const OdRxClass* cls) const override;        \
  static OdSmartPtr<ClassName> cast(const OdRxObject* p);         \
  static OdSmartPtr<ClassName> createObject();                    \
  static OdRxObjectPtr pseudoConstructor();                       \
  static void rxInit();                                           \
  static void rxUninit()

// Defines the members; `Creator` is the body of pseudoConstructor, or
// `return OdRxObjectPtr();` for an abstract class. The class registers under
// its C++ name.
#define ODRX_DEFINE_MEMBERS_EX(ClassName, ParentClass, NameText, HasCreator, Creator)              \
  OdRxClass* ClassName::g_pDesc = nullptr;                                                           \
  OdRxClass* ClassName::desc() { return g_pDesc; }                                                   \
  OdRxClass* ClassName::isA() const { return g_pDesc; }                                              \
  OdRxObject* ClassName::queryX(const OdRxClass* cls) const                                          \
  {                                                                                                  \
    if (OdRxObject* self = odrxQueryXSelf(this, cls, g_pDesc))                                       \
      return self;                                                                                   \
    return ParentClass::queryX(cls);                                                                 \
  }                                                                                                  \
  OdSmartPtr<ClassName> ClassName::cast(const OdRxObject* p)                                         \
  {                                                                                                  \
    if (!p || !g_pDesc)                                                                              \
      return OdSmartPtr<ClassName>();                                                                \
    return OdSmartPtr<ClassName>(static_cast<ClassName*>(p->queryX(g_pDesc)), kOdRxObjAttach);       \
  }                                                                                                  \
  OdRxObjectPtr ClassName::pseudoConstructor() { Creator }                                           \
  OdSmartPtr<ClassName> ClassName::createObject()                                                    \
  {                                                                                                  \
    if (!g_pDesc)                                                                                    \
      throw OdError(eNotRegistered, OdString("class not registered: ") + NameText);                  \
    return OdSmartPtr<ClassName>(odrxCreateFromClass(g_pDesc));                                      \
  }                                                                                                  \
  void ClassName::rxInit()                                                                           \
  {                                                                                                  \
    g_pDesc = ::newOdRxClass(NameText, ParentClass::desc(),                                          \
                             HasCreator ? &ClassName::pseudoConstructor : nullptr);                  \
  }                                                                                                  \
  void ClassName::rxUninit()                                                                         \
  {                                                                                                  \
    if (!g_pDesc)                                                                                    \
      throw OdError(eNotRegistered, OdString("class not registered: ") + NameText);                  \
    ::deleteOdRxClass(g_pDesc);                                                                      \
    g_pDesc = nullptr;                                                                               \
  }

#define ODRX_DEFINE_MEMBERS(ClassName, ParentClass, Creator) \
  ODRX_DEFINE_MEMBERS_EX(ClassName, ParentClass, #ClassName, true, Creator)
#define ODRX_NO_CONS_DEFINE_MEMBERS(ClassName, ParentClass) \
  ODRX_DEFINE_MEMBERS_EX(ClassName, ParentClass, #ClassName, false, return OdRxObjectPtr();)
// The usual creator: a counted instance of the implementation class.
#define ODRX_CREATE_IMPL(ImplClass, ClassName) \
  return OdRxObjectPtr(static_cast<OdRxObject*>(static_cast<ClassName*>(new OdRxObjectImpl<ImplClass>)), kOdRxObjAttach);

// A counted object: T with an atomic reference count, created with a count
// of one and deleted when the last reference goes.
template <class T, class TInterface = T>
class OdRxObjectImpl : public T
{
public:
  template <class... Args>
  explicit OdRxObjectImpl(Args&&... args) : T(std::forward<Args>(args)...)
  {
  }

  void addRef() override { m_nRefCounter.fetch_add(1, std::memory_order_relaxed); }
  void release() override
  {
    if (m_nRefCounter.fetch_sub(1, std::memory_order_acq_rel) == 1)
      delete this;
  }
  long numRefs() const override { return m_nRefCounter.load(std::memory_order_relaxed); }

  template <class... Args>
  static OdSmartPtr<TInterface> createObject(Args&&... args)
  {
    return OdSmartPtr<TInterface>(
        static_cast<TInterface*>(new OdRxObjectImpl<T, TInterface>(std::forward<Args>(args)...)),
        kOdRxObjAttach);
  }

private:
  std::atomic<long> m_nRefCounter{1};
};

// An object whose life is not counted: a static or a member of something
// else. Its references are ignored.
template <class T>
class OdStaticRxObject : public T
{
public:
  template <class... Args>
  explicit OdStaticRxObject(Args&&... args) : T(std::forward<Args>(args)...)
  {
  }
  void addRef() override {}
  void release() override {}
  long numRefs() const override { return 1; }
};

// Declared here so that the member macros need only this header.
OdRxClass* newOdRxClass(const OdString& name, OdRxClass* parent, OdPseudoConstructorType constructor = nullptr,
                        int dwgVer = 0, int maintVer = 0, int proxyFlags = 0,
                        const OdString& dxfName = OdString(), const OdString& appName = OdString(),
                        void* customization = nullptr, void* reserved = nullptr);
void deleteOdRxClass(OdRxClass* cls);
OdRxObjectPtr odrxCreateFromClass(const OdRxClass* cls);
