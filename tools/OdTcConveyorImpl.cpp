// The picture conveyor.
#include "tools/OdTcConveyorImpl.h"

#include <algorithm>

namespace tc {

OdSmartPtr<OdTcConveyorImpl> OdTcConveyorImpl::createNew()
{
  return OdRxObjectImpl<OdTcConveyorImpl>::createObject();
}

void OdTcConveyorImpl::addSink(IConveyorSink* sink)
{
  m_sinks.push_back(sink);
}

bool OdTcConveyorImpl::removeSink(IConveyorSink* sink)
{
  auto it = std::find(m_sinks.begin(), m_sinks.end(), sink);
  if (it == m_sinks.end())
    return false;
  m_sinks.erase(it);
  return true;
}

void OdTcConveyorImpl::push(OdTcImagePtr image)
{
  m_queue.push_back(std::move(image));
}

void OdTcConveyorImpl::deliver()
{
  for (const OdTcImagePtr& image : m_queue)
    for (IConveyorSink* sink : m_sinks)
      sink->receive(image);
  m_queue.clear();
}

} // namespace tc
