// Handles as hex text.
#include "sdk/db/OdDbObjectId.h"

#include <charconv>

OdDbHandle OdDbHandle::fromText(std::string_view text)
{
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
    text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\r' || text.back() == '\t'))
    text.remove_suffix(1);
  std::uint64_t v = 0;
  const auto r = std::from_chars(text.data(), text.data() + text.size(), v, 16);
  if (r.ec != std::errc() || r.ptr != text.data() + text.size())
    return OdDbHandle();
  return OdDbHandle(v);
}

std::string OdDbHandle::text() const
{
  char buf[24];
  auto r = std::to_chars(buf, buf + sizeof buf, m_value, 16);
  for (char* p = buf; p < r.ptr; ++p)
    if (*p >= 'a' && *p <= 'f')
      *p = char(*p - 'a' + 'A');
  return std::string(buf, r.ptr);
}

OdString OdDbHandle::ascii() const
{
  return OdString(text());
}
