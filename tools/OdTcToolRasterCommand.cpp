// The raster tool's payload.
#include "tools/OdTcToolRasterCommand.h"

#include "tools/TcNotYetRunnable.h"
#include "tools/TcPayload.h"

#include "sdk/kernel/OdWcstol.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcToolRasterCommand, OdTcToolActionAgent,
                    ODRX_CREATE_IMPL(OdTcToolRasterCommandImpl, OdTcToolRasterCommand))

OdTcToolRasterCommandImpl::OdTcToolRasterCommandImpl()
{
  filterOut({"General.Dimstyle", "General.Text style", "General.Linetype scale"});
  fillProperties();
}

bool OdTcToolRasterCommandImpl::setValue(const OdString& name, const OdVariant& value)
{
  const OdString text = value.getString();
  if (name == "RasterName")
    m_rasterName = text;
  else if (name == "SourceFile")
    m_sourceFile = sourceFileFromFile(text);
  else if (name == "Scale")
    m_scale = odWcstod(text);
  else if (name == "Rotation")
    m_rotation = odWcstod(text);
  else
    return false;
  return true;
}

void OdTcToolRasterCommandImpl::writeBody(OdTcFiler* filer)
{
  filer->writeAttribute("RasterName", OdVariant(m_rasterName));
  filer->writeAttribute("SourceFile", OdVariant(sourceFileToFile(m_sourceFile)));
  filer->writeAttribute("Scale", OdVariant(m_scale));
  filer->writeAttribute("Rotation", OdVariant(m_rotation));
}

void OdTcToolRasterCommandImpl::copyFrom(const OdRxObject* source)
{
  OdTcToolActionAgentImplBase<OdTcToolRasterCommand>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcToolRasterCommandImpl*>(source)) {
    m_rasterName = src->m_rasterName;
    m_sourceFile = src->m_sourceFile;
    m_scale = src->m_scale;
    m_rotation = src->m_rotation;
  }
}

bool OdTcToolRasterCommandImpl::execute(HostDocument*)
{
  return tellNotYetRunnable("Raster");
}

} // namespace tc
