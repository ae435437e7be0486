// The hatch tool's payload.
#include "tools/OdTcToolHatchCommand.h"

#include "tools/TcNotYetRunnable.h"
#include "tools/TcPayload.h"

#include "sdk/kernel/OdWcstol.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcToolHatchCommand, OdTcToolActionAgent,
                    ODRX_CREATE_IMPL(OdTcToolHatchCommandImpl, OdTcToolHatchCommand))

OdTcToolHatchCommandImpl::OdTcToolHatchCommandImpl()
    : m_auxiliaryScale(auxScaleNone()), m_gradientColors(OdTcGradientColorsImpl::createNew())
{
  m_gradientColors->setParent(this);
  filterOut({"General.Dimstyle", "General.Text style", "General.Linetype scale"});
  fillProperties();
}

bool OdTcToolHatchCommandImpl::setValue(const OdString& name, const OdVariant& value)
{
  const OdString text = value.getString();
  if (name == "hatchObjectType") {
    m_hatchObjectType = odWcstol(text);
  } else if (name == "HatchType") {
    m_hatchType = odWcstol(text);
  } else if (name == "PatternName") {
    // A user-defined hatch has no pattern: its name is the marker. The
    // values come in the order of their names, "HatchType" first.
    m_patternName = m_hatchType == 0 ? Supp_Translate("_USER") : text;
  } else if (name == "SourceFile") {
    m_sourceFile = sourceFileFromFile(text);
  } else if (name == "Angle") {
    m_angle = odWcstod(text);
  } else if (name == "Scale") {
    m_scale = odWcstod(text);
  } else if (name == "AuxiliaryScale") {
    m_auxiliaryScale = text; // unlike the block tool's, kept as it stands
  } else if (name == "Spacing") {
    m_spacing = odWcstod(text);
  } else if (name == "PenWidth") {
    m_penWidth = odWcstod(text);
  } else if (name == "Double") {
    m_crosswise = readVariantBool(text);
  } else if (name == "BlockExtent") {
    m_blockExtent = odWcstod(text);
  } else if (name == "GradientAngle") {
    m_gradientAngle = odWcstod(text);
  } else if (name == "GradientCentered") {
    m_gradientCentered = readVariantBool(text);
  } else if (name == "GradientName") {
    m_gradientName = text;
  } else if (name == "GradientColors") {
    if (auto* colors = dynamic_cast<OdTcGradientColorsImpl*>(value.getRxObjectPtr().get()))
      m_gradientColors = colors;
  } else {
    return false;
  }
  return true;
}

void OdTcToolHatchCommandImpl::writeBody(OdTcFiler* filer)
{
  filer->writeAttribute("hatchObjectType", OdVariant(m_hatchObjectType));
  filer->writeAttribute("HatchType", OdVariant(m_hatchType));
  filer->writeAttribute("PatternName", OdVariant(m_patternName));
  filer->writeAttribute("SourceFile", OdVariant(sourceFileToFile(m_sourceFile)));
  filer->writeAttribute("Angle", OdVariant(m_angle));
  filer->writeAttribute("Scale", OdVariant(m_scale));
  filer->writeAttribute("AuxiliaryScale", OdVariant(m_auxiliaryScale));
  filer->writeAttribute("Spacing", OdVariant(m_spacing));
  filer->writeAttribute("PenWidth", OdVariant(m_penWidth));
  filer->writeAttribute("Double", OdVariant(m_crosswise));
  filer->writeAttribute("BlockExtent", OdVariant(m_blockExtent));
  filer->writeAttribute("GradientAngle", OdVariant(m_gradientAngle));
  filer->writeAttribute("GradientCentered", OdVariant(m_gradientCentered));
  filer->writeAttribute("GradientName", OdVariant(m_gradientName));
  filer->writeObject(m_gradientColors);
}

void OdTcToolHatchCommandImpl::copyFrom(const OdRxObject* source)
{
  OdTcToolActionAgentImplBase<OdTcToolHatchCommand>::copyFrom(source);
  auto* src = dynamic_cast<const OdTcToolHatchCommandImpl*>(source);
  if (!src)
    return;
  m_hatchObjectType = src->m_hatchObjectType;
  m_hatchType = src->m_hatchType;
  m_patternName = src->m_patternName;
  m_sourceFile = src->m_sourceFile;
  m_gradientName = src->m_gradientName;
  m_auxiliaryScale = src->m_auxiliaryScale;
  m_angle = src->m_angle;
  m_scale = src->m_scale;
  m_spacing = src->m_spacing;
  m_penWidth = src->m_penWidth;
  m_blockExtent = src->m_blockExtent;
  m_gradientAngle = src->m_gradientAngle;
  m_gradientCentered = src->m_gradientCentered;
  m_crosswise = src->m_crosswise;
  m_gradientColors->copyFrom(src->m_gradientColors);
  m_gradientColors->setParent(this);
}

bool OdTcToolHatchCommandImpl::execute(HostDocument*)
{
  return tellNotYetRunnable(m_hatchObjectType == 1 ? "Gradient" : "Hatch");
}

} // namespace tc
