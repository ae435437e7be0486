// The host's table of commands as a module may read it: for a command name,
// the texts the host shows for it and the class of drawing object it makes.
#pragma once

#include "sdk/kernel/OdString.h"

struct HostCommandInfo
{
  OdString globalName;  // the name the command runs under
  OdString localName;
  OdString displayText; // as a button or list shows the command; may be empty
  OdString menuText;    // with "&" before the menu's access key; may be empty
  OdString description; // one line for a tooltip or a status bar
  OdString className;   // the class of the objects it draws ("AcDbLine"); empty for others
};

class HostCommandTableInfo
{
public:
  virtual ~HostCommandTableInfo() = default;
  // The command of that global or local name, ignoring case; false when the
  // host has none.
  virtual bool findCommand(const OdString& name, HostCommandInfo& out) const = 0;
};
