// A host in the test program for the pattern library: it exports the
// lookups the library finds its host by, a document whose command line
// reads scripted input, and a configuration with the "Hatch" folder.
#pragma once

#include "sdk/kernel/OdString.h"

#include <deque>
#include <map>
#include <string>

namespace pattesthost {

struct State
{
  bool present = true;      // the lookups answer
  bool hasDocument = true;  // a document is open
  std::deque<OdString> input; // lines for prompts; "^C" cancels
  std::string printed;        // the command line, prompts and answers included
  std::map<std::string, OdString> hatchSettings; // the folder "Hatch"
  OdString userDataFolder;
};

State& state();
// A fresh host: present, with a document, nothing typed, nothing set.
void reset();

} // namespace pattesthost
