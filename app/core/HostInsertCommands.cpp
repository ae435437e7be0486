// InsertBlock, XATTACH and INSERTRASTER.
#include "app/core/HostInsertCommands.h"

#include "app/core/HostApp.h"
#include "app/core/HostBuiltinCommands.h"
#include "app/core/HostEntityTransform.h"
#include "app/core/HostInputParser.h"
#include "app/core/HostModelSpace.h"
#include "app/core/HostOutput.h"
#include "app/core/HostPrompts.h"
#include "app/core/HostSysVars.h"

#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCloner.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbRasterImage.h"
#include "sdk/db/OdDbXRefMan.h"
#include "sdk/dxf/OdDxf.h"

#include <QFileInfo>
#include <QImageReader>

#include <cmath>

namespace {

using Status = HostPrompts::Status;

HostApp& app()
{
  return HostApp::instance();
}

using HostBuiltinCommands::say;
using HostBuiltinCommands::drawingOrSay;


// --- named parameters: a value in the bag, or nothing -----------------------

bool paramValue(IMemParam* params, const char* name, CRkVariant& value)
{
  return params && params->getValue(name, value) && !value.isEmpty();
}

bool paramText(IMemParam* params, const char* name, OdString& out)
{
  CRkVariant v;
  if (!paramValue(params, name, v))
    return false;
  out = v.toString();
  return true;
}

bool paramDouble(IMemParam* params, const char* name, double& out)
{
  CRkVariant v;
  if (!paramValue(params, name, v))
    return false;
  out = v.toDouble();
  return std::isfinite(out);
}

bool paramBool(IMemParam* params, const char* name, bool& out)
{
  CRkVariant v;
  if (!paramValue(params, name, v))
    return false;
  out = v.toBool();
  return true;
}

// A file name typed in double quotes loses them.
OdString unquoted(OdString text)
{
  text.trimLeft();
  text.trimRight();
  if (text.getLength() >= 2 && text.getAt(0) == u'"' && text.getAt(text.getLength() - 1) == u'"')
    text = text.mid(1, text.getLength() - 2);
  return text;
}

// --- what every placement asks -----------------------------------------------

struct Placement
{
  OdGePoint3d point;
  double scale = 1.0;
  double rotation = 0.0;
};

// The insertion point is always asked (it is where the user clicks); scale
// and rotation come from the parameters when they are there, and are asked
// otherwise, or when `askRotation` says so.
bool askPlacement(HostPrompts& prompts, IMemParam* params, const char* scaleName, const char* rotationName,
                  const char* askRotationName, Placement& out)
{
  HostPromptOptions o;
  o.message = "Specify insertion point";
  if (prompts.getPoint(o, out.point) != HostPrompts::kOk)
    return false;
  if (!paramDouble(params, scaleName, out.scale) || out.scale == 0.0) {
    HostPromptOptions s;
    s.message = "Enter scale factor";
    s.useDefault = true;
    s.allowZero = false;
    out.scale = 1.0;
    if (prompts.getReal(s, out.scale) != HostPrompts::kOk)
      return false;
  }
  bool ask = false;
  paramBool(params, askRotationName, ask);
  if (!paramDouble(params, rotationName, out.rotation) || ask) {
    HostPromptOptions r;
    r.message = "Specify rotation angle";
    r.useDefault = true;
    r.useBasePoint = true;
    r.basePoint = out.point;
    if (prompts.getAngle(r, out.rotation) != HostPrompts::kOk)
      return false;
  }
  return true;
}

// Metres in one unit of each insertion unit (INSUNITS); 0 for unitless.
double metresPerUnit(OdDb::UnitsValue units)
{
  static const double metres[] = {0.0,    0.0254,  0.3048, 1609.344, 0.001,  0.01,   1.0,
                                  1000.0, 2.54e-8, 2.54e-5, 0.9144,  1e-10,  1e-9,   1e-6,
                                  0.1,    10.0,    100.0,  1e9,      1.495978707e11, 9.4607304725808e15,
                                  3.0856775814913673e16};
  const int i = int(units);
  return i >= 0 && i < int(std::size(metres)) ? metres[i] : 0.0;
}

// How much larger a thing drawn in `from` units comes out in a drawing of
// `to` units; 1 when either is unitless.
double unitsRatio(OdDb::UnitsValue from, OdDb::UnitsValue to)
{
  const double a = metresPerUnit(from), b = metresPerUnit(to);
  return a > 0.0 && b > 0.0 ? a / b : 1.0;
}

OdDbDatabasePtr readDrawing(const OdString& path, OdString& error)
{
  try {
    return odDxfReadFile(path);
  } catch (const OdError& e) {
    error = e.description();
  }
  return OdDbDatabasePtr();
}

OdString absolutePath(const OdString& path)
{
  return OdString(QFileInfo(path.qstring()).absoluteFilePath());
}

// --- InsertBlock -------------------------------------------------------------

// The block of that name; or, as CAD hosts take a file name at this
// prompt, a DXF file made into a block named after it. Null with a reason.
OdDbObjectId blockOrFile(OdDbDatabase* db, const OdString& name, OdString& error)
{
  const OdDbObjectId id = db->recordId(db->getBlockTableId(), name);
  if (!id.isNull())
    return id;
  QFileInfo file(name.qstring());
  if (!file.exists() && QFileInfo::exists(name.qstring() + ".dxf"))
    file = QFileInfo(name.qstring() + ".dxf");
  if (!file.isFile()) {
    error = OdString::formatted("The drawing has no block \"%s\", and no drawing file of that name exists.", name);
    return OdDbObjectId();
  }
  const OdString blockName(file.completeBaseName());
  const OdDbObjectId existing = db->recordId(db->getBlockTableId(), blockName);
  if (!existing.isNull())
    return existing; // the definition already here wins, as for tools
  OdDbDatabasePtr source = readDrawing(OdString(file.absoluteFilePath()), error);
  if (source.isNull())
    return OdDbObjectId();
  const OdDbObjectId made = db->insert(blockName, source);
  if (OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::cast(made.openObject(OdDb::kForWrite)); block.get())
    block->setBlockInsertUnits(source->getINSUNITS());
  return made;
}

struct AttributeValue
{
  OdDbAttributeDefinitionPtr definition;
  OdString value;
};

// The attributes a reference gets, in the order of their definitions:
// each asked for with its prompt when ATTREQ is 1, else its default.
// Constant attributes stay with the definition; preset ones are not asked.
bool askAttributes(HostPrompts& prompts, const OdDbBlockTableRecord* block, std::vector<AttributeValue>& out)
{
  OdResBufPtr attreq = app().sysVars().getVar("ATTREQ");
  const bool ask = attreq.isNull() || attreq->getInt16() != 0;
  bool first = true;
  for (const OdDbObjectId& id : block->entityIds()) {
    OdDbAttributeDefinitionPtr def = OdDbAttributeDefinition::cast(id.openObject());
    if (def.isNull() || def->isConstant())
      continue;
    AttributeValue a{def, def->textString()};
    if (ask && !def->isPreset()) {
      if (first)
        say("Enter attribute values");
      first = false;
      HostPromptOptions o;
      o.message = def->prompt().isEmpty() ? def->tag() : def->prompt();
      o.useDefault = true;
      if (prompts.getText(o, a.value) != HostPrompts::kOk)
        return false;
    }
    out.push_back(a);
  }
  return true;
}

void addAttribute(OdDbBlockReference* ref, const AttributeValue& a, const HostSimilarity& similarity)
{
  OdDbAttributePtr attribute = OdDbAttribute::createObject();
  const OdDbAttributeDefinition* def = a.definition.get();
  attribute->setAttributeFromBlock(def);
  attribute->setHorizontalMode(def->horizontalMode());
  attribute->setVerticalMode(def->verticalMode());
  if (def->findPair(OdDbText::kSub, 11) >= 0)
    attribute->setAlignmentPoint(def->alignmentPoint());
  if (def->widthFactor() != 1.0)
    attribute->setWidthFactor(def->widthFactor());
  if (def->oblique() != 0.0)
    attribute->setOblique(def->oblique());
  attribute->setTextString(a.value);
  HostEntityTransform::transform(attribute, similarity);
  ref->appendAttribute(attribute);
}

// What exploding the reference gives: the block's entities copied into
// model space and placed as the reference would have shown them. Their
// "by block" properties and layer "0" take the current ones, as they
// would have taken the reference's.
void explodeInto(OdDbDatabase* db, const OdDbBlockTableRecord* block, const HostSimilarity& similarity)
{
  OdDbBlockTableRecordPtr modelSpace =
      OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite));
  const std::size_t before = modelSpace->entityIds().size();
  odDbCopyEntities(db, db, block->entityIds(), modelSpace);
  const std::vector<OdDbObjectId> made(modelSpace->entityIds().begin() + long(before), modelSpace->entityIds().end());
  OdDbEntityPtr current = OdDbEntity::createObject();
  HostModelSpace::applyCurrentProperties(db, current);
  int leftOut = 0;
  for (const OdDbObjectId& id : made) {
    OdDbEntityPtr e = OdDbEntity::cast(id.openObject(OdDb::kForWrite));
    if (e.isNull())
      continue;
    if (!HostEntityTransform::transform(e, similarity)) {
      e->erase();
      ++leftOut;
      continue;
    }
    if (e->layer() == "0")
      e->setLayer(current->layer());
    if (e->color().isByBlock())
      e->setColor(current->color());
    if (e->linetype().iCompare("ByBlock") == 0)
      e->setLinetype(current->linetype());
    if (e->lineWeight() == OdDb::kLnWtByBlock)
      e->setLineWeight(current->lineWeight());
  }
  say(OdString::formatted("Exploded: %d object%s.", int(made.size()) - leftOut, made.size() - leftOut == 1 ? "" : "s"));
  if (leftOut > 0)
    say(OdString::formatted("%d object%s of a kind that cannot be exploded here (dimensions, leaders, 3-D objects) "
                            "were left out.",
                            leftOut, leftOut == 1 ? "" : "s"));
}

// InsertBlock: a block reference with its attributes. Named parameters:
// "name", "BC_SCALE", "BC_ROTATE_ANGLE" (radians), "BC_ASK_ROTATION",
// "BC_IS_EXPLODE"; what is missing is asked.
void insertBlockCommand(IMemParam* params)
{
  HostPrompts prompts(app());
  OdDbDatabase* db = drawingOrSay(prompts);
  if (!db)
    return;
  OdString name;
  if (!paramText(params, "name", name)) {
    HostPromptOptions o;
    o.message = "Enter block name (or a drawing file; * in front explodes it)";
    if (prompts.getWord(o, name) != HostPrompts::kOk)
      return;
  }
  name = unquoted(name);
  bool explode = false;
  if (name.left(1) == "*") {
    explode = true;
    name = unquoted(name.mid(1));
  }
  bool exploding = false;
  if (paramBool(params, "BC_IS_EXPLODE", exploding))
    explode = explode || exploding;
  if (name.isEmpty()) {
    say("No block name was given; nothing was inserted.");
    return;
  }
  OdString error;
  const OdDbObjectId blockId = blockOrFile(db, name, error);
  OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::cast(blockId.openObject());
  if (block.isNull()) {
    say(error.isEmpty() ? OdString::formatted("Block \"%s\" cannot be inserted.", name) : error);
    return;
  }
  if (block->isLayout()) {
    say(OdString::formatted("\"%s\" is a layout of the drawing, not a block: it cannot be inserted.", block->getName()));
    return;
  }
  Placement place;
  if (!askPlacement(prompts, params, "BC_SCALE", "BC_ROTATE_ANGLE", "BC_ASK_ROTATION", place))
    return;
  HostSimilarity similarity;
  similarity.base = block->origin();
  similarity.insertion = place.point;
  similarity.scale = place.scale * unitsRatio(block->blockInsertUnits(), db->getINSUNITS());
  similarity.rotation = place.rotation;
  if (explode) {
    explodeInto(db, block, similarity);
    return;
  }
  std::vector<AttributeValue> attributes;
  if (!askAttributes(prompts, block, attributes))
    return; // cancelled: nothing is made
  OdDbBlockReferencePtr ref = OdDbBlockReference::createObject();
  ref->setBlockTableRecord(blockId);
  ref->setPosition(place.point);
  ref->setScaleFactors(OdGeScale3d(similarity.scale));
  ref->setRotation(place.rotation);
  HostModelSpace::addEntity(db, ref);
  for (const AttributeValue& a : attributes)
    addAttribute(ref, a, similarity);
}

// --- XATTACH -----------------------------------------------------------------

// XATTACH: a DXF drawing as an external reference. Named parameters:
// "ToolPaletteCall" (the file), "XATT_REFTYPE" (1 attachment, 2 overlay),
// "XATT_SCALE", "XATT_ROTATION" (radians), "XATT_PROMPT_ROTATION".
void xattachCommand(IMemParam* params)
{
  HostPrompts prompts(app());
  OdDbDatabase* db = drawingOrSay(prompts);
  if (!db)
    return;
  OdString file;
  if (!paramText(params, "ToolPaletteCall", file)) {
    HostPromptOptions o;
    o.message = "Enter the drawing file to attach";
    if (prompts.getText(o, file) != HostPrompts::kOk)
      return;
  }
  file = unquoted(file);
  CRkVariant type;
  const bool overlay = paramValue(params, "XATT_REFTYPE", type) && type.toInt32() == 2;
  const QFileInfo info(file.qstring());
  if (file.isEmpty() || !info.isFile()) {
    say(OdString::formatted("Cannot attach \"%s\": the file does not exist. Nothing was attached.", file));
    return;
  }
  const OdString path = absolutePath(file);
  if (!db->getFilename().isEmpty() && absolutePath(db->getFilename()) == path) {
    say(OdString::formatted("Cannot attach \"%s\": it is the drawing itself.", path));
    return;
  }
  const OdString name(info.completeBaseName());
  OdDbObjectId blockId = db->recordId(db->getBlockTableId(), name);
  OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::cast(blockId.openObject());
  OdDbDatabasePtr source;
  if (block.get() && !block->isFromExternalReference()) {
    say(OdString::formatted("Cannot attach \"%s\": the drawing has a block named \"%s\" already.", path, name));
    return;
  }
  if (block.get() && absolutePath(block->pathName()) != path) {
    say(OdString::formatted("Cannot attach \"%s\": the reference \"%s\" is attached from %s already.", path, name,
                            block->pathName()));
    return;
  }
  OdString error;
  source = readDrawing(path, error);
  if (source.isNull()) {
    say(OdString::formatted("Cannot attach \"%s\": %s. Nothing was attached.", path, error));
    return;
  }
  Placement place;
  if (!askPlacement(prompts, params, "XATT_SCALE", "XATT_ROTATION", "XATT_PROMPT_ROTATION", place))
    return;
  if (block.isNull()) {
    blockId = OdDbXRefManExt::addNewXRefDefBlock(db, path, name, overlay);
    const OdResult loaded = OdDbXRefMan::load(blockId);
    block = OdDbBlockTableRecord::cast(blockId.openObject(OdDb::kForWrite));
    block->setBlockInsertUnits(source->getINSUNITS());
    block->setOrigin(source->getINSBASE());
    if (loaded != eOk)
      say(OdString::formatted("The reference \"%s\" is attached but could not be loaded: %s.", name,
                              OdError::defaultDescription(loaded)));
  }
  OdDbBlockReferencePtr ref = OdDbBlockReference::createObject();
  ref->setBlockTableRecord(blockId);
  ref->setPosition(place.point);
  ref->setScaleFactors(OdGeScale3d(place.scale * unitsRatio(block->blockInsertUnits(), db->getINSUNITS())));
  ref->setRotation(place.rotation);
  HostModelSpace::addEntity(db, ref);
  say(OdString::formatted("%s \"%s\" from %s.", block->isFromOverlayReference() ? "Overlaid" : "Attached", name, path));
}

// --- INSERTRASTER ------------------------------------------------------------

// The definition of an image file: the one the drawing has for that file,
// else a new one under `name` (made unique) in the image dictionary.
OdDbObjectId imageDefinition(OdDbDatabase* db, const OdString& path, OdString name, const QSize& pixels)
{
  OdDbDictionaryPtr images = OdDbDictionary::cast(db->imageDictionaryId(true).openObject(OdDb::kForWrite));
  for (const auto& entry : images->entries()) {
    OdDbRasterImageDefPtr def = OdDbRasterImageDef::cast(entry.second.openObject());
    if (def.get() && absolutePath(def->activeFileName()) == path)
      return entry.second;
  }
  const OdString base = name;
  for (int k = 2; images->has(name); ++k)
    name = base + OdString::formatted("_%d", k);
  OdDbRasterImageDefPtr def = OdDbRasterImageDef::createObject();
  def->setSourceFileName(path);
  def->setImageSize(pixels.width(), pixels.height());
  return images->setAt(name, def);
}

// INSERTRASTER: a picture placed one drawing unit per pixel, times the
// scale. Named parameters: "PathScaleRotationNoDialog" (no dialog: the
// console has none anyway), "DefName", "Path", "Scale", "Rotation"
// (radians).
void insertRasterCommand(IMemParam* params)
{
  HostPrompts prompts(app());
  OdDbDatabase* db = drawingOrSay(prompts);
  if (!db)
    return;
  OdString file;
  if (!paramText(params, "Path", file)) {
    HostPromptOptions o;
    o.message = "Enter the image file";
    if (prompts.getText(o, file) != HostPrompts::kOk)
      return;
  }
  file = unquoted(file);
  if (file.isEmpty() || !QFileInfo(file.qstring()).isFile()) {
    say(OdString::formatted("Cannot place the image \"%s\": the file does not exist.", file));
    return;
  }
  const OdString path = absolutePath(file);
  QImageReader reader(path.qstring());
  const QSize pixels = reader.size();
  if (!pixels.isValid() || pixels.isEmpty()) {
    say(OdString::formatted("Cannot place the image \"%s\": %s.", path,
                            OdString(reader.errorString().isEmpty() ? QStringLiteral("it is no picture Verdani reads")
                                                                    : reader.errorString())));
    return;
  }
  OdString name;
  if (!paramText(params, "DefName", name) || name.isEmpty())
    name = OdString(QFileInfo(path.qstring()).completeBaseName());
  Placement place;
  if (!askPlacement(prompts, params, "Scale", "Rotation", "", place))
    return;
  const OdDbObjectId defId = imageDefinition(db, path, name, pixels);
  OdDbRasterImagePtr image = OdDbRasterImage::createObject();
  image->setImageDefId(defId);
  const double c = std::cos(place.rotation), s = std::sin(place.rotation);
  const double width = pixels.width() * place.scale, height = pixels.height() * place.scale;
  image->setOrientation(place.point, OdGeVector3d(width * c, width * s, 0.0), OdGeVector3d(-height * s, height * c, 0.0));
  const OdDbObjectId imageId = HostModelSpace::addEntity(db, image);
  // The image's reactor on its definition, as drawing programs keep it.
  OdDbRasterImageDefReactorPtr reactor = OdDbRasterImageDefReactor::createObject();
  const OdDbObjectId reactorId = db->addOdDbObject(reactor, imageId);
  image->setReactorId(reactorId);
  OdDbObject::cast(defId.openObject(OdDb::kForWrite))->addPersistentReactor(reactorId);
  say(OdString::formatted("Placed the image \"%s\" (%d x %d pixels).",
                          OdDbDictionary::cast(db->imageDictionaryId().openObject())->nameAt(defId), pixels.width(),
                          pixels.height()));
}

} // namespace

namespace HostInsertCommands {

void registerCommands()
{
  HostBuiltinCommands::add("InsertBlock", &insertBlockCommand);
  HostBuiltinCommands::add("XATTACH", &xattachCommand);
  HostBuiltinCommands::add("INSERTRASTER", &insertRasterCommand);
}

} // namespace HostInsertCommands
