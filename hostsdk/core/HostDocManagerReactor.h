// Events of the host's documents: one was made (new or opened), became the
// current one, or is about to be destroyed.
#pragma once

class HostDocument;

class HostDocManagerReactor
{
public:
  virtual ~HostDocManagerReactor() = default;
  virtual void documentCreated(HostDocument* document) {}
  virtual void documentActivated(HostDocument* document) {}
  // The document still exists, with its drawing, while this is told.
  virtual void documentToBeDestroyed(HostDocument* document) {}
};
