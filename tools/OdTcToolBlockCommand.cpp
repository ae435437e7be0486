// The block tool's payload.
#include "tools/OdTcToolBlockCommand.h"

#include "model/OdTcToolRecords.h"
#include "tools/TcNotYetRunnable.h"
#include "tools/TcPayload.h"

#include "sdk/kernel/OdWcstol.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcToolBlockCommand, OdTcToolActionAgent,
                    ODRX_CREATE_IMPL(OdTcToolBlockCommandImpl, OdTcToolBlockCommand))

OdTcToolBlockCommandImpl::OdTcToolBlockCommandImpl()
{
  filterOut({"General.Dimstyle", "General.Text style", "General.Linetype scale"});
  fillProperties();
}

bool OdTcToolBlockCommandImpl::setValue(const OdString& name, const OdVariant& value)
{
  const OdString text = value.getString();
  if (name == "BlockType") {
    m_blockType = odWcstol(text);
    fillProperties(); // which properties there are depends on the type
  } else if (name == "BlockTypeEx") {
    m_blockTypeEx = odWcstol(text);
  } else if (name == "BlockName") {
    m_blockName = text;
  } else if (name == "SourceFile") {
    m_sourceFile = sourceFileFromFile(text);
  } else if (name == "InsertAs") {
    m_insertAs = odWcstol(text);
  } else if (name == "XrefType") {
    m_xrefType = odWcstol(text);
  } else if (name == "Scale") {
    m_scale = odWcstod(text);
  } else if (name == "AuxiliaryScale") {
    // Read as other programs name it; the writer writes the shown text, so
    // "Plot scale" comes back from this system's own files as "None".
    if (text.iCompare("PLOTSCALE") == 0)
      m_auxiliaryScale = auxScalePlotScale();
    else if (text.iCompare("DIMSCALE") == 0)
      m_auxiliaryScale = auxScaleDimscale();
    else
      m_auxiliaryScale = auxScaleNone();
  } else if (name == "Rotation") {
    m_rotation = odWcstod(text);
  } else if (name == "PromptRotation") {
    m_promptRotation = readFileBool(text);
  } else if (name == "PromptAttributes") {
    m_promptAttributes = readFileBool(text);
  } else if (name == "Explode") {
    m_explode = readFileBool(text);
  } else {
    return false;
  }
  return true;
}

void OdTcToolBlockCommandImpl::writeBody(OdTcFiler* filer)
{
  filer->writeAttribute("BlockType", OdVariant(m_blockType));
  filer->writeAttribute("BlockTypeEx", OdVariant(m_blockTypeEx));
  filer->writeAttribute("BlockName", OdVariant(m_blockName));
  filer->writeAttribute("SourceFile", OdVariant(sourceFileToFile(m_sourceFile)));
  filer->writeAttribute("InsertAs", OdVariant(m_insertAs));
  filer->writeAttribute("XrefType", OdVariant(m_xrefType));
  filer->writeAttribute("Scale", OdVariant(m_scale));
  filer->writeAttribute("AuxiliaryScale", OdVariant(m_auxiliaryScale));
  filer->writeAttribute("Rotation", OdVariant(m_rotation));
  filer->writeAttribute("PromptRotation", OdVariant(boolDigit(m_promptRotation)));
  filer->writeAttribute("PromptAttributes", OdVariant(boolDigit(m_promptAttributes)));
  filer->writeAttribute("Explode", OdVariant(boolDigit(m_explode)));
}

void OdTcToolBlockCommandImpl::copyFrom(const OdRxObject* source)
{
  OdTcToolActionAgentImplBase<OdTcToolBlockCommand>::copyFrom(source);
  auto* src = dynamic_cast<const OdTcToolBlockCommandImpl*>(source);
  if (!src)
    return;
  m_blockType = src->m_blockType;
  m_blockTypeEx = src->m_blockTypeEx;
  m_blockName = src->m_blockName;
  m_sourceFile = src->m_sourceFile;
  m_insertAs = src->m_insertAs;
  m_xrefType = src->m_xrefType;
  m_scale = src->m_scale;
  m_rotation = src->m_rotation;
  m_promptRotation = src->m_promptRotation;
  m_explode = src->m_explode;
  m_promptAttributes = src->m_promptAttributes;
  m_auxiliaryScale = src->m_auxiliaryScale;
  fillProperties();
}

bool OdTcToolBlockCommandImpl::execute(HostDocument*)
{
  return tellNotYetRunnable("Block");
}

} // namespace tc
