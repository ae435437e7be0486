// Reading the options of the desktop program.
#include "app/gui/GuiOptions.h"

#include "app/core/HostApp.h"

#include <QStringList>

namespace {

bool parseSize(const OdString& text, QSize& size)
{
  const QStringList parts = text.qstring().toLower().split(u'x');
  bool okW = false, okH = false;
  if (parts.size() == 2)
    size = QSize(parts[0].toInt(&okW), parts[1].toInt(&okH));
  return okW && okH && size.width() >= 100 && size.height() >= 100 && size.width() <= 16384 && size.height() <= 16384;
}

bool parseWindow(const OdString& text, QRectF& rect)
{
  const QStringList parts = text.qstring().split(u',');
  if (parts.size() != 4)
    return false;
  double v[4];
  for (int i = 0; i < 4; ++i) {
    bool ok = false;
    v[i] = parts[i].trimmed().toDouble(&ok);
    if (!ok)
      return false;
  }
  rect = QRectF(QPointF(std::min(v[0], v[2]), std::min(v[1], v[3])), QPointF(std::max(v[0], v[2]), std::max(v[1], v[3])));
  return rect.width() > 0 && rect.height() > 0;
}

} // namespace

bool GuiOptions::parse(const std::vector<OdString>& arguments, OdString& error)
{
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const OdString& arg = arguments[i];
    auto is = [&](const char* option) { return arg == option || arg.find(OdString(option) + "=") == 0; };
    auto takeValue = [&](const char* option, OdString& out) {
      const OdString prefix = OdString(option) + "=";
      if (arg.find(prefix) == 0) {
        out = arg.mid(prefix.getLength());
      } else if (i + 1 < arguments.size()) {
        out = arguments[++i];
      } else {
        error = OdString::formatted("%s needs a value.", option);
        return false;
      }
      if (out.isEmpty()) {
        error = OdString::formatted("%s needs a value.", option);
        return false;
      }
      return true;
    };
    OdString value;
    if (arg == "-h" || arg == "--help") {
      help = true;
    } else if (is("--set")) {
      OdString key, v;
      if (!takeValue("--set", value) || !HostApp::parseSetting(value, key, v, &error))
        return false;
      settings.push_back(value);
    } else if (is("--size")) {
      if (!takeValue("--size", value))
        return false;
      if (!parseSize(value, size)) {
        error = OdString::formatted("--size wants WIDTHxHEIGHT in pixels, as 1280x800, not %s.", value);
        return false;
      }
    } else if (is("--events")) {
      if (!takeValue("--events", events))
        return false;
    } else if (is("--screenshot")) {
      if (!takeValue("--screenshot", screenshot))
        return false;
    } else if (is("--render")) {
      if (!takeValue("--render", render))
        return false;
    } else if (is("--window")) {
      QRectF rect;
      if (!takeValue("--window", value))
        return false;
      if (!parseWindow(value, rect)) {
        error = OdString::formatted("--window wants X0,Y0,X1,Y1 in drawing units, not %s.", value);
        return false;
      }
      window = rect;
    } else if (arg.getLength() > 1 && arg.getAt(0) == u'-') {
      error = OdString::formatted("Unknown option %s.", arg);
      return false;
    } else {
      drawings.push_back(arg);
    }
  }
  if (!render.isEmpty() && drawings.empty()) {
    error = "--render needs a drawing to render.";
    return false;
  }
  if (window && render.isEmpty()) {
    error = "--window goes with --render.";
    return false;
  }
  return true;
}

OdString GuiOptions::usage()
{
  return "Usage: verdani [--set KEY=VALUE]... [--size WxH] [--events FILE] [--screenshot FILE]\n"
         "               [--render FILE [--window X0,Y0,X1,Y1]] [DRAWING]...\n"
         "Verdani, the desktop CAD host, with the drawings given open.\n"
         "  --set KEY=VALUE    writes a setting before modules load: ToolPaletteDir,\n"
         "                     CommonDirs, Shx, or a configuration path Folder/Name\n"
         "  --size WxH         the size of the main window in pixels\n"
         "  --events FILE      plays the user events of FILE (typing, clicks, menus,\n"
         "                     screenshots), then ends\n"
         "  --screenshot FILE  saves a picture of the window once it shows, then ends\n"
         "  --render FILE      saves a picture of the first drawing without opening a\n"
         "                     window (the size from --size, 1200x800 by default) and\n"
         "                     prints the part of the drawing it shows\n"
         "  --window X0,Y0,X1,Y1  the part of the drawing --render shows\n";
}
