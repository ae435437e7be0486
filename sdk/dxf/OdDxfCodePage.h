// Text encodings of DXF files before R2007, named by $DWGCODEPAGE.
#pragma once

#include <string>

namespace OdDxfCodePage {
// The iconv name of a $DWGCODEPAGE value ("ANSI_1252" -> "CP1252"); empty
// for names that mean UTF-8 or plain ASCII, or that are unknown.
std::string iconvName(const std::string& dwgCodePage);
} // namespace OdDxfCodePage
