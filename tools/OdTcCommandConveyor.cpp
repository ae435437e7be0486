// The command conveyor.
#include "tools/OdTcCommandConveyor.h"

#include "sdk/kernel/OdRxClass.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcCommandConveyor, OdRxObject,
                    ODRX_CREATE_IMPL(OdTcCommandConveyorImpl, OdTcCommandConveyor))

void OdTcCommandConveyorImpl::setBlockParams(const ToolBlockInsertParams& params)
{
  m_blockParams = params;
  m_hasBlock = true;
}

ToolBlockInsertParams OdTcCommandConveyorImpl::takeBlockParams()
{
  m_hasBlock = false;
  return m_blockParams;
}

void OdTcCommandConveyorImpl::setRasterParams(const ToolRasterInsertParams& params)
{
  m_rasterParams = params;
  m_hasRaster = true;
}

ToolRasterInsertParams OdTcCommandConveyorImpl::takeRasterParams()
{
  m_hasRaster = false;
  return m_rasterParams;
}

} // namespace tc
