// Code pages through glibc's iconv, \U+XXXX escapes, and the scan for both.
#include "sdk/dxf/OdDxfTextDecoder.h"

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <iconv.h>

namespace {

int hexValue(char c)
{
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// The code point of a \U+XXXX escape at `p` (seven bytes before `end`), or -1.
long escapeAt(const char* p, const char* end)
{
  if (end - p < 7 || p[0] != '\\' || (p[1] != 'U' && p[1] != 'u') || p[2] != '+')
    return -1;
  long cp = 0;
  for (int k = 3; k < 7; ++k) {
    const int h = hexValue(p[k]);
    if (h < 0)
      return -1;
    cp = cp * 16 + h;
  }
  return cp;
}

void appendUtf8(unsigned long cp, std::string& out)
{
  if (cp < 0x80) {
    out += char(cp);
  } else if (cp < 0x800) {
    out += char(0xC0 | (cp >> 6));
    out += char(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    out += char(0xE0 | (cp >> 12));
    out += char(0x80 | ((cp >> 6) & 0x3F));
    out += char(0x80 | (cp & 0x3F));
  } else {
    out += char(0xF0 | (cp >> 18));
    out += char(0x80 | ((cp >> 12) & 0x3F));
    out += char(0x80 | ((cp >> 6) & 0x3F));
    out += char(0x80 | (cp & 0x3F));
  }
}

// Replaces \U+XXXX escapes by the characters they stand for; a pair of
// surrogates is one character, a lone surrogate none that UTF-8 can hold.
std::string decodeEscapes(std::string_view text)
{
  std::string out;
  out.reserve(text.size());
  const char* p = text.data();
  const char* end = p + text.size();
  while (p < end) {
    const long cp = *p == '\\' ? escapeAt(p, end) : -1;
    if (cp < 0) {
      out += *p++;
      continue;
    }
    p += 7;
    if (cp >= 0xD800 && cp <= 0xDBFF) {
      const long low = escapeAt(p, end);
      if (low >= 0xDC00 && low <= 0xDFFF) {
        appendUtf8(0x10000 + ((unsigned long)(cp - 0xD800) << 10) + (unsigned long)(low - 0xDC00), out);
        p += 7;
        continue;
      }
    }
    appendUtf8(cp >= 0xD800 && cp <= 0xDFFF ? 0xFFFD : (unsigned long)cp, out);
  }
  return out;
}

bool hasHighByte(std::string_view text)
{
  for (char c : text)
    if (c & 0x80)
      return true;
  return false;
}

} // namespace

OdDxfTextDecoder::OdDxfTextDecoder(std::string_view fileText, const std::string& encoding, OdDbStringArena& arena)
    : m_end(fileText.data() + fileText.size()), m_arena(arena)
{
  if (!encoding.empty()) {
    iconv_t cd = iconv_open("UTF-8", encoding.c_str());
    if (cd != iconv_t(-1))
      m_iconv = cd;
  }
  m_nextChange = findChange(fileText.data());
}

OdDxfTextDecoder::~OdDxfTextDecoder()
{
  if (m_iconv)
    iconv_close(iconv_t(m_iconv));
}

const char* OdDxfTextDecoder::findChange(const char* p) const
{
  // Eight bytes at a time: a byte with the high bit (when there is a code
  // page to convert) or a backslash makes a closer look.
  const std::uint64_t high = m_iconv ? 0x8080808080808080ull : 0;
  constexpr std::uint64_t ones = 0x0101010101010101ull, backslashes = 0x5C5C5C5C5C5C5C5Cull;
  while (p < m_end) {
    if (m_end - p >= 8) {
      std::uint64_t w;
      std::memcpy(&w, p, 8);
      const std::uint64_t x = w ^ backslashes;
      if (((w & high) | ((x - ones) & ~x & 0x8080808080808080ull)) == 0) {
        p += 8;
        continue;
      }
    }
    const unsigned char c = static_cast<unsigned char>(*p);
    if ((c & 0x80) && m_iconv)
      return p;
    if (c == '\\' && m_end - p >= 3 && (p[1] == 'U' || p[1] == 'u') && p[2] == '+')
      return p;
    ++p;
  }
  return m_end;
}

std::string_view OdDxfTextDecoder::decodeSlow(std::string_view text)
{
  const char* end = text.data() + text.size();
  // The change found lay before this text (in a code line): look again.
  if (m_nextChange < text.data()) {
    m_nextChange = findChange(text.data());
    if (end <= m_nextChange)
      return text;
  }
  m_nextChange = findChange(end);
  return m_arena.store(convert(text));
}

std::string OdDxfTextDecoder::convert(std::string_view text)
{
  std::string utf8;
  if (m_iconv && hasHighByte(text))
    appendConverted(text, utf8);
  else
    utf8.assign(text);
  return utf8.find("\\U+") == std::string::npos && utf8.find("\\u+") == std::string::npos ? utf8
                                                                                          : decodeEscapes(utf8);
}

void OdDxfTextDecoder::appendConverted(std::string_view text, std::string& out)
{
  iconv_t cd = iconv_t(m_iconv);
  iconv(cd, nullptr, nullptr, nullptr, nullptr); // a fresh shift state for each text
  char* in = const_cast<char*>(text.data());
  std::size_t inLeft = text.size();
  char buf[1024];
  while (inLeft > 0) {
    char* o = buf;
    std::size_t outLeft = sizeof buf;
    const std::size_t r = iconv(cd, &in, &inLeft, &o, &outLeft);
    out.append(buf, std::size_t(o - buf));
    if (r != std::size_t(-1) || errno == E2BIG)
      continue;
    // A byte that has no meaning in the code page (or a character cut
    // short at the end): U+FFFD, and on.
    out += "\xEF\xBF\xBD";
    ++in;
    --inLeft;
  }
}
