// Tool completion entries.
#include "host/TcToolCompletion.h"

#include "host/TcGuard.h"

#include "hostsdk/core/HostCore.h"

#include <vector>

namespace tc {

namespace {
// Entries live until the next fill: the host may hold on to them while its
// list is open.
std::vector<HostEdCompletion::EntryPtr> g_entries;

const HostEdCompletion::Provider g_provider = [](const HostEdCompletion::EntryCallback& callback) {
  tcGuarded(Supp_Translate("The tools cannot be offered for completion: %s\n"), [&] { provideEntries(callback); });
};
} // namespace

void provideEntries(const HostEdCompletion::EntryCallback& callback)
{
  g_entries.clear();
  // Catalogs hold no tools before the tool classes are part of the module,
  // so there is nothing to offer yet.
  for (const auto& entry : g_entries)
    callback(entry);
}

const HostEdCompletion::Provider* toolCompletionProvider()
{
  return &g_provider;
}

} // namespace tc
