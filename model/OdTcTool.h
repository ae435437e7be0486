// OdTcTool: one entry of a palette: a name, a description and pictures, a
// kind number, and its data: the general properties it applies while it
// runs and the agent that knows how to run it.
#pragma once

#include "model/OdTcCatalogItem.h"
#include "model/OdTcPropertyBag.h"
#include "model/OdTcToolActionAgent.h"

class HostDocument;

namespace tc {

class OdTcToolCustomData;
class OdTcToolFlyout;
class OdTcStockToolRef;

// The "Data" of a tool: its general properties and its agent, both owned.
class OdTcToolData : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcToolData);

public:
  virtual OdTcToolActionAgent* agent() const = 0;
  // Stores the agent with the data as its parent; null removes it.
  virtual void setAgent(OdTcToolActionAgent* agent) = 0;
  // The general properties, in the order they are applied: "Color",
  // "Layer", "Linetype", "LinetypeScale", "PlotStyle", "LineWeight",
  // "Transparency", "Textstyle", "Dimstyle", "Tablestyle" for a new tool.
  virtual OdTcPropertyBag* generalProperties() = 0;
};
using OdTcToolDataPtr = OdSmartPtr<OdTcToolData>;

class OdTcTool : public OdTcCatalogItem
{
  ODRX_DECLARE_MEMBERS(OdTcTool);

public:
  // 1 a regular tool, 3 a text item, 4 a separator.
  virtual void setToolType(std::int32_t toolType) = 0;
  virtual void setAgent(OdTcToolActionAgent* agent) = 0;
  // The click: runs the tool in `document` through the host. Whatever goes
  // wrong is told on the command line; false when the tool did not start.
  virtual bool execute(HostDocument* document) = 0;
  // Hands a changed general property to the agent; false for a null
  // property or a tool without an agent.
  virtual bool propertyChanged(OdTcProperty* property) = 0;
  // Redraws the tool's pictures through its agent; false without one.
  virtual bool updateImage() = 0;
  // Always false: a run is told by runningDocument().
  virtual bool isRunning() const = 0;
  virtual bool isRegularTool() const = 0;
  virtual OdTcToolActionAgent* agent() const = 0;
  virtual std::int32_t toolType() const = 0;
  // Null only for a tool without data.
  virtual OdTcPropertyBag* generalProperties() = 0;

  // The document the tool runs in, null at rest. A document that closes
  // during a run leaves it set until the next click. Not owned.
  virtual HostDocument* runningDocument() const = 0;
  virtual void setRunningDocument(HostDocument* document) = 0;
  virtual OdTcToolData* data() const = 0;
  // The records of other programs' files that the tool keeps: the command
  // of a multitool that could not be converted, its pop-up menu. Null when
  // the tool has none.
  virtual OdTcToolCustomData* customData() const = 0;
  virtual OdTcToolFlyout* flyout() const = 0;
  virtual OdTcStockToolRef* stockToolRef() const = 0;
};
using OdTcToolPtr = OdSmartPtr<OdTcTool>;

} // namespace tc
