// The command tool.
#include "tools/OdTcToolCommand.h"

#include "model/OdTcImage.h"
#include "properties/OdTcObjectProperties.h"

#include "hostsdk/core/HostServices.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcToolCommand, OdTcToolActionAgent, ODRX_CREATE_IMPL(OdTcToolCommandImpl, OdTcToolCommand))

OdTcToolCommandPtr OdTcToolCommandImpl::createNew(const OdString& macro)
{
  OdTcToolCommandPtr agent = OdRxObjectImpl<OdTcToolCommandImpl, OdTcToolCommand>::createObject();
  agent->setCommandString(macro);
  return agent;
}

bool OdTcToolCommandImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "Macro")
    return false;
  m_commandString = value.getString();
  return true;
}

void OdTcToolCommandImpl::writeBody(OdTcFiler* filer)
{
  filer->writeTextElement("Macro", OdVariant(m_commandString), false);
}

bool OdTcToolCommandImpl::execute(HostDocument* document)
{
  if (!document)
    return false;
  m_commandString.trimRight(); // the stored macro changes with it
  if (m_commandString.isEmpty())
    return false;
  document->sendCommand(OdString::formatted("%s^M", m_commandString));
  return true;
}

OdString OdTcToolCommandImpl::commandOfMacro(const OdString& macro)
{
  OdString name = macro;
  const int blank = name.find(u' ');
  if (blank >= 0)
    name = name.left(blank);
  const int caret = name.reverseFind(u'^');
  if (caret >= 0)
    name = name.mid(caret + 2);
  name.remove(u'_');
  return name;
}

void OdTcToolCommandImpl::fillProperties()
{
  if (!m_propertyBag)
    return;
  m_propertyBag->clear();
  using Self = OdTcToolCommandImpl;
  using MacroRow = OdTcTextObjectPropertyImplEx<Self, Getter<Self, OdString, &Self::getCommandString>,
                                                Setter<Self, OdString, &Self::setCommandString>>;
  m_propertyBag->addProperty(MacroRow::createNew(this, "Command.Command string"));
}

bool OdTcToolCommandImpl::loadDefaultImage(OdTcImage* image)
{
  const OdString command = commandOfMacro(m_commandString);
  if (!image || command.isEmpty())
    return false;
  // The picture comes from the host's button resource when the image is
  // drawn; the image names it.
  image->setSource("%ProgramBtnRes%", command);
  return true;
}

} // namespace tc
