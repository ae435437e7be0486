// Colours as the cells and lists of the tool properties show them, and back.
#pragma once

#include "sdk/db/OdCmColor.h"

namespace tc {

// "By Layer", "By Block", "Foreground", "None", a book colour's name, the
// seven basic colours by their word, and otherwise the host's name of the
// colour: the index of an index colour, "r,g,b" of a true colour. Words are
// translated.
OdString tcColorText(const OdCmColor& color);

// Takes what tcColorText gives, in the user's language or in English, and
// also "ByLayer", "ByBlock", an index 1 to 255 and "r,g,b". False for any
// other text.
bool tcParseColorText(const OdString& text, OdCmColor& color);

} // namespace tc
