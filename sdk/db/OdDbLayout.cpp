// Layouts: plot settings values by their group codes.
#include "sdk/db/OdDbLayout.h"

#include "sdk/kernel/OdRxClass.h"

ODRX_DEFINE_MEMBERS(OdDbPlotSettings, OdDbObject, ODRX_CREATE_IMPL(OdDbPlotSettings, OdDbPlotSettings))
ODRX_DEFINE_MEMBERS(OdDbLayout, OdDbPlotSettings, ODRX_CREATE_IMPL(OdDbLayout, OdDbLayout))

namespace {
#define ODDB_PLOT_BODY                                                                                               \
  odPair(100, OdDbPlotSettings::kPlotSub), odPair(1, ""), odPair(2, "none_device"), odPair(4, ""), odPair(6, ""),     \
      odPair(40, "0.0"), odPair(41, "0.0"), odPair(42, "0.0"), odPair(43, "0.0"), odPair(44, "0.0"), odPair(45, "0.0"), \
      odPair(46, "0.0"), odPair(47, "0.0"), odPair(48, "0.0"), odPair(49, "0.0"), odPair(140, "0.0"),                 \
      odPair(141, "0.0"), odPair(142, "1.0"), odPair(143, "1.0"), odPair(70, "688"), odPair(72, "0"), odPair(73, "0"), \
      odPair(74, "5"), odPair(7, ""), odPair(75, "16"), odPair(76, "0"), odPair(77, "2"), odPair(78, "300"),           \
      odPair(147, "1.0"), odPair(148, "0.0"), odPair(149, "0.0")
} // namespace

OdDbPlotSettings::OdDbPlotSettings()
{
  static const OdDbDxfPair defaults[] = {ODDB_PLOT_BODY};
  initData("PLOTSETTINGS", defaults);
}

void OdDbPlotSettings::setUseStandardScale(bool on)
{
  const int f = plotSettingsFlags();
  setInt(kPlotSub, 70, on ? (f | 16) : (f & ~16));
}

bool OdDbPlotSettings::getStdScale(double& scale) const
{
  if (findPair(kPlotSub, 147) < 0)
    return false;
  scale = getDouble(kPlotSub, 147, 1.0);
  return true;
}

void OdDbPlotSettings::getCustomPrintScale(double& numerator, double& denominator) const
{
  numerator = getDouble(kPlotSub, 142, 1.0);
  denominator = getDouble(kPlotSub, 143, 1.0);
}

OdDbLayout::OdDbLayout()
{
  static const OdDbDxfPair defaults[] = {ODDB_PLOT_BODY, odPair(100, kSub), odPair(1, "Layout1"), odPair(70, "1"),
                                         odPair(71, "1"), odPair(10, "0.0"), odPair(20, "0.0"), odPair(11, "12.0"),
                                         odPair(21, "9.0"), odPair(12, "0.0"), odPair(22, "0.0"), odPair(32, "0.0"),
                                         odPair(14, "0.0"), odPair(24, "0.0"), odPair(34, "0.0"), odPair(15, "0.0"),
                                         odPair(25, "0.0"), odPair(35, "0.0"), odPair(146, "0.0"), odPair(13, "0.0"),
                                         odPair(23, "0.0"), odPair(33, "0.0"), odPair(16, "1.0"), odPair(26, "0.0"),
                                         odPair(36, "0.0"), odPair(17, "0.0"), odPair(27, "1.0"), odPair(37, "0.0"),
                                         odPair(76, "0"), odPair(330, "0")};
  initData("LAYOUT", defaults);
}

bool OdDbLayout::modelType() const
{
  return getLayoutName().iCompare("Model") == 0;
}
