// The parts of a dimension style snapshot that stand as elements of their
// own: its four colours ("Dimclrd", "Dimclre", "Dimclrt", "dimtfillclr"),
// its text style ("Dimtxsty") and its three linetypes ("DimLineType",
// "ExtLine1LineType", "ExtLine2LineType").
#pragma once

#include "properties/OdTcLineTypeTableRecordImpl.h"

#include "sdk/db/OdCmColor.h"

namespace tc {

class OdTcDimColorImplBase : public OdTcPersistImpl<OdTcPersist>
{
public:
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;
  void copyFrom(const OdRxObject* source) override;

  OdCmColor m_color;
};

#define TC_DIM_COLOR_CLASS(ClassName, Tag)                                                          \
  class ClassName : public OdTcDimColorImplBase                                                     \
  {                                                                                                 \
  public:                                                                                           \
    static OdSmartPtr<ClassName> createNew() { return OdRxObjectImpl<ClassName>::createObject(); } \
    OdString tagName() const override { return Tag; }                                               \
    OdRxObjectPtr clone() const override { return tcCloneAs<ClassName, ClassName>(this); }          \
  };

TC_DIM_COLOR_CLASS(OdTcDimclrdImpl, "Dimclrd")
TC_DIM_COLOR_CLASS(OdTcDimclreImpl, "Dimclre")
TC_DIM_COLOR_CLASS(OdTcDimclrtImpl, "Dimclrt")
TC_DIM_COLOR_CLASS(OdTcDimtfillclrImpl, "dimtfillclr")
#undef TC_DIM_COLOR_CLASS

class OdTcDimStyleTextImpl : public OdTcPersistImpl<OdTcPersist>
{
public:
  static OdSmartPtr<OdTcDimStyleTextImpl> createNew();
  OdString tagName() const override { return "Dimtxsty"; }
  OdRxObjectPtr clone() const override;
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;
  void copyFrom(const OdRxObject* source) override;

  OdTcTextStyleTableRecordImplPtr m_style; // null: none was taken
};

class OdTcDimLineTypeImplBase : public OdTcPersistImpl<OdTcPersist>
{
public:
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;
  void copyFrom(const OdRxObject* source) override;

  OdTcLineTypeTableRecordImplPtr m_linetype; // null: none was taken
};

#define TC_DIM_LINETYPE_CLASS(ClassName, Tag)                                                       \
  class ClassName : public OdTcDimLineTypeImplBase                                                  \
  {                                                                                                 \
  public:                                                                                           \
    static OdSmartPtr<ClassName> createNew() { return OdRxObjectImpl<ClassName>::createObject(); } \
    OdString tagName() const override { return Tag; }                                               \
    OdRxObjectPtr clone() const override { return tcCloneAs<ClassName, ClassName>(this); }          \
  };

TC_DIM_LINETYPE_CLASS(OdTcDimLineTypeImpl, "DimLineType")
TC_DIM_LINETYPE_CLASS(OdTcExtLine1LineTypeImpl, "ExtLine1LineType")
TC_DIM_LINETYPE_CLASS(OdTcExtLine2LineTypeImpl, "ExtLine2LineType")
#undef TC_DIM_LINETYPE_CLASS

} // namespace tc
