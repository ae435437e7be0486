// The host's store of named values for its commands: "hatch_type" (0
// predefined, 1 user defined, 2 custom) and "hatch_pattern_file" (the file
// of custom patterns), read by FASTHATCHCMD.
#pragma once

#include "hostsdk/core/HostSysVars.h"

#include <map>
#include <string>

class HostVariableStoreImpl : public HostVariableStore
{
public:
  HostVariableStoreImpl() { reset(); }

  bool getValue(const OdString& name, boost::any& value) const override;
  void setValue(const OdString& name, const boost::any& value) override;
  // Back to the values of a new session.
  void reset();

  // A stored value as a number or a text, whatever type the setter used
  // (int, short, long, double, bool; OdString, std::string, std::wstring,
  // const char*); the fallback when absent or of another type.
  long long intValue(const OdString& name, long long fallback) const;
  OdString textValue(const OdString& name, const OdString& fallback = OdString()) const;

private:
  std::map<std::string, boost::any> m_values;
};
