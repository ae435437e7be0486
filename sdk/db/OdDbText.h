// Text entities: single-line text, attributes and their definitions, MTEXT.
#pragma once

#include "sdk/db/OdDbEntity.h"

class OdDbText : public OdDbEntity
{
  ODRX_DECLARE_MEMBERS(OdDbText);

public:
  static constexpr const char* kSub = "AcDbText";
  OdString textString() const { return getString(kSub, 1); }
  void setTextString(const OdString& text) { setString(kSub, 1, text); }
  OdGePoint3d position() const { return getPoint(kSub, 10); }
  void setPosition(const OdGePoint3d& p) { setPoint(kSub, 10, p); }
  OdGePoint3d alignmentPoint() const { return getPoint(kSub, 11, position()); }
  void setAlignmentPoint(const OdGePoint3d& p) { setPoint(kSub, 11, p); }
  double height() const { return getDouble(kSub, 40, 0.0); }
  void setHeight(double h) { setDouble(kSub, 40, h); }
  double widthFactor() const { return getDouble(kSub, 41, 1.0); }
  void setWidthFactor(double f) { setDouble(kSub, 41, f); }
  // Radians; the file keeps degrees.
  double rotation() const;
  void setRotation(double angle);
  double oblique() const;
  void setOblique(double angle);
  OdString textStyleName() const { return getString(kSub, 7, "Standard"); }
  OdDbObjectId textStyle() const;
  void setTextStyle(OdDbObjectId styleId);
  int horizontalMode() const { return int(getInt(kSub, 72, 0)); }
  void setHorizontalMode(int mode) { setInt(kSub, 72, mode); }
  int verticalMode() const { return int(getInt(verticalSub(), 74 - (verticalSub() == kSub), 0)); }
  void setVerticalMode(int mode);
  double thickness() const { return getDouble(kSub, 39, 0.0); }
  OdGeVector3d normal() const { return getVector(kSub, 210, OdGeVector3d::kZAxis); }

protected:
  OdDbText();
  // Where the vertical alignment lives: a second AcDbText for plain text
  // (code 73), the attribute's own section for attributes (code 74).
  virtual const char* verticalSub() const { return kSub; }
};
using OdDbTextPtr = OdSmartPtr<OdDbText>;

class OdDbAttributeDefinition : public OdDbText
{
  ODRX_DECLARE_MEMBERS(OdDbAttributeDefinition);

public:
  static constexpr const char* kDefSub = "AcDbAttributeDefinition";
  OdString tag() const { return getString(kDefSub, 2); }
  void setTag(const OdString& tag) { setString(kDefSub, 2, tag); }
  OdString prompt() const { return getString(kDefSub, 3); }
  void setPrompt(const OdString& prompt) { setString(kDefSub, 3, prompt); }
  bool isInvisible() const { return (getInt(kDefSub, 70, 0) & 1) != 0; }
  void setInvisible(bool on) { setFlag(1, on); }
  bool isConstant() const { return (getInt(kDefSub, 70, 0) & 2) != 0; }
  void setConstant(bool on) { setFlag(2, on); }
  bool isVerifiable() const { return (getInt(kDefSub, 70, 0) & 4) != 0; }
  bool isPreset() const { return (getInt(kDefSub, 70, 0) & 8) != 0; }
  void setPreset(bool on) { setFlag(8, on); }

protected:
  OdDbAttributeDefinition();
  const char* verticalSub() const override { return kDefSub; }
  void setFlag(int bit, bool on);
};
using OdDbAttributeDefinitionPtr = OdSmartPtr<OdDbAttributeDefinition>;

// The value of an attribute in a block reference; owned by the reference.
class OdDbAttribute : public OdDbText
{
  ODRX_DECLARE_MEMBERS(OdDbAttribute);

public:
  static constexpr const char* kAttSub = "AcDbAttribute";
  OdString tag() const { return getString(kAttSub, 2); }
  void setTag(const OdString& tag) { setString(kAttSub, 2, tag); }
  bool isInvisible() const { return (getInt(kAttSub, 70, 0) & 1) != 0; }
  void setInvisible(bool on);
  bool isConstant() const { return (getInt(kAttSub, 70, 0) & 2) != 0; }
  // Takes text, tag and placement from a definition.
  void setAttributeFromBlock(const OdDbAttributeDefinition* def, const OdGePoint3d& offset = OdGePoint3d());

protected:
  OdDbAttribute();
  const char* verticalSub() const override { return kAttSub; }
};
using OdDbAttributePtr = OdSmartPtr<OdDbAttribute>;

// Multi-line text; contents keep their inline format codes (\\P, {\\f...}).
class OdDbMText : public OdDbEntity
{
  ODRX_DECLARE_MEMBERS(OdDbMText);

public:
  static constexpr const char* kSub = "AcDbMText";
  enum AttachmentPoint
  {
    kTopLeft = 1, kTopCenter, kTopRight, kMiddleLeft, kMiddleCenter, kMiddleRight, kBottomLeft, kBottomCenter, kBottomRight
  };
  // The whole text, joined from its 250-character pieces.
  OdString contents() const;
  void setContents(const OdString& text);
  OdGePoint3d location() const { return getPoint(kSub, 10); }
  void setLocation(const OdGePoint3d& p) { setPoint(kSub, 10, p); }
  double textHeight() const { return getDouble(kSub, 40, 0.0); }
  void setTextHeight(double h) { setDouble(kSub, 40, h); }
  double width() const { return getDouble(kSub, 41, 0.0); }
  void setWidth(double w) { setDouble(kSub, 41, w); }
  AttachmentPoint attachment() const { return AttachmentPoint(getInt(kSub, 71, 1)); }
  void setAttachment(AttachmentPoint a) { setInt(kSub, 71, a); }
  double rotation() const { return getDouble(kSub, 50, 0.0); }
  void setRotation(double a) { setDouble(kSub, 50, a); }
  OdGeVector3d direction() const { return getVector(kSub, 11, OdGeVector3d::kXAxis); }
  OdString textStyleName() const { return getString(kSub, 7, "Standard"); }
  OdDbObjectId textStyle() const;
  void setTextStyle(OdDbObjectId styleId);
  double lineSpacingFactor() const { return getDouble(kSub, 44, 1.0); }

protected:
  OdDbMText();
};
using OdDbMTextPtr = OdSmartPtr<OdDbMText>;
