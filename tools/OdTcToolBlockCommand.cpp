// The block tool's payload.
#include "tools/OdTcToolBlockCommand.h"

#include "model/OdTcDatabase.h"
#include "model/OdTcToolRecords.h"
#include "persist/TcPathTokens.h"
#include "properties/OdTcObjectProperties.h"
#include "tools/OdTcCommandConveyor.h"
#include "tools/TcDrawingVariables.h"
#include "tools/TcPayload.h"
#include "tools/TcToolPipeline.h"

#include "host/TcMessages.h"

#include "hostsdk/core/HostServices.h"

#include "sdk/db/OdDbDatabase.h"
#include "sdk/kernel/OdWcstol.h"

#include <QDir>
#include <QFileInfo>

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

namespace {

using Self = OdTcToolBlockCommandImpl;

OdString insertAsText(std::int32_t value)
{
  return value == 2 ? Supp_Translate("External reference") : Supp_Translate("Block");
}

OdString xrefTypeText(std::int32_t value)
{
  if (value == 1)
    return Supp_Translate("Attachment");
  if (value == 2)
    return Supp_Translate("Overlay");
  return OdString();
}

} // namespace

void OdTcToolBlockCommandImpl::fillProperties()
{
  if (!m_propertyBag)
    return;
  m_propertyBag->clear();
  using NameRow = OdTcTextObjectPropertyImplEx<Self, Getter<Self, OdString, &Self::getName>,
                                               Setter<Self, OdString, &Self::setName>>;
  using FileRow = OdTcFileNameObjectPropertyImplEx<Self, Getter<Self, OdString, &Self::getSourceFile>,
                                                   Setter<Self, OdString, &Self::setSourceFile>,
                                                   Enabler<Self, &Self::fileNameEnabler>>;
  using InsertAsRow = OdTcMultiverseObjectPropertyImplEx<Self, Getter<Self, OdString, &Self::getInsertAs>,
                                                         Setter<Self, OdString, &Self::setInsertAs>,
                                                         Enumerator<Self, OdArray<OdString>, &Self::getInsertAsAsEnum>>;
  using XrefTypeRow = OdTcMultiverseObjectPropertyImplEx<Self, Getter<Self, OdString, &Self::getXrefType>,
                                                         Setter<Self, OdString, &Self::setXrefType>,
                                                         Enumerator<Self, OdArray<OdString>, &Self::getXrefTypeEnum>,
                                                         Enabler<Self, &Self::xrefTypeEnabler>>;
  using ScaleRow = OdTcDoubleObjectPropertyImplEx<Self, Getter<Self, double, &Self::getScale>,
                                                  Setter<Self, double, &Self::setScale>>;
  using AuxRow = OdTcMultiverseObjectPropertyImplEx<Self, Getter<Self, OdString, &Self::getAux>,
                                                    Setter<Self, OdString, &Self::setAux>,
                                                    Enumerator<Self, OdArray<OdString>, &Self::getAuxScaleEnum>>;
  using RotationRow = OdTcAnglePropertyImplEx<Self, Getter<Self, double, &Self::getRotation>,
                                              Setter<Self, double, &Self::setRotation>>;
  using AskRotationRow = OdTcBoolObjectPropertyImplEx<Self, Getter<Self, bool, &Self::getIsAskForRotation>,
                                                      Setter<Self, bool, &Self::setIsAskForRotaion>>;
  using AttributesRow = OdTcBoolObjectPropertyImplEx<Self, Getter<Self, bool, &Self::getIsQueryAttributes>,
                                                     Setter<Self, bool, &Self::setIsQueryAttributes>,
                                                     Enabler<Self, &Self::isQueryAttributes>>;
  using ExplodeRow = OdTcBoolObjectPropertyImplEx<Self, Getter<Self, bool, &Self::getIsExplode>,
                                                  Setter<Self, bool, &Self::setIsExplode>,
                                                  Enabler<Self, &Self::isExplodable>>;

  m_propertyBag->addProperty(NameRow::createNew(this, "Insert.Name"));
  auto file = FileRow::createNew(this, "Insert.Source file");
  file->setFileDialog("dxf", tcString(129));
  m_propertyBag->addProperty(file);
  if (m_blockType == 2) {
    m_propertyBag->addProperty(InsertAsRow::createNew(this, "Insert.Insert as"));
    m_propertyBag->addProperty(XrefTypeRow::createNew(this, "Insert.Xref type"));
  }
  auto scale = ScaleRow::createNew(this, "Insert.Scale");
  scale->setRange(kTcRealMinimum, kTcRealMaximum);
  m_propertyBag->addProperty(scale);
  m_propertyBag->addProperty(AuxRow::createNew(this, "Insert.Auxiliary scale"));
  m_propertyBag->addProperty(RotationRow::createNew(this, "Insert.Rotation"));
  m_propertyBag->addProperty(AskRotationRow::createNew(this, "Insert.Prompt rotation angle"));
  m_propertyBag->addProperty(AttributesRow::createNew(this, "Insert.Prompt attributes"));
  m_propertyBag->addProperty(ExplodeRow::createNew(this, "Insert.Explode"));
}

void OdTcToolBlockCommandImpl::setSourceFile(const OdString& path)
{
  m_sourceFile = path;
  if (m_blockType == 2)
    m_blockName = OdString(QFileInfo(path.qstring()).completeBaseName());
}

OdString OdTcToolBlockCommandImpl::getInsertAs() const
{
  return insertAsText(m_insertAs);
}

void OdTcToolBlockCommandImpl::setInsertAs(const OdString& text)
{
  m_insertAs = text == insertAsText(2) ? 2 : 1;
  m_xrefType = m_insertAs == 1 ? 0 : 1;
}

OdArray<OdString> OdTcToolBlockCommandImpl::getInsertAsAsEnum() const
{
  OdArray<OdString> list;
  list.append(insertAsText(1));
  list.append(insertAsText(2));
  return list;
}

OdString OdTcToolBlockCommandImpl::getXrefType() const
{
  return xrefTypeText(m_xrefType);
}

void OdTcToolBlockCommandImpl::setXrefType(const OdString& text)
{
  m_xrefType = 0;
  for (std::int32_t value : {1, 2})
    if (text == xrefTypeText(value))
      m_xrefType = value;
}

OdArray<OdString> OdTcToolBlockCommandImpl::getXrefTypeEnum() const
{
  OdArray<OdString> list;
  list.append(xrefTypeText(1));
  list.append(xrefTypeText(2));
  return list;
}

void OdTcToolBlockCommandImpl::setAux(const OdString& text)
{
  m_auxiliaryScale = text;
}

OdArray<OdString> OdTcToolBlockCommandImpl::getAuxScaleEnum() const
{
  OdArray<OdString> list;
  list.append(auxScaleDimscale());
  list.append(auxScalePlotScale());
  list.append(auxScaleNone());
  return list;
}

void OdTcToolBlockCommandImpl::beginExecute(HostDocument* document)
{
  OdDbDatabase* database = document ? document->database() : nullptr;
  if (OdResBufPtr value = readSystemVariable("ATTREQ", database))
    m_savedAttreq = value->getInt32();
  writeSystemVariable("ATTREQ", OdResBuf::newValue(std::int16_t(m_promptAttributes ? 1 : 0)), database);
}

void OdTcToolBlockCommandImpl::endExecute(HostDocument* document)
{
  OdDbDatabase* database = document ? document->database() : nullptr;
  writeSystemVariable("ATTREQ", OdResBuf::newValue(std::int16_t(m_savedAttreq)), database);
}

double OdTcToolBlockCommandImpl::effectiveScale(OdDbDatabase* database) const
{
  double scale = m_scale;
  if (!database)
    return scale;
  if (m_auxiliaryScale == auxScaleDimscale()) {
    scale *= database->getDIMSCALE();
  } else if (m_auxiliaryScale == auxScalePlotScale()) {
    double standard = 1.0;
    if (activeLayoutStdScale(database, standard))
      scale *= standard;
  }
  return scale;
}

OdString OdTcToolBlockCommandImpl::sourceFileForRun()
{
  // A relative source travels with its palette, as the drawings of a shared
  // catalog do: it is taken from the palette file's folder, never from the
  // folder the host happened to start in. A token this machine has no
  // folder for stays as it is and is not found.
  if (m_sourceFile.isEmpty() || m_sourceFile.getAt(0) == u'%' || QDir::isAbsolutePath(m_sourceFile.qstring()))
    return m_sourceFile;
  OdTcDatabase* palette = database();
  if (!palette || palette->path().isEmpty())
    return m_sourceFile;
  return makeAbsolutePath(m_sourceFile, palette->path());
}

bool OdTcToolBlockCommandImpl::execute(HostDocument* document)
{
  TcToolPipeline* pipeline = TcToolPipeline::current();
  if (!pipeline)
    return false;
  ToolBlockInsertParams record;
  record.blockName = m_blockName;
  record.sourceFile = sourceFileForRun();
  record.scale = effectiveScale(document ? document->database() : nullptr);
  record.rotation = m_rotation;
  record.promptRotation = m_promptRotation;
  if (m_blockType == 2 && m_insertAs != 1) {
    record.xrefType = m_xrefType;
    record.isXref = true;
  } else {
    record.explode = m_explode;
    record.wholeFile = m_blockType == 2;
  }
  pipeline->conveyor()->setBlockParams(record);
  postExecuteTool(record.isXref ? "xref" : "block");
  return true;
}

} // namespace tc
