// The agents of block, hatch and raster tools at work: the host's variables
// they set for a run and put back, the records they leave for
// "__executetool", their rows and the setters' side effects, and the block
// definition brought from a source drawing.
#include "tests/tools/ToolTestHost.h"
#include "tests/tools/ToolTestSupport.h"

#include "images/OdTcImageImpl.h"
#include "tools/TcBlockDefinition.h"
#include "tools/TcEditorReactor.h"
#include "tools/TcToolPipeline.h"

#include "properties/OdTcObjectPropertyImplBaseEx.h"

#include "model/OdTcDatabaseImpl.h"

#include "sdk/db/OdDbLayout.h"
#include "sdk/db/OdDbSymbolTable.h"
#include "sdk/dxf/OdDxf.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

using namespace tc;
using tsthost::host;

namespace {

class Agents : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerToolClasses(); }
  void SetUp() override
  {
    host().reset();
    TcToolPipeline::install(&m_pipeline);
  }
  void TearDown() override { TcToolPipeline::install(nullptr); }

  static OdResBufPtr var(const char* name) { return host().variables.values.at(name); }
  static int stored(const char* name) { return boost::any_cast<int>(host().store.values.at(name)); }
  static OdString storedText(const char* name) { return boost::any_cast<OdString>(host().store.values.at(name)); }
  static OdDbDatabase* drawing() { return host().document.drawing.get(); }
  static HostDocument* document() { return &host().document; }

  // The row's binding, for editing it as the dialog does.
  static OdTcEditableBinding* row(OdTcToolActionAgent* agent, const char* name)
  {
    return dynamic_cast<OdTcEditableBinding*>(agent->getPropertyBag()->findByDisplayName(name));
  }
  static OdTcProperty* property(OdTcToolActionAgent* agent, const char* name)
  {
    return agent->getPropertyBag()->findByDisplayName(name);
  }

  OdRxObjectImpl<TcEditorReactor> m_reactor;
  OdRxObjectImpl<OdTcCommandConveyorImpl> m_conveyor;
  TcToolPipeline m_pipeline{&m_reactor, &m_conveyor};
};

OdSmartPtr<OdTcToolHatchCommandImpl> newHatch(std::initializer_list<std::pair<const char*, const char*>> values)
{
  auto agent = OdRxObjectImpl<OdTcToolHatchCommandImpl>::createObject();
  for (const auto& [name, value] : values)
    agent->setValue(name, OdVariant(OdString(value)));
  return agent;
}

OdSmartPtr<OdTcToolBlockCommandImpl> newBlock(std::initializer_list<std::pair<const char*, const char*>> values)
{
  auto agent = OdRxObjectImpl<OdTcToolBlockCommandImpl>::createObject();
  for (const auto& [name, value] : values)
    agent->setValue(name, OdVariant(OdString(value)));
  return agent;
}

// --- hatch and gradient variables -------------------------------------------

struct HatchTypeCase
{
  const char* hatchType;
  int hostHatchType; // the host counts predefined 0 and user-defined 1
  const char* patternName;
  const char* patternFile;
};

class HatchTypes : public Agents, public ::testing::WithParamInterface<HatchTypeCase>
{
};

TEST_P(HatchTypes, setForTheCommand_gradientVariablesUntouched_allPutBackAfter)
{
  const HatchTypeCase c = GetParam();
  auto agent = newHatch({{"HatchType", c.hatchType},
                         {"PatternName", "ANSI31"},
                         {"SourceFile", "/pats/mine.pat"},
                         {"Angle", "0.5"},
                         {"Scale", "3"},
                         {"Spacing", "4"},
                         {"Double", "-1"}});
  agent->beginExecute(document());
  EXPECT_EQ(stored("hatch_type"), c.hostHatchType);
  EXPECT_EQ(storedText("hatch_pattern_file"), c.patternFile);
  EXPECT_EQ(var("HPNAME")->getString(), c.patternName);
  EXPECT_DOUBLE_EQ(var("HPANG")->getDouble(), 0.5);
  EXPECT_DOUBLE_EQ(var("HPSCALE")->getDouble(), 3.0);
  EXPECT_DOUBLE_EQ(var("HPSPACE")->getDouble(), 4.0);
  EXPECT_EQ(var("HPDOUBLE")->getInt32(), 1);
  EXPECT_TRUE(var("HPCOLOR")->getColor().isNone());
  EXPECT_EQ(var("GFNAME")->getInt32(), 4);
  EXPECT_DOUBLE_EQ(var("GFANG")->getDouble(), 0.75);
  EXPECT_EQ(var("GFSHIFT")->getInt32(), 1);

  agent->endExecute(document());
  EXPECT_EQ(stored("hatch_type"), 5);
  EXPECT_EQ(storedText("hatch_pattern_file"), "user.pat");
  EXPECT_EQ(var("HPNAME")->getString(), "ANSI37");
  EXPECT_DOUBLE_EQ(var("HPANG")->getDouble(), 0.25);
  EXPECT_DOUBLE_EQ(var("HPSCALE")->getDouble(), 2.0);
  EXPECT_DOUBLE_EQ(var("HPSPACE")->getDouble(), 7.0);
  EXPECT_EQ(var("HPDOUBLE")->getInt32(), 1);
  EXPECT_FALSE(var("HPCOLOR")->getColor().isNone());
}

// A user-defined hatch has no pattern, whatever its name says; only a
// custom one names its file.
INSTANTIATE_TEST_SUITE_P(Rows, HatchTypes,
                         ::testing::Values(HatchTypeCase{"0", 1, "", "user.pat"},
                                           HatchTypeCase{"1", 0, "ANSI31", "user.pat"},
                                           HatchTypeCase{"2", 2, "ANSI31", "/pats/mine.pat"}));

struct GradientCase
{
  const char* centered;
  const char* name;
  int shift; // the host's GFSHIFT: 0 is centred
  int number;
};

class Gradients : public Agents, public ::testing::WithParamInterface<GradientCase>
{
};

TEST_P(Gradients, setForTheCommand_hatchVariablesUntouched_allPutBackAfter)
{
  const GradientCase c = GetParam();
  auto agent = newHatch({{"hatchObjectType", "1"},
                         {"PatternName", "ANSI31"},
                         {"GradientName", c.name},
                         {"GradientCentered", c.centered},
                         {"GradientAngle", "1.5"}});
  agent->beginExecute(document());
  EXPECT_EQ(var("GFSHIFT")->getInt32(), c.shift);
  EXPECT_EQ(var("GFNAME")->getInt32(), c.number);
  EXPECT_DOUBLE_EQ(var("GFANG")->getDouble(), 1.5);
  EXPECT_EQ(var("GFCLR1")->getColor().red(), 0);
  EXPECT_EQ(var("GFCLR1")->getColor().blue(), 255); // the new tool's blue
  EXPECT_EQ(var("HPNAME")->getString(), "ANSI37");
  EXPECT_DOUBLE_EQ(var("HPSCALE")->getDouble(), 2.0);
  EXPECT_EQ(stored("hatch_type"), 5);
  EXPECT_TRUE(agent->execute(document()));
  EXPECT_EQ(host().document.typed, "FASTGRADIENTCMD ");

  agent->endExecute(document());
  EXPECT_EQ(var("GFSHIFT")->getInt32(), 1);
  EXPECT_EQ(var("GFNAME")->getInt32(), 4);
  EXPECT_DOUBLE_EQ(var("GFANG")->getDouble(), 0.75);
}

INSTANTIATE_TEST_SUITE_P(Rows, Gradients,
                         ::testing::Values(GradientCase{"-1", "CYLINDER", 0, 2}, GradientCase{"0", "INVCURVED", 1, 9},
                                           GradientCase{"TRUE", "NO SUCH", 0, 1}));

// --- auxiliary scales ------------------------------------------------------

struct AuxCase
{
  const char* aux;
  double dimscale;
  double stdScale; // 0: the layout's plot settings carry none
  double blockScale;
  double hatchScale; // the hatch takes the plot scale in place of its own
};

class AuxScales : public Agents, public ::testing::WithParamInterface<AuxCase>
{
};

TEST_P(AuxScales, blockMultipliesAndHatchReplacesForPlotScale)
{
  const AuxCase c = GetParam();
  drawing()->setDIMSCALE(c.dimscale);
  if (c.stdScale > 0)
    OdDbPlotSettings::cast(drawing()->currentLayoutId().openObject(OdDb::kForWrite))->setStdScale(c.stdScale);
  auto block = newBlock({{"Scale", "3"}, {"AuxiliaryScale", c.aux}});
  EXPECT_DOUBLE_EQ(block->effectiveScale(drawing()), c.blockScale);

  auto hatch = newHatch({{"Scale", "3"}, {"AuxiliaryScale", c.aux}});
  hatch->beginExecute(document());
  EXPECT_DOUBLE_EQ(var("HPSCALE")->getDouble(), c.hatchScale);
}

// The hatch keeps its text as it stands; the block reads the other
// program's names, which the hatch's rows show translated.
INSTANTIATE_TEST_SUITE_P(Rows, AuxScales,
                         ::testing::Values(AuxCase{"None", 4, 0, 3, 3}, AuxCase{"DIMSCALE", 4, 0, 12, 3},
                                           AuxCase{"PLOTSCALE", 4, 0.5, 1.5, 3}, AuxCase{"PLOTSCALE", 4, 0, 3, 3}));

TEST_F(Agents, hatchAuxiliaryScaleAsShown)
{
  drawing()->setDIMSCALE(4);
  OdDbPlotSettings::cast(drawing()->currentLayoutId().openObject(OdDb::kForWrite))->setStdScale(0.5);
  auto hatch = newHatch({{"Scale", "3"}, {"AuxiliaryScale", "Dimscale"}});
  hatch->beginExecute(document());
  EXPECT_DOUBLE_EQ(var("HPSCALE")->getDouble(), 12.0);
  hatch->endExecute(document());
  hatch->setAuxScale("Plot scale");
  hatch->beginExecute(document());
  EXPECT_DOUBLE_EQ(var("HPSCALE")->getDouble(), 0.5);
}

// --- the block tool's run --------------------------------------------------

TEST_F(Agents, attreqFollowsPromptAttributesAndComesBack)
{
  for (bool prompt : {true, false}) {
    host().variables.values["ATTREQ"] = OdResBuf::newValue(std::int16_t(prompt ? 0 : 1));
    auto agent = newBlock({{"PromptAttributes", prompt ? "1" : "0"}});
    agent->beginExecute(document());
    EXPECT_EQ(var("ATTREQ")->getInt32(), prompt ? 1 : 0);
    agent->endExecute(document());
    EXPECT_EQ(var("ATTREQ")->getInt32(), prompt ? 0 : 1);
  }
}

struct RecordCase
{
  const char* blockType;
  const char* insertAs;
  const char* xrefType;
  bool wholeFile;
  bool isXref;
  bool explode; // copied only where the block is inserted
  int recordXrefType;
  const char* typed;
};

class BlockRecords : public Agents, public ::testing::WithParamInterface<RecordCase>
{
};

TEST_P(BlockRecords, executeLeavesTheRecordAndTypesTheKeyword)
{
  const RecordCase c = GetParam();
  auto agent = newBlock({{"BlockType", c.blockType},
                         {"BlockName", "CHAIR"},
                         {"SourceFile", "/d/furniture.dxf"},
                         {"InsertAs", c.insertAs},
                         {"XrefType", c.xrefType},
                         {"Scale", "2"},
                         {"Rotation", "0.5"},
                         {"PromptRotation", "1"},
                         {"Explode", "1"}});
  EXPECT_TRUE(agent->execute(document()));
  ASSERT_TRUE(m_conveyor.hasBlockParams());
  const ToolBlockInsertParams r = m_conveyor.takeBlockParams();
  EXPECT_EQ(r.blockName, "CHAIR");
  EXPECT_EQ(r.sourceFile, "/d/furniture.dxf");
  EXPECT_DOUBLE_EQ(r.scale, 2.0);
  EXPECT_DOUBLE_EQ(r.rotation, 0.5);
  EXPECT_TRUE(r.promptRotation);
  EXPECT_EQ(r.wholeFile, c.wholeFile);
  EXPECT_EQ(r.isXref, c.isXref);
  EXPECT_EQ(r.explode, c.explode);
  EXPECT_EQ(r.xrefType, c.recordXrefType);
  EXPECT_FALSE(r.reserved);
  EXPECT_EQ(host().document.typed, c.typed);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BlockRecords,
    ::testing::Values(RecordCase{"1", "2", "2", false, false, true, 1, "__executetool^M\"<block>\" \n"},
                      RecordCase{"2", "1", "0", true, false, true, 1, "__executetool^M\"<block>\" \n"},
                      RecordCase{"2", "2", "2", false, true, false, 2, "__executetool^M\"<xref>\" \n"}));

struct SourceCase
{
  const char* palette; // the palette file holding the tool; empty: none
  const char* source;  // "SourceFile" as the file has it
  const char* run;     // what the click hands on
};

class BlockSources : public Agents, public ::testing::WithParamInterface<SourceCase>
{
};

TEST_P(BlockSources, aRelativeSourceIsTakenFromThePalettesFolder)
{
  const SourceCase c = GetParam();
  auto agent = newBlock({{"BlockName", "CHAIR"}, {"SourceFile", c.source}});
  OdTcDatabasePtr palette = OdTcDatabaseImpl::createNew();
  palette->setPath(c.palette);
  if (*c.palette)
    agent->setParent(palette.get());
  EXPECT_TRUE(agent->execute(document()));
  EXPECT_EQ(m_conveyor.takeBlockParams().sourceFile, c.run);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BlockSources,
    ::testing::Values(SourceCase{"/cat/ToolPalette/Palettes/F.vtc", "../Blocks/f.dxf", "/cat/ToolPalette/Blocks/f.dxf"},
                      SourceCase{"/cat/ToolPalette/Palettes/F.vtc", "..\\Blocks\\f.dxf",
                                 "/cat/ToolPalette/Blocks/f.dxf"},
                      SourceCase{"/cat/ToolPalette/Palettes/F.vtc", "f.dxf", "/cat/ToolPalette/Palettes/f.dxf"},
                      SourceCase{"/cat/ToolPalette/Palettes/F.vtc", "/d/f.dxf", "/d/f.dxf"},
                      // A token this machine has no folder for is not taken for a relative path.
                      SourceCase{"/cat/ToolPalette/Palettes/F.vtc", "%UserProfileSamplesFolder9%/f.dxf",
                                 "%UserProfileSamplesFolder9%/f.dxf"},
                      SourceCase{"", "../Blocks/f.dxf", "../Blocks/f.dxf"}));

// --- rows and setters ------------------------------------------------------

TEST_F(Agents, blockRowsOfTheFileKind_insertAsDrivesTheReferenceRows)
{
  auto agent = newBlock({{"BlockType", "1"}});
  EXPECT_EQ(agent->getPropertyBag()->count(), 8);
  EXPECT_EQ(property(agent, "Insert.Insert as"), nullptr);
  EXPECT_FALSE(property(agent, "Insert.Source file")->isEnabled());

  agent->setValue("BlockType", OdVariant(OdString("2")));
  EXPECT_EQ(agent->getPropertyBag()->count(), 10);
  EXPECT_FALSE(property(agent, "Insert.Xref type")->isEnabled());
  OdString message;
  ASSERT_TRUE(row(agent, "Insert.Insert as")->commitText("External reference", message));
  EXPECT_EQ(agent->xrefType(), 1);
  EXPECT_TRUE(property(agent, "Insert.Xref type")->isEnabled());
  EXPECT_FALSE(property(agent, "Insert.Explode")->isEnabled());
  EXPECT_FALSE(property(agent, "Insert.Prompt attributes")->isEnabled());
  ASSERT_TRUE(row(agent, "Insert.Xref type")->commitText("Overlay", message));
  EXPECT_EQ(agent->xrefType(), 2);
  ASSERT_TRUE(row(agent, "Insert.Insert as")->commitText("Block", message));
  EXPECT_EQ(agent->insertAs(), 1);
  EXPECT_EQ(agent->xrefType(), 0);
  EXPECT_TRUE(property(agent, "Insert.Explode")->isEnabled());
  EXPECT_FALSE(row(agent, "Insert.Scale")->commitText("-1", message));
  EXPECT_FALSE(message.isEmpty());
}

TEST_F(Agents, sourceFileOfTheFileKindNamesTheBlock)
{
  auto single = newBlock({{"BlockType", "1"}, {"BlockName", "CHAIR"}});
  single->setSourceFile("/d/Room plan.v2.dxf");
  EXPECT_EQ(single->blockName(), "CHAIR");
  auto file = newBlock({{"BlockType", "2"}, {"BlockName", "CHAIR"}});
  file->setSourceFile("/d/Room plan.v2.dxf");
  EXPECT_EQ(file->blockName(), "Room plan.v2");
}

TEST_F(Agents, clonedAgentsRowsEditTheClone)
{
  auto agent = newBlock({{"Scale", "2"}});
  OdSmartPtr<OdTcToolBlockCommandImpl> copy = OdRxObjectImpl<OdTcToolBlockCommandImpl>::createObject();
  copy->copyFrom(agent);
  OdString message;
  ASSERT_TRUE(row(copy, "Insert.Scale")->commitText("5", message));
  EXPECT_DOUBLE_EQ(copy->scale(), 5.0);
  EXPECT_DOUBLE_EQ(agent->scale(), 2.0);
}

TEST_F(Agents, hatchKindAndTypeShowAndEnableTheirRows)
{
  auto agent = newHatch({{"HatchType", "1"}, {"PatternName", "ANSI31"}});
  EXPECT_EQ(agent->getPropertyBag()->count(), 13);
  EXPECT_TRUE(property(agent, "Sample.Pattern name")->isVisible());
  EXPECT_FALSE(property(agent, "Sample.Color 1")->isVisible());
  EXPECT_TRUE(property(agent, "Sample.Scale")->isEnabled());
  EXPECT_FALSE(property(agent, "Sample.Spacing")->isEnabled());

  OdString message;
  // The pattern of the file comes back after a spell of user-defined lines.
  ASSERT_TRUE(row(agent, "Sample.Type")->commitText("User defined", message));
  ASSERT_TRUE(row(agent, "Sample.Type")->commitText("Standard", message));
  EXPECT_EQ(agent->patternName(), "ANSI31");
  ASSERT_TRUE(row(agent, "Sample.Pattern name")->commitText("ANSI32", message));
  ASSERT_TRUE(row(agent, "Sample.Type")->commitText("User defined", message));
  EXPECT_EQ(agent->patternName(), "_USER");
  EXPECT_FALSE(property(agent, "Sample.Scale")->isEnabled());
  EXPECT_TRUE(property(agent, "Sample.Crosswise")->isEnabled());
  ASSERT_TRUE(row(agent, "Sample.Type")->commitText("Standard", message));
  EXPECT_EQ(agent->patternName(), "ANSI32"); // the name kept for the type

  ASSERT_TRUE(row(agent, "Sample.Instrument type")->commitText("Gradient", message));
  EXPECT_EQ(agent->hatchObjectType(), 1);
  EXPECT_FALSE(agent->isImageSpecific());
  EXPECT_FALSE(property(agent, "Sample.Pattern name")->isVisible());
  EXPECT_TRUE(property(agent, "Sample.Color 1")->isVisible());
  ASSERT_TRUE(row(agent, "Sample.Gradient name")->commitText("Inversed-curved", message));
  EXPECT_EQ(agent->gradientName(), "INVCURVED");
  EXPECT_EQ(row(agent, "Sample.Gradient name")->valueText(), "Inversed-curved");
}

TEST_F(Agents, customTypeWithoutAChoiceKeepsTheEarlierType)
{
  auto agent = newHatch({{"HatchType", "0"}});
  OdString message;
  // The console of this test gives no input: the pattern choice is
  // cancelled.
  row(agent, "Sample.Type")->commitText("Custom", message);
  EXPECT_EQ(agent->hatchType(), 0);
}

// --- the raster's path -----------------------------------------------------

TEST_F(Agents, rasterPathRelativeToTheDrawing)
{
  struct Row
  {
    const char* source;
    const char* drawing;
    const char* path;
  };
  for (const Row& r : {Row{"img/a.png", "/d/e/plan.dxf", "/d/e/img/a.png"},
                       Row{"../img/a.png", "/d/e/plan.dxf", "/d/img/a.png"},
                       Row{"./a.png", "/d/plan.dxf", "/d/a.png"},
                       Row{"/abs/a.png", "/d/plan.dxf", "/abs/a.png"},
                       Row{"img/a.png", "", "img/a.png"},
                       Row{"img/a.png", "plan.dxf", "img/a.png"}})
    EXPECT_EQ(OdTcToolRasterCommandImpl::imagePathFor(r.source, r.drawing), r.path) << r.source << " " << r.drawing;

  drawing()->setFilename("/site/plans/plan.dxf");
  auto agent = OdRxObjectImpl<OdTcToolRasterCommandImpl>::createObject();
  agent->setValue("RasterName", OdVariant(OdString("photo")));
  agent->setValue("SourceFile", OdVariant(OdString("img/photo.png")));
  EXPECT_TRUE(agent->execute(document()));
  ASSERT_TRUE(m_conveyor.hasRasterParams());
  EXPECT_EQ(m_conveyor.takeRasterParams().sourceFile, "/site/plans/img/photo.png");
  EXPECT_EQ(host().document.typed, "__executetool^M\"<raster>\" \n");
}

// --- the definition from the source drawing -------------------------------

TEST_F(Agents, definitionFromASourceThatCannotBringIt)
{
  QTemporaryDir folder;
  const OdString plain(folder.filePath("plain.dxf"));
  odDxfWriteFile(odDbCreateDatabase(), plain);
  const OdString broken(folder.filePath("broken.dxf"));
  QFile file(broken.qstring());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("0\nSECTION\n2\nENTITIES\n0\nLINE\n10\nnot a number");
  file.close();
  auto blocks = [] { return OdDbSymbolTable::cast(drawing()->getBlockTableId().openObject()); };

  ToolBlockInsertParams record;
  record.blockName = "CHAIR";
  record.sourceFile = broken;
  EXPECT_FALSE(bringBlockDefinition(document(), record));
  EXPECT_TRUE(host().document.printed.find(OdString("Could not read the source file")) >= 0)
      << host().document.printed.toUtf8();
  EXPECT_EQ(host().document.locks, 0);
  EXPECT_FALSE(blocks()->has("CHAIR"));

  // A source without the block: message 139, no record, and the lock of
  // this road kept.
  record.sourceFile = plain;
  EXPECT_FALSE(bringBlockDefinition(document(), record));
  EXPECT_TRUE(host().document.printed.find(OdString("Definition of block \"CHAIR\" is not found")) >= 0);
  EXPECT_EQ(host().document.locks, 1);
  EXPECT_FALSE(blocks()->has("CHAIR"));

  // A missing file is told even for a block the drawing has.
  record.sourceFile = folder.filePath("gone.dxf");
  record.blockName = "*Model_Space";
  EXPECT_FALSE(bringBlockDefinition(document(), record));
  EXPECT_TRUE(host().document.printed.find(OdString("Could not find the original file")) >= 0);
  record.sourceFile = plain;
  EXPECT_TRUE(bringBlockDefinition(document(), record));
}

} // namespace

// A command tool without a picture of its own shows the host's button of
// its command, drawn at the image's size; a macro without a command has none.
TEST_F(Agents, commandToolsDefaultPictureIsItsCommandsButton)
{
  OdTcToolCommandPtr tool = OdTcToolCommandImpl::createNew("^C^C_CIRCLE 0,0 5");
  OdTcImagePtr image = OdTcImageImpl::createNew(3);
  ASSERT_TRUE(tool->loadDefaultImage(image));
  EXPECT_EQ(image->src(), kProgramBtnRes);
  EXPECT_EQ(image->resource(), OdString("CIRCLE"));
  const QImage picture = image->getBitmap();
  ASSERT_FALSE(picture.isNull());
  EXPECT_EQ(picture.width(), image->cx());
  const QImage line = OdTcImageImpl::createNew(3, kProgramBtnRes, "LINE")->getBitmap();
  EXPECT_NE(picture.convertToFormat(QImage::Format_RGB32), line.convertToFormat(QImage::Format_RGB32));

  OdTcImagePtr none = OdTcImageImpl::createNew(3);
  EXPECT_FALSE(OdTcToolCommandImpl::createNew("^C^C")->loadDefaultImage(none));
}
