// new_MemParam: the bag of named parameters handed to a command run by name.
#include "hostsdk/core/CmdInterfaces.h"

#include <string>
#include <utility>
#include <vector>

namespace {

// Names are compared exactly: the command that reads a bag chose the names.
class MemParam : public CRkUnknownImpl<IMemParam>
{
public:
  void setValue(const char* name, const CRkVariant& value) override
  {
    const std::string key(name ? name : "");
    for (auto& entry : m_values) {
      if (entry.first == key) {
        entry.second = value;
        return;
      }
    }
    m_values.emplace_back(key, value);
  }

  bool getValue(const char* name, CRkVariant& value) const override
  {
    const std::string key(name ? name : "");
    for (const auto& entry : m_values) {
      if (entry.first == key) {
        value = entry.second;
        return true;
      }
    }
    return false;
  }

private:
  std::vector<std::pair<std::string, CRkVariant>> m_values; // in the order first set
};

} // namespace

IMemParam* new_MemParam()
{
  return new MemParam;
}
