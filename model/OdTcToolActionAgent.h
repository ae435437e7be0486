// OdTcToolActionAgent: what a tool does when it runs. Each kind of tool
// (command, block, hatch, raster, and the kinds that cannot run) is one
// implementation in tools/; a tool's data holds one agent.
#pragma once

#include "model/OdTcPersist.h"

#include <map>

class HostDocument;

namespace tc {

class OdTcImage;
class OdTcProperty;
class OdTcPropertyBag;
class OdTcPropertyFilter;
class OdTcTool;

class OdTcToolActionAgent : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcToolActionAgent);

public:
  // Starts the tool's work in the document: types a macro or a command, or
  // leaves a record for "__executetool". The pipeline does not look at the
  // result.
  virtual bool execute(HostDocument* document) = 0;
  virtual void setCommandString(const OdString& text) = 0;
  virtual OdString getCommandString() const = 0;
  // The agent's own editable properties, and the general properties its
  // kind does not use; both owned by the agent.
  virtual OdTcPropertyBag* getPropertyBag() = 0;
  virtual OdTcPropertyFilter* getPropertyFilter() = 0;
  // Brackets around execute: save and set the host variables the kind
  // needs, and put them back when the host's command has ended.
  virtual void beginExecute(HostDocument* document) = 0;
  virtual void endExecute(HostDocument* document) = 0;
  // False for the kinds this system reads but does not carry out.
  virtual bool canRun() const = 0;
  virtual bool isImageSpecific() const = 0;
  // Builds the agent's property bag; called once by the kind's constructor,
  // and again where the set of properties depends on a field.
  virtual void fillProperties() = 0;
  virtual bool regenerateImage(OdTcTool* tool) = 0;
  virtual void describeImage(OdTcImage* image) = 0;
  virtual bool onGeneralPropertyChanged(OdTcProperty* property) = 0;
  // The picture of a tool that has none of its own; only the command and
  // hatch kinds have one.
  virtual bool loadDefaultImage(OdTcImage* image) = 0;
};
using OdTcToolActionAgentPtr = OdSmartPtr<OdTcToolActionAgent>;

// The table of tool kinds: the label of an agent's tag where it differs
// from the tag ("VisualStyle" reads "Visual style"), untranslated.
const std::map<OdString, OdString>& toolKindLabels();
// The label of a tag: from the table, else the tag itself; untranslated.
OdString toolKindLabel(const OdString& tag);

} // namespace tc
