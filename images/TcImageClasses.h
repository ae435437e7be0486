// What the images subsystem adds when the module registers classes: the
// creation of the model's picture classes, and their element names.
#pragma once

namespace tc {

class OdTcTagTable;

// OdTcImage and OdTcImageList must be registered already.
void registerImageClasses(OdTcTagTable& tags);

} // namespace tc
