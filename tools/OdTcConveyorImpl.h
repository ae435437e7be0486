// OdTcConveyorImpl: carries finished pictures from the code that makes them
// (a tool's preview, an image file the user picked) to the windows that
// show them, which listen as sinks. Nothing waits: what is pushed is handed
// over in the producer's call to deliver(), or lost when nobody listens.
#pragma once

#include "model/OdTcImage.h"
#include "model/OdTcPersistImpl.h"

#include <vector>

namespace tc {

class IConveyorSink
{
public:
  virtual ~IConveyorSink() = default;
  // Must not push or deliver on the conveyor that calls it.
  virtual void receive(OdTcImagePtr image) = 0;
};

class OdTcConveyorImpl : public OdTcPersistImpl<OdTcPersist>
{
public:
  static OdSmartPtr<OdTcConveyorImpl> createNew();

  void addSink(IConveyorSink* sink);
  // Removes the first entry of `sink`; false when it was not there.
  bool removeSink(IConveyorSink* sink);
  void push(OdTcImagePtr image);
  // Hands each waiting image to each sink, in order, then drops them.
  void deliver();

private:
  std::vector<OdTcImagePtr> m_queue;
  std::vector<IConveyorSink*> m_sinks; // not owned: a sink removes itself before it goes
};
using OdTcConveyorImplPtr = OdSmartPtr<OdTcConveyorImpl>;

} // namespace tc
