// Colours as the host's colour dialog and command line write and read them:
// "ByLayer", "ByBlock", an index (1 to 255, the first seven also by name)
// or a true colour "red,green,blue".
#pragma once

#include "sdk/db/OdCmColor.h"

namespace HostUiColorText {

OdString format(const OdCmColor& color);
// False for a text that names no colour; `color` is then untouched. ByLayer
// and ByBlock are refused unless allowed.
bool parse(const OdString& text, OdCmColor& color, bool allowByLayerByBlock = true);

} // namespace HostUiColorText
