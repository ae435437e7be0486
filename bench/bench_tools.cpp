// bench_tools: a click on a block tool whose source is a drawing of about
// 1 MB, up to the block reference in the drawing (the insertion point
// typed), through the reference host with the tool palettes module loaded:
// with the source read on every click (each in a new drawing), and with the
// definition already in the drawing.
// Usage: bench_tools [clicks]   (default: 20)
#include "app/core/HostApp.h"
#include "app/core/HostDocumentManager.h"
#include "app/core/HostDocumentImpl.h"

#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbSymbolTable.h"
#include "sdk/dxf/OdDxf.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <sstream>

namespace {

double millisecondsOf(const std::function<void()>& work)
{
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

OdDbLinePtr line(double x0, double y0, double x1, double y1)
{
  OdDbLinePtr l = OdDbLine::createObject();
  l->setStartPoint(OdGePoint3d(x0, y0, 0));
  l->setEndPoint(OdGePoint3d(x1, y1, 0));
  return l;
}

// A furniture drawing: a chair block of a few dozen lines among a floor
// plan of plain lines that make the file about 1 MB.
OdString writeSource(const QTemporaryDir& dir)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbBlockTableRecordPtr chair = OdDbBlockTableRecord::createObject();
  chair->setName("CHAIR");
  OdDbSymbolTable::cast(db->getBlockTableId().openObject(OdDb::kForWrite))->add(chair);
  for (int i = 0; i < 40; ++i)
    chair->appendOdDbEntity(line(i * 10, 0, i * 10, 450));
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite));
  for (int i = 0; i < 9200; ++i)
    ms->appendOdDbEntity(line(i, 0, i, 1000));
  const OdString path(dir.filePath("furniture.dxf"));
  odDxfWriteFile(db, path);
  return path;
}

void writeFile(const QString& path, const QString& text)
{
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly))
    std::exit(2);
  file.write(text.toUtf8());
}

void writeCatalog(const QString& folder, const OdString& source)
{
  const QString time = "<Time createdUniversalDateTime=\"Sat Nov 21 04:38:00 2026\" "
                       "modifiedUniversalDateTime=\"Sat Nov 21 04:38:00 2026\" />";
  const QString palette = "{A0000000-0000-4000-8000-0000000000B1}";
  writeFile(folder + "/Palettes/Bench.vtc",
            "<Palette Revision=\"8.0\" option=\"0\" FileRevision=\"8.0\"><ItemID idValue=\"" + palette +
                "\" /><Properties><ItemName>Bench</ItemName>" + time +
                "</Properties><Tools><Tool><ItemID idValue=\"{B1}\" /><Properties><ItemName>Chair</ItemName>" + time +
                "</Properties><ToolType>1</ToolType><Data><Block BlockType=\"1\" BlockName=\"CHAIR\" SourceFile=\"" +
                source.qstring() +
                "\" Scale=\"1\" Rotation=\"0\" PromptRotation=\"0\" PromptAttributes=\"0\" Explode=\"0\" />"
                "</Data></Tool></Tools></Palette>");
  writeFile(folder + "/VdTcCatalog.vtc",
            "<Catalog Revision=\"8.0\" option=\"0\" FileRevision=\"8.0\"><ItemID idValue=\"{C0000000-0000-4000-8000-"
            "0000000000B9}\" /><Properties><ItemName>Bench</ItemName>" +
                time + "</Properties><Palettes><Palette Revision=\"8.0\" option=\"0\"><ItemID idValue=\"" + palette +
                "\" /><Properties><ItemName>Bench</ItemName>" + time +
                "</Properties><Url href=\"./Palettes/Bench.vtc\" /></Palette></Palettes></Catalog>");
}

int referencesIn(HostApp& app)
{
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(
      app.documents().current()->database()->getModelSpaceId().openObject());
  return int(ms->entityIds().size());
}

} // namespace

int main(int argc, char* argv[])
{
  QCoreApplication qt(argc, argv);
  const int clicks = argc > 1 ? std::max(1, std::atoi(argv[1])) : 20;
  QTemporaryDir home;
  qputenv("HOME", home.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", (home.path() + "/config").toUtf8());
  qputenv("XDG_DATA_HOME", (home.path() + "/data").toUtf8());
  const OdString source = writeSource(home);
  writeCatalog(home.path() + "/common/Bench/ToolPalette", source);

  HostApp& app = HostApp::instance();
  const bool verbose = qEnvironmentVariableIsSet("BENCH_VERBOSE");
  app.setOutputSink([verbose](const OdString& text) {
    if (verbose)
      std::fputs(text.toUtf8().c_str(), stderr);
  });
  HostStartOptions options;
  options.runStartupList = false;
  options.settings.push_back(OdString("CommonDirs=" + home.path() + "/common"));
  options.modules = {"toolpalettes", "tpcommands"};
  app.start(options);

  // The click, then the point when the insertion asks for it, as a script
  // gives them.
  const auto click = [&] {
    std::istringstream script("ToolPalettesRun\nChair\n0,0\n");
    app.runScript(script);
  };
  double fresh = 0;
  for (int i = 0; i < clicks; ++i) {
    app.typeLine("NewDocument");
    fresh += millisecondsOf(click);
    if (referencesIn(app) != 1) {
      std::fprintf(stderr, "the click made no block reference\n");
      return 1;
    }
    app.typeLine("CloseDocument");
  }
  app.typeLine("NewDocument");
  click();
  double present = 0;
  for (int i = 0; i < clicks; ++i)
    present += millisecondsOf(click);
  const int made = referencesIn(app);

  std::printf("source %s: %.2f MB\n", source.toUtf8().c_str(), QFileInfo(source.qstring()).size() / 1048576.0);
  std::printf("%-36s %10s\n", "click to block reference", "ms");
  std::printf("%-36s %10.2f\n", "source read each time", fresh / clicks);
  std::printf("%-36s %10.2f\n", "definition already in the drawing", present / clicks);
  if (made != clicks + 1) {
    std::fprintf(stderr, "expected %d block references, found %d\n", clicks + 1, made);
    return 1;
  }
  app.shutdown();
  return 0;
}
