// Code page conversion through glibc's iconv.
#include "sdk/dxf/OdDxfCodePage.h"

#include <algorithm>
#include <cerrno>
#include <cctype>
#include <iconv.h>

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

bool OdDxfCodePage::toUtf8(const std::string& encoding, std::string& bytes)
{
  iconv_t cd = iconv_open("UTF-8", encoding.c_str());
  if (cd == iconv_t(-1))
    return false;
  std::string out;
  out.resize(bytes.size() * 2 + 16);
  char* in = bytes.data();
  std::size_t inLeft = bytes.size();
  char* o = out.data();
  std::size_t outLeft = out.size();
  while (inLeft > 0) {
    if (iconv(cd, &in, &inLeft, &o, &outLeft) != std::size_t(-1))
      break;
    if (errno == E2BIG) {
      const std::size_t used = std::size_t(o - out.data());
      out.resize(out.size() * 2);
      o = out.data() + used;
      outLeft = out.size() - used;
    } else {
      // A byte that has no meaning in the code page: put U+FFFD, go on.
      if (outLeft < 3) {
        const std::size_t used = std::size_t(o - out.data());
        out.resize(out.size() * 2);
        o = out.data() + used;
        outLeft = out.size() - used;
      }
      *o++ = char(0xEF); *o++ = char(0xBF); *o++ = char(0xBD);
      outLeft -= 3;
      ++in;
      --inLeft;
    }
  }
  iconv_close(cd);
  out.resize(std::size_t(o - out.data()));
  bytes.swap(out);
  return true;
}
