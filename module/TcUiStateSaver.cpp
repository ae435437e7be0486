// The remembered state of the palette window in the host's configuration.
#include "module/TcUiStateSaver.h"

#include "host/TcHost.h"

#include <cstring>
#include <exception>

namespace tc {

namespace {

struct StateDefault
{
  const char* name;
  std::int32_t value;
};

constexpr StateDefault kStateDefaults[] = {
    {"ActiveView", 1},  {"Col0", 200}, {"Col1", 200}, {"SplitterPos", 151}, {"MultitoolConvertMessage", 0},
    {"UnsupportedToolsMessage", 0}};

} // namespace

bool stateDefaultValue(const char* name, CRkVariant& value)
{
  for (const StateDefault& row : kStateDefaults) {
    if (name && std::strcmp(name, row.name) == 0) {
      value = CRkVariant(row.value);
      return true;
    }
  }
  return false;
}

CRkPtr<IConfigManager> openStateNode()
{
  try {
    CRkPtr<IApp> app = hostApp();
    auto profile = CRkPtr<IProfile>::query(app.get());
    CRkPtr<IConfigManager> root;
    if (!profile || !profile->getRoot(root.put()) || !root)
      return CRkPtr<IConfigManager>();
    // The branch is the host's to make: a host without it keeps nothing of
    // the window.
    CRkPtr<IConfigManager> cmddata;
    if (!root->openFolder("cmddata", false, cmddata.put()) || !cmddata)
      return CRkPtr<IConfigManager>();
    CRkPtr<IConfigManager> node;
    if (!cmddata->openFolder("ToolPaletteManager", true, node.put()))
      return CRkPtr<IConfigManager>();
    return node;
  } catch (const std::exception&) {
    // OdError among them: a broken configuration keeps nothing.
  }
  return CRkPtr<IConfigManager>();
}

TcUiStateSaver::TcUiStateSaver() : m_node(openStateNode())
{
}

bool TcUiStateSaver::queryInterface(int type, void** out)
{
  if (!out || type != kITcUiStateSaver)
    return false;
  *out = static_cast<ITcUiStateSaver*>(this);
  return true;
}

void TcUiStateSaver::setValue(const char* name, const CRkVariant& value)
{
  if (m_node && name)
    m_node->setValue(name, value);
}

bool TcUiStateSaver::getValue(const char* name, CRkVariant& value)
{
  return m_node && name && m_node->getValue(name, value);
}

} // namespace tc
