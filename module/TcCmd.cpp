// The "ToolPalettes" command: the first run makes the window, later runs
// hide or show it; the "Startup" list remembers the choice between runs.
#include "module/TcCmd.h"

#include "host/TcHost.h"
#include "module/TcModuleState.h"
#include "module/TcStartupList.h"

#include "hostsdk/core/HostCore.h"

namespace tc {

int TcCmd::create(ICmdProcess** out, void*)
{
  *out = new TcCmd;
  return 1;
}

TcCmd::~TcCmd()
{
  if (m_context)
    m_context->release();
}

bool TcCmd::queryInterface(const char* iid, void** out)
{
  return CRkUnknownImpl<ICmdProcess>::queryInterface(iid, out);
}

namespace {

void createPaletteSet()
{
  HostServices* services = hostServices();
  QWidget* parent = services ? services->mainWindow() : nullptr;
  TcPaletteSetCreator creator = paletteSetCreator();
  if (!creator || !parent) {
    hostPrint(Supp_Translate("The Tool Palettes window needs the desktop host; "
                             "the palettes stay available on the command line.\n"));
    return;
  }
  paletteSet = creator(parent);
  if (!paletteSet)
    return;
  paletteSet->show(true);
  if (auto* tree = paletteSetView<ITcUiTreeView>(kITcUiTreeView))
    tree->loadTree();
  paletteVisible = true;
}

} // namespace

int TcCmd::run(IRkUnknown*)
{
  if (!paletteSet) {
    createPaletteSet();
    writeStartupEntry(true);
  } else if (!paletteVisible) {
    paletteSet->show(true);
    paletteVisible = true;
    writeStartupEntry(true);
  } else {
    paletteSet->show(false);
    paletteVisible = false;
    writeStartupEntry(false);
  }
  return 0;
}

int TcCmd::getState()
{
  return (paletteSet && paletteVisible) ? 3 : 1;
}

int TcCmd::getContext(IRkUnknown** out)
{
  if (!m_context)
    return 0;
  m_context->addRef();
  *out = m_context;
  return 1;
}

void TcCmd::setContext(IRkUnknown* context)
{
  if (context)
    context->addRef();
  if (m_context)
    m_context->release();
  m_context = context;
}

} // namespace tc
