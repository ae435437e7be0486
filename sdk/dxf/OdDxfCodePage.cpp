// The iconv names of the code pages that DXF files name.
#include "sdk/dxf/OdDxfCodePage.h"

#include <algorithm>
#include <cctype>

std::string OdDxfCodePage::iconvName(const std::string& cp)
{
  std::string n = cp;
  std::transform(n.begin(), n.end(), n.begin(), [](unsigned char c) { return char(std::toupper(c)); });
  if (n.empty() || n == "ASCII" || n == "UTF8" || n == "UTF-8" || n == "US-ASCII")
    return std::string();
  if (n.rfind("ANSI_", 0) == 0) {
    const std::string num = n.substr(5);
    if (num == "932") return "CP932";
    if (num == "936") return "GBK";
    if (num == "949") return "CP949";
    if (num == "950") return "BIG5";
    if (num == "1361") return "JOHAB";
    return "CP" + num;
  }
  if (n.rfind("DOS", 0) == 0)
    return "CP" + n.substr(3);
  if (n == "MACINTOSH" || n == "MAC-ROMAN" || n == "MAC_ROMAN")
    return "MACINTOSH";
  if (n.rfind("ISO8859-", 0) == 0)
    return "ISO-8859-" + n.substr(8);
  if (n == "KSC5601") return "CP949";
  if (n == "BIG5") return "BIG5";
  if (n == "GB2312") return "GB2312";
  if (n == "JOHAB") return "JOHAB";
  if (n == "SJIS" || n == "SHIFT_JIS") return "CP932";
  return std::string();
}
