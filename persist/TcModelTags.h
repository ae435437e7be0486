// The element names of the catalog model's classes, which the model itself
// cannot put in the tag table: it knows nothing of the files' layer.
#pragma once

namespace tc {

class OdTcTagTable;

void registerModelTags(OdTcTagTable& tags);

} // namespace tc
