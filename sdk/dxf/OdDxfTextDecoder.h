// OdDxfTextDecoder: the texts of drawings before R2007 made UTF-8.
#pragma once

#include "sdk/db/OdDbStringArena.h"

#include <string>
#include <string_view>

// Before R2007 a drawing's texts are in its code page ($DWGCODEPAGE), and
// characters outside the code page are written as \U+XXXX. The decoder
// gives each text of the file as UTF-8. Most texts of a drawing need no
// change: it finds the next byte that needs one by a quick scan ahead, so
// that the others cost a comparison. Texts must be asked for in the order
// they stand in the file text given.
class OdDxfTextDecoder
{
public:
  // `encoding` is the iconv name of the code page; empty: bytes stay as
  // they are and only escapes are decoded. Decoded texts go to `arena`.
  OdDxfTextDecoder(std::string_view fileText, const std::string& encoding, OdDbStringArena& arena);
  ~OdDxfTextDecoder();
  OdDxfTextDecoder(const OdDxfTextDecoder&) = delete;
  OdDxfTextDecoder& operator=(const OdDxfTextDecoder&) = delete;

  // `text` (a part of the file text) as UTF-8.
  std::string_view decode(std::string_view text)
  {
    if (text.data() + text.size() <= m_nextChange)
      return text;
    return decodeSlow(text);
  }

private:
  std::string_view decodeSlow(std::string_view text);
  // The code page's bytes converted and the escapes decoded; bytes that do
  // not convert become U+FFFD.
  std::string convert(std::string_view text);
  // The first byte at or after `from` that is in a text to change, or the
  // end of the file text.
  const char* findChange(const char* from) const;
  void appendConverted(std::string_view text, std::string& out);

  const char* m_end;
  const char* m_nextChange;
  void* m_iconv = nullptr; // an iconv_t; null without a code page to convert
  OdDbStringArena& m_arena;
};
