// The inspectors that OpmRefreshProperties reaches.
#include "hostsdk/core/HostObjProps.h"

#include <utility>
#include <vector>

namespace {
struct Refresher
{
  int cookie;
  std::function<void(bool)> call;
};

std::vector<Refresher>& refreshers()
{
  static std::vector<Refresher> list;
  return list;
}
int g_nextCookie = 1;
} // namespace

void OpmRefreshProperties(bool all)
{
  // By cookie: an inspector may close (and leave) while another refreshes.
  std::vector<int> round;
  for (const Refresher& r : refreshers())
    round.push_back(r.cookie);
  for (int cookie : round) {
    for (const Refresher& r : refreshers()) {
      if (r.cookie == cookie) {
        const auto call = r.call;
        call(all);
        break;
      }
    }
  }
}

int hostAddPropertyRefresher(std::function<void(bool all)> refresher)
{
  const int cookie = g_nextCookie++;
  refreshers().push_back({cookie, std::move(refresher)});
  return cookie;
}

void hostRemovePropertyRefresher(int cookie)
{
  std::erase_if(refreshers(), [cookie](const Refresher& r) { return r.cookie == cookie; });
}
