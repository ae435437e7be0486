// One named value of a configuration folder, as an object (IConfigParam).
#pragma once

#include "app/core/HostConfigNode.h"

class HostConfigParam : public CRkUnknownImpl<IConfigParam>
{
public:
  HostConfigParam(HostConfigNode* folder, std::string name);

  CXStringW name() const override;
  bool getValue(CRkVariant& value) const override;
  bool setValue(const CRkVariant& value) override;

private:
  CRkPtr<HostConfigNode> m_folder; // counted: the parameter may outlive a deleted folder
  std::string m_name;
};
