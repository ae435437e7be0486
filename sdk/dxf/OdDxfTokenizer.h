// Group-code pairs out of a DXF text held in memory, without copying.
#pragma once

#include "sdk/db/OdDbDxfPairs.h"
#include "sdk/dxf/OdDxfTextDecoder.h"

#include <cstring>
#include <string>
#include <string_view>

class OdDxfTokenizer
{
public:
  explicit OdDxfTokenizer(std::string_view text) : m_p(text.data()), m_end(text.data() + text.size()) {}

  // The next pair; false at the end of the text. Throws OdError for a code
  // line that is no number, or a code without its value (a cut file).
  bool next(OdDbDxfPair& pair)
  {
    if (m_pushed) {
      m_pushed = false;
      pair = m_last;
      return true;
    }
    // Nearly every code line is a few digits, right-aligned with blanks,
    // and a line end: read those here, and leave the rest (signs, blanks
    // after the number, empty lines, faults) to the slow path.
    const char* p = m_p;
    while (p < m_end && *p == ' ')
      ++p;
    int code = 0;
    int digits = 0;
    while (p < m_end && *p >= '0' && *p <= '9' && digits < 9) {
      code = code * 10 + (*p++ - '0');
      ++digits;
    }
    if (p < m_end && *p == '\r')
      ++p;
    if (digits > 0 && p < m_end && *p == '\n') {
      ++m_line;
      m_p = p + 1;
    } else if (!slowCode(code)) {
      return false;
    }
    const char* nl = static_cast<const char*>(std::memchr(m_p, '\n', std::size_t(m_end - m_p)));
    const char* valueEnd = nl ? nl : m_end;
    const char* next = nl ? nl + 1 : m_end;
    if (valueEnd > m_p && valueEnd[-1] == '\r')
      --valueEnd;
    pair.code = code;
    const std::string_view value(m_p, std::size_t(valueEnd - m_p));
    pair.value = m_decoder ? m_decoder->decode(value) : value;
    ++m_line;
    m_p = next;
    m_last = pair;
    return true;
  }
  // Gives the last pair again on the next call of next().
  void pushBack() { m_pushed = true; }
  int line() const { return m_line; }
  // Fills `name` with the file name used in messages.
  void setName(const std::string& name) { m_name = name; }
  // Values pass through the decoder (drawings before R2007); not owned.
  void setDecoder(OdDxfTextDecoder* decoder) { m_decoder = decoder; }

private:
  [[noreturn]] void fail(const char* what) const;
  // A code line in any other form: blanks around the number, a sign, a
  // carriage return, empty lines before it. False at the end of the text.
  bool slowCode(int& code);

  const char* m_p;
  const char* m_end;
  int m_line = 0;
  bool m_pushed = false;
  OdDbDxfPair m_last;
  std::string m_name;
  OdDxfTextDecoder* m_decoder = nullptr;
};

namespace OdDxfBinary {
extern const char kSentinel[22];
bool isBinary(std::string_view bytes);
// The pairs of a binary DXF file written out as DXF text.
std::string toText(std::string_view bytes);
} // namespace OdDxfBinary
