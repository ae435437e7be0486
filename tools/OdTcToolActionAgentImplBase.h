// OdTcToolActionAgentImplBase<I>: what every kind of tool shares: the macro
// text of the command kind, the agent's own properties, and the general
// properties its kind does not use.
#pragma once

#include "model/OdTcPersistImpl.h"
#include "model/OdTcPropertyBag.h"
#include "model/OdTcPropertyFilter.h"
#include "model/OdTcToolActionAgent.h"

#include "hostsdk/core/HostCore.h"

#include <initializer_list>

namespace tc {

template <class I>
class OdTcToolActionAgentImplBase : public OdTcPersistImpl<I>
{
public:
  OdTcToolActionAgentImplBase()
  {
    // Both classes come with the properties subsystem; without it an agent
    // has no properties of its own and filters nothing.
    if (OdTcPropertyBag::desc())
      m_propertyBag = OdTcPropertyBag::createObject();
    if (OdTcPropertyFilter::desc())
      m_propertyFilter = OdTcPropertyFilter::createObject();
    if (m_propertyBag)
      m_propertyBag->setParent(this);
    if (m_propertyFilter)
      m_propertyFilter->setParent(this);
  }

  void setCommandString(const OdString& text) override { m_commandString = text; }
  OdString getCommandString() const override { return m_commandString; }
  OdTcPropertyBag* getPropertyBag() override { return m_propertyBag; }
  OdTcPropertyFilter* getPropertyFilter() override { return m_propertyFilter; }
  void beginExecute(HostDocument*) override {}
  void endExecute(HostDocument*) override {}
  bool canRun() const override { return true; }
  bool isImageSpecific() const override { return false; }
  void fillProperties() override {}
  bool regenerateImage(OdTcTool*) override { return false; }
  void describeImage(OdTcImage*) override {}
  bool onGeneralPropertyChanged(OdTcProperty*) override { return false; }
  bool loadDefaultImage(OdTcImage*) override { return false; }

  void copyFrom(const OdRxObject* source) override
  {
    OdTcPersistImpl<I>::copyFrom(source);
    if (auto* src = dynamic_cast<const OdTcToolActionAgentImplBase*>(source))
      m_commandString = src->m_commandString;
  }

protected:
  // Puts the translated display names of general properties into the
  // filter, for a kind that does not use them.
  void filterOut(std::initializer_list<const char*> displayNames)
  {
    if (m_propertyFilter)
      for (const char* name : displayNames)
        m_propertyFilter->add(Supp_Translate(name));
  }

  OdString m_commandString;
  OdTcPropertyBagPtr m_propertyBag;
  OdTcPropertyFilterPtr m_propertyFilter;
};

} // namespace tc
