// The execute step of a tool run.
#include "tools/TcExecuteTool.h"

namespace tc {

void executeToolCommand()
{
  // No tool kind leaves a record yet: the conveyor and the tools that fill
  // it come with the execute pipeline.
}

} // namespace tc
