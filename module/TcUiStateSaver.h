// TcUiStateSaver: the frame window's reach into the remembered state of the
// palette window, the branch "cmddata" / "ToolPaletteManager" of the host's
// configuration.
#pragma once

#include "module/TcUiInterfaces.h"

#include "hostsdk/core/AppInterfaces.h"

namespace tc {

// The node of the remembered state: "ToolPaletteManager" in the host's
// "cmddata", made when missing; null when the host has no "cmddata" or no
// configuration at all, or when asking it fails.
CRkPtr<IConfigManager> openStateNode();
// The default a window takes for a remembered value that is missing, for
// the values that have a fixed one ("ActiveView", "Col0", "Col1",
// "SplitterPos", the two message marks); false for those whose default
// depends on the window ("NameClmn", "DlgW", ...), those without one
// ("ExpandedItems", "IconSize", ...) and unknown names.
bool stateDefaultValue(const char* name, CRkVariant& value);

class TcUiStateSaver : public ITcUiStateSaver
{
public:
  TcUiStateSaver();

  // Answers ITcUiStateSaver only.
  bool queryInterface(int type, void** out) override;
  // Nothing happens without the node.
  void setValue(const char* name, const CRkVariant& value) override;
  bool getValue(const char* name, CRkVariant& value) override;

private:
  CRkPtr<IConfigManager> m_node;
};

} // namespace tc
