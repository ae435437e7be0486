// The snapshot of a linetype ("LinetypeTableRecord"): its dashes with their
// shapes and texts, and the text styles those use.
#pragma once

#include "properties/OdTcLineTypeElements.h"
#include "properties/OdTcTextStyleTableRecordImpl.h"

namespace tc {

class OdTcLineTypeTableRecordImpl : public OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>
{
public:
  OdTcLineTypeTableRecordImpl();
  static OdSmartPtr<OdTcLineTypeTableRecordImpl> createNew();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;

  OdString tagName() const override { return "LinetypeTableRecord"; }
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;

  // The text styles of complex dashes are found in `target` by name, or made
  // there from the collection. A snapshot that could not be captured makes
  // nothing.
  OdDbSymbolTableRecordPtr createDbRecord(OdDbDatabase* target) const override;
  // A record that does not open as a linetype leaves the marker of another
  // linetype as the name, and the snapshot makes nothing.
  bool captureDbRecord(OdDbObjectId id) override;

  std::int32_t m_numberOfPatternElements = 0;
  OdString m_description;
  double m_totalPatternLength = 0.0;
  OdTcLineTypeElementsListImplPtr m_elements;
  OdTcTextStyleTableRecordCollectionImplPtr m_styles;
};
using OdTcLineTypeTableRecordImplPtr = OdSmartPtr<OdTcLineTypeTableRecordImpl>;

} // namespace tc
