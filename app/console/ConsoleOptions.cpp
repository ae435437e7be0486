// Reading the options of the console program.
#include "app/console/ConsoleOptions.h"

#include "app/core/HostApp.h"

bool ConsoleOptions::parse(const std::vector<OdString>& arguments, OdString& error)
{
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const OdString& arg = arguments[i];
    auto takeValue = [&](const char* option, OdString& out) {
      const OdString prefix = OdString(option) + "=";
      if (arg.find(prefix) == 0) {
        out = arg.mid(prefix.getLength());
        return true;
      }
      if (i + 1 >= arguments.size()) {
        error = OdString::formatted("%s needs a value.", option);
        return false;
      }
      out = arguments[++i];
      return true;
    };
    if (arg == "-h" || arg == "--help") {
      help = true;
    } else if (arg == "--set" || arg.find(OdString("--set=")) == 0) {
      OdString setting, key, value;
      if (!takeValue("--set", setting))
        return false;
      if (!HostApp::parseSetting(setting, key, value, &error))
        return false;
      settings.push_back(setting);
    } else if (arg == "--script" || arg.find(OdString("--script=")) == 0) {
      if (!takeValue("--script", script))
        return false;
      if (script.isEmpty()) {
        error = "--script needs a file name.";
        return false;
      }
    } else if (arg.getLength() > 1 && arg.getAt(0) == u'-') {
      error = OdString::formatted("Unknown option %s.", arg);
      return false;
    } else if (drawing.isEmpty()) {
      drawing = arg;
    } else {
      error = OdString::formatted("Only one drawing can be opened at start; %s is one too many.", arg);
      return false;
    }
  }
  return true;
}

OdString ConsoleOptions::usage()
{
  return "Usage: verdani-console [--set KEY=VALUE]... [--script FILE] [DRAWING]\n"
         "Runs Verdani without a window. Command-line input comes from FILE, or\n"
         "else from standard input, one line at a time; Exit or the end of the\n"
         "input ends the program.\n"
         "  --set KEY=VALUE  writes a setting before modules load: ToolPaletteDir,\n"
         "                   CommonDirs, Shx, or a configuration path Folder/Name\n"
         "  --script FILE    reads the input from FILE\n"
         "  DRAWING          a drawing to open instead of a new one\n";
}
