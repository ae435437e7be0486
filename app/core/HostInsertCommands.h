// The commands that place things from elsewhere into the drawing, run by a
// tool with named parameters or typed: InsertBlock (a block definition of
// the drawing, or a drawing file as a block), XATTACH (a drawing as an
// external reference) and INSERTRASTER (a picture).
#pragma once

namespace HostInsertCommands {

void registerCommands();

} // namespace HostInsertCommands
