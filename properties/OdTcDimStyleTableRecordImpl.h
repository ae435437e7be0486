// The snapshot of a dimension style ("DimstyleTableRecord"): every
// dimension variable by its own name, its colours, text style and linetypes.
#pragma once

#include "properties/OdTcDimStyleParts.h"

#include <vector>

class OdDbDimStyleTableRecord;

namespace tc {

class OdTcDimStyleTableRecordImpl : public OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>
{
public:
  // A snapshot with the values of a new dimension style.
  OdTcDimStyleTableRecordImpl();
  static OdSmartPtr<OdTcDimStyleTableRecordImpl> createNew();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;

  OdString tagName() const override { return "DimstyleTableRecord"; }
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;

  // The variables and colours; "dimfxl" only while "dimfxlon" is on.
  OdDbSymbolTableRecordPtr createDbRecord(OdDbDatabase* target) const override;
  // Arrow blocks, text style and linetypes, once the style is in its table.
  void completeDbRecord(OdDbSymbolTableRecord* record) const override;
  bool captureDbRecord(OdDbObjectId id) override;

  // A variable by its name in the files ("dimasz", "dimtofL"); void for a
  // name that is none.
  OdVariant variable(const OdString& name) const;
  void setVariable(const OdString& name, const OdVariant& value);

  OdSmartPtr<OdTcDimclrdImpl> m_dimclrd;
  OdSmartPtr<OdTcDimclreImpl> m_dimclre;
  OdSmartPtr<OdTcDimclrtImpl> m_dimclrt;
  OdSmartPtr<OdTcDimtfillclrImpl> m_dimtfillclr;
  OdSmartPtr<OdTcDimStyleTextImpl> m_dimtxsty;
  OdSmartPtr<OdTcDimLineTypeImpl> m_dimLineType;
  OdSmartPtr<OdTcExtLine1LineTypeImpl> m_extLine1LineType;
  OdSmartPtr<OdTcExtLine2LineTypeImpl> m_extLine2LineType;

private:
  void takeValuesOf(const OdDbDimStyleTableRecord& style);

  // In the order of the table of variables; arrows by their block's name.
  std::vector<OdVariant> m_values;
};
using OdTcDimStyleTableRecordImplPtr = OdSmartPtr<OdTcDimStyleTableRecordImpl>;

} // namespace tc
