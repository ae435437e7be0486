// The configuration reactor.
#include "module/TcCfgChangeReactor.h"

#include "host/TcHost.h"
#include "module/TcModuleState.h"

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
  if (m_refreshCatalogs)
    m_refreshCatalogs();
  if (paletteVisible && paletteSet)
    if (auto* list = paletteSetView<ITcUiListView>(kITcUiListView))
      list->refresh();
  return 1;
}

bool TcCfgChangeReactor::queryInterface(const char* iid, void** out)
{
  return CRkUnknownImpl<IPropReactor>::queryInterface(iid, out);
}

} // namespace tc
