// The configuration reactor.
#include "module/TcCfgChangeReactor.h"

#include "module/TcModuleState.h"

#include "host/TcGuard.h"
#include "host/TcHost.h"

#include "hostsdk/core/HostCore.h"

namespace tc {

TcCfgChangeReactor::TcCfgChangeReactor(std::function<void()> refreshCatalogs)
    : m_refreshCatalogs(std::move(refreshCatalogs))
{
  CRkPtr<IApp> app = hostApp();
  if (auto prop = CRkPtr<IAppProp>::query(app.get()))
    m_registered = prop->addPropReactor(this);
}

void TcCfgChangeReactor::detach()
{
  if (!m_registered)
    return;
  m_registered = false;
  CRkPtr<IApp> app = hostApp();
  if (auto prop = CRkPtr<IAppProp>::query(app.get()))
    prop->removePropReactor(this);
}

int TcCfgChangeReactor::onChange(const char*, const CRkVariant&)
{
  tcGuarded(Supp_Translate("The tool palettes could not follow the change of the options: %s\n"), [this] {
    if (m_refreshCatalogs)
      m_refreshCatalogs();
    const TcModuleState* state = TcModuleState::current();
    if (state && state->paletteVisible())
      if (auto* list = state->paletteSetView<ITcUiListView>(kITcUiListView))
        list->refresh();
  });
  return 1;
}

} // namespace tc
