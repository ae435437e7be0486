// ASCII tokenizing and the conversion of binary DXF into text.
#include "sdk/dxf/OdDxfTokenizer.h"

#include "sdk/kernel/OdError.h"

#include <charconv>
#include <cstring>

void OdDxfTokenizer::fail(const char* what) const
{
  throw OdError(eFileInternalErr, OdString::formatted("Cannot read %s: %s (line %d)", m_name, what, m_line));
}

bool OdDxfTokenizer::slowCode(int& code)
{
  // Skip empty lines between pairs (some writers leave one at the end).
  const char* nl = nullptr;
  std::string_view codeLine;
  for (;;) {
    if (m_p >= m_end)
      return false;
    nl = static_cast<const char*>(std::memchr(m_p, '\n', std::size_t(m_end - m_p)));
    const char* lineEnd = nl ? nl : m_end;
    codeLine = OdDxf::trim(std::string_view(m_p, std::size_t(lineEnd - m_p)));
    ++m_line;
    m_p = nl ? nl + 1 : m_end;
    if (!codeLine.empty())
      break;
  }
  const char* b = codeLine.data();
  if (*b == '+')
    ++b;
  const auto r = std::from_chars(b, codeLine.data() + codeLine.size(), code);
  if (r.ec != std::errc() || r.ptr != codeLine.data() + codeLine.size())
    fail("a group code is no number");
  if (!nl)
    fail("the file ends in the middle of a pair; it is cut short");
  return true;
}

const char OdDxfBinary::kSentinel[22] = {'A', 'u', 't', 'o', 'C', 'A', 'D', ' ', 'B', 'i', 'n',
                                         'a', 'r', 'y', ' ', 'D', 'X', 'F', '\r', '\n', '\x1a', '\0'};

bool OdDxfBinary::isBinary(std::string_view bytes)
{
  return bytes.size() >= 22 && std::memcmp(bytes.data(), kSentinel, 22) == 0;
}

std::string OdDxfBinary::toText(std::string_view bytes)
{
  std::string out;
  out.reserve(bytes.size() * 2);
  const unsigned char* p = reinterpret_cast<const unsigned char*>(bytes.data()) + 22;
  const unsigned char* end = reinterpret_cast<const unsigned char*>(bytes.data()) + bytes.size();
  // R12 binary files give codes in one byte (255 announces two), later
  // ones always in two: the first code (0, of SECTION) tells which.
  const bool wideCodes = end - p >= 2 && p[0] == 0 && p[1] == 0;
  auto need = [&](std::ptrdiff_t n) {
    if (end - p < n)
      throw OdError(eFileInternalErr, "Cannot read the binary DXF: it is cut short");
  };
  auto le = [&](int n) {
    need(n);
    unsigned long long v = 0;
    for (int i = n - 1; i >= 0; --i)
      v = (v << 8) | p[i];
    p += n;
    return v;
  };
  while (p < end) {
    int code;
    if (wideCodes) {
      code = int(std::int16_t(le(2)));
    } else {
      need(1);
      code = *p++;
      if (code == 255)
        code = int(std::int16_t(le(2)));
    }
    out += OdDxf::fromInt(code);
    out += '\n';
    switch (OdDxf::codeType(code)) {
    case OdDxf::kDouble: {
      const unsigned long long bits = le(8);
      double d;
      std::memcpy(&d, &bits, 8);
      out += OdDxf::fromDouble(d);
      break;
    }
    case OdDxf::kInt16: out += OdDxf::fromInt(std::int16_t(le(2))); break;
    case OdDxf::kInt32: out += OdDxf::fromInt(std::int32_t(le(4))); break;
    case OdDxf::kInt64: out += OdDxf::fromInt((long long)le(8)); break;
    case OdDxf::kBool: out += OdDxf::fromInt(int(le(1))); break;
    case OdDxf::kBinary: {
      need(1);
      const int n = *p++;
      need(n);
      static const char hex[] = "0123456789ABCDEF";
      for (int i = 0; i < n; ++i) {
        out += hex[p[i] >> 4];
        out += hex[p[i] & 15];
      }
      p += n;
      break;
    }
    default: {
      const unsigned char* z = static_cast<const unsigned char*>(std::memchr(p, 0, std::size_t(end - p)));
      if (!z)
        throw OdError(eFileInternalErr, "Cannot read the binary DXF: it is cut short");
      out.append(reinterpret_cast<const char*>(p), std::size_t(z - p));
      p = z + 1;
      break;
    }
    }
    out += '\n';
    if (code == 0 && out.size() >= 4 && out.compare(out.size() - 4, 4, "EOF\n") == 0)
      break;
  }
  return out;
}
