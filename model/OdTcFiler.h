// OdTcFiler: what the model needs of a filer, which stands between
// persistent objects and one XML document. Objects read named values from it
// and write elements through it; persist/ implements it.
#pragma once

#include "sdk/kernel/OdRxObject.h"
#include "sdk/kernel/OdStreamBuf.h"
#include "sdk/kernel/OdVariant.h"

#include <map>

namespace tc {

class OdTcPersist;

// Named values, ordered by name: what a reader hands to setValue.
using OdTcValueMap = std::map<OdString, OdVariant>;

class OdTcFiler : public OdRxObject
{
public:
  virtual bool openCatalog(OdStreamBuf* stream, OdTcPersist* root, bool write) = 0;
  virtual bool openPalette(OdStreamBuf* stream, OdTcPersist* root, bool write) = 0;
  virtual void push(OdTcPersist* object) = 0;
  // With `advance`, moves on to the next sibling of the current parent
  // element; then drops the top object. Returns the new depth.
  virtual int pop(bool advance) = 0;
  // Reads the current element into `values`; false when nothing is left.
  virtual bool readNext(OdTcValueMap& values) = 0;
  virtual bool readAttributes(OdTcValueMap& values) = 0;
  virtual OdSmartPtr<OdTcPersist> readObject() = 0;
  virtual void writeObject(OdTcPersist* object) = 0;
  virtual void writeValues(const OdTcValueMap& values) = 0;
  virtual void writeAttribute(const OdString& name, const OdVariant& value) = 0;
  virtual void writeAttributeElement(const OdString& tag, const OdString& attribute, const OdVariant& value) = 0;
  virtual void writeAttributesElement(const OdString& tag, const OdTcValueMap& values) = 0;
  virtual void writeTextElement(const OdString& tag, const OdVariant& value, bool cdata) = 0;
  // Serialises the document into the stream, on one line.
  virtual void flush() = 0;
  virtual bool isOpenFlag() const = 0;
  virtual OdTcPersist* top() const = 0;
  virtual bool next() = 0;
  virtual bool atEnd() const = 0;
};
using OdTcFilerPtr = OdSmartPtr<OdTcFiler>;

} // namespace tc
