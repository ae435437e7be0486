// The pattern choice of the hatch command and the hatch tool: a dialog that
// a desktop host installs, else the command line.
#pragma once

#include "hostsdk/patterns/PatFile.h"
#include "hostsdk/patterns/VerdaniCmd1.h"

class PatChooser
{
public:
  // See hostGetHatchPatterns.
  static bool choose(int type, OdString& file, OdArray<OdString>& list, OdString& name);
  static void setDialog(HostHatchPatternDialogFn dialog);

private:
  // Lists the patterns and reads a name until one of the file is given, the
  // input is empty or cancelled.
  static bool chooseOnCommandLine(const PatFile& file, OdString& name);
};
