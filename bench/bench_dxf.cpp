// Reads and writes a large generated drawing and prints megabytes per second.
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbText.h"
#include "sdk/dxf/OdDxf.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <string>

namespace {

// A drawing of lines, circles, polylines and texts, big enough to reach
// `targetBytes` of DXF text.
std::string makeDrawing(std::size_t targetBytes)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite));
  std::string text;
  int round = 0;
  while (text.size() < targetBytes) {
    for (int i = 0; i < 20000; ++i) {
      const double x = i * 1.25 + round, y = round * 3.5;
      OdDbLinePtr l = OdDbLine::createObject();
      l->setStartPoint(OdGePoint3d(x, y, 0));
      l->setEndPoint(OdGePoint3d(x + 10.123456789, y + 5.5, 0));
      ms->appendOdDbEntity(l);
      OdDbCirclePtr c = OdDbCircle::createObject();
      c->setCenter(OdGePoint3d(x, y, 0));
      c->setRadius(2.0 + i % 7);
      c->setColorIndex(std::int16_t(1 + i % 200));
      ms->appendOdDbEntity(c);
      OdDbPolylinePtr p = OdDbPolyline::createObject();
      std::vector<OdDbPolyline::Vertex> v(6);
      for (int k = 0; k < 6; ++k)
        v[std::size_t(k)].point = OdGePoint2d(x + k, y + (k % 2) * 0.75);
      p->setVertices(v);
      ms->appendOdDbEntity(p);
      if (i % 4 == 0) {
        OdDbTextPtr t = OdDbText::createObject();
        t->setPosition(OdGePoint3d(x, y, 0));
        t->setTextString(OdString::formatted("Label %d-%d", round, i));
        ms->appendOdDbEntity(t);
      }
    }
    ++round;
    text = odDxfWriteBuffer(db);
  }
  return text;
}

double seconds(std::chrono::steady_clock::time_point a, std::chrono::steady_clock::time_point b)
{
  return std::chrono::duration<double>(b - a).count();
}

} // namespace

int main(int argc, char** argv)
{
  const std::size_t target = (argc > 1 ? std::stoul(argv[1]) : 60) * 1000000ul;
  QTemporaryDir dir;
  const QString in = dir.filePath("large.dxf"), out = dir.filePath("written.dxf");
  {
    const std::string text = makeDrawing(target);
    QFile f(in);
    if (!f.open(QIODevice::WriteOnly) || f.write(text.data(), qint64(text.size())) != qint64(text.size())) {
      std::fprintf(stderr, "cannot write %s\n", qPrintable(in));
      return 1;
    }
  }
  const double mb = double(QFile(in).size()) / 1e6;
  std::printf("drawing: %.1f MB of DXF\n", mb);
  // Best of three, from file to database and from database to file.
  double bestRead = 1e9, bestWrite = 1e9;
  for (int run = 0; run < 3; ++run) {
    const auto t0 = std::chrono::steady_clock::now();
    OdDbDatabasePtr db = odDxfReadFile(OdString(in));
    const auto t1 = std::chrono::steady_clock::now();
    odDxfWriteFile(db, OdString(out));
    const auto t2 = std::chrono::steady_clock::now();
    bestRead = std::min(bestRead, seconds(t0, t1));
    bestWrite = std::min(bestWrite, seconds(t1, t2));
  }
  const double outMb = double(QFile(out).size()) / 1e6;
  std::printf("read:  %.1f MB/s (%.3f s)\n", mb / bestRead, bestRead);
  std::printf("write: %.1f MB/s (%.3f s, %.1f MB written)\n", outMb / bestWrite, bestWrite, outMb);
  return 0;
}
