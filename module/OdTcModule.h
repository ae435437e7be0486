// OdTcModule: the module object that the host's module loader drives.
#pragma once

#include "sdk/kernel/OdRxModule.h"

namespace tc {

class OdTcModule : public OdRxModule
{
public:
  // Clears the module pointer, then deletes the object.
  void deleteModule() override;
  // Registers the classes, makes the module-wide objects, joins the host's
  // events, loads the catalogs and offers the tools for completion. A
  // failure is told on the command line, and what was done is undone, so
  // that a later start can succeed.
  void initApp() override;
  // Releases the module-wide objects, then deletes the classes. Saves
  // nothing. A failure is told on the command line.
  void uninitApp() override;
  // The library's full file name.
  OdString moduleName() const override;
};

} // namespace tc
