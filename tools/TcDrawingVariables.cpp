// Variables of the drawing and the host, as tools use them.
#include "tools/TcDrawingVariables.h"

#include "host/TcHost.h"

#include "hostsdk/core/HostSysVars.h"

#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbLayout.h"

namespace tc {

OdResBufPtr readSystemVariable(const OdString& name, OdDbDatabase* database)
{
  HostServices* services = hostServices();
  HostSystemVariables* variables = services ? services->systemVariables() : nullptr;
  return variables ? variables->getVar(name, database) : OdResBufPtr();
}

bool writeSystemVariable(const OdString& name, const OdResBuf* value, OdDbDatabase* database)
{
  HostServices* services = hostServices();
  HostSystemVariables* variables = services ? services->systemVariables() : nullptr;
  return variables && value && variables->setVar(name, value, database) == HostSystemVariables::kOk;
}

bool readStoredValue(const OdString& name, boost::any& value)
{
  HostServices* services = hostServices();
  HostVariableStore* store = services ? services->variableStore() : nullptr;
  return store && store->getValue(name, value);
}

void writeStoredValue(const OdString& name, const boost::any& value)
{
  HostServices* services = hostServices();
  if (HostVariableStore* store = services ? services->variableStore() : nullptr)
    store->setValue(name, value);
}

bool activeLayoutStdScale(OdDbDatabase* database, double& scale)
{
  if (!database)
    return false;
  OdDbPlotSettingsPtr settings = OdDbPlotSettings::cast(database->currentLayoutId().openObject());
  return settings && settings->getStdScale(scale);
}

} // namespace tc
