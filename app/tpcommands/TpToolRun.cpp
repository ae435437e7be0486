// Running a tool by its name or id, through what the module exports.
#include "app/tpcommands/TpToolRun.h"

#include "model/OdTcCatalog.h"
#include "model/OdTcTool.h"
#include "model/OdTcToolPalette.h"
#include "module/OdTcPaletteManager.h"
#include "module/TcExports.h"

#include "hostsdk/core/HostServices.h"

#include <vector>

namespace tpcommands {

namespace {

using namespace tc;

// Every tool whose name is `name` (ignoring case), in catalog order: the
// catalogs, their palettes, each palette's tools as stored.
std::vector<OdTcToolPtr> toolsNamed(OdTcPaletteManager& manager, const OdString& name)
{
  std::vector<OdTcToolPtr> found;
  forEachTool(manager, [&](OdTcTool* tool) {
    if (tool->displayName().iCompare(name) == 0)
      found.push_back(tool);
    return true;
  });
  return found;
}

} // namespace

void runTool(HostServices& host, HostCommandOutput& out)
{
  OdTcPaletteManager* manager = odtcToolPaletteManager();
  if (!manager) {
    out.print("%s\n", OdString("The tool palettes module is not started: there are no tools to run."));
    return;
  }
  HostDocument* document = host.currentDocument();
  if (!document) {
    out.print("%s\n", OdString("There is no drawing to run a tool in."));
    return;
  }
  OdString name;
  if (!document->getString("Tool name or id: ", name, true) || name.isEmpty())
    return;
  OdTcToolPtr tool = manager->findTool(name);
  if (tool.isNull()) {
    const std::vector<OdTcToolPtr> named = toolsNamed(*manager, name);
    if (named.empty()) {
      out.print("%s\n", OdString::formatted("No tool is named \"%s\".", name));
      return;
    }
    tool = named.front();
    if (named.size() > 1)
      out.print("%s\n", OdString::formatted("%d tools are named \"%s\": running the first, %s.",
                                            static_cast<int>(named.size()), name, tool->id()));
  }
  // A click comes when no command runs; this command's end must not be
  // taken for the end of the tool's run.
  host.post([tool, &host] {
    if (HostDocument* current = host.currentDocument())
      tool->execute(current);
  });
}

} // namespace tpcommands
