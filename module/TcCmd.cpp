// The "ToolPalettes" command: the first run makes the window, later runs
// hide or show it; the "Startup" list remembers the choice between runs.
#include "module/TcCmd.h"

#include "module/TcModuleState.h"
#include "module/TcStartupList.h"

#include "host/TcGuard.h"
#include "host/TcHost.h"

#include "hostsdk/core/HostCore.h"

namespace tc {

int TcCmd::create(ICmdProcess** out, void*)
{
  try {
    *out = new TcCmd;
    return 1;
  } catch (...) {
    *out = nullptr; // the host tells the user that no command came
    return 0;
  }
}

namespace {

void createPaletteSet(TcModuleState& state)
{
  HostServices* services = hostServices();
  QWidget* parent = services ? services->mainWindow() : nullptr;
  TcPaletteSetCreator creator = paletteSetCreator();
  if (!creator || !parent) {
    hostPrint(Supp_Translate("The Tool Palettes window needs the desktop host; "
                             "the palettes stay available on the command line.\n"));
    return;
  }
  ITcUiPaletteSet* window = creator(parent);
  if (!window)
    return;
  state.setPaletteSet(window);
  window->show(true);
  if (auto* tree = state.paletteSetView<ITcUiTreeView>(kITcUiTreeView))
    tree->loadTree();
  state.setPaletteVisible(true);
}

void toggle()
{
  TcModuleState& state = startedModule();
  ITcUiPaletteSet* window = state.paletteSet();
  if (!window) {
    createPaletteSet(state);
    writeStartupEntry(true);
  } else if (!state.paletteVisible()) {
    window->show(true);
    state.setPaletteVisible(true);
    writeStartupEntry(true);
  } else {
    window->show(false);
    state.setPaletteVisible(false);
    writeStartupEntry(false);
  }
}

} // namespace

int TcCmd::run(IRkUnknown*)
{
  tcGuarded(Supp_Translate("ToolPalettes failed: %s\n"), &toggle);
  return 0;
}

int TcCmd::getState()
{
  const TcModuleState* state = TcModuleState::current();
  return (state && state->paletteSet() && state->paletteVisible()) ? 3 : 1;
}

int TcCmd::getContext(IRkUnknown** out)
{
  if (!m_context)
    return 0;
  m_context->addRef();
  *out = m_context.get();
  return 1;
}

void TcCmd::setContext(IRkUnknown* context)
{
  m_context = CRkPtr<IRkUnknown>(context);
}

} // namespace tc
