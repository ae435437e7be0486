// The execute step of a tool run: "__executetool" and the host commands it
// runs with the parameters of the clicked tool.
#include "tools/TcExecuteTool.h"

#include "tools/OdTcCommandConveyor.h"
#include "tools/TcBlockDefinition.h"
#include "tools/TcToolPipeline.h"

#include "host/TcHost.h"

#include "hostsdk/core/HostCore.h"

namespace tc {

namespace {

// Runs the host's command `name` with `parameters`; quietly nothing when
// the host has no such command.
void runHostCommand(const char* name, IMemParam* parameters)
{
  auto factory = CRkPtr<ICmdFactory>::query(hostApp().get());
  if (!factory)
    return;
  CRkPtr<ICmdRun> command;
  if (!factory->getCommand(name, command.put()) || !command)
    return;
  command->run(parameters);
}

void insertBlock(HostDocument* document, OdTcCommandConveyor& conveyor)
{
  if (!conveyor.hasBlockParams())
    return;
  const ToolBlockInsertParams record = conveyor.takeBlockParams();
  if (!bringBlockDefinition(document, record))
    return;
  auto parameters = CRkPtr<IMemParam>::attach(new_MemParam());
  parameters->setValue("BC_RUN_BY_NAME_SCALE_ROT_EXPLODE", CRkVariant(OdString("Run")));
  parameters->setValue("name", CRkVariant(record.blockName));
  parameters->setValue("BC_SCALE", CRkVariant(record.scale));
  parameters->setValue("BC_ROTATE_ANGLE", CRkVariant(record.rotation));
  parameters->setValue("BC_ASK_ROTATION", CRkVariant(record.promptRotation));
  parameters->setValue("BC_IS_EXPLODE", CRkVariant(record.explode));
  runHostCommand("InsertBlock", parameters.get());
}

void attachReference(OdTcCommandConveyor& conveyor)
{
  if (!conveyor.hasBlockParams())
    return;
  const ToolBlockInsertParams record = conveyor.takeBlockParams();
  // Whether the file is there is the host command's to tell.
  auto parameters = CRkPtr<IMemParam>::attach(new_MemParam());
  parameters->setValue("ToolPaletteCall", CRkVariant(record.sourceFile));
  parameters->setValue("XATT_REFTYPE", CRkVariant(record.xrefType));
  parameters->setValue("XATT_SCALE", CRkVariant(record.scale));
  parameters->setValue("XATT_ROTATION", CRkVariant(record.rotation));
  parameters->setValue("XATT_PROMPT_ROTATION", CRkVariant(record.promptRotation));
  parameters->setValue("XATT_IS_EXPLODE", CRkVariant(record.explode));
  runHostCommand("XATTACH", parameters.get());
}

void insertRaster(OdTcCommandConveyor& conveyor)
{
  if (!conveyor.hasRasterParams())
    return;
  const ToolRasterInsertParams record = conveyor.takeRasterParams();
  if (!Fio_IsFileExist(record.sourceFile)) {
    hostPrint(Supp_Translate("\nCould not find the image file %s\n"), record.sourceFile);
    return;
  }
  auto parameters = CRkPtr<IMemParam>::attach(new_MemParam());
  parameters->setValue("PathScaleRotationNoDialog", CRkVariant(record.sourceFile));
  parameters->setValue("DefName", CRkVariant(record.imageName));
  parameters->setValue("Path", CRkVariant(record.sourceFile));
  parameters->setValue("Scale", CRkVariant(record.scale));
  parameters->setValue("Rotation", CRkVariant(record.rotation));
  runHostCommand("INSERTRASTER", parameters.get());
}

} // namespace

OdString executeToolKeyword(const OdString& input)
{
  OdString word = input;
  word.remove(u'"');
  word.trimRight();
  word.remove(u'<');
  word.remove(u'>');
  return word;
}

void executeToolCommand()
{
  HostServices* services = hostServices();
  HostDocument* document = services ? services->currentDocument() : nullptr;
  TcToolPipeline* pipeline = TcToolPipeline::current();
  if (!document || !pipeline)
    return;
  OdString input;
  if (!document->getString(OdString(), input) || input.isEmpty())
    return;
  const OdString word = executeToolKeyword(input);
  if (word == "block")
    insertBlock(document, *pipeline->conveyor());
  else if (word == "xref")
    attachReference(*pipeline->conveyor());
  else if (word == "raster")
    insertRaster(*pipeline->conveyor());
}

} // namespace tc
