// OdDbLayerTableRecord: a layer with its colour, linetype and plot settings.
#pragma once

#include "sdk/db/OdCmColor.h"
#include "sdk/db/OdDbSymbolTable.h"

class OdDbLayerTableRecord : public OdDbSymbolTableRecord
{
  ODRX_DECLARE_MEMBERS(OdDbLayerTableRecord);

public:
  static constexpr const char* kSub = "AcDbLayerTableRecord";
  const char* recordSub() const override { return kSub; }

  OdCmColor color() const;
  void setColor(const OdCmColor& color);
  // A layer is off when its colour index is negative.
  bool isOff() const { return getInt(kSub, 62, 7) < 0; }
  void setIsOff(bool off);
  bool isFrozen() const { return (flags() & 1) != 0; }
  void setIsFrozen(bool frozen) { setFlag(1, frozen); }
  bool isLocked() const { return (flags() & 4) != 0; }
  void setIsLocked(bool locked) { setFlag(4, locked); }
  bool isPlottable() const { return getInt(kSub, 290, 1) != 0; }
  void setIsPlottable(bool plottable) { setInt(kSub, 290, plottable ? 1 : 0); }
  OdDb::LineWeight lineWeight() const { return OdDb::LineWeight(getInt(kSub, 370, OdDb::kLnWtByLwDefault)); }
  void setLineWeight(OdDb::LineWeight weight) { setInt(kSub, 370, weight); }
  OdString linetypeName() const { return getString(kSub, 6, "Continuous"); }
  OdDbObjectId linetypeObjectId() const;
  void setLinetypeObjectId(OdDbObjectId id);
  // Through the drawing's plot style name dictionary; empty without one.
  OdString plotStyleName() const;
  // eNullPtr while the layer is in no drawing.
  OdResult setPlotStyleName(const OdString& name);
  OdCmTransparency transparency() const;
  void setTransparency(const OdCmTransparency& t);
  OdString description() const;
  void setDescription(const OdString& text);

protected:
  OdDbLayerTableRecord();
  void setFlag(int bit, bool on) { setInt(kSub, 70, on ? (flags() | bit) : (flags() & ~bit)); }
};
using OdDbLayerTableRecordPtr = OdSmartPtr<OdDbLayerTableRecord>;
