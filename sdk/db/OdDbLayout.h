// Layouts and their plot settings.
#pragma once

#include "sdk/db/OdDbObject.h"

class OdDbPlotSettings : public OdDbObject
{
  ODRX_DECLARE_MEMBERS(OdDbPlotSettings);

public:
  static constexpr const char* kPlotSub = "AcDbPlotSettings";
  enum PlotPaperUnits { kInches = 0, kMillimeters = 1, kPixels = 2 };
  enum StdScaleType { kScaleToFit = 0, k1_1 = 16 };

  OdString getPlotSettingsName() const { return getString(kPlotSub, 1); }
  OdString getPlotCfgName() const { return getString(kPlotSub, 2); }
  OdString getCanonicalMediaName() const { return getString(kPlotSub, 4); }
  OdString getCurrentStyleSheet() const { return getString(kPlotSub, 7); }
  int plotSettingsFlags() const { return int(getInt(kPlotSub, 70, 0)); }
  // Flag 16 of code 70: the scale is one of the standard ones.
  bool useStandardScale() const { return (plotSettingsFlags() & 16) != 0; }
  void setUseStandardScale(bool on);
  StdScaleType stdScaleType() const { return StdScaleType(getInt(kPlotSub, 75, 0)); }
  // The standard scale as a factor (code 147); false when the settings
  // carry none.
  bool getStdScale(double& scale) const;
  void setStdScale(double scale) { setDouble(kPlotSub, 147, scale); }
  void getCustomPrintScale(double& numerator, double& denominator) const;
  PlotPaperUnits plotPaperUnits() const { return PlotPaperUnits(getInt(kPlotSub, 72, 0)); }
  int plotRotation() const { return int(getInt(kPlotSub, 73, 0)); }

protected:
  OdDbPlotSettings();
};
using OdDbPlotSettingsPtr = OdSmartPtr<OdDbPlotSettings>;

class OdDbLayout : public OdDbPlotSettings
{
  ODRX_DECLARE_MEMBERS(OdDbLayout);

public:
  static constexpr const char* kSub = "AcDbLayout";
  OdString getLayoutName() const { return getString(kSub, 1); }
  void setLayoutName(const OdString& name) { setString(kSub, 1, name); }
  int getTabOrder() const { return int(getInt(kSub, 71, 0)); }
  void setTabOrder(int order) { setInt(kSub, 71, order); }
  OdDbObjectId getBlockTableRecordId() const { return getId(kSub, 330); }
  void setBlockTableRecordId(OdDbObjectId id) { setId(kSub, 330, id); }
  bool modelType() const;

protected:
  OdDbLayout();
};
using OdDbLayoutPtr = OdSmartPtr<OdDbLayout>;
