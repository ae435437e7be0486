// OdDbEntity: the general properties every drawing entity has.
#pragma once

#include "sdk/db/OdCmColor.h"
#include "sdk/db/OdDbObject.h"

class OdDbEntity : public OdDbObject
{
  ODRX_DECLARE_MEMBERS(OdDbEntity);

public:
  static constexpr const char* kSub = "AcDbEntity";

  // Codes 62 (index), 420 (RGB) and 430 (book$name) together make the
  // colour; an RGB colour keeps its nearest index in 62 for old readers.
  OdCmColor color() const;
  void setColor(const OdCmColor& color);
  std::int16_t colorIndex() const { return color().colorIndex(); }
  void setColorIndex(std::int16_t index);

  // Layer and linetype are kept by name, as the file does; the ids are
  // looked up in the drawing's tables on each call.
  OdString layer() const { return getString(kSub, 8, "0"); }
  void setLayer(const OdString& name) { setString(kSub, 8, name); }
  OdDbObjectId layerId() const;
  void setLayer(OdDbObjectId layerId);

  OdString linetype() const { return getString(kSub, 6, "ByLayer"); }
  void setLinetype(const OdString& name);
  OdDbObjectId linetypeId() const;
  void setLinetype(OdDbObjectId linetypeId);

  double linetypeScale() const { return getDouble(kSub, 48, 1.0); }
  void setLinetypeScale(double scale) { setDouble(kSub, 48, scale); }
  // Hundredths of a millimetre, or one of the By... values.
  OdDb::LineWeight lineWeight() const { return OdDb::LineWeight(getInt(kSub, 370, OdDb::kLnWtByLayer)); }
  void setLineWeight(OdDb::LineWeight weight) { setInt(kSub, 370, weight); }
  OdCmTransparency transparency() const;
  void setTransparency(const OdCmTransparency& t);
  OdDb::Visibility visibility() const { return OdDb::Visibility(getInt(kSub, 60, 0)); }
  void setVisibility(OdDb::Visibility v) { setInt(kSub, 60, v); }
  // The block that holds the entity (model space, paper space, a block).
  OdDbObjectId blockId() const { return ownerId(); }
  // Takes the general properties of another entity.
  void setPropertiesFrom(const OdDbEntity* other);
  // Sets layer, linetype, colour and so on to the drawing's current values.
  void setDatabaseDefaults(OdDbDatabase* db = nullptr);

protected:
  OdDbEntity();
};
using OdDbEntityPtr = OdSmartPtr<OdDbEntity>;

// Curves: entities with a start and an end.
class OdDbCurve : public OdDbEntity
{
  ODRX_DECLARE_MEMBERS(OdDbCurve);

protected:
  OdDbCurve() = default;
};
using OdDbCurvePtr = OdSmartPtr<OdDbCurve>;
