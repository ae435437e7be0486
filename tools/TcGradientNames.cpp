// The host's gradients.
#include "tools/TcGradientNames.h"

namespace tc {

const std::vector<std::pair<const char*, const char*>>& gradientNames()
{
  static const std::vector<std::pair<const char*, const char*>> names = {
      {"LINEAR", "Linear"},
      {"CYLINDER", "Cylinder"},
      {"INVCYLINDER", "Inversed-cylinder"},
      {"SPHERICAL", "Spherical"},
      {"HEMISPHERICAL", "Hemispherical"},
      {"CURVED", "Curved"},
      {"INVSPHERICAL", "Inversed-spherical"},
      {"INVHEMISPHERICAL", "Inversed-hemispherical"},
      {"INVCURVED", "Inversed-curved"}};
  return names;
}

std::int32_t gradientNumber(const OdString& key)
{
  const auto& names = gradientNames();
  for (std::size_t i = 0; i < names.size(); ++i)
    if (key == names[i].first)
      return std::int32_t(i + 1);
  return 1;
}

} // namespace tc
