// OdTcPersistImpl<I>: the common implementation of OdTcPersist for any
// interface I derived from it.
#pragma once

#include "model/OdTcContainerHooks.h"
#include "model/OdTcFiler.h"
#include "model/OdTcPersist.h"

namespace tc {

template <class I>
class OdTcPersistImpl : public I
{
public:
  bool readAttributes(OdTcFiler* filer) override
  {
    filer->push(this);
    OdTcValueMap values;
    filer->readAttributes(values);
    for (const auto& [name, value] : values)
      setValue(name, value);
    filer->pop(false);
    return true;
  }

  // Reads child elements as named values until the filer runs out; a name
  // that no class claims is dropped without a word.
  bool read(OdTcFiler* filer) override
  {
    filer->push(this);
    OdTcValueMap values;
    while (filer->readNext(values)) {
      for (const auto& [name, value] : values)
        setValue(name, value);
      values.clear();
    }
    filer->pop(true);
    return true;
  }

  void write(OdTcFiler* filer) override { writeBody(filer); }
  void setParent(OdTcPersist* parent) override { m_parent = parent; }
  OdString tagName() const override { return "OdTcPersist"; }
  void setLabel(const OdString& label) override { m_label = label; }
  const OdTcPersist* parent() const override { return m_parent; }
  OdTcPersist* parent() override { return m_parent; }

  // Walks up; an object that is its own parent ends the walk.
  OdTcDatabase* database() override
  {
    return (m_parent && m_parent != this) ? m_parent->database() : nullptr;
  }
  OdTcCatalog* catalog() override
  {
    return (m_parent && m_parent != this) ? m_parent->catalog() : nullptr;
  }
  bool hasChildren() const override { return false; }
  OdString displayName() const override { return OdString(); }

  void attachToDatabase(OdTcPersist* parent, const OdString&) override
  {
    m_parent = parent;
    if (OdTcDatabase* db = database())
      registerWithDatabase(db, this);
  }
  void attachToCatalog(OdTcPersist* parent) override
  {
    m_parent = parent;
    if (OdTcCatalog* cat = catalog())
      registerWithCatalog(cat, this);
  }
  void setOwner(OdTcPersist* parent) override { m_parent = parent; }

  // The writes of this class, in file order.
  virtual void writeBody(OdTcFiler* filer) {}
  // A second sequence after the body; empty unless a class needs one.
  virtual void writeTail(OdTcFiler* filer) {}
  // Takes one named value; true if the name is one of this class's.
  virtual bool setValue(const OdString& name, const OdVariant& value) { return false; }

  // What a clone takes over: the parent link, so the copy answers the same
  // parent() while that parent does not list it. Classes add their fields.
  void copyFrom(const OdRxObject* source) override
  {
    if (OdTcPersistPtr src = OdTcPersist::cast(source))
      m_parent = src->parent();
  }

  const OdString& label() const { return m_label; }

protected:
  // The child object a filer delivered, narrowed to T. A text where an
  // object belongs (an attribute of that name in a broken file) fails as a
  // cast of the wrong class does, so the file's read fails instead of a
  // null object staying behind.
  template <class T>
  static OdSmartPtr<T> deliveredObject(const OdVariant& value)
  {
    OdRxObjectPtr object = value.getRxObjectPtr();
    if (object.isNull())
      throw OdError_NotThatKindOfClass();
    return OdSmartPtr<T>(object);
  }

  OdString m_label;
  OdTcPersist* m_parent = nullptr; // not owned: ownership runs downward
};

} // namespace tc
