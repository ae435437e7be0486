// How values stand as text in files: the three forms of booleans, their one
// reader, and the text of a variant.
#pragma once

#include "sdk/kernel/OdVariant.h"

namespace tc {

// The forms a boolean takes in a file: upper case ("TRUE", "FALSE"), lower
// case ("true", "false") or digits ("1", "0").
enum class TcBoolForm
{
  kUpperCase = 0,
  kLowerCase = 1,
  kDigits = 2
};

OdString tcBoolText(bool value, TcBoolForm form = TcBoolForm::kUpperCase);

// "TRUE" and "1", in any case of letters, are true; anything else is false.
bool tcReadBool(const OdString& text);

// A variant as text: strings as they are, booleans in upper case, integers
// with %d, doubles with %g. Objects and arrays have no text: empty.
OdString tcVariantText(const OdVariant& value);

} // namespace tc
