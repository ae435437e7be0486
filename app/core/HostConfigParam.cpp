// Configuration values as objects.
#include "app/core/HostConfigParam.h"

HostConfigParam::HostConfigParam(HostConfigNode* folder, std::string name) : m_folder(folder), m_name(std::move(name))
{
}

CXStringW HostConfigParam::name() const
{
  return CXStringW(OdString(m_name));
}

bool HostConfigParam::getValue(CRkVariant& value) const
{
  return m_folder && m_folder->getValue(m_name.c_str(), value);
}

bool HostConfigParam::setValue(const CRkVariant& value)
{
  return m_folder && m_folder->setValue(m_name.c_str(), value);
}
