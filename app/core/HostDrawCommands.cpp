// LINE, CIRCLE, ARC, PLINE, TEXT and ERASE.
#include "app/core/HostDrawCommands.h"

#include "app/core/HostApp.h"
#include "app/core/HostBuiltinCommands.h"
#include "app/core/HostInputParser.h"
#include "app/core/HostModelSpace.h"
#include "app/core/HostOutput.h"
#include "app/core/HostPrompts.h"

#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbText.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

using Status = HostPrompts::Status;

HostApp& app()
{
  return HostApp::instance();
}

using HostBuiltinCommands::say;
using HostBuiltinCommands::drawingOrSay;


HostPromptOptions nextPointOptions(const OdGePoint3d& from, std::vector<OdString> keywords)
{
  HostPromptOptions o;
  o.message = "Specify next point";
  o.keywords = std::move(keywords);
  o.allowNone = true;
  o.useBasePoint = true;
  o.basePoint = from;
  return o;
}

OdDbObjectId addLine(OdDbDatabase* db, const OdGePoint3d& from, const OdGePoint3d& to)
{
  OdDbLinePtr line = OdDbLine::createObject();
  line->setStartPoint(from);
  line->setEndPoint(to);
  return HostModelSpace::addEntity(db, line);
}

// LINE: segments one by one, each a line of its own as it is given.
void lineCommand(IMemParam*)
{
  HostPrompts prompts(app());
  OdDbDatabase* db = drawingOrSay(prompts);
  if (!db)
    return;
  HostPromptOptions first;
  first.message = "Specify first point";
  std::vector<OdGePoint3d> points(1);
  if (prompts.getPoint(first, points[0]) != HostPrompts::kOk)
    return;
  std::vector<OdDbObjectId> segments;
  for (;;) {
    std::vector<OdString> keywords{"Undo"};
    if (segments.size() >= 2)
      keywords.insert(keywords.begin(), "Close");
    OdGePoint3d next;
    const Status status = prompts.getPoint(nextPointOptions(points.back(), keywords), next);
    if (status == HostPrompts::kCancel || status == HostPrompts::kNone)
      return;
    if (status == HostPrompts::kKeyword && prompts.keyword() == "Close") {
      addLine(db, points.back(), points.front());
      return;
    }
    if (status == HostPrompts::kKeyword) { // Undo
      if (segments.empty()) {
        say("All segments already undone.");
        continue;
      }
      HostModelSpace::eraseEntity(segments.back());
      segments.pop_back();
      points.pop_back();
      continue;
    }
    segments.push_back(addLine(db, points.back(), next));
    points.push_back(next);
  }
}

double g_lastRadius = 0.0; // the default of the next CIRCLE, as CAD hosts keep it

void circleCommand(IMemParam*)
{
  HostPrompts prompts(app());
  OdDbDatabase* db = drawingOrSay(prompts);
  if (!db)
    return;
  HostPromptOptions c;
  c.message = "Specify center point for circle";
  OdGePoint3d center;
  if (prompts.getPoint(c, center) != HostPrompts::kOk)
    return;
  HostPromptOptions r;
  r.message = "Specify radius of circle";
  r.keywords = {"Diameter"};
  r.useDefault = g_lastRadius > 0.0;
  r.useBasePoint = true;
  r.basePoint = center;
  r.allowZero = false;
  r.allowNegative = false;
  double radius = g_lastRadius;
  Status status = prompts.getDistance(r, radius);
  if (status == HostPrompts::kKeyword) {
    HostPromptOptions d = r;
    d.message = "Specify diameter of circle";
    d.keywords.clear();
    double diameter = 2.0 * g_lastRadius;
    status = prompts.getDistance(d, diameter);
    radius = diameter / 2.0;
  }
  if (status != HostPrompts::kOk)
    return;
  OdDbCirclePtr circle = OdDbCircle::createObject();
  circle->setCenter(center);
  circle->setRadius(radius);
  HostModelSpace::addEntity(db, circle);
  g_lastRadius = radius;
}

// The circle through three points: centre and radius; none when the
// points lie on one line.
std::optional<std::pair<OdGePoint3d, double>> circleThrough(const OdGePoint3d& a, const OdGePoint3d& b,
                                                            const OdGePoint3d& c)
{
  const double d = 2.0 * (a.x * (b.y - c.y) + b.x * (c.y - a.y) + c.x * (a.y - b.y));
  const double scale = std::max({a.distanceTo(b), b.distanceTo(c), a.distanceTo(c)});
  if (scale == 0.0 || std::fabs(d) <= 1e-12 * scale * scale)
    return std::nullopt;
  const double a2 = a.x * a.x + a.y * a.y, b2 = b.x * b.x + b.y * b.y, c2 = c.x * c.x + c.y * c.y;
  const OdGePoint3d center((a2 * (b.y - c.y) + b2 * (c.y - a.y) + c2 * (a.y - b.y)) / d,
                           (a2 * (c.x - b.x) + b2 * (a.x - c.x) + c2 * (b.x - a.x)) / d, a.z);
  return std::make_pair(center, center.distanceTo(OdGePoint3d(a.x, a.y, a.z)));
}

// ARC through three points: start, a point on the arc, end.
void arcCommand(IMemParam*)
{
  HostPrompts prompts(app());
  OdDbDatabase* db = drawingOrSay(prompts);
  if (!db)
    return;
  HostPromptOptions o;
  o.message = "Specify start point of arc";
  OdGePoint3d start, second, end;
  if (prompts.getPoint(o, start) != HostPrompts::kOk)
    return;
  o.message = "Specify second point of arc";
  o.useBasePoint = true;
  o.basePoint = start;
  if (prompts.getPoint(o, second) != HostPrompts::kOk)
    return;
  o.message = "Specify end point of arc";
  o.basePoint = second;
  std::optional<std::pair<OdGePoint3d, double>> circle;
  for (;;) {
    if (prompts.getPoint(o, end) != HostPrompts::kOk)
      return;
    circle = circleThrough(start, second, end);
    if (circle && !end.isEqualTo(start))
      break;
    say("No arc passes through these points: they lie on one line. Specify another end point.");
  }
  const OdGePoint3d& center = circle->first;
  double from = std::atan2(start.y - center.y, start.x - center.x);
  double to = std::atan2(end.y - center.y, end.x - center.x);
  // Arcs run counterclockwise from start to end: a clockwise pick swaps them.
  const double turn = (second.x - start.x) * (end.y - start.y) - (second.y - start.y) * (end.x - start.x);
  if (turn < 0.0)
    std::swap(from, to);
  OdDbArcPtr arc = OdDbArc::createObject();
  arc->setCenter(center);
  arc->setRadius(circle->second);
  arc->setStartAngle(from < 0.0 ? from + 2.0 * M_PI : from);
  arc->setEndAngle(to < 0.0 ? to + 2.0 * M_PI : to);
  HostModelSpace::addEntity(db, arc);
}

// PLINE: a light polyline that grows with each point; what was drawn
// stays when the command is cancelled, as the segments of LINE do.
void plineCommand(IMemParam*)
{
  HostPrompts prompts(app());
  OdDbDatabase* db = drawingOrSay(prompts);
  if (!db)
    return;
  HostPromptOptions first;
  first.message = "Specify start point";
  OdGePoint3d start;
  if (prompts.getPoint(first, start) != HostPrompts::kOk)
    return;
  say("Current line-width is 0");
  std::vector<OdDbPolyline::Vertex> vertices(1);
  vertices[0].point = OdGePoint2d(start.x, start.y);
  OdDbPolylinePtr polyline;
  auto update = [&](bool closed) {
    if (vertices.size() < 2) {
      if (polyline.get())
        HostModelSpace::eraseEntity(polyline->objectId());
      polyline.release();
      return;
    }
    if (polyline.isNull()) {
      polyline = OdDbPolyline::createObject();
      polyline->setVertices(vertices);
      polyline->setElevation(start.z);
      HostModelSpace::addEntity(db, polyline);
    } else {
      polyline->upgradeOpen();
      polyline->setVertices(vertices);
    }
    if (closed)
      polyline->setClosed(true);
  };
  OdGePoint3d last = start;
  for (;;) {
    std::vector<OdString> keywords{"Undo"};
    if (vertices.size() >= 3)
      keywords.insert(keywords.begin(), "Close");
    OdGePoint3d next;
    const Status status = prompts.getPoint(nextPointOptions(last, keywords), next);
    if (status == HostPrompts::kCancel || status == HostPrompts::kNone)
      return;
    if (status == HostPrompts::kKeyword && prompts.keyword() == "Close") {
      update(true);
      return;
    }
    if (status == HostPrompts::kKeyword) { // Undo
      if (vertices.size() == 1) {
        say("All segments already undone.");
        continue;
      }
      vertices.pop_back();
      last = OdGePoint3d(vertices.back().point.x, vertices.back().point.y, start.z);
      update(false);
      continue;
    }
    OdDbPolyline::Vertex v;
    v.point = OdGePoint2d(next.x, next.y);
    vertices.push_back(v);
    last = next;
    update(false);
  }
}

double g_lastTextRotation = 0.0;

// TEXT: single-line texts, one per line typed, each below the one before,
// until an empty line.
void textCommand(IMemParam*)
{
  HostPrompts prompts(app());
  OdDbDatabase* db = drawingOrSay(prompts);
  if (!db)
    return;
  const OdDbObjectId styleId = db->getTEXTSTYLE();
  OdDbTextStyleTableRecordPtr style = OdDbTextStyleTableRecord::cast(styleId.openObject());
  const double fixedHeight = style.isNull() ? 0.0 : style->textSize();
  double height = fixedHeight > 0.0 ? fixedHeight : db->getHeaderDouble("$TEXTSIZE", 2.5);
  say(OdString::formatted("Current text style: \"%s\"  Text height: %s", style.isNull() ? OdString("Standard")
                                                                                         : style->getName(),
                          HostInputParser::formatReal(height)));
  HostPromptOptions o;
  o.message = "Specify start point of text";
  OdGePoint3d position;
  if (prompts.getPoint(o, position) != HostPrompts::kOk)
    return;
  o.useBasePoint = true;
  o.basePoint = position;
  o.useDefault = true;
  if (fixedHeight <= 0.0) {
    o.message = "Specify height";
    o.allowZero = false;
    o.allowNegative = false;
    if (prompts.getDistance(o, height) != HostPrompts::kOk)
      return;
    db->setHeaderDouble("$TEXTSIZE", height);
  }
  o.message = "Specify rotation angle of text";
  double rotation = g_lastTextRotation;
  if (prompts.getAngle(o, rotation) != HostPrompts::kOk)
    return;
  g_lastTextRotation = rotation;
  HostPromptOptions t;
  t.message = "Enter text";
  t.allowNone = true;
  // Lines follow at the spacing of single-line text, 5/3 of the height.
  const OdGeVector3d down(1.6667 * height * std::sin(rotation), -1.6667 * height * std::cos(rotation), 0.0);
  for (;;) {
    OdString line;
    if (prompts.getText(t, line) != HostPrompts::kOk)
      return;
    OdDbTextPtr text = OdDbText::createObject();
    text->setPosition(position);
    text->setHeight(height);
    text->setRotation(rotation);
    text->setTextString(line);
    if (style.get()) {
      if (style->xScale() != 1.0)
        text->setWidthFactor(style->xScale());
      if (style->obliquingAngle() != 0.0)
        text->setOblique(style->obliquingAngle());
    }
    text->setTextStyle(styleId);
    HostModelSpace::addEntity(db, text);
    position = position + down;
  }
}

// ERASE: objects one by one, Enter erases what was chosen.
void eraseCommand(IMemParam*)
{
  HostPrompts prompts(app());
  OdDbDatabase* db = drawingOrSay(prompts);
  if (!db)
    return;
  std::vector<OdDbObjectId> chosen;
  HostPromptOptions o;
  o.message = "Select objects";
  o.allowNone = true;
  for (;;) {
    OdDbObjectId id;
    const Status status = prompts.getEntity(o, id);
    if (status == HostPrompts::kCancel)
      return; // nothing is erased
    if (status == HostPrompts::kNone)
      break;
    if (std::find(chosen.begin(), chosen.end(), id) != chosen.end()) {
      say("1 found, 1 was already selected");
      continue;
    }
    chosen.push_back(id);
    say("1 found");
  }
  int erased = 0;
  for (const OdDbObjectId& id : chosen)
    erased += HostModelSpace::eraseEntity(id) ? 1 : 0;
  if (erased > 0)
    say(OdString::formatted("%d object%s erased.", erased, erased == 1 ? "" : "s"));
}

} // namespace

namespace HostDrawCommands {

void registerCommands()
{
  HostBuiltinCommands::add("LINE", &lineCommand);
  HostBuiltinCommands::add("CIRCLE", &circleCommand);
  HostBuiltinCommands::add("ARC", &arcCommand);
  HostBuiltinCommands::add("PLINE", &plineCommand);
  HostBuiltinCommands::add("TEXT", &textCommand);
  HostBuiltinCommands::add("ERASE", &eraseCommand);
}

} // namespace HostDrawCommands
