// The cost of the undo journal on large drawings: a command, its undo and
// its redo on drawings of growing size, through the reference host. The
// times should not grow with the drawing: the journal keeps only what a
// command touched.
#include "app/core/HostApp.h"
#include "app/core/HostCommandLine.h"
#include "app/core/HostDocumentManager.h"

#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/dxf/OdDxf.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>

namespace {

double millisecondsOf(const std::function<void()>& work)
{
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

OdString writeDrawing(const QTemporaryDir& dir, int lines)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite));
  for (int i = 0; i < lines; ++i) {
    OdDbLinePtr l = OdDbLine::createObject();
    l->setStartPoint(OdGePoint3d(i, 0, 0));
    l->setEndPoint(OdGePoint3d(i, 10, 0));
    ms->appendOdDbEntity(l);
  }
  const OdString path(dir.filePath(QStringLiteral("lines%1.dxf").arg(lines)));
  odDxfWriteFile(db, path);
  return path;
}

} // namespace

int main(int argc, char* argv[])
{
  QCoreApplication qt(argc, argv);
  QTemporaryDir home;
  qputenv("HOME", home.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", (home.path() + "/config").toUtf8());
  qputenv("XDG_DATA_HOME", (home.path() + "/data").toUtf8());
  HostApp& app = HostApp::instance();
  app.setOutputSink([](const OdString&) {});
  HostStartOptions options;
  options.runStartupList = false;
  app.start(options);
  app.commandLine().setEcho(false);
  std::printf("%10s %12s %12s %12s %12s\n", "entities", "LINE ms", "U ms", "REDO ms", "ERASE+U ms");
  for (int lines : {1000, 10000, 100000, 300000}) {
    const OdString path = writeDrawing(home, lines);
    OdString error;
    app.documents().openDocument(path, error);
    const int repeats = 50;
    double draw = 0, undo = 0, redo = 0, erase = 0;
    for (int r = 0; r < repeats; ++r) {
      draw += millisecondsOf([&] { app.typeLine("LINE 0,0 5,5 10,0 "); });
      undo += millisecondsOf([&] { app.typeLine("U"); });
      redo += millisecondsOf([&] { app.typeLine("REDO"); });
      OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(
          app.documents().current()->database()->getModelSpaceId().openObject());
      const OdString handle = ms->entityIds()[std::size_t(r)].getHandle().ascii();
      erase += millisecondsOf([&] {
        app.typeLine("ERASE " + handle + " ");
        app.typeLine("U");
      });
    }
    std::printf("%10d %12.3f %12.3f %12.3f %12.3f\n", lines, draw / repeats, undo / repeats, redo / repeats,
                erase / repeats);
    app.typeLine("CloseDocument");
  }
  app.shutdown();
  return 0;
}
