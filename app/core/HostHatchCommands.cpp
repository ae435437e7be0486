// FASTHATCHCMD and FASTGRADIENTCMD.
#include "app/core/HostHatchCommands.h"

#include "app/core/HostApp.h"
#include "app/core/HostBuiltinCommands.h"
#include "app/core/HostInputParser.h"
#include "app/core/HostModelSpace.h"
#include "app/core/HostOutput.h"
#include "app/core/HostPrompts.h"
#include "app/core/HostSysVars.h"
#include "app/core/HostVariableStoreImpl.h"

#include "hostsdk/patterns/PatHatchLines.h"
#include "hostsdk/patterns/PatLibrary.h"

#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbPolyline.h"

#include <cmath>

namespace {

HostApp& app()
{
  return HostApp::instance();
}

using HostBuiltinCommands::say;
using HostBuiltinCommands::drawingOrSay;

OdResBufPtr var(const char* name)
{
  OdResBufPtr v = app().sysVars().getVar(name);
  return v.get() ? v : OdResBuf::newRb(OdResBuf::kRtNone);
}

// The gradients by the number GFNAME holds.
const char* const kGradientNames[] = {"LINEAR",        "CYLINDER", "INVCYLINDER",      "SPHERICAL", "HEMISPHERICAL",
                                      "CURVED",        "INVSPHERICAL", "INVHEMISPHERICAL", "INVCURVED"};

// --- boundaries --------------------------------------------------------------

// The loop that a closed object bounds; false when the object bounds none.
bool loopOf(const OdDbObjectId& id, OdDbHatch::Loop& loop)
{
  OdDbObjectPtr object = id.openObject();
  if (OdDbCirclePtr circle = OdDbCircle::cast(object); circle.get()) {
    OdDbHatch::Edge arc;
    arc.type = OdDbHatch::kCirArc;
    arc.p1 = OdGePoint2d(circle->center().x, circle->center().y);
    arc.radius = circle->radius();
    arc.startAngle = 0.0;
    arc.endAngle = 360.0;
    loop.type = OdDbHatch::kDefault;
    loop.edges = {arc};
    return true;
  }
  if (OdDbEllipsePtr ellipse = OdDbEllipse::cast(object); ellipse.get()) {
    if (std::fabs(ellipse->endAngle() - ellipse->startAngle() - 2.0 * M_PI) > 1e-9)
      return false; // an elliptical arc is open
    OdDbHatch::Edge edge;
    edge.type = OdDbHatch::kEllArc;
    edge.p1 = OdGePoint2d(ellipse->center().x, ellipse->center().y);
    edge.p2 = OdGePoint2d(ellipse->majorAxis().x, ellipse->majorAxis().y);
    edge.radius = ellipse->radiusRatio();
    edge.startAngle = 0.0;
    edge.endAngle = 360.0;
    loop.type = OdDbHatch::kDefault;
    loop.edges = {edge};
    return true;
  }
  if (OdDbPolylinePtr polyline = OdDbPolyline::cast(object); polyline.get()) {
    if (!polyline->isClosed() || polyline->numVerts() < 2)
      return false;
    loop.type = OdDbHatch::kPolyline;
    for (const OdDbPolyline::Vertex& v : polyline->vertices()) {
      loop.vertices.push_back(v.point);
      loop.bulges.push_back(v.bulge);
    }
    return true;
  }
  if (OdDb2dPolylinePtr polyline = OdDb2dPolyline::cast(object); polyline.get()) {
    if (!polyline->isClosed())
      return false;
    loop.type = OdDbHatch::kPolyline;
    for (const OdDbObjectId& vid : polyline->vertexIds())
      if (OdDb2dVertexPtr v = OdDb2dVertex::cast(vid.openObject()); v.get()) {
        loop.vertices.push_back(OdGePoint2d(v->position().x, v->position().y));
        loop.bulges.push_back(v->bulge());
      }
    return loop.vertices.size() >= 2;
  }
  return false;
}

// The rest of a polygon whose first point was given: points until Enter.
bool polygonFrom(HostPrompts& prompts, const OdGePoint3d& first, OdDbHatch::Loop& loop, bool& cancelled)
{
  std::vector<OdGePoint3d> points{first};
  for (;;) {
    HostPromptOptions o;
    o.message = "Specify next point of the polygon (Enter closes it)";
    o.allowNone = true;
    o.useBasePoint = true;
    o.basePoint = points.back();
    OdGePoint3d next;
    const HostPrompts::Status status = prompts.getPoint(o, next);
    if (status == HostPrompts::kCancel) {
      cancelled = true;
      return false;
    }
    if (status == HostPrompts::kNone)
      break;
    if (!next.isEqualTo(points.back()))
      points.push_back(next);
  }
  if (points.size() > 1 && points.back().isEqualTo(points.front()))
    points.pop_back(); // closed by hand: the loop closes itself
  if (points.size() < 3) {
    say("A polygon boundary needs at least three points; this one was dropped.");
    return false;
  }
  loop.type = OdDbHatch::kPolyline;
  for (const OdGePoint3d& p : points) {
    loop.vertices.push_back(OdGePoint2d(p.x, p.y));
    loop.bulges.push_back(0.0);
  }
  return true;
}

// Boundaries until Enter: closed objects by handle (or picked), or
// polygons typed point by point. The first is the outer one; the others
// are islands inside it. False when cancelled or none was given.
bool askBoundaries(HostPrompts& prompts, std::vector<OdDbHatch::Loop>& loops)
{
  for (;;) {
    HostPromptOptions o;
    o.message = loops.empty() ? "Select a closed boundary object, or specify the first point of a polygon"
                              : "Select another boundary (an island), or press Enter to hatch";
    o.allowNone = true;
    o.entityCheck = [](const OdDbObjectId& id) {
      OdDbHatch::Loop probe;
      return loopOf(id, probe) ? OdString()
                               : OdString::formatted("The object %s bounds no area: choose a circle, a closed polyline "
                                                     "or a whole ellipse.",
                                                     id.getHandle().ascii());
    };
    OdDbObjectId id;
    OdGePoint3d first;
    const HostPrompts::Status status = prompts.getEntityOrPoint(o, id, first);
    if (status == HostPrompts::kCancel)
      return false;
    if (status == HostPrompts::kNone)
      break;
    OdDbHatch::Loop loop;
    if (status == HostPrompts::kPoint) {
      bool cancelled = false;
      if (!polygonFrom(prompts, first, loop, cancelled)) {
        if (cancelled)
          return false;
        continue;
      }
    } else {
      loopOf(id, loop);
      loop.sourceHandles.clear();
    }
    if (loops.empty())
      loop.type |= OdDbHatch::kExternal;
    loops.push_back(loop);
  }
  if (loops.empty())
    say("No boundary was chosen; nothing was hatched.");
  return !loops.empty();
}

OdDbObjectId addHatch(OdDbDatabase* db, const OdDbHatch::Data& data)
{
  OdDbHatchPtr hatch = OdDbHatch::createObject();
  hatch->setData(data);
  return HostModelSpace::addEntity(db, hatch);
}

// --- FASTHATCHCMD ------------------------------------------------------------

// What the variables ask for: a pattern with its lines, user-defined
// lines, or the solid fill. False with a message when the pattern cannot
// be found.
bool patternData(OdDbHatch::Data& d, OdString& description)
{
  const int hatchType = int(app().variableStore().intValue("hatch_type", 0)); // 0 predefined, 1 user, 2 custom
  OdString name = var("HPNAME")->getString();
  name.trimLeft();
  name.trimRight();
  PatHatchSettings settings;
  settings.angle = var("HPANG")->getDouble();
  settings.scale = var("HPSCALE")->getDouble();
  settings.spacing = var("HPSPACE")->getDouble();
  settings.doubled = var("HPDOUBLE")->getInt16() != 0;
  d.angle = settings.angle * 180.0 / M_PI;
  if (hatchType == 1 || name.isEmpty() || name.iCompare("_USER") == 0) {
    d.patternType = OdDbHatch::kUserDefined;
    d.patternName = "_USER";
    d.solid = false;
    d.scale = settings.spacing > 0.0 ? settings.spacing : 1.0;
    d.isDouble = settings.doubled;
    d.lines = patHatchDefinitionLines(nullptr, settings);
    description = OdString::formatted("User-defined lines %s apart%s, angle %s", HostInputParser::formatReal(d.scale),
                                      settings.doubled ? ", crossed" : "", HostInputParser::formatAngle(settings.angle));
    return true;
  }
  d.patternType = hatchType == 2 ? OdDbHatch::kCustomDefined : OdDbHatch::kPreDefined;
  if (name.iCompare("SOLID") == 0) {
    d.patternType = OdDbHatch::kPreDefined;
    d.patternName = "SOLID";
    d.solid = true;
    d.angle = 0.0;
    description = "Solid fill";
    return true;
  }
  OdString file;
  if (hatchType == 2) {
    file = app().variableStore().textValue("hatch_pattern_file");
    if (file.isEmpty())
      file = PatLibrary::customPatternFile();
    if (file.isEmpty()) {
      say(OdString::formatted("The pattern \"%s\" is a custom one, but no custom pattern file is set: set "
                              "Hatch/CustomPatternFile or choose the file in the tool.",
                              name));
      return false;
    }
  }
  PatPattern pattern;
  OdString foundIn, error;
  if (!PatLibrary::findPattern(name, file, pattern, &foundIn, &error)) {
    if (!error.isEmpty())
      say(error);
    else
      say(OdString::formatted("The pattern \"%s\" is not in %s; nothing was hatched. Check HPNAME or the pattern file.",
                              name, file.isEmpty() ? OdString(PatLibrary::kDefaultFileName) : file));
    return false;
  }
  d.patternName = OdDxf::fromOdString(pattern.name());
  d.solid = false;
  d.scale = settings.scale > 0.0 ? settings.scale : 1.0;
  d.isDouble = false;
  d.lines = patHatchDefinitionLines(&pattern, settings);
  description = OdString::formatted("Pattern %s from %s, angle %s, scale %s", pattern.name(), foundIn,
                                    HostInputParser::formatAngle(settings.angle), HostInputParser::formatReal(d.scale));
  return true;
}

void fastHatchCommand(IMemParam*)
{
  HostPrompts prompts(app());
  OdDbDatabase* db = drawingOrSay(prompts);
  if (!db)
    return;
  OdDbHatch::Data d;
  OdString description;
  if (!patternData(d, description))
    return;
  say(description + ".");
  if (!askBoundaries(prompts, d.loops))
    return;
  const OdDbObjectId id = addHatch(db, d);
  // The background colour of a pattern, kept as extended data as drawing
  // programs keep it; a solid fill has nothing behind it to colour.
  const OdCmColor background = var("HPCOLOR")->getColor();
  if (!d.solid && !background.isNone() && !background.isByLayer()) {
    OdDbHatchPtr hatch = OdDbHatch::cast(id.openObject(OdDb::kForWrite));
    const std::string value = OdDxf::fromInt(std::int32_t(background.color()));
    hatch->setXData("HATCHBACKGROUNDCOLOR", {{1071, value}});
  }
}

// --- FASTGRADIENTCMD ---------------------------------------------------------

OdCmColor mixed(const OdCmColor& a, std::uint8_t r, std::uint8_t g, std::uint8_t b, double t)
{
  OdCmColor c;
  auto mix = [t](int x, int y) { return std::uint8_t(std::lround(x + (y - x) * t)); };
  c.setRGB(mix(a.red(), r), mix(a.green(), g), mix(a.blue(), b));
  return c;
}

void fastGradientCommand(IMemParam*)
{
  HostPrompts prompts(app());
  OdDbDatabase* db = drawingOrSay(prompts);
  if (!db)
    return;
  const int index = var("GFNAME")->getInt16();
  const char* name = kGradientNames[index >= 1 && index <= 9 ? index - 1 : 0];
  const bool oneColor = var("GFCLRSTATE")->getInt16() == 0;
  const double tint = var("GFCLRLUM")->getDouble();
  const OdCmColor first = var("GFCLR1")->getColor();
  // One colour runs to its shade (toward black) or tint (toward white).
  const OdCmColor second = !oneColor ? var("GFCLR2")->getColor()
                           : tint < 0.5 ? mixed(first, 0, 0, 0, 1.0 - tint / 0.5)
                                        : mixed(first, 255, 255, 255, (tint - 0.5) / 0.5);
  OdDbHatch::Data d;
  d.patternName = "SOLID";
  d.solid = true;
  d.patternType = OdDbHatch::kPreDefined;
  d.hasGradient = true;
  d.gradientFlag = 1;
  d.gradientName = name;
  d.gradientAngle = var("GFANG")->getDouble();
  d.gradientShift = var("GFSHIFT")->getInt16() != 0 ? 1.0 : 0.0; // 0: centred
  d.oneColor = oneColor;
  d.tint = tint;
  d.colors.resize(2);
  d.colors[0].color = first;
  d.colors[0].value = 0.0;
  d.colors[1].color = second;
  d.colors[1].value = 1.0;
  say(OdString::formatted("Gradient %s, %s, angle %s%s.", OdString(name),
                          oneColor ? OdString("one colour") : OdString("two colours"),
                          HostInputParser::formatAngle(d.gradientAngle), d.gradientShift == 0.0 ? ", centred" : ""));
  if (!askBoundaries(prompts, d.loops))
    return;
  addHatch(db, d);
}

} // namespace

namespace HostHatchCommands {

void registerCommands()
{
  HostBuiltinCommands::add("FASTHATCHCMD", &fastHatchCommand);
  HostBuiltinCommands::add("FASTGRADIENTCMD", &fastGradientCommand);
}

} // namespace HostHatchCommands
