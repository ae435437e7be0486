// Group-code pairs out of a DXF text held in memory, without copying.
#pragma once

#include "sdk/db/OdDbDxfPairs.h"

#include <string>
#include <string_view>

class OdDxfTokenizer
{
public:
  explicit OdDxfTokenizer(std::string_view text) : m_p(text.data()), m_end(text.data() + text.size()) {}

  // The next pair; false at the end of the text. Throws OdError for a code
  // line that is no number, or a code without its value (a cut file).
  bool next(OdDbDxfPair& pair);
  // Gives the last pair again on the next call of next().
  void pushBack() { m_pushed = true; }
  int line() const { return m_line; }
  // Fills `name` with the file name used in messages.
  void setName(const std::string& name) { m_name = name; }

private:
  [[noreturn]] void fail(const char* what) const;

  const char* m_p;
  const char* m_end;
  int m_line = 0;
  bool m_pushed = false;
  OdDbDxfPair m_last;
  std::string m_name;
};

namespace OdDxfBinary {
extern const char kSentinel[22];
bool isBinary(const std::string& bytes);
// The pairs of a binary DXF file written out as DXF text.
std::string toText(const std::string& bytes);
} // namespace OdDxfBinary
