// The host's variable store.
#include "app/core/HostVariableStoreImpl.h"

bool HostVariableStoreImpl::getValue(const OdString& name, boost::any& value) const
{
  auto it = m_values.find(name.toUtf8());
  if (it == m_values.end())
    return false;
  value = it->second;
  return true;
}

void HostVariableStoreImpl::setValue(const OdString& name, const boost::any& value)
{
  m_values[name.toUtf8()] = value;
}

void HostVariableStoreImpl::reset()
{
  m_values.clear();
  m_values["hatch_type"] = 0;
  m_values["hatch_pattern_file"] = OdString();
}

long long HostVariableStoreImpl::intValue(const OdString& name, long long fallback) const
{
  boost::any v;
  if (!getValue(name, v))
    return fallback;
  if (const int* i = boost::any_cast<int>(&v))
    return *i;
  if (const short* s = boost::any_cast<short>(&v))
    return *s;
  if (const long* l = boost::any_cast<long>(&v))
    return *l;
  if (const long long* ll = boost::any_cast<long long>(&v))
    return *ll;
  if (const unsigned* u = boost::any_cast<unsigned>(&v))
    return *u;
  if (const bool* b = boost::any_cast<bool>(&v))
    return *b ? 1 : 0;
  if (const double* d = boost::any_cast<double>(&v))
    return static_cast<long long>(*d);
  return fallback;
}

OdString HostVariableStoreImpl::textValue(const OdString& name, const OdString& fallback) const
{
  boost::any v;
  if (!getValue(name, v))
    return fallback;
  if (const OdString* s = boost::any_cast<OdString>(&v))
    return *s;
  if (const std::string* s = boost::any_cast<std::string>(&v))
    return OdString(*s);
  if (const std::wstring* s = boost::any_cast<std::wstring>(&v))
    return OdString(QString::fromStdWString(*s));
  if (const char* const* s = boost::any_cast<const char*>(&v))
    return OdString(*s);
  if (const wchar_t* const* s = boost::any_cast<const wchar_t*>(&v))
    return OdString(*s);
  return fallback;
}
