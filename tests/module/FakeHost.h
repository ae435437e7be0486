// A host in the test program: it exports the lookups a module uses to find
// its host, and records what the module does with it.
#pragma once

#include "hostsdk/core/AppInterfaces.h"
#include "hostsdk/core/CmdInterfaces.h"
#include "hostsdk/core/HostServices.h"

#include <map>
#include <string>
#include <vector>

namespace fakehost {

struct Command
{
  std::string group;
  std::string name;
  CmdCreatorFn creator = nullptr;
  CmdFunction function = nullptr;
};

// Everything the fake host has seen, kept in one place for the tests.
struct State
{
  std::vector<Command> commands;
  std::map<std::string, CRkVariant> startup;      // the "Startup" folder
  // "cmddata" exists only when the test makes it; "ToolPaletteManager" in
  // it is made at first opening.
  bool hasCmdData = false;
  bool hasToolPaletteManager = false;
  std::map<std::string, CRkVariant> toolPaletteManager;
  std::map<std::string, const HostEdCompletion::Provider*> providers;
  std::vector<HostEditorReactor*> reactors;
  std::vector<IPropReactor*> propReactors;
  std::string printed;
  std::map<std::string, CRkVariant> stdDirs; // "ToolPaletteDir", "CommonDirs", "Shx"
  OdString userDataFolder;
  // A broken configuration: reading this key of the standard folders, or
  // the configuration tree, fails with an exception.
  std::string brokenKey;
  bool brokenProfile = false;
};

State& state();
// Forgets what the tests did; the commands registered while the module
// loaded stay.
void reset();
// Tells every property reactor that an option changed.
void changeOption(const char* name);

} // namespace fakehost
