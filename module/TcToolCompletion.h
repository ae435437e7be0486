// The offer of tools on the host's command line: one entry "TOOL:<name>" for
// each tool of every catalog; choosing an entry runs the tool as a click
// does.
#pragma once

#include "model/OdTcImage.h"

#include "hostsdk/core/HostEdCompletion.h"

namespace tc {

// The picture of an entry: the tool's 16-pixel image.
class ToolImage : public HostEdCompletion::Pictogram
{
public:
  explicit ToolImage(OdTcImage* image) : m_image(image) {}
  // Pictures of tools are files or button resources that the images
  // subsystem turns into pixels; an entry draws nothing until it can.
  void draw(QPainter* device, int x, int y, int width, int height) override {}
  OdTcImage* image() const { return m_image; }

private:
  OdTcImagePtr m_image;
};

// Calls `callback` once for each entry: nothing when the host's setting
// "CommandLine/completetools" is 0 or no document is open.
void provideEntries(const HostEdCompletion::EntryCallback& callback);

// The provider object registered under "tools". It is made while the library
// loads and lives until it unloads, longer than any registration.
const HostEdCompletion::Provider* toolCompletionProvider();

} // namespace tc
