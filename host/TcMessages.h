// The module's messages: the numbered strings of its resources, the table
// of error messages shared by its parts, and the two boxes an import shows
// at most once.
#pragma once

#include "sdk/kernel/OdString.h"

namespace tc {

// The numbered string of the module's resources, translated; empty for a
// number the module does not have.
OdString tcString(int id);

// The text of an error message (0 to 5), translated; empty for an unknown
// code. With `showBox` it is first shown in a warning box.
OdString messageText(int code, bool showBox);

// The boxes about multitools (string 133) and unsupported tools (string
// 135): each shows at most once until the flags are reset, which an import
// does when it ends.
void showMultitoolMessage();
void showUnsupportedToolsMessage();
void resetImportMessageFlags();

} // namespace tc
