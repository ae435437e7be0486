// Registration of commands by modules.
#include "app/core/HostCmdFactoryImpl.h"

#include "app/core/HostApp.h"
#include "app/core/HostCommandLine.h"

bool HostCmdFactoryImpl::registerCommandClass(const char* name, CmdCreatorFn creator, const OdString& group, int,
                                              int, int)
{
  HostCommand command;
  command.group = group;
  command.localName = command.globalName = OdString(name ? name : "");
  command.kind = HostCommand::kClass;
  command.creator = creator;
  return HostCommandTable::instance().add(command);
}

bool HostCmdFactoryImpl::registerCommandFunction(const OdString& group, const OdString& localName,
                                                 const OdString& globalName, int, CmdFunction function, int, int)
{
  HostCommand command;
  command.group = group;
  command.localName = localName;
  command.globalName = globalName;
  command.kind = HostCommand::kFunction;
  command.function = function;
  return HostCommandTable::instance().add(command);
}

bool HostCmdFactoryImpl::getCommand(const OdString& name, ICmdRun** out)
{
  if (!out)
    return false;
  *out = nullptr;
  HostCommandPtr command = HostCommandTable::instance().find(name);
  if (!command)
    return false;
  *out = new HostCmdRunImpl(std::move(command));
  return true;
}

int HostCmdRunImpl::run(IMemParam* parameters)
{
  return HostApp::instance().commandLine().runCommand(*m_command, parameters) == HostCommandLine::kEnded ? 1 : 0;
}
