// The execute pipeline: the road from a click on a tool to the host's
// command processor, and back to the drawing's own settings when the run
// ends. One tool runs at a time in the whole process.
#pragma once

#include "model/OdTcToolRunner.h"

#include "sdk/kernel/OdString.h"

namespace tc {

class OdTcCommandConveyor;
class TcEditorReactor;

class TcToolPipeline : public OdTcToolRunner
{
public:
  // Neither object is owned: the module keeps them for as long as it
  // keeps the pipeline.
  TcToolPipeline(TcEditorReactor* reactor, OdTcCommandConveyor* conveyor);

  // The click: a tool running in another document refuses with message
  // 138; one running in this document is cancelled and restored first.
  // Then the tool's general properties are applied under the document
  // lock "EXECUTETOOL", and its agent begins and executes.
  bool runTool(OdTcTool* tool, HostDocument* document) override;

  TcEditorReactor* reactor() const { return m_reactor; }
  OdTcCommandConveyor* conveyor() const { return m_conveyor; }

  // The pipeline of the started module, or null.
  static TcToolPipeline* current();
  // Makes `pipeline` the current one, and the runner of the model's tools;
  // null removes it.
  static void install(TcToolPipeline* pipeline);

private:
  bool click(OdTcTool* tool, HostDocument* document);

  TcEditorReactor* m_reactor;
  OdTcCommandConveyor* m_conveyor;
};

// The end of a run: the general properties put back (when the document
// still has its drawing), the agent's endExecute, the tool at rest.
void finishToolRun(OdTcTool* tool);

// Types "__executetool" with `keyword` ("block", "xref", "raster") on the
// active document's command line, for the command to pick up the record
// the tool left with the conveyor. Nothing without an active document.
void postExecuteTool(const OdString& keyword);

} // namespace tc
