// The execute pipeline.
#include "tools/TcToolPipeline.h"

#include "tools/TcEditorReactor.h"

#include "model/OdTcPropertyFilter.h"
#include "model/OdTcTool.h"

#include "host/TcGuard.h"
#include "host/TcHost.h"
#include "host/TcMessages.h"

#include "hostsdk/core/HostCore.h"
#include "sdk/db/OdDbDatabase.h"

namespace tc {

namespace {

TcToolPipeline* g_pipeline = nullptr; // not owned: the module state keeps it

// Calls `step` on each general property of the tool that its kind uses.
template <class Step>
void forEachUsedProperty(OdTcTool* tool, const Step& step)
{
  OdTcPropertyBag* bag = tool->generalProperties();
  if (!bag)
    return;
  OdTcToolActionAgent* agent = tool->agent();
  OdTcPropertyFilter* filter = agent ? agent->getPropertyFilter() : nullptr;
  OdTcEnumPtr<OdTcProperty> properties = bag->newEnumerator();
  while (OdTcProperty* property = properties ? properties->next() : nullptr)
    if (!filter || !filter->contains(property->name()))
      step(property);
}

} // namespace

TcToolPipeline::TcToolPipeline(TcEditorReactor* reactor, OdTcCommandConveyor* conveyor)
    : m_reactor(reactor), m_conveyor(conveyor)
{
}

TcToolPipeline* TcToolPipeline::current()
{
  return g_pipeline;
}

void TcToolPipeline::install(TcToolPipeline* pipeline)
{
  g_pipeline = pipeline;
  odtcSetToolRunner(pipeline);
}

bool TcToolPipeline::runTool(OdTcTool* tool, HostDocument* document)
{
  bool started = false;
  tcGuarded(Supp_Translate("The tool could not run: %s\n"), [&] { started = tool && click(tool, document); });
  return started;
}

bool TcToolPipeline::click(OdTcTool* tool, HostDocument* document)
{
  if (!m_reactor->canRunIn(document)) {
    hostPrint(tcString(138), m_reactor->runningToolName(), m_reactor->runningDocumentName());
    return false;
  }
  if (m_reactor->runningTool()) {
    // The running tool's command gets a cancel; the cancel it causes must
    // not end the run that starts now.
    if (document)
      document->sendCommand("^C");
    m_reactor->forceStop();
  }
  tool->setRunningDocument(document);
  m_reactor->setRunningTool(tool);

  OdDbDatabase* database = document ? document->database() : nullptr;
  if (document)
    document->lockDocument("EXECUTETOOL");
  try {
    if (database)
      forEachUsedProperty(tool, [&](OdTcProperty* property) { property->apply(database); });
  } catch (...) {
    document->unlockDocument();
    throw;
  }
  if (document)
    document->unlockDocument();

  if (OdTcToolActionAgent* agent = tool->agent()) {
    agent->beginExecute(document);
    agent->execute(document); // an agent that cannot start leaves the run open until the next command ends
  }
  return true;
}

void finishToolRun(OdTcTool* tool)
{
  HostDocument* document = tool->runningDocument();
  if (!document)
    return;
  // Restoring is not locked, unlike applying: the host's command that the
  // tool ran is over, or going.
  if (OdDbDatabase* database = document->database())
    forEachUsedProperty(tool, [&](OdTcProperty* property) { property->restore(database); });
  if (OdTcToolActionAgent* agent = tool->agent())
    agent->endExecute(document);
  tool->setRunningDocument(nullptr);
}

void postExecuteTool(const OdString& keyword)
{
  HostServices* services = hostServices();
  HostDocument* document = services ? services->currentDocument() : nullptr;
  if (!document)
    return;
  // Quotes and angle brackets make the command line read the keyword as
  // one string.
  document->sendCommand(OdString::formatted("%s<%s>\" ", OdString("__executetool^M\""), keyword));
  document->sendCommand("\n");
}

} // namespace tc
