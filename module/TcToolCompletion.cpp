// Tool completion entries.
#include "module/TcToolCompletion.h"

#include "module/TcExports.h"
#include "module/OdTcPaletteManager.h"

#include "host/TcGuard.h"
#include "host/TcHost.h"

#include "hostsdk/core/HostCore.h"

#include <QRegularExpression>
#include <QStringList>

#include <vector>

namespace tc {

namespace {
// Entries live until the next fill: the host may hold on to them while its
// list is open.
std::vector<HostEdCompletion::EntryPtr> g_entries;

const HostEdCompletion::Provider g_provider = [](const HostEdCompletion::EntryCallback& callback) {
  tcGuarded(Supp_Translate("The tools cannot be offered for completion: %s\n"), [&] { provideEntries(callback); });
};

// The integer under a path of the host's configuration ("Folder/Name"),
// the folders made where missing; `fallback` when there is no such value.
std::int32_t configInteger(const char* path, std::int32_t fallback)
{
  auto profile = CRkPtr<IProfile>::query(hostApp().get());
  CRkPtr<IConfigManager> node;
  if (!profile || !profile->getRoot(node.put()) || !node)
    return fallback;
  const QStringList parts = QString::fromUtf8(path).split(QRegularExpression(QStringLiteral("[/\\\\]")));
  for (qsizetype i = 0; i + 1 < parts.size(); ++i) {
    CRkPtr<IConfigManager> child;
    if (!node->openFolder(parts[i].toUtf8().constData(), true, child.put()) || !child)
      return fallback;
    node = child;
  }
  CRkVariant value;
  if (!node->getValue(parts.last().toUtf8().constData(), value) || value.isEmpty())
    return fallback;
  return value.toInt32();
}
} // namespace

void provideEntries(const HostEdCompletion::EntryCallback& callback)
{
  HostServices* services = hostServices();
  if (configInteger("CommandLine/completetools", 1) == 0 || !services || !services->currentDocument())
    return;
  g_entries.clear();
  OdTcPaletteManager* manager = odtcToolPaletteManager();
  if (!manager)
    return;
  forEachTool(*manager, [&](OdTcTool* found) {
    OdTcToolPtr tool = found;
    auto action = std::make_shared<HostEdCompletion::CallFunction>([tool] {
      tcGuarded(Supp_Translate("The tool cannot run: %s\n"), [&] {
        HostServices* host = hostServices();
        tool->execute(host ? host->currentDocument() : nullptr);
      });
    });
    auto entry = std::make_shared<HostEdCompletion::Entry>(
        OdString("TOOL:") + tool->displayName(), tool->description(), std::make_shared<ToolImage>(tool->image(1)), action);
    g_entries.push_back(entry);
    callback(entry);
    return true;
  });
}

const HostEdCompletion::Provider* toolCompletionProvider()
{
  return &g_provider;
}

} // namespace tc
