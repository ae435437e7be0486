// Tools and their data: reading, writing, the conversion of multitools, and
// the click that hands a tool to the execute pipeline.
#include "model/OdTcToolImpl.h"

#include "model/OdTcFileStore.h"
#include "model/OdTcImage.h"
#include "model/OdTcToolRunner.h"

#include "host/TcCommandLookup.h"
#include "host/TcHost.h"
#include "host/TcMessages.h"

#include "sdk/kernel/OdWcstol.h"

#include <type_traits>

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcTool, OdTcCatalogItem, ODRX_CREATE_IMPL(OdTcToolImpl, OdTcTool))
ODRX_DEFINE_MEMBERS(OdTcToolData, OdTcPersist, ODRX_CREATE_IMPL(OdTcToolDataImpl, OdTcToolData))

namespace {

bool isAgentTag(const OdString& name)
{
  static const char* const kTags[] = {"Command", "Block", "Raster", "Hatch", "VisualStyle", "Light", "MLeader", "Table"};
  for (const char* tag : kTags)
    if (name == tag)
      return true;
  return false;
}

// A child element whose class is not part of the module yet arrives as
// text: it is dropped, and the rest of the tool reads on.
bool holdsObject(const OdVariant& value)
{
  return value.type() == OdVariant::kRxObjectPtr && !value.getRxObjectPtr().isNull();
}

} // namespace

// ------------------------------------------------------------------ data

OdTcToolDataPtr OdTcToolDataImpl::createNew()
{
  return OdRxObjectImpl<OdTcToolDataImpl, OdTcToolData>::createObject();
}

const OdArray<OdString>& OdTcToolDataImpl::generalPropertyTags()
{
  static const OdArray<OdString> tags = {"Color",        "Layer",     "Linetype", "LinetypeScale", "PlotStyle",
                                         "LineWeight",   "Transparency", "Textstyle", "Dimstyle",  "Tablestyle"};
  return tags;
}

OdTcPropertyBag* OdTcToolDataImpl::generalProperties()
{
  if (m_generalProperties.isNull() && OdTcPropertyBag::desc()) {
    m_generalProperties = OdTcPropertyBag::createObject();
    if (m_generalProperties.isNull())
      return nullptr; // no class of bags in the module: the tool has none
    m_generalProperties->setParent(this);
    m_generalProperties->setName("General");
    for (const OdString& tag : generalPropertyTags())
      if (OdTcPropertyPtr property = OdTcProperty::cast(odtcCreateByTag(tag)))
        m_generalProperties->addProperty(property);
  }
  return m_generalProperties;
}

void OdTcToolDataImpl::setAgent(OdTcToolActionAgent* agent)
{
  m_agent = agent;
  if (m_agent)
    m_agent->setParent(this);
}

bool OdTcToolDataImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (!holdsObject(value))
    return true;
  if (name == "GeneralProperties")
    m_generalProperties = deliveredObject<OdTcPropertyBag>(value);
  else if (isAgentTag(name))
    m_agent = deliveredObject<OdTcToolActionAgent>(value);
  return true;
}

void OdTcToolDataImpl::writeBody(OdTcFiler* filer)
{
  if (OdTcPropertyBag* bag = generalProperties())
    filer->writeTextElement("GeneralProperties", OdVariant(static_cast<const OdRxObject*>(bag)), false);
  if (m_agent)
    filer->writeObject(m_agent);
}

void OdTcToolDataImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcToolData>::copyFrom(source);
  auto* src = dynamic_cast<const OdTcToolDataImpl*>(source);
  if (!src)
    return;
  m_agent = src->m_agent ? OdTcToolActionAgentPtr(src->m_agent->clone()) : OdTcToolActionAgentPtr();
  if (m_agent)
    m_agent->setParent(this);
  m_generalProperties =
      src->m_generalProperties ? OdTcPropertyBagPtr(src->m_generalProperties->clone()) : OdTcPropertyBagPtr();
  if (m_generalProperties)
    m_generalProperties->setParent(this);
}

// ------------------------------------------------------------------ tool

OdTcToolPtr OdTcToolImpl::createNew()
{
  return OdRxObjectImpl<OdTcToolImpl, OdTcTool>::createObject();
}

OdTcToolImpl::OdTcToolImpl() : m_data(OdTcToolDataImpl::createNew())
{
  m_data->setParent(this);
}

bool OdTcToolImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (OdTcCatalogItemImplBase<OdTcTool>::setValue(name, value))
    return true;
  if (name == "ToolType")
    m_toolType = odWcstol(value.getString());
  else if (name == "CustomData")
    m_customData = deliveredObject<OdTcToolCustomData>(value);
  else if (name == "Flyout")
    m_flyout = deliveredObject<OdTcToolFlyout>(value);
  else if (name == "StockToolRef")
    m_stockToolRef = deliveredObject<OdTcStockToolRef>(value);
  else if (name == "Data")
    m_data = deliveredObject<OdTcToolData>(value);
  else
    return false;
  // A stock reference never outlives the element that brought it, nor any
  // of these elements after it: nothing of it reaches a saved file.
  m_stockToolRef = nullptr;
  if (m_customData && m_flyout)
    convertMultitool();
  return true;
}

void OdTcToolImpl::convertMultitool()
{
  showMultitoolMessage();
  OdString commandName;
  if (!startCommandOfClass(m_customData->className(), commandName))
    return;
  HostCommandInfo command;
  if (!hostCommandInfo(commandName, command))
    return;
  m_toolType = 1;
  const OdString name = commandToolName(command);
  setName(name);
  m_customData = nullptr;
  m_flyout = nullptr;
  for (int sizeClass : {3, 4}) {
    OdTcImagePtr image = OdTcImage::desc() ? OdTcImage::createObject() : OdTcImagePtr();
    if (image.isNull())
      break; // no pictures in the module: the tool keeps what it had
    image->setSizeClass(sizeClass);
    image->setSource("%ProgramBtnRes%", command.globalName);
    addImage(image);
  }
  hostPrint(tcString(134), name);
}

void OdTcToolImpl::writeBody(OdTcFiler* filer)
{
  OdTcCatalogItemImplBase<OdTcTool>::writeBody(filer);
  filer->writeTextElement("ToolType", OdVariant(m_toolType), false);
  // The custom data of a multitool that was not converted is not written:
  // the tool is saved as what it can do here.
  filer->writeObject(m_stockToolRef);
  filer->writeObject(m_flyout);
  filer->writeObject(m_data);
}

void OdTcToolImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcTool>::copyFrom(source);
  auto* src = dynamic_cast<const OdTcToolImpl*>(source);
  if (!src)
    return;
  copyItemFrom(*src);
  m_toolType = src->m_toolType;
  auto cloned = [this](const auto& from) {
    using Ptr = std::decay_t<decltype(from)>;
    Ptr copy = from ? Ptr(from->clone()) : Ptr();
    if (copy)
      copy->setParent(this);
    return copy;
  };
  m_customData = cloned(src->m_customData);
  m_flyout = cloned(src->m_flyout);
  m_stockToolRef = cloned(src->m_stockToolRef);
  m_data = cloned(src->m_data);
}

void OdTcToolImpl::setAgent(OdTcToolActionAgent* agent)
{
  if (m_data)
    m_data->setAgent(agent);
}

bool OdTcToolImpl::execute(HostDocument* document)
{
  OdTcToolRunner* runner = odtcToolRunner();
  return runner && runner->runTool(this, document);
}

bool OdTcToolImpl::propertyChanged(OdTcProperty* property)
{
  OdTcToolActionAgent* toolAgent = agent();
  if (!property || !toolAgent)
    return false;
  toolAgent->onGeneralPropertyChanged(property);
  return true;
}

bool OdTcToolImpl::updateImage()
{
  OdTcToolActionAgent* toolAgent = agent();
  return toolAgent && toolAgent->regenerateImage(this);
}

} // namespace tc
