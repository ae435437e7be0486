// OdRxClass: a class description, and the dictionary of all of them by name.
#pragma once

#include "sdk/kernel/OdArray.h"
#include "sdk/kernel/OdRxObject.h"

class OdRxClass
{
public:
  OdRxClass(const OdString& name, OdRxClass* parent, OdPseudoConstructorType constructor,
            const OdString& dxfName, const OdString& appName);

  const OdString& name() const { return m_name; }
  const OdString& dxfName() const { return m_dxfName; }
  const OdString& appName() const { return m_appName; }
  OdRxClass* myParent() const { return m_parent; }
  OdPseudoConstructorType constructor() const { return m_constructor; }
  // Binds the creation function later than the description was made: an
  // interface registered by one library gets the implementation of another.
  void setConstructor(OdPseudoConstructorType constructor) { m_constructor = constructor; }

  // A new instance through the creation function; null for an abstract class.
  OdRxObjectPtr create() const;
  bool isDerivedFrom(const OdRxClass* other) const;

private:
  OdString m_name;
  OdRxClass* m_parent; // not owned
  OdPseudoConstructorType m_constructor;
  OdString m_dxfName;
  OdString m_appName;
};

// The process-wide dictionary of class descriptions.
class OdRxClassDictionary
{
public:
  OdRxClass* getAt(const OdString& name) const;
  bool has(const OdString& name) const { return getAt(name) != nullptr; }
  OdArray<OdString> names() const;
  int numEntries() const;
};

OdRxClassDictionary* odrxClassDictionary();

// Creates an object of the named class: OdError 255 when no such class is
// registered, null when the class is abstract.
OdRxObjectPtr odrxCreateObject(const OdString& className);
