// The kit's questions and notices on the command line.
#include "hostsdk/ui/HostUiCommandLine.h"

#include "hostsdk/core/HostCore.h"
#include "hostsdk/core/HostServices.h"

#include <QApplication>

#include <cstdio>

namespace HostUiCommandLine {

bool hasWindows()
{
  if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
    return false;
  HostServices* services = hostContextServices();
  return !services || services->mainWindow();
}

void say(const OdString& text)
{
  HostServices* services = hostContextServices();
  HostCommandOutput* out = nullptr;
  if (services)
    out = services->currentDocument() ? services->currentDocument()->commandOutput() : services->commandOutput();
  if (out) {
    out->print("\n%s\n", text);
    return;
  }
  std::fprintf(stderr, "%s\n", text.toUtf8().c_str());
}

bool ask(const OdString& prompt, OdString& answer)
{
  answer = OdString();
  HostServices* services = hostContextServices();
  HostDocument* document = services ? services->currentDocument() : nullptr;
  if (!document)
    return false;
  if (!document->getString(prompt, answer, true))
    return false;
  answer.trimLeft();
  answer.trimRight();
  // A name typed in quotes keeps its spaces at the ends; the quotes go.
  if (answer.getLength() >= 2 && answer.getAt(0) == u'"' && answer.getAt(answer.getLength() - 1) == u'"')
    answer = answer.mid(1, answer.getLength() - 2);
  return true;
}

} // namespace HostUiCommandLine
