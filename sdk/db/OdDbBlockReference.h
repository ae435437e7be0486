// Block references (INSERT) with their attributes, and dimensions.
#pragma once

#include "sdk/db/OdDbSubEntities.h"
#include "sdk/db/OdDbText.h"

class OdDbBlockTableRecord;

class OdDbBlockReference : public OdDbEntity
{
  ODRX_DECLARE_MEMBERS(OdDbBlockReference);

public:
  static constexpr const char* kSub = "AcDbBlockReference";

  // The definition, found by name in the block table.
  OdDbObjectId blockTableRecord() const;
  void setBlockTableRecord(OdDbObjectId blockId);
  OdString blockName() const { return getString(kSub, 2); }
  OdGePoint3d position() const { return getPoint(kSub, 10); }
  void setPosition(const OdGePoint3d& p) { setPoint(kSub, 10, p); }
  OdGeScale3d scaleFactors() const;
  void setScaleFactors(const OdGeScale3d& s);
  // Radians; the file keeps degrees.
  double rotation() const;
  void setRotation(double angle);
  OdGeVector3d normal() const { return getVector(kSub, 210, OdGeVector3d::kZAxis); }
  void setNormal(const OdGeVector3d& n) { setVector(kSub, 210, n); }

  OdDbObjectId appendAttribute(OdDbAttribute* attribute);
  OdDbObjectIteratorPtr attributeIterator() const;
  std::vector<OdDbObjectId> attributeIds() const { return m_attributes.ids(); }

  OdDbSubEntities& subEntities() { return m_attributes; }
  void subAddedToDatabase() override { m_attributes.addedToDatabase(this); }
  void ownedSubObjects(std::vector<OdDbObjectId>& ids) const override { m_attributes.collect(ids); }
  OdResult erase(bool erasing = true) override;

protected:
  OdDbBlockReference();

private:
  OdDbSubEntities m_attributes;
};
using OdDbBlockReferencePtr = OdSmartPtr<OdDbBlockReference>;

// A dimension: its picture is an anonymous block (code 2).
class OdDbDimension : public OdDbEntity
{
  ODRX_DECLARE_MEMBERS(OdDbDimension);

public:
  static constexpr const char* kSub = "AcDbDimension";
  OdDbObjectId dimBlockId() const;
  void setDimBlockId(OdDbObjectId blockId);
  OdString dimBlockName() const { return getString(kSub, 2); }
  OdDbObjectId dimensionStyle() const;
  void setDimensionStyle(OdDbObjectId styleId);
  OdString dimensionText() const { return getString(kSub, 1); }
  void setDimensionText(const OdString& text) { setString(kSub, 1, text); }
  OdGePoint3d textPosition() const { return getPoint(kSub, 11); }
  OdGePoint3d dimLinePoint() const { return getPoint(kSub, 10); }
  int dimensionType() const { return int(getInt(kSub, 70, 0) & 7); }
  double measurement() const { return getDouble(kSub, 42, -1.0); }

protected:
  OdDbDimension();
};
using OdDbDimensionPtr = OdSmartPtr<OdDbDimension>;
