// CXStringW path helpers.
#include "hostsdk/core/CXStringW.h"

namespace {
int lastSeparator(const OdString& s)
{
  return std::max(s.reverseFind(u'/'), s.reverseFind(u'\\'));
}
} // namespace

CXStringW CXStringW::FilePath() const
{
  const int i = lastSeparator(m_str);
  if (i < 0)
    return CXStringW();
  if (i == 0)
    return CXStringW(m_str.left(1)); // the root folder keeps its separator
  return CXStringW(m_str.left(i));
}

CXStringW CXStringW::GetFileName() const
{
  return CXStringW(m_str.mid(lastSeparator(m_str) + 1));
}

CXStringW CXStringW::GetFileExt() const
{
  const OdString name = GetFileName().str();
  const int dot = name.reverseFind(u'.');
  return dot < 0 ? CXStringW() : CXStringW(name.mid(dot));
}
