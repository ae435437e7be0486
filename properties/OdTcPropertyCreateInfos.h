// The create-infos of the general properties: the colour of the colour
// property, and the snapshot of the record each record kind names.
#pragma once

#include "properties/OdTcDimStyleTableRecordImpl.h"
#include "properties/OdTcLayerTableRecordImpl.h"
#include "properties/OdTcPropertyCreateInfo.h"

#include "sdk/db/OdCmColor.h"

namespace tc {

// "AcCmColor" with the packed colour; no record.
class OdTcColorPropertyCreateInfoImpl : public OdTcPropertyCreateInfoImplBase<OdTcPropertyCreateInfo>
{
public:
  static OdSmartPtr<OdTcColorPropertyCreateInfoImpl> createNew();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;

  OdCmColor m_color;
};

class OdTcLayerPropertyCreateInfoImpl : public OdTcPropertyCreateInfoImplBase<OdTcPropertyCreateInfo>
{
public:
  static OdSmartPtr<OdTcLayerPropertyCreateInfoImpl> createNew();
  OdRxObjectPtr clone() const override;

protected:
  OdString recordTag() const override { return "LayerTableRecord"; }
};

class OdTcLineTypePropertyCreateInfoImpl : public OdTcPropertyCreateInfoImplBase<OdTcPropertyCreateInfo>
{
public:
  static OdSmartPtr<OdTcLineTypePropertyCreateInfoImpl> createNew();
  OdRxObjectPtr clone() const override;

protected:
  OdString recordTag() const override { return "LinetypeTableRecord"; }
};

// A text style's snapshot; files of other programs may bring it inside a
// collection, whose first style then stands for it.
class OdTcTextStylePropertyCreateInfoImpl : public OdTcPropertyCreateInfoImplBase<OdTcPropertyCreateInfo>
{
public:
  static OdSmartPtr<OdTcTextStylePropertyCreateInfoImpl> createNew();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;

protected:
  OdString recordTag() const override { return "TextstyleTableRecord"; }

private:
  // A collection as it was read, written back as it came.
  OdTcTextStyleTableRecordCollectionImplPtr m_collection;
};

class OdTcDimStylePropertyCreateInfoImpl : public OdTcPropertyCreateInfoImplBase<OdTcPropertyCreateInfo>
{
public:
  static OdSmartPtr<OdTcDimStylePropertyCreateInfoImpl> createNew();
  OdRxObjectPtr clone() const override;

protected:
  OdString recordTag() const override { return "DimstyleTableRecord"; }
};

} // namespace tc
