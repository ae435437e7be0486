// Class machinery of OdTcToolActionAgent, the abstract root of the tool kinds.
#include "model/OdTcToolActionAgent.h"

namespace tc {

ODRX_NO_CONS_DEFINE_MEMBERS(OdTcToolActionAgent, OdTcPersist)

const std::map<OdString, OdString>& toolKindLabels()
{
  static const std::map<OdString, OdString> labels = {{"VisualStyle", "Visual style"}};
  return labels;
}

OdString toolKindLabel(const OdString& tag)
{
  auto it = toolKindLabels().find(tag);
  return it == toolKindLabels().end() ? tag : it->second;
}

} // namespace tc
