// The test program as a host for tools that run: one document over a
// drawing, whose typed text and messages are kept, the host's system
// variables as a table of values, and its store of named values.
#pragma once

#include "hostsdk/core/HostServices.h"
#include "hostsdk/core/HostSysVars.h"

#include "sdk/db/OdDbDatabase.h"

#include <map>

namespace tsthost {

class Variables : public HostSystemVariables
{
public:
  OdResBufPtr getVar(const OdString& name, OdDbDatabase* database = nullptr) override;
  Status setVar(const OdString& name, const OdResBuf* value, OdDbDatabase* database = nullptr) override;

  std::map<OdString, OdResBufPtr> values;
};

class Store : public HostVariableStore
{
public:
  bool getValue(const OdString& name, boost::any& value) const override;
  void setValue(const OdString& name, const boost::any& value) override;

  std::map<OdString, boost::any> values;
};

class Document : public HostDocument, public HostCommandOutput
{
public:
  HostCommandOutput* commandOutput() override { return this; }
  OdString documentName() const override { return "plan.dxf"; }
  OdDbDatabase* database() override { return drawing.get(); }
  void sendCommand(const OdString& text) override { typed += text; }
  void printText(const OdString& text) override { printed += text; }
  void lockDocument(const OdString&) override { ++locks; }
  void unlockDocument() override { --locks; }

  OdDbDatabasePtr drawing;
  OdString typed;
  OdString printed;
  int locks = 0;
};

// The host of the test program; `reset` gives it a new drawing, the
// variables of a fresh host and an empty store.
struct Host
{
  Document document;
  Variables variables;
  Store store;

  void reset();
};
Host& host();

} // namespace tsthost
