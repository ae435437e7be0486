// bench_catalog: loading a shared catalog of many palettes full of tools, as
// the module does when it starts, beside the time TinyXML alone takes to
// parse and free the same files, and the memory held per tool.
// Usage: bench_catalog [palettes...]   (default: 200 2000)
#include "module/TcClassTable.h"

#include "images/TcImageClasses.h"
#include "model/OdTcCatalogImpl.h"
#include "model/OdTcToolPalette.h"
#include "persist/OdTcTagTable.h"
#include "persist/TcFileStore.h"
#include "persist/TcModelTags.h"
#include "properties/TcPropertyClasses.h"
#include "tools/TcToolClasses.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <tinyxml.h>

#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

using namespace tc;

namespace {

constexpr int kToolsPerPalette = 100;

const std::string kTime = "<Time createdUniversalDateTime=\"Sat Nov 21 04:38:00 2026\" "
                          "modifiedUniversalDateTime=\"Sat Nov 21 04:38:00 2026\" />";

std::string generalProperties()
{
  std::string xml = "<GeneralProperties>";
  for (const char* tag : {"Color", "Layer", "Linetype", "LinetypeScale", "PlotStyle", "LineWeight", "Transparency",
                          "Textstyle", "Dimstyle", "Tablestyle"})
    xml += std::string("<") + tag + "><BasicPropInfo><PropValue unspecified=\"TRUE\" /></BasicPropInfo></" + tag +
           ">";
  return xml + "</GeneralProperties>";
}

std::string tool(int palette, int index)
{
  const std::string id = "{T" + std::to_string(palette) + "-" + std::to_string(index) + "}";
  const std::string name = "Tool " + std::to_string(index);
  return "<Tool Revision=\"8.0\" option=\"0\"><ItemID idValue=\"" + id + "\" /><Properties><ItemName>" + name +
         "</ItemName><Description>Draws a line</Description>" + kTime +
         "<Images option=\"0\"><Image cx=\"16\" cy=\"16\" src=\"./Images/t16.png\" />"
         "<Image cx=\"32\" cy=\"32\" src=\"./Images/t32.png\" /></Images></Properties><ToolType>1</ToolType><Data>" +
         generalProperties() + "<Command><Macro>^C^CLINE 0,0 100,0^M</Macro></Command></Data></Tool>";
}

void writeFile(const QString& path, const std::string& text)
{
  QFile f(path);
  if (!f.open(QIODevice::WriteOnly) || f.write(text.data(), qint64(text.size())) != qint64(text.size())) {
    std::fprintf(stderr, "bench_catalog: cannot write %s\n", path.toUtf8().constData());
    std::exit(1);
  }
}

// The catalog file and its palette files; the paths of all of them.
std::vector<QString> makeCatalog(const QString& folder, int palettes)
{
  QDir().mkpath(folder + QStringLiteral("/Palettes"));
  std::vector<QString> files{folder + QStringLiteral("/VdTcCatalog.vtc")};
  std::string stubs;
  for (int p = 0; p < palettes; ++p) {
    const std::string id = "{P" + std::to_string(p) + "}";
    const std::string name = "Palette " + std::to_string(p);
    const std::string file = "Palettes/P" + std::to_string(p) + ".vtc";
    stubs += "<Palette Revision=\"8.0\" option=\"0\"><ItemID idValue=\"" + id + "\" /><Properties><ItemName>" + name +
             "</ItemName>" + kTime + "<Images option=\"0\" /></Properties><Url href=\"./" + file + "\" /></Palette>";
    std::string xml = "<Palette Revision=\"8.0\" option=\"0\" FileRevision=\"8.0\"><ItemID idValue=\"" + id +
                      "\" /><Properties><ItemName>" + name + "</ItemName>" + kTime +
                      "<Images option=\"0\" /></Properties><Tools>";
    for (int t = 0; t < kToolsPerPalette; ++t)
      xml += tool(p, t);
    xml += "</Tools><PaletteUI><SortType>0</SortType><PreviewSize>1</PreviewSize><PreviewStyle>0</PreviewStyle>"
           "<CAcTcUiToolPalette><CatalogView><ToolOrder /></CatalogView></CAcTcUiToolPalette></PaletteUI></Palette>";
    const QString path = folder + QLatin1Char('/') + QString::fromStdString(file);
    writeFile(path, xml);
    files.push_back(path);
  }
  writeFile(files.front(), "<Catalog Revision=\"8.0\" option=\"0\" FileRevision=\"8.0\"><ItemID idValue=\"{C}\" />"
                           "<Properties><ItemName>Bench</ItemName>" + kTime +
                               "<Images option=\"0\" /></Properties><Palettes>" + stubs +
                               "</Palettes><Groups /><CatalogItemOrder /></Catalog>");
  return files;
}

double seconds(std::chrono::steady_clock::time_point from)
{
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - from).count();
}

double tinyXmlFloor(const std::vector<QString>& files)
{
  const auto start = std::chrono::steady_clock::now();
  for (const QString& path : files) {
    TiXmlDocument document;
    document.LoadFile(path.toUtf8().constData());
  }
  return seconds(start);
}

int countTools(OdTcCatalog* catalog)
{
  int tools = 0;
  auto palettes = catalog->enumeratePalettes();
  while (OdTcCatalogItem* palette = palettes->next()) {
    auto items = static_cast<OdTcToolPalette*>(palette)->enumerateTools();
    while (items->next())
      ++tools;
  }
  return tools;
}

void run(int palettes)
{
  QTemporaryDir dir;
  const QString folder = dir.filePath(QStringLiteral("ToolPalette"));
  const std::vector<QString> files = makeCatalog(folder, palettes);
  const OdString catalogPath(files.front());

  double floor = 1e9;
  double load = 1e9;
  double bytesPerTool = 0;
  int tools = 0;
  for (int round = 0; round < 3; ++round) {
    floor = std::min(floor, tinyXmlFloor(files));
    malloc_trim(0);
    const size_t before = mallinfo2().uordblks;
    const auto start = std::chrono::steady_clock::now();
    OdTcCatalogPtr catalog = OdTcCatalogImpl::createNew();
    catalog->load(catalogPath);
    load = std::min(load, seconds(start));
    tools = countTools(catalog);
    bytesPerTool = double(mallinfo2().uordblks - before) / std::max(tools, 1);
  }
  std::printf("%6d palettes %8d tools  load %8.3f s  TinyXML floor %8.3f s  ratio %5.2f  %7.0f bytes/tool\n",
              palettes, tools, load, floor, load / floor, bytesPerTool);
}

} // namespace

int main(int argc, char** argv)
{
  TcClassRegistration classes;
  registerModelTags(OdTcTagTable::instance());
  registerImageClasses(OdTcTagTable::instance());
  registerPropertyClasses(OdTcTagTable::instance());
  registerToolTags(OdTcTagTable::instance());
  TcFileStore store;
  odtcSetFileStore(&store);

  std::vector<int> counts;
  for (int i = 1; i < argc; ++i)
    counts.push_back(std::atoi(argv[i]));
  if (counts.empty())
    counts = {200, 2000};
  for (int palettes : counts)
    run(palettes);
  odtcSetFileStore(nullptr);
  classes.unregisterAll();
  return 0;
}
