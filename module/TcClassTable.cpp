// The class table. Each class of the catalog model takes its row here when
// it comes into the module.
#include "TcClassTable.h"

#include "OdTcPersist.h"

namespace tc {

namespace {
template <class C>
TcClassRow row(const char* name)
{
  return TcClassRow{name, &C::rxInit, &C::rxUninit, &C::desc};
}
} // namespace

const std::vector<TcClassRow>& classRegistrationOrder()
{
  static const std::vector<TcClassRow> rows = {
      row<OdTcPersist>("OdTcPersist"),
  };
  return rows;
}

const std::vector<TcClassRow>& classDeletionOrder()
{
  static const std::vector<TcClassRow> rows = {
      row<OdTcPersist>("OdTcPersist"),
  };
  return rows;
}

void registerModuleClasses()
{
  for (const TcClassRow& r : classRegistrationOrder())
    r.rxInit();
}

void unregisterModuleClasses()
{
  const auto& rows = classDeletionOrder();
  if (rows.empty() || !rows.front().desc())
    throw OdError(eNotRegistered, OdString("class not registered: ") + (rows.empty() ? "" : rows.front().name));
  for (const TcClassRow& r : rows) {
    OdRxClass* desc = r.desc();
    if (!desc)
      throw OdError(eNotRegistered, OdString("class not registered: ") + r.name);
    r.rxUninit();
  }
}

} // namespace tc
