// The filer of catalog files: root element "Catalog".
#pragma once

#include "persist/OdTcFilerImplBase.h"

namespace tc {

class OdTcCatalogFilerImpl : public OdTcFilerImplBase
{
public:
  static OdTcFilerPtr createObject();

  // Reading fills `root` from the first "Catalog" element; the root's own
  // attributes are not read. A document without that element gives false
  // and leaves `root` as it was.
  bool openCatalog(OdStreamBuf* stream, OdTcPersist* root, bool write) override;

protected:
  void attachObject(OdTcPersist* object) override;
  // Catalog files stop reading a parent's children at an element that has
  // neither attributes nor text: files written by older versions rely on it.
  bool emptyElementEndsReading() const override { return true; }
};

} // namespace tc
