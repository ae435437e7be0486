// The test program as a host for tools that run.
#include "tests/tools/ToolTestHost.h"

#include "hostsdk/core/HostLookup.h"

#include <dlfcn.h>

namespace tsthost {

namespace {

class Services : public HostServices
{
public:
  HostDocument* currentDocument() override { return &host().document; }
  HostCommandOutput* commandOutput() override { return &host().document; }
  HostEditorEvents* editorEvents() override { return nullptr; }
  HostEdCompletion::Registry* completionRegistry() override { return nullptr; }
  QWidget* mainWindow() override { return nullptr; }
  HostSystemVariables* systemVariables() override { return &host().variables; }
  HostVariableStore* variableStore() override { return &host().store; }
};

// The variable keeps its own kind, as the host's variables do.
OdResBufPtr copyOf(const OdResBuf* value, int type)
{
  OdResBufPtr copy = OdResBuf::newRb(type);
  switch (copy->kind()) {
  case OdResBuf::kReal:
    copy->setDouble(value->getDouble());
    break;
  case OdResBuf::kInteger:
    copy->setInt64(value->getInt64());
    break;
  case OdResBuf::kText:
    copy->setString(value->getString());
    break;
  case OdResBuf::kColor:
    copy->setColor(value->getColor());
    break;
  default:
    break;
  }
  return copy;
}

HostServices* services()
{
  static Services s;
  return &s;
}

} // namespace

OdResBufPtr Variables::getVar(const OdString& name, OdDbDatabase*)
{
  auto it = values.find(name);
  if (it == values.end())
    return OdResBufPtr();
  return copyOf(it->second, it->second->restype());
}

HostSystemVariables::Status Variables::setVar(const OdString& name, const OdResBuf* value, OdDbDatabase*)
{
  auto it = values.find(name);
  if (it == values.end())
    return kUnknown;
  it->second = copyOf(value, it->second->restype());
  return kOk;
}

bool Store::getValue(const OdString& name, boost::any& value) const
{
  auto it = values.find(name);
  if (it == values.end())
    return false;
  value = it->second;
  return true;
}

void Store::setValue(const OdString& name, const boost::any& value)
{
  values[name] = value;
}

void Host::reset()
{
  document.drawing = odDbCreateDatabase();
  document.typed = OdString();
  document.printed = OdString();
  document.locks = 0;
  variables.values = {
      {"ATTREQ", OdResBuf::newValue(std::int16_t(1))},    {"HPNAME", OdResBuf::newValue(OdString("ANSI37"))},
      {"HPANG", OdResBuf::newValue(0.25)},                 {"HPSCALE", OdResBuf::newValue(2.0)},
      {"HPDOUBLE", OdResBuf::newValue(std::int16_t(1))},  {"HPSPACE", OdResBuf::newValue(7.0)},
      {"HPCOLOR", OdResBuf::newValue(OdCmColor())},        {"GFNAME", OdResBuf::newValue(std::int16_t(4))},
      {"GFANG", OdResBuf::newValue(0.75)},                 {"GFSHIFT", OdResBuf::newValue(std::int16_t(1))},
      {"GFCLR1", OdResBuf::newValue(OdCmColor())},         {"GFCLR2", OdResBuf::newValue(OdCmColor())}};
  store.values = {{"hatch_type", boost::any(5)}, {"hatch_pattern_file", boost::any(OdString("user.pat"))}};
}

Host& host()
{
  static Host h;
  return h;
}

} // namespace tsthost

extern "C" {

__attribute__((visibility("default"))) void* GetMainDllInstance()
{
  return dlopen(nullptr, RTLD_NOW);
}

__attribute__((visibility("default"))) void* get_host_funcptr(int id)
{
  return id == kHostServicesFuncId ? reinterpret_cast<void*>(&tsthost::services) : nullptr;
}
}
