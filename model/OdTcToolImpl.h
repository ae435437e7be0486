// OdTcToolImpl and OdTcToolDataImpl: a tool and its data.
#pragma once

#include "model/OdTcCatalogItemImplBase.h"
#include "model/OdTcTool.h"
#include "model/OdTcToolRecords.h"

namespace tc {

class OdTcToolDataImpl : public OdTcPersistImpl<OdTcToolData>
{
public:
  static OdTcToolDataPtr createNew();

  OdString tagName() const override { return "Data"; }
  // "GeneralProperties" and the agents' tags; the last agent wins, of
  // whatever kind. Anything else is taken and dropped.
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  void copyFrom(const OdRxObject* source) override;

  OdTcToolActionAgent* agent() const override { return m_agent; }
  void setAgent(OdTcToolActionAgent* agent) override;
  OdTcPropertyBag* generalProperties() override;

  // The element names of the general properties of a new tool, in their
  // order; the properties subsystem gives each its class.
  static const OdArray<OdString>& generalPropertyTags();

private:
  OdTcToolActionAgentPtr m_agent;
  // Made with the ten properties when first wanted: a tool read from a
  // file takes the file's bag, and making ten properties only to drop them
  // would double the cost of loading a palette.
  OdTcPropertyBagPtr m_generalProperties;
};

class OdTcToolImpl : public OdTcCatalogItemImplBase<OdTcTool>
{
public:
  static OdTcToolPtr createNew();
  OdTcToolImpl();

  OdString tagName() const override { return "Tool"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  void copyFrom(const OdRxObject* source) override;

  void setToolType(std::int32_t toolType) override { m_toolType = toolType; }
  void setAgent(OdTcToolActionAgent* agent) override;
  bool execute(HostDocument* document) override;
  bool propertyChanged(OdTcProperty* property) override;
  bool updateImage() override;
  bool isRunning() const override { return m_running; }
  bool isRegularTool() const override { return m_toolType == 1; }
  OdTcToolActionAgent* agent() const override { return m_data ? m_data->agent() : nullptr; }
  std::int32_t toolType() const override { return m_toolType; }
  OdTcPropertyBag* generalProperties() override { return m_data ? m_data->generalProperties() : nullptr; }
  HostDocument* runningDocument() const override { return m_runningDocument; }
  void setRunningDocument(HostDocument* document) override { m_runningDocument = document; }
  OdTcToolData* data() const override { return m_data; }
  OdTcToolCustomData* customData() const override { return m_customData; }
  OdTcToolFlyout* flyout() const override { return m_flyout; }
  OdTcStockToolRef* stockToolRef() const override { return m_stockToolRef; }

private:
  // A multitool of another program becomes a regular tool that starts the
  // command the host's route map gives for its class; without one it stays.
  void convertMultitool();

  std::int32_t m_toolType = 0;
  OdTcToolCustomDataPtr m_customData;
  OdTcToolFlyoutPtr m_flyout;
  OdTcStockToolRefPtr m_stockToolRef;
  OdTcToolDataPtr m_data;
  HostDocument* m_runningDocument = nullptr; // not owned
  bool m_running = false;                    // nothing raises it
};

} // namespace tc
