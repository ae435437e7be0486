// Looking up the host's commands.
#include "host/TcCommandLookup.h"

#include "host/TcHost.h"

#include "hostsdk/core/HostCore.h"
#include "hostsdk/xml/HostXml.h"

namespace tc {

bool hostCommandInfo(const OdString& name, HostCommandInfo& out)
{
  HostServices* services = hostServices();
  const HostCommandTableInfo* table = services ? services->commandTable() : nullptr;
  return table && !name.isEmpty() && table->findCommand(name, out);
}

bool startCommandOfClass(const OdString& className, OdString& command)
{
  const OdString file = hostGetCmdRouteMap();
  if (file.isEmpty() || className.isEmpty())
    return false;
  HostXmlDocumentPtr map = XmlLoadXml(file);
  if (!map)
    return false;
  // A quote in the name would end the XPath literal: no class has one.
  if (className.find(u'"') >= 0)
    return false;
  const OdString xpath = OdString::formatted(
      "Entries/Entry[OdRxClassInfo[@className=\"%s\"]]/Command[@name=\"ADDSELECTED\"]/StartCommand", className);
  const HostXmlNode node = map->selectSingleNode(xpath);
  if (node.isNull())
    return false;
  command = XmlGetAttrString(node, "name", OdString());
  return !command.isEmpty();
}

OdString commandToolName(const HostCommandInfo& command)
{
  if (!command.displayText.isEmpty())
    return command.displayText;
  OdString menu = Supp_Translate(command.menuText);
  menu.remove(u'&');
  if (!menu.isEmpty())
    return menu;
  return Supp_Translate(command.globalName);
}

} // namespace tc
