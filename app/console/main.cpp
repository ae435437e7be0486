// verdani-console: the reference host without a window, driven by a script
// or by standard input.
#include "app/console/ConsoleOptions.h"
#include "app/core/HostApp.h"
#include "app/core/HostCommandLine.h"
#include "app/core/HostOutput.h"

#include <QCoreApplication>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>

#include <unistd.h>

namespace {

// Reads lines from a terminal: the prompt is shown before the user types,
// and what the user typed stays on the screen, so nothing is echoed.
bool readTerminalLine(HostOutput& out, const OdString& prompt, OdString& line)
{
  out.finishLine();
  if (!prompt.isEmpty())
    out.printText(prompt);
  std::string text;
  const bool ok = static_cast<bool>(std::getline(std::cin, text));
  out.markLineStart();
  if (ok)
    line = OdString(text);
  return ok;
}

void runInteractive(HostApp& app)
{
  HostOutput& out = app.output();
  app.commandLine().setEcho(false);
  app.commandLine().setInputProvider(
      [&out](const OdString& prompt, OdString& line) { return readTerminalLine(out, prompt, line); });
  OdString line;
  while (!app.exitRequested() && readTerminalLine(out, "Command: ", line))
    app.typeLine(line);
  app.commandLine().setInputProvider(nullptr);
}

} // namespace

int main(int argc, char* argv[])
{
  QCoreApplication qtApp(argc, argv);
  std::vector<OdString> arguments;
  for (int i = 1; i < argc; ++i)
    arguments.push_back(OdString(QString::fromLocal8Bit(argv[i])));

  ConsoleOptions options;
  OdString error;
  if (!options.parse(arguments, error)) {
    std::fprintf(stderr, "verdani-console: %s\n%s", error.toUtf8().c_str(), ConsoleOptions::usage().toUtf8().c_str());
    return 2;
  }
  if (options.help) {
    std::fputs(ConsoleOptions::usage().toUtf8().c_str(), stdout);
    return 0;
  }
  std::ifstream script;
  if (!options.script.isEmpty()) {
    script.open(options.script.toUtf8());
    if (!script) {
      std::fprintf(stderr, "verdani-console: cannot read the script %s; check its name and permissions.\n",
                   options.script.toUtf8().c_str());
      return 1;
    }
  }

  HostStartOptions start;
  start.settings = options.settings;
  start.drawing = options.drawing;
  start.modules = {OdString("toolpalettes"), OdString("tpcommands")};

  HostApp& app = HostApp::instance();
  const bool interactive = !script.is_open() && isatty(STDIN_FILENO);
  if (interactive)
    app.output().printLine("Verdani console. Type a command, or Exit to end.");
  app.start(start);
  if (!app.exitRequested()) {
    if (script.is_open())
      app.runScript(script);
    else if (interactive)
      runInteractive(app);
    else
      app.runScript(std::cin);
  }
  app.shutdown();
  return 0;
}
