// The hatch commands that hatch tools start: FASTHATCHCMD (a pattern,
// user-defined lines or the solid fill, as HPNAME, HPANG, HPSCALE,
// HPSPACE, HPDOUBLE, HPCOLOR and the store's hatch_type and
// hatch_pattern_file say) and FASTGRADIENTCMD (a gradient, as GFNAME,
// GFANG, GFSHIFT, GFCLR1, GFCLR2, GFCLRSTATE and GFCLRLUM say), each over
// boundaries chosen on the command line.
#pragma once

namespace HostHatchCommands {

void registerCommands();

} // namespace HostHatchCommands
