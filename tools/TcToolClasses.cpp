// The element names of the tool kinds.
#include "tools/TcToolClasses.h"

#include "tools/OdTcGradientColors.h"
#include "tools/OdTcToolBlockCommand.h"
#include "tools/OdTcToolCommand.h"
#include "tools/OdTcToolHatchCommand.h"
#include "tools/OdTcToolRasterCommand.h"
#include "tools/OdTcUnsupportedTools.h"

#include "persist/OdTcTagTable.h"

namespace tc {

namespace {
template <class Impl, class I>
OdTcPersistPtr make()
{
  return OdTcPersistPtr(OdRxObjectImpl<Impl, I>::createObject());
}

OdTcPersistPtr makeGradientColors()
{
  return OdTcPersistPtr(OdTcGradientColorsImpl::createEmpty());
}
} // namespace

void registerToolTags(OdTcTagTable& tags)
{
  tags.registerTag("Command", &make<OdTcToolCommandImpl, OdTcToolCommand>);
  tags.registerTag("Block", &make<OdTcToolBlockCommandImpl, OdTcToolBlockCommand>);
  tags.registerTag("Raster", &make<OdTcToolRasterCommandImpl, OdTcToolRasterCommand>);
  tags.registerTag("VisualStyle", &make<OdTcToolVisualStyleCommandImpl, OdTcToolCommand>);
  tags.registerTag("Light", &make<OdTcToolLightCommandImpl, OdTcToolCommand>);
  tags.registerTag("MLeader", &make<OdTcToolMLeaderCommandImpl, OdTcToolActionAgent>);
  tags.registerTag("Table", &make<OdTcToolTableCommandImpl, OdTcToolActionAgent>);
  tags.registerTag("Hatch", &make<OdTcToolHatchCommandImpl, OdTcToolHatchCommand>);
  tags.registerTag("GradientColors", &makeGradientColors);
  tags.registerTag("GradientColor", &make<OdTcGradientColorImpl, OdTcGradientColorImpl>);
  // A "Color" inside a "GradientColor": the palette filer gives it this
  // name, since "Color" alone is a general property.
  tags.registerTag("GradientColorValue", &make<OdTcColorValueImpl, OdTcColorValueImpl>);
}

} // namespace tc
