// The class dictionary and the root class OdRxObject.
#include "sdk/kernel/OdRxClass.h"

#include <map>
#include <memory>

namespace {

struct ClassRegistry
{
  std::map<OdString, std::unique_ptr<OdRxClass>> byName;
};

ClassRegistry& registry()
{
  static ClassRegistry r;
  return r;
}

} // namespace

OdRxClass::OdRxClass(const OdString& name, OdRxClass* parent, OdPseudoConstructorType constructor,
                     const OdString& dxfName, const OdString& appName)
    : m_name(name), m_parent(parent), m_constructor(constructor), m_dxfName(dxfName), m_appName(appName)
{
}

OdRxObjectPtr OdRxClass::create() const
{
  return m_constructor ? m_constructor() : OdRxObjectPtr();
}

bool OdRxClass::isDerivedFrom(const OdRxClass* other) const
{
  for (const OdRxClass* c = this; c; c = c->m_parent)
    if (c == other)
      return true;
  return false;
}

OdRxClass* OdRxClassDictionary::getAt(const OdString& name) const
{
  auto& m = registry().byName;
  auto it = m.find(name);
  return it == m.end() ? nullptr : it->second.get();
}

OdArray<OdString> OdRxClassDictionary::names() const
{
  OdArray<OdString> out;
  for (const auto& [name, cls] : registry().byName)
    out.append(name);
  return out;
}

int OdRxClassDictionary::numEntries() const
{
  return int(registry().byName.size());
}

OdRxClassDictionary* odrxClassDictionary()
{
  static OdRxClassDictionary dictionary;
  return &dictionary;
}

OdRxClass* newOdRxClass(const OdString& name, OdRxClass* parent, OdPseudoConstructorType constructor, int, int,
                        int, const OdString& dxfName, const OdString& appName, void*, void*)
{
  auto& m = registry().byName;
  if (m.count(name))
    throw OdError(eAlreadyRegistered, OdString("class already registered: ") + name);
  auto cls = std::make_unique<OdRxClass>(name, parent, constructor, dxfName, appName);
  OdRxClass* raw = cls.get();
  m.emplace(name, std::move(cls));
  return raw;
}

void deleteOdRxClass(OdRxClass* cls)
{
  if (!cls)
    throw OdError(eNotRegistered, "null class description");
  auto& m = registry().byName;
  auto it = m.find(cls->name());
  if (it == m.end() || it->second.get() != cls)
    throw OdError(eNotRegistered, OdString("class not registered: ") + cls->name());
  m.erase(it);
}

OdRxObjectPtr odrxCreateFromClass(const OdRxClass* cls)
{
  if (!cls)
    throw OdError(eNotRegistered, "null class description");
  return cls->create();
}

OdRxObjectPtr odrxCreateObject(const OdString& className)
{
  OdRxClass* cls = odrxClassDictionary()->getAt(className);
  if (!cls)
    throw OdError(eNotRegistered, OdString("class not registered: ") + className);
  return cls->create();
}

// ---------------------------------------------------------------- OdRxObject

OdRxClass* OdRxObject::g_pDesc = nullptr;

OdRxClass* OdRxObject::desc()
{
  return g_pDesc;
}

OdRxObjectPtr OdRxObject::cast(const OdRxObject* p)
{
  return OdRxObjectPtr(p);
}

void OdRxObject::rxInit()
{
  g_pDesc = newOdRxClass("OdRxObject", nullptr, nullptr);
}

void OdRxObject::rxUninit()
{
  if (!g_pDesc)
    throw OdError(eNotRegistered);
  deleteOdRxClass(g_pDesc);
  g_pDesc = nullptr;
}

OdRxObject* odrxQueryXSelf(const OdRxObject* self, const OdRxClass* cls, const OdRxClass* own)
{
  if (cls && cls == own) {
    const_cast<OdRxObject*>(self)->addRef();
    return const_cast<OdRxObject*>(self);
  }
  return nullptr;
}

OdRxObject* OdRxObject::queryX(const OdRxClass* cls) const
{
  if (!cls)
    return nullptr;
  // The root answers for itself and for any class on the chain of isA(),
  // which covers implementation classes that declare no machinery of
  // their own.
  const OdRxClass* mine = isA();
  if (cls == g_pDesc || (mine && mine->isDerivedFrom(cls))) {
    const_cast<OdRxObject*>(this)->addRef();
    return const_cast<OdRxObject*>(this);
  }
  return nullptr;
}

OdRxObject* OdRxObject::x(const OdRxClass* cls) const
{
  OdRxObject* p = queryX(cls);
  if (!p)
    throw OdError_NotThatKindOfClass(isA(), cls);
  return p;
}

OdRxClass* OdRxObject::isA() const
{
  return g_pDesc;
}

long OdRxObject::numRefs() const
{
  return 1;
}

OdRxObjectPtr OdRxObject::clone() const
{
  const OdRxClass* cls = isA();
  OdRxObjectPtr copy = cls ? cls->create() : OdRxObjectPtr();
  if (copy)
    copy->copyFrom(this);
  return copy;
}

void OdRxObject::copyFrom(const OdRxObject*)
{
}

bool OdRxObject::isKindOf(const OdRxClass* cls) const
{
  const OdRxClass* mine = isA();
  return mine && mine->isDerivedFrom(cls);
}

void odrxThrowNotThatKindOfClass(const OdRxObject* from, const void* toClass)
{
  throw OdError_NotThatKindOfClass(from ? from->isA() : nullptr, static_cast<const OdRxClass*>(toClass));
}
