// The block tool's definition brought into the drawing at the moment of
// use: from a definition in the source drawing, or from the whole file.
#pragma once

class HostDocument;

namespace tc {

struct ToolBlockInsertParams;

// Makes sure the drawing of `document` has the definition the record
// names, bringing it over from the record's source file when the drawing
// lacks it; an existing definition of that name wins as it stands. Tells
// the user when the source file is missing (140) or lacks the block (139).
// True when the insertion goes on to the host's InsertBlock.
bool bringBlockDefinition(HostDocument* document, const ToolBlockInsertParams& record);

} // namespace tc
