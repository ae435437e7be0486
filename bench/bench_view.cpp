// Times the drawing view offscreen: the first paint of a drawing, and
// repaints after pans and zooms, for the largest external drawing and for
// a generated drawing of 100,000 entities.
#include "app/gui/DrawingView.h"
#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbText.h"
#include "sdk/dxf/OdDxf.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <ctime>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double ms(Clock::time_point a, Clock::time_point b)
{
  return std::chrono::duration<double, std::milli>(b - a).count();
}

// The processor time this thread used, in milliseconds: unlike the clock
// on the wall, it does not count the time other programs took the cores.
double cpuMs()
{
  timespec t{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

OdDbObjectId addRecord(OdDbObjectId tableId, OdDbSymbolTableRecord* record, const char* name)
{
  record->setName(name);
  return OdDbSymbolTable::cast(tableId.openObject(OdDb::kForWrite))->add(record);
}

// A town plan: 10,000 plots of 100 by 100 units in a square, each with ten
// entities: a house outline, two fence lines (one dashed), a well (circle),
// a pond (ellipse), a path (arc), a label, a tree (a block of three
// entities), a brook (a polyline with bulges), a point, and every tenth
// plot a hatched yard instead of the point.
OdDbDatabasePtr makeTown(int side)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbLinetypeTableRecordPtr dashed = OdDbLinetypeTableRecord::createObject();
  addRecord(db->getLinetypeTableId(), dashed, "DASHED");
  dashed->setNumDashes(2);
  dashed->setDashLengthAt(0, 6.0);
  dashed->setDashLengthAt(1, -3.0);
  dashed->setPatternLength(9.0);
  const char* layers[] = {"Houses", "Fences", "Water", "Paths", "Labels", "Trees"};
  for (int i = 0; i < 6; ++i) {
    OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
    addRecord(db->getLayerTableId(), layer, layers[i]);
    OdCmColor c;
    c.setColorIndex(std::int16_t(1 + i));
    layer->setColor(c);
  }
  OdDbBlockTableRecordPtr tree = OdDbBlockTableRecord::createObject();
  addRecord(db->getBlockTableId(), tree, "TREE");
  for (int k = 0; k < 3; ++k) {
    OdDbCirclePtr c = OdDbCircle::createObject();
    c->setCenter(OdGePoint3d(k * 2.0, k % 2 * 2.0, 0));
    c->setRadius(3.0 - k * 0.5);
    tree->appendOdDbEntity(c);
  }
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite));
  for (int row = 0; row < side; ++row) {
    for (int col = 0; col < side; ++col) {
      const double x = col * 100.0, y = row * 100.0;
      OdDbPolylinePtr house = OdDbPolyline::createObject();
      house->setVertices({{OdGePoint2d(x + 20, y + 20)}, {OdGePoint2d(x + 60, y + 20)}, {OdGePoint2d(x + 60, y + 50)},
                          {OdGePoint2d(x + 40, y + 65)}, {OdGePoint2d(x + 20, y + 50)}});
      house->setClosed(true);
      house->setLayer("Houses");
      ms->appendOdDbEntity(house);
      for (int k = 0; k < 2; ++k) {
        OdDbLinePtr fence = OdDbLine::createObject();
        fence->setStartPoint(OdGePoint3d(x + 2, y + 2 + k * 96, 0));
        fence->setEndPoint(OdGePoint3d(x + 98, y + 2 + k * 96, 0));
        fence->setLayer("Fences");
        if (k == 1)
          fence->setLinetype("DASHED");
        ms->appendOdDbEntity(fence);
      }
      OdDbCirclePtr well = OdDbCircle::createObject();
      well->setCenter(OdGePoint3d(x + 80, y + 80, 0));
      well->setRadius(5);
      well->setLayer("Water");
      ms->appendOdDbEntity(well);
      OdDbEllipsePtr pond = OdDbEllipse::createObject();
      pond->set(OdGePoint3d(x + 80, y + 60, 0), OdGeVector3d::kZAxis, OdGeVector3d(8, 3, 0), 0.5);
      pond->setLayer("Water");
      ms->appendOdDbEntity(pond);
      OdDbArcPtr path = OdDbArc::createObject();
      path->setCenter(OdGePoint3d(x + 40, y + 20, 0));
      path->setRadius(15);
      path->setStartAngle(M_PI);
      path->setEndAngle(2 * M_PI);
      path->setLayer("Paths");
      ms->appendOdDbEntity(path);
      OdDbTextPtr label = OdDbText::createObject();
      label->setPosition(OdGePoint3d(x + 22, y + 30, 0));
      label->setHeight(4);
      label->setTextString(OdString::formatted("Plot %d-%d", row, col));
      label->setLayer("Labels");
      ms->appendOdDbEntity(label);
      OdDbBlockReferencePtr ref = OdDbBlockReference::createObject();
      ref->setBlockTableRecord(tree->objectId());
      ref->setPosition(OdGePoint3d(x + 75, y + 40, 0));
      ref->setLayer("Trees");
      ms->appendOdDbEntity(ref);
      OdDbPolylinePtr brook = OdDbPolyline::createObject();
      brook->setVertices({{OdGePoint2d(x + 5, y + 90), 0, 0, 0.4}, {OdGePoint2d(x + 30, y + 85), 0, 0, -0.4},
                          {OdGePoint2d(x + 55, y + 90)}});
      brook->setLayer("Water");
      ms->appendOdDbEntity(brook);
      if ((row * side + col) % 10 == 0) {
        OdDbHatchPtr yard = OdDbHatch::createObject();
        OdDbHatch::Data d;
        d.solid = false;
        d.patternName = "USER";
        d.patternType = OdDbHatch::kUserDefined;
        d.lines.push_back(OdDbHatch::PatternLine{45.0, OdGePoint2d(0, 0), OdGeVector2d(-2.12, 2.12), {}});
        OdDbHatch::Loop loop;
        loop.vertices = {OdGePoint2d(x + 65, y + 5), OdGePoint2d(x + 95, y + 5), OdGePoint2d(x + 95, y + 30),
                         OdGePoint2d(x + 65, y + 30)};
        loop.bulges.assign(4, 0.0);
        d.loops.push_back(loop);
        yard->setData(d);
        yard->setLayer("Trees");
        ms->appendOdDbEntity(yard);
      } else {
        OdDbPointPtr p = OdDbPoint::createObject();
        p->setPosition(OdGePoint3d(x + 90, y + 10, 0));
        ms->appendOdDbEntity(p);
      }
    }
  }
  return db;
}

// Each figure on the wall clock and, in brackets, in processor time of
// this thread (what the figure would be on a machine of its own).
struct Figure
{
  double wall = 0, cpu = 0;
};

struct Figures
{
  Figure build, firstPaint, panMedian, panWorst, zoomMedian, zoomWorst;
};

Figure median(const std::vector<Figure>& v)
{
  std::vector<double> wall, cpu;
  for (const Figure& f : v) {
    wall.push_back(f.wall);
    cpu.push_back(f.cpu);
  }
  std::sort(wall.begin(), wall.end());
  std::sort(cpu.begin(), cpu.end());
  return v.empty() ? Figure() : Figure{wall[v.size() / 2], cpu[v.size() / 2]};
}

Figure worst(const std::vector<Figure>& v)
{
  Figure w;
  for (const Figure& f : v) {
    w.wall = std::max(w.wall, f.wall);
    w.cpu = std::max(w.cpu, f.cpu);
  }
  return w;
}

template <class F>
Figure timed(F f)
{
  const auto a = Clock::now();
  const double c = cpuMs();
  f();
  return Figure{ms(a, Clock::now()), cpuMs() - c};
}

Figures measure(OdDbDatabase* db)
{
  Figures f;
  DrawingView view;
  view.resize(1280, 800);
  view.show();
  QApplication::processEvents();
  f.build = timed([&] { view.setDatabase(db); });
  const Figure draw = timed([&] { view.repaint(); });
  f.firstPaint = Figure{f.build.wall + draw.wall, f.build.cpu + draw.cpu};

  // Zoomed in a little where the entities are, as one works: pans then
  // move across a drawing that fills the view.
  double cx = 0, cy = 0;
  std::size_t n = 0;
  for (const SceneEntity& e : view.scene().entities())
    if (e.hasBox) {
      cx += e.box.center().x();
      cy += e.box.center().y();
      ++n;
    }
  view.view().setCenter(n ? QPointF(cx / double(n), cy / double(n)) : view.view().center());
  view.zoomAt(QPointF(640, 400), 4.0);
  view.repaint();
  std::vector<Figure> pans, zooms;
  for (int i = 0; i < 60; ++i) {
    const int dir = (i / 15) % 4;
    const QPointF step[4] = {QPointF(40, 0), QPointF(0, 30), QPointF(-40, 0), QPointF(0, -30)};
    view.pan(step[dir]);
    pans.push_back(timed([&] { view.repaint(); }));
  }
  // Wheel notches at places across the view: three in, three out.
  for (int i = 0; i < 60; ++i) {
    const QPointF at(200 + (i * 97) % 880, 150 + (i * 53) % 500);
    view.zoomAt(at, (i / 3) % 2 ? 1.0 / 1.2 : 1.2);
    zooms.push_back(timed([&] { view.repaint(); }));
  }
  f.panMedian = median(pans);
  f.panWorst = worst(pans);
  f.zoomMedian = median(zooms);
  f.zoomWorst = worst(zooms);
  return f;
}

void print(const char* name, std::size_t entities, double readMs, const Figures& f)
{
  auto line = [](const char* what, const Figure& a) {
    std::printf("  %-27s %7.1f ms  (%6.1f ms processor)\n", what, a.wall, a.cpu);
  };
  std::printf("%s, %zu entities\n", name, entities);
  if (readMs > 0)
    std::printf("  %-27s %7.1f ms\n", "read", readMs);
  line("first paint", f.firstPaint);
  line("  of which making the scene", f.build);
  line("repaint after pan, median", f.panMedian);
  line("repaint after pan, worst", f.panWorst);
  line("repaint after zoom, median", f.zoomMedian);
  line("repaint after zoom, worst", f.zoomWorst);
}

std::size_t countEntities(OdDbDatabase* db)
{
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject());
  return ms.get() ? ms->entityIds().size() : 0;
}

// The largest DXF file below the folder of external drawings.
QString largestDrawing(const QString& folder)
{
  QString best;
  qint64 size = -1;
  QDirIterator it(folder, {QStringLiteral("*.dxf"), QStringLiteral("*.DXF")}, QDir::Files, QDirIterator::Subdirectories);
  while (it.hasNext()) {
    const QFileInfo info(it.next());
    if (info.size() > size) {
      size = info.size();
      best = info.absoluteFilePath();
    }
  }
  return best;
}

} // namespace

int main(int argc, char* argv[])
{
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  // bench_view [FOLDER] [--save-town FILE]: FOLDER holds the external
  // drawings; the generated drawing can be kept as a DXF file to look at.
  QString folder = QStringLiteral(VERDANI_EXTERNAL_DRAWINGS);
  QString saveTown;
  for (int i = 1; i < argc; ++i) {
    const QString arg = QString::fromLocal8Bit(argv[i]);
    if (arg == QLatin1String("--save-town") && i + 1 < argc)
      saveTown = QString::fromLocal8Bit(argv[++i]);
    else
      folder = arg;
  }
  const QString largest = largestDrawing(folder);
  if (!largest.isEmpty()) {
    const auto a = Clock::now();
    OdDbDatabasePtr db = odDxfReadFile(OdString(largest));
    const double read = ms(a, Clock::now());
    print(QFileInfo(largest).fileName().toUtf8().constData(), countEntities(db.get()), read, measure(db.get()));
  } else {
    std::printf("No DXF drawing found below %s.\n", folder.toUtf8().constData());
  }
  OdDbDatabasePtr town = makeTown(100);
  if (!saveTown.isEmpty())
    odDxfWriteFile(town.get(), OdString(saveTown));
  print("generated town plan", countEntities(town.get()), 0, measure(town.get()));
  return 0;
}
