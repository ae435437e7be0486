// Tools in palette files: every kind read and written again without a loss,
// the foreign records of other programs, and a palette renamed and saved.
#include "tests/tools/ToolTestSupport.h"

#include "host/TcCommandLookup.h"

#include "hostsdk/core/HostCore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tc;

namespace {

const char* const kAgentTags[] = {"Command", "Block", "Hatch", "Raster", "VisualStyle", "Light", "MLeader", "Table"};

// A regular tool of the kind `tag`, or one without an agent for an empty tag.
OdTcToolPtr makeTool(const OdString& id, const OdString& tag)
{
  OdTcToolPtr tool = OdTcToolImpl::createNew();
  tool->setId(id);
  tool->setName(tag.isEmpty() ? OdString("Plain") : tag);
  tool->setToolType(1);
  if (!tag.isEmpty()) {
    OdTcToolActionAgentPtr agent = OdTcToolActionAgent::cast(odtcCreateByTag(tag));
    if (tag == "Command")
      agent->setCommandString("^C^CLINE 0,0 100,0 ");
    tool->setAgent(agent);
  }
  return tool;
}

// The palette file text of `objects` under the root "Palette".
std::string xmlOf(const std::vector<OdTcPersistPtr>& objects)
{
  auto holder = tst::Holder::create();
  holder->m_objects = objects;
  OdStreamBufPtr stream = OdMemoryStream::createNew();
  OdTcFilerPtr filer = OdTcPalettePropertiesFilerImpl::createObject();
  filer->openPalette(stream, holder, true);
  filer->flush();
  const auto& bytes = static_cast<OdMemoryStream*>(stream.get())->data();
  return std::string(bytes.begin(), bytes.end());
}

// Where two texts part, with some of each, for a readable failure.
std::string firstDifference(const std::string& a, const std::string& b)
{
  size_t i = 0;
  while (i < a.size() && i < b.size() && a[i] == b[i])
    ++i;
  if (i == a.size() && i == b.size())
    return "same";
  const size_t from = i > 80 ? i - 80 : 0;
  return "at " + std::to_string(i) + ":\n" + a.substr(from, 200) + "\n" + b.substr(from, 200);
}

std::string readAll(const QString& path)
{
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll().toStdString() : std::string("<missing>");
}

void writeAll(const QString& path, const std::string& bytes)
{
  QDir().mkpath(QFileInfo(path).path());
  QFile f(path);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(bytes.data(), qint64(bytes.size()));
}

std::string between(const std::string& text, const std::string& open, const std::string& close)
{
  const size_t from = text.find(open);
  const size_t to = text.rfind(close);
  if (from == std::string::npos || to == std::string::npos || to < from)
    return "<not found>";
  return text.substr(from, to + close.size() - from);
}

class ToolFiles : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerToolClasses(); }
  void SetUp() override { OdTcToolFlyoutImpl::resetPairingCounter(); }
};

} // namespace

TEST_F(ToolFiles, everyKind_readAndWrittenAgain_isTheSameText)
{
  std::vector<OdTcPersistPtr> tools;
  int n = 0;
  for (const char* tag : kAgentTags)
    tools.push_back(makeTool(OdString::formatted("t%d", ++n), tag));
  tools.push_back(makeTool("plain", OdString()));
  OdTcToolPtr text = makeTool("text", OdString());
  text->setToolType(3);
  tools.push_back(text);

  // A new block tool's empty auxiliary scale reads back as "None": the
  // file to keep is the one written after a first reading.
  const std::string first = xmlOf(tst::readPaletteXml(xmlOf(tools)));
  const auto read = tst::readPaletteXml(first);
  ASSERT_EQ(read.size(), std::size(kAgentTags) + 2);
  for (size_t i = 0; i < std::size(kAgentTags); ++i) {
    OdTcToolPtr tool = OdTcTool::cast(read[i]);
    ASSERT_FALSE(tool.isNull()) << i;
    ASSERT_NE(tool->agent(), nullptr) << kAgentTags[i];
    EXPECT_EQ(tool->agent()->tagName(), OdString(kAgentTags[i]));
    ASSERT_NE(tool->generalProperties(), nullptr);
    EXPECT_EQ(tool->generalProperties()->count(), 10) << kAgentTags[i];
  }
  EXPECT_EQ(OdTcTool::cast(read[0])->agent()->getCommandString(), "^C^CLINE 0,0 100,0 ");
  EXPECT_EQ(OdTcTool::cast(read.back())->toolType(), 3);

  EXPECT_EQ(firstDifference(xmlOf(read), first), "same");
}

struct ReadCase
{
  const char* name;
  std::string xml;
  std::function<void(OdTcTool&)> check;
};

void PrintTo(const ReadCase& row, std::ostream* os)
{
  *os << row.name;
}

class ToolReading : public ToolFiles, public ::testing::WithParamInterface<ReadCase>
{
};

namespace {
std::string tool(const std::string& inner)
{
  return "<Tool><ItemID idValue=\"t\" /><Properties><ItemName>T</ItemName></Properties>" + inner + "</Tool>";
}
} // namespace

TEST_P(ToolReading, readsAsTheFileSays)
{
  OdTcToolPtr read = tst::readOne<OdTcTool>(tst::wrap(tool(GetParam().xml)));
  ASSERT_FALSE(read.isNull());
  GetParam().check(*read);
}

INSTANTIATE_TEST_SUITE_P(
    rows, ToolReading,
    ::testing::Values(
        ReadCase{"stockReferenceDropped",
                 "<ToolType>1</ToolType><StockToolRef idValue=\"{S}\" />",
                 [](OdTcTool& t) {
                   EXPECT_EQ(t.stockToolRef(), nullptr);
                   EXPECT_EQ(tst::body(tst::paletteXml(&t)).find("StockToolRef"), std::string::npos);
                 }},
        ReadCase{"lastOfTwoAgentsWins",
                 "<ToolType>1</ToolType><Data><Command><Macro>LINE</Macro></Command>"
                 "<Raster /></Data>",
                 [](OdTcTool& t) {
                   ASSERT_NE(t.agent(), nullptr);
                   EXPECT_EQ(t.agent()->tagName(), "Raster");
                 }},
        ReadCase{"unknownChildSkipped",
                 "<Gizmo size=\"2\"><Part /></Gizmo><ToolType>1</ToolType>"
                 "<Data><Command><Macro>CIRCLE</Macro></Command></Data>",
                 [](OdTcTool& t) {
                   EXPECT_EQ(t.toolType(), 1);
                   ASSERT_NE(t.agent(), nullptr);
                   EXPECT_EQ(t.agent()->getCommandString(), "CIRCLE");
                   EXPECT_EQ(tst::paletteXml(&t).find("Gizmo"), std::string::npos);
                 }},
        // The reading maps the other program's names; the writing keeps
        // the text shown, which the next reading takes for "None".
        ReadCase{"auxiliaryScaleOfOtherProgram",
                 "<ToolType>1</ToolType><Data><Block AuxiliaryScale=\"plotscale\" /></Data>",
                 [](OdTcTool& t) {
                   EXPECT_NE(tst::paletteXml(&t).find("AuxiliaryScale=\"Plot scale\""), std::string::npos);
                 }},
        ReadCase{"auxiliaryScaleAsShown",
                 "<ToolType>1</ToolType><Data><Block AuxiliaryScale=\"Plot scale\" /></Data>",
                 [](OdTcTool& t) {
                   EXPECT_NE(tst::paletteXml(&t).find("AuxiliaryScale=\"None\""), std::string::npos);
                 }},
        ReadCase{"flyoutPairsByOrder",
                 "<ToolType>1</ToolType><Flyout enable=\"TRUE\"><ShapePackage idValue=\"P\" />"
                 "<CurrentShape idValue=\"C\" /></Flyout>",
                 [](OdTcTool& t) {
                   ASSERT_NE(t.flyout(), nullptr);
                   EXPECT_TRUE(t.flyout()->isEnabled());
                   EXPECT_EQ(t.flyout()->shapePackage(), "P");
                   EXPECT_EQ(t.flyout()->currentShape(), "C");
                 }},
        // Without a route map the multitool stays as read; its custom data
        // is not written.
        ReadCase{"multitoolWithoutRouteMapStays",
                 "<ToolType>2</ToolType><CustomData className=\"AcDbLine\" idButton=\"ID_Line\" />"
                 "<Flyout enable=\"0\"><ShapePackage idValue=\"P\" /></Flyout>",
                 [](OdTcTool& t) {
                   EXPECT_EQ(t.toolType(), 2);
                   ASSERT_NE(t.customData(), nullptr);
                   EXPECT_EQ(t.customData()->className(), "AcDbLine");
                   ASSERT_NE(t.flyout(), nullptr);
                   EXPECT_FALSE(t.flyout()->isEnabled());
                   EXPECT_EQ(tst::paletteXml(&t).find("CustomData"), std::string::npos);
                 }}),
    [](const ::testing::TestParamInfo<ReadCase>& info) { return std::string(info.param.name); });

TEST_F(ToolFiles, flyoutWithOneShape_shiftsTheNextFlyout)
{
  const auto read = tst::readPaletteXml(tst::wrap(tool("<Flyout><ShapePackage idValue=\"A\" /></Flyout>") +
                                                  tool("<Flyout><ShapePackage idValue=\"B\" />"
                                                       "<CurrentShape idValue=\"C\" /></Flyout>")));
  ASSERT_EQ(read.size(), 2u);
  OdTcToolFlyout* second = OdTcTool::cast(read[1])->flyout();
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->currentShape(), "B");
  EXPECT_EQ(second->shapePackage(), "C");
}

TEST(RouteMap, hostsMapNamesTheStartCommandOfEachDrawingClass)
{
  hostSetCmdRouteMap(OdString(VERDANI_SOURCE_DATA_DIR "/cmdroutemap.xml"));
  struct Row
  {
    const char* className;
    const char* command;
  };
  for (const Row& row : {Row{"AcDbLine", "LINE"}, Row{"AcDbCircle", "CIRCLE"}, Row{"AcDbArc", "ARC"},
                         Row{"AcDbPolyline", "PLINE"}, Row{"AcDbText", "TEXT"}}) {
    OdString command;
    EXPECT_TRUE(startCommandOfClass(row.className, command)) << row.className;
    EXPECT_EQ(command, row.command);
  }
  OdString none;
  EXPECT_FALSE(startCommandOfClass("AcDbNothing", none));
  hostSetCmdRouteMap(OdString("/nonexistent/cmdroutemap.xml"));
  EXPECT_FALSE(startCommandOfClass("AcDbLine", none));
  hostSetCmdRouteMap(OdString());
}

TEST_F(ToolFiles, paletteWithTools_renamedAndSaved_keepsEveryToolElement)
{
  std::vector<OdTcPersistPtr> made;
  int n = 0;
  for (const char* tag : kAgentTags)
    made.push_back(makeTool(OdString::formatted("{T%d}", ++n), tag));
  const std::string tools = tst::body(xmlOf(tst::readPaletteXml(xmlOf(made))));
  const std::string time = "<Time createdUniversalDateTime=\"Sat Nov 21 04:38:00 2026\" "
                           "modifiedUniversalDateTime=\"Sat Nov 21 04:38:00 2026\" />";
  const std::string catalog =
      "<Catalog Revision=\"8.0\" option=\"0\" FileRevision=\"8.0\"><ItemID idValue=\"{C1}\" /><Properties>"
      "<ItemName>Kinds</ItemName>" + time + "<Images option=\"0\" /></Properties><Palettes>"
      "<Palette Revision=\"8.0\" option=\"0\"><ItemID idValue=\"{A1}\" /><Properties><ItemName>All</ItemName>" +
      time + "<Images option=\"0\" /></Properties><Url href=\"./Palettes/All.vtc\" /></Palette></Palettes>"
      "<Groups /><CatalogItemOrder /></Catalog>";
  const std::string palette =
      "<Palette Revision=\"8.0\" option=\"0\" FileRevision=\"8.0\"><ItemID idValue=\"{A1}\" /><Properties>"
      "<ItemName>All</ItemName>" + time + "<Images option=\"0\" /></Properties><Tools>" + tools +
      "</Tools><PaletteUI><SortType>0</SortType><PreviewSize>1</PreviewSize><PreviewStyle>0</PreviewStyle>"
      "<CAcTcUiToolPalette><CatalogView><ToolOrder /></CatalogView></CAcTcUiToolPalette></PaletteUI></Palette>";
  QTemporaryDir dir;
  const QString folder = dir.filePath(QStringLiteral("ToolPalette"));
  writeAll(folder + QStringLiteral("/VdTcCatalog.vtc"), catalog);
  writeAll(folder + QStringLiteral("/Palettes/All.vtc"), palette);

  OdTcCatalogPtr loaded = OdTcCatalogImpl::createNew();
  ASSERT_TRUE(loaded->load(OdString(folder + QStringLiteral("/VdTcCatalog.vtc"))));
  OdTcToolPalette* all = loaded->findPaletteById("{A1}");
  ASSERT_NE(all, nullptr);
  EXPECT_TRUE(all->unsupportedTools().length() == 4) << "the four kinds that do not run here";
  all->setName("Renamed");
  ASSERT_TRUE(all->save());
  const std::string saved = readAll(folder + QStringLiteral("/Palettes/All.vtc"));
  EXPECT_NE(saved.find("<ItemName>Renamed</ItemName>"), std::string::npos);
  EXPECT_EQ(firstDifference(between(saved, "<Tools>", "</Tools>"), "<Tools>" + tools + "</Tools>"), "same");
}

TEST_F(ToolFiles, generalPropertiesWithValues_surviveAReadAndAWrite)
{
  const std::string layer = "<Layer><BasicPropInfo><PropValue unspecified=\"FALSE\" value=\"WALLS\" />"
                            "</BasicPropInfo></Layer>";
  const std::string scale = "<LinetypeScale><BasicPropInfo><PropValue unspecified=\"FALSE\" "
                            "value=\"2.5\" /></BasicPropInfo></LinetypeScale>";
  const std::string xml = tool("<ToolType>1</ToolType><Data><GeneralProperties>" + layer + scale +
                               "</GeneralProperties><Command><Macro>LINE</Macro></Command></Data>");
  OdTcToolPtr read = tst::readOne<OdTcTool>(tst::wrap(xml));
  ASSERT_FALSE(read.isNull());
  ASSERT_NE(read->generalProperties(), nullptr);
  EXPECT_EQ(read->generalProperties()->count(), 2) << "the file's bag, not ten new properties";
  const std::string written = tst::paletteXml(read);
  EXPECT_NE(written.find("<GeneralProperties>" + layer + scale + "</GeneralProperties>"), std::string::npos)
      << written;
  // And once more from what was written.
  OdTcToolPtr again = tst::readOne<OdTcTool>(written);
  ASSERT_FALSE(again.isNull());
  EXPECT_EQ(tst::paletteXml(again), written);
}
