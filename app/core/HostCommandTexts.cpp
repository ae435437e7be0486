// The texts of the host's own commands.
#include "app/core/HostCommandTexts.h"

namespace {

struct Texts
{
  const char* name;
  const char* displayText;
  const char* menuText;
  const char* description;
  const char* className;
};

// Commands that draw an object of a class name it, so that a tool made from
// such an object can start the command again (the route map says which).
constexpr Texts kTexts[] = {
    {"NewDocument", "New", "&New", "Starts a new drawing", ""},
    {"OpenDocument", "Open", "&Open...", "Opens a drawing from a DXF file", ""},
    {"CloseDocument", "Close", "&Close", "Closes the current drawing", ""},
    {"SaveDocument", "Save", "&Save", "Saves the current drawing to its file", ""},
    {"SaveAsDocument", "Save As", "Save &As...", "Saves the current drawing to another file", ""},
    {"Exit", "Exit", "E&xit", "Ends the program", ""},
    {"SETDIR", "Set Folder", "Set &Folder", "Changes one of the host's standard folders", ""},
    {"LINE", "Line", "&Line", "Draws straight line segments", "AcDbLine"},
    {"CIRCLE", "Circle", "&Circle", "Draws a circle by its center and radius", "AcDbCircle"},
    {"ARC", "Arc", "&Arc", "Draws an arc through three points", "AcDbArc"},
    {"PLINE", "Polyline", "&Polyline", "Draws a polyline of connected segments", "AcDbPolyline"},
    {"TEXT", "Single Line Text", "&Single Line Text", "Writes lines of text", "AcDbText"},
    {"ERASE", "Erase", "&Erase", "Removes objects from the drawing", ""},
    {"U", "Undo", "&Undo", "Takes back the last command", ""},
    {"UNDO", "Undo Several", "Undo &Several", "Takes back a number of commands", ""},
    {"REDO", "Redo", "&Redo", "Brings back what the last undo took back", ""},
    {"SETVAR", "Set Variable", "Set &Variable", "Shows or changes a system variable", ""},
    {"InsertBlock", "Insert Block", "&Block...", "Inserts a block or a drawing file", "AcDbBlockReference"},
    {"XATTACH", "Attach Reference", "E&xternal Reference...", "Attaches a drawing as an external reference", ""},
    {"INSERTRASTER", "Raster Image", "&Raster Image...", "Places an image file in the drawing", "AcDbRasterImage"},
    {"FASTHATCHCMD", "Hatch", "&Hatch...", "Fills closed areas with a hatch pattern", "AcDbHatch"},
    {"FASTGRADIENTCMD", "Gradient", "&Gradient...", "Fills closed areas with a gradient", ""},
};

} // namespace

namespace HostCommandTexts {

bool fill(const OdString& name, HostCommandInfo& info)
{
  for (const Texts& t : kTexts) {
    if (name.iCompare(t.name) != 0)
      continue;
    info.displayText = t.displayText;
    info.menuText = t.menuText;
    info.description = t.description;
    info.className = t.className;
    return true;
  }
  return false;
}

} // namespace HostCommandTexts
