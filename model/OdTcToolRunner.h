// OdTcToolRunner: what the catalog model needs of the execute pipeline to
// run a tool: the click, and the end of a run. tools/ implements it; the
// module installs it when it starts.
#pragma once

class HostDocument;

namespace tc {

class OdTcTool;

class OdTcToolRunner
{
public:
  virtual ~OdTcToolRunner() = default;
  // The click on `tool` in `document`. Nothing escapes: a failure is told
  // on the command line and gives false.
  virtual bool runTool(OdTcTool* tool, HostDocument* document) = 0;
};

// The runner the model uses; not owned. Null removes it.
void odtcSetToolRunner(OdTcToolRunner* runner);
// The runner installed, or null: a tool then does not run.
OdTcToolRunner* odtcToolRunner();

} // namespace tc
