// The snapshot of a layer ("LayerTableRecord") with the snapshot of its
// linetype.
#pragma once

#include "properties/OdTcLineTypeTableRecordImpl.h"

#include "sdk/db/OdCmColor.h"

namespace tc {

class OdTcLayerTableRecordImpl : public OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>
{
public:
  OdTcLayerTableRecordImpl();
  static OdSmartPtr<OdTcLayerTableRecordImpl> createNew();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;

  OdString tagName() const override { return "LayerTableRecord"; }
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;

  // The linetype is settled first: the target's record of the snapshot's
  // linetype name, else one made from the linetype's snapshot, else the
  // target's current linetype.
  OdDbSymbolTableRecordPtr createDbRecord(OdDbDatabase* target) const override;
  // The plot style name needs the drawing's dictionary of names.
  void completeDbRecord(OdDbSymbolTableRecord* record) const override;
  bool captureDbRecord(OdDbObjectId id) override;

  bool m_isNotPlotted = false;
  std::int32_t m_lineWeight = -3; // by default
  OdString m_plotStyleName;
  OdTcLineTypeTableRecordImplPtr m_linetype; // null when none was taken
  OdCmColor m_color;
};
using OdTcLayerTableRecordImplPtr = OdSmartPtr<OdTcLayerTableRecordImpl>;

} // namespace tc
