// The raster tool's payload.
#include "tools/OdTcToolRasterCommand.h"

#include "persist/TcPathTokens.h"
#include "properties/OdTcObjectProperties.h"
#include "tools/OdTcCommandConveyor.h"
#include "tools/TcPayload.h"
#include "tools/TcToolPipeline.h"

#include "host/TcMessages.h"

#include "hostsdk/core/HostServices.h"

#include "sdk/db/OdDbDatabase.h"
#include "sdk/kernel/OdWcstol.h"

#include <QDir>

namespace tc {

namespace {
using Self = OdTcToolRasterCommandImpl;
} // namespace

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

OdString OdTcToolRasterCommandImpl::imagePathFor(const OdString& sourceFile, const OdString& drawingFile)
{
  if (!QDir::isRelativePath(sourceFile.qstring()))
    return sourceFile;
  // A drawing not saved yet has no folder: the path goes on as it stands.
  return makeAbsolutePath(sourceFile, drawingFile);
}

bool OdTcToolRasterCommandImpl::execute(HostDocument* document)
{
  TcToolPipeline* pipeline = TcToolPipeline::current();
  if (!pipeline)
    return false;
  OdDbDatabase* database = document ? document->database() : nullptr;
  ToolRasterInsertParams record;
  record.imageName = m_rasterName;
  record.sourceFile = imagePathFor(m_sourceFile, database ? database->getFilename() : OdString());
  record.scale = m_scale;
  record.rotation = m_rotation;
  pipeline->conveyor()->setRasterParams(record);
  postExecuteTool("raster");
  return true;
}

void OdTcToolRasterCommandImpl::fillProperties()
{
  if (!m_propertyBag)
    return;
  m_propertyBag->clear();
  using NameRow = OdTcTextObjectPropertyImplEx<Self, Getter<Self, OdString, &Self::getRasterName>,
                                               Setter<Self, OdString, &Self::setRasterName>,
                                               Enabler<Self, &Self::fileNameEnabler>>;
  using FileRow = OdTcFileNameObjectPropertyImplEx<Self, Getter<Self, OdString, &Self::getSourceFile>,
                                                   Setter<Self, OdString, &Self::setSourceFile>,
                                                   Enabler<Self, &Self::fileNameEnabler>>;
  using ScaleRow = OdTcDoubleObjectPropertyImplEx<Self, Getter<Self, double, &Self::getScale>,
                                                  Setter<Self, double, &Self::setScale>>;
  using RotationRow = OdTcAnglePropertyImplEx<Self, Getter<Self, double, &Self::getRotation>,
                                              Setter<Self, double, &Self::setRotation>>;
  m_propertyBag->addProperty(NameRow::createNew(this, "Insert.Name"));
  auto file = FileRow::createNew(this, "Insert.Source file");
  file->setFileDialog("png", tcString(130));
  m_propertyBag->addProperty(file);
  auto scale = ScaleRow::createNew(this, "Insert.Scale");
  scale->setRange(kTcRealMinimum, kTcRealMaximum);
  m_propertyBag->addProperty(scale);
  m_propertyBag->addProperty(RotationRow::createNew(this, "Insert.Rotation"));
}

} // namespace tc
