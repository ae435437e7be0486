// The child object a filer delivered, narrowed to an implementation class.
#pragma once

#include "sdk/kernel/OdVariant.h"

namespace tc {

// Classes of the snapshots have no class description of their own, so the
// narrowing is the language's; an object of another class, or a text where an
// object belongs, fails as a cast of the wrong class does.
template <class T>
OdSmartPtr<T> tcDeliveredAs(const OdVariant& value)
{
  OdRxObjectPtr object = value.getRxObjectPtr();
  T* typed = dynamic_cast<T*>(object.get());
  if (!typed)
    throw OdError_NotThatKindOfClass();
  return OdSmartPtr<T>(typed);
}

// A new object of the implementation class T, filled from `source`: the
// clone of classes that share the class description of their interface.
template <class T, class I>
OdRxObjectPtr tcCloneAs(const OdRxObject* source)
{
  OdSmartPtr<I> copy = OdRxObjectImpl<T, I>::createObject();
  copy->copyFrom(source);
  return OdRxObjectPtr(copy);
}

} // namespace tc
