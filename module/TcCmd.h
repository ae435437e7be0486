// TcCmd: the command "ToolPalettes", a toggle of the palette set window.
#pragma once

#include "hostsdk/core/CmdInterfaces.h"

namespace tc {

class TcCmd : public CRkUnknownImpl<ICmdProcess>
{
public:
  // The factory's creation function: a new command object in `out`.
  static int create(ICmdProcess** out, void* reserved);

  int run(IRkUnknown* argument) override;
  int prepare() override { return 0; }
  int finish(IRkUnknown* argument) override { return 0; }
  int getState() override;
  int getContext(IRkUnknown** out) override;
  void setContext(IRkUnknown* context) override;

private:
  CRkPtr<IRkUnknown> m_context;
};

} // namespace tc
