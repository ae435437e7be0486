// Start and stop of the module.
#include "module/OdTcModule.h"

#include "module/TcModuleState.h"

#include "host/TcGuard.h"

#include "hostsdk/core/HostCore.h"

#include <QString>

#include <dlfcn.h>

namespace tc {

void OdTcModule::deleteModule()
{
  moduleObject = nullptr;
  delete this;
}

void OdTcModule::initApp()
{
  tcGuarded(Supp_Translate("The tool palettes module cannot start: %s\n"), &TcModuleState::start);
}

void OdTcModule::uninitApp()
{
  tcGuarded(Supp_Translate("The tool palettes module cannot stop: %s\n"), &TcModuleState::stop);
}

OdString OdTcModule::moduleName() const
{
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&TcModuleState::current), &info) && info.dli_fname)
    return OdString(QString::fromLocal8Bit(info.dli_fname));
  return OdString();
}

} // namespace tc
