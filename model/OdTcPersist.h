// OdTcPersist: the base of everything kept in a catalog or palette file. It
// gives an object a parent link, an element name, a reader and a writer.
#pragma once

#include "sdk/kernel/OdRxObject.h"

namespace tc {

class OdTcFiler;
class OdTcDatabase;
class OdTcCatalog;

class OdTcPersist : public OdRxObject
{
  ODRX_DECLARE_MEMBERS(OdTcPersist);

public:
  // Reads the attributes of the filer's current element.
  virtual bool readAttributes(OdTcFiler* filer) = 0;
  // Reads the child elements of the filer's current element.
  virtual bool read(OdTcFiler* filer) = 0;
  // Writes attributes and children into the element just opened for it.
  virtual void write(OdTcFiler* filer) = 0;
  virtual void setParent(OdTcPersist* parent) = 0;
  virtual OdString tagName() const = 0;
  virtual void setLabel(const OdString& label) = 0;
  virtual const OdTcPersist* parent() const = 0;
  virtual OdTcPersist* parent() = 0;
  // The nearest database or catalog at or above this object, or null.
  virtual OdTcDatabase* database() = 0;
  virtual OdTcCatalog* catalog() = 0;
  virtual bool hasChildren() const = 0;
  virtual OdString displayName() const = 0;
  // setParent as used while a palette file, or a catalog file, is read: the
  // object also registers with the container it lands in.
  virtual void attachToDatabase(OdTcPersist* parent, const OdString& text) = 0;
  virtual void attachToCatalog(OdTcPersist* parent) = 0;
  virtual void setOwner(OdTcPersist* parent) = 0;
};
using OdTcPersistPtr = OdSmartPtr<OdTcPersist>;

} // namespace tc
