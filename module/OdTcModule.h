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
  // events, loads the catalogs and offers the tools for completion. Catches
  // nothing: a failure goes to the host's module loader.
  void initApp() override;
  // Deletes the classes, leaves the host's events, releases the module-wide
  // objects. Saves nothing.
  void uninitApp() override;
  // The library's full file name.
  OdString moduleName() const override;
};

} // namespace tc
