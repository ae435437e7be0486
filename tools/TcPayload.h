// The forms that the payloads of tools take in a palette file: paths with
// the tokens of well-known folders, booleans as digits or as variants, and
// the auxiliary scale as other programs name it.
#pragma once

#include "sdk/kernel/OdString.h"

namespace tc {

// A path as a payload writes it: a well-known folder replaced by its token.
OdString sourceFileToFile(const OdString& path);
// A path as a payload reads it: "\" as "/", tokens replaced by folders.
OdString sourceFileFromFile(const OdString& text);

// A boolean as the block tool writes it: "1" or "0".
OdString boolDigit(bool value);
// A boolean written as a variant ("-1" or "0"), or in any form the files'
// reader takes ("TRUE", "1").
bool readVariantBool(const OdString& text);

// The three choices of an auxiliary scale, as shown (translated).
OdString auxScaleDimscale();
OdString auxScalePlotScale();
OdString auxScaleNone();

} // namespace tc
