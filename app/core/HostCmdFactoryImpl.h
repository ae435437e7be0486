// ICmdFactory of the reference host: modules register their commands here
// and find commands to run by name.
#pragma once

#include "app/core/HostCommandTable.h"

class HostCmdFactoryImpl : public CRkUnknownImpl<ICmdFactory>
{
public:
  bool registerCommandClass(const char* name, CmdCreatorFn creator, const OdString& group, int reserved1,
                            int reserved2, int reserved3) override;
  bool registerCommandFunction(const OdString& group, const OdString& localName, const OdString& globalName,
                               int reserved1, CmdFunction function, int reserved2, int reserved3) override;
  // An ICmdRun whose run goes through the host's command processor, with
  // the editor events of any command.
  bool getCommand(const OdString& name, ICmdRun** out) override;
};

// A command found by name. run() gives 1 when the command ended, 0 when it
// was cancelled or failed.
class HostCmdRunImpl : public CRkUnknownImpl<ICmdRun>
{
public:
  explicit HostCmdRunImpl(HostCommandPtr command) : m_command(std::move(command)) {}
  int run(IMemParam* parameters) override;
  const HostCommandPtr& command() const { return m_command; }

private:
  HostCommandPtr m_command;
};
