// The filer of palette files: root element "Palette", and for files of other
// programs a second part after "PaletteContent".
#pragma once

#include "persist/OdTcFilerImplBase.h"

namespace tc {

class OdTcPalettePropertiesFilerImpl : public OdTcFilerImplBase
{
public:
  static OdTcFilerPtr createObject();

  OdTcPalettePropertiesFilerImpl() { m_dataTag = "Data"; }

  bool openPalette(OdStreamBuf* stream, OdTcPersist* root, bool write) override;
  void writeValues(const OdTcValueMap& values) override;
  OdTcFormattedValue formatValue(const OdVariant& value, bool mrgbAttribute) const override;

protected:
  // "CreateInfo" is named after the record it belongs to.
  OdString tagOf(const TiXmlElement* element) const override;
  bool isSkipped(const OdString& tag) const override;
  void attachObject(OdTcPersist* object) override;
  bool emptyElementEndsReading() const override { return false; }
};

} // namespace tc
