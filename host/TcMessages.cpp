// The module's messages.
#include "host/TcMessages.h"

#include "hostsdk/core/HostCore.h"

#include <map>

namespace tc {

namespace {

const std::map<int, const char*>& strings()
{
  static const std::map<int, const char*> table = {
      {129, "Drawing files (*.dxf)|*.dxf|All files (*.*)|*.*||"},
      {130, "Image files (*.png;*.jpg;*.jpeg;*.bmp;*.gif;*.tif;*.tiff)|*.png;*.jpg;*.jpeg;*.bmp;*.gif;*.tif;*.tiff|"
            "All files (*.*)|*.*||"},
      {133, "The tool palette you're loading contains multitools with pop-up menu\nwhich includes drafting and "
            "dimensioning commands.\nThis version doesn't support multitools,\r\n so they will be converted to "
            "regular with current tool."},
      {134, "\nMultitool \"%s\" has been converted to regular."},
      {135, "The tool palette you're loading contains unsupported tools.\nThis version of program doesn't support "
            "\"Visual Style, Light, MLeader,Camera,Table,Text, Separator\" tools,\nso they will be excluded from "
            "tool palette."},
      {136, "Tool Palette Import"},
      {138, "\nExecution canceled. Tool \"%s\" is already running in document \"%s\""},
      {139, "\nDefinition of block \"%s\" is not found in the source file \"%s\""},
      {140, "\nCould not find the original file \"%s\" for block \"%s\""},
  };
  return table;
}

// The message table; "an digit" is the wording of the table.
const std::map<int, const char*>& errors()
{
  static const std::map<int, const char*> table = {
      {129, "Drawing files (*.dxf)|*.dxf|All files (*.*)|*.*||"},
      {130, "Image files (*.png;*.jpg;*.jpeg;*.bmp;*.gif;*.tif;*.tiff)|*.png;*.jpg;*.jpeg;*.bmp;*.gif;*.tif;*.tiff|"
            "All files (*.*)|*.*||"},
      {0, "Value must be an digit."},
      {1, "Error while reading tool palette file."},
      {2, "The drawing has no block definitions."},
      {3, "Error reading file."},
      {4, "Cannot find catalog in the specified folder.\n"},
      {5, "Before you create the tool you need to save the drawing.\n"},
  };
  return table;
}

constexpr unsigned kWarningOk = 48;
// The style of the two import boxes (information icon, OK, on top); a host
// without windows answers them at once.
constexpr unsigned kImportBoxStyle = 285212736;

// The one-time flags "MultitoolConvertMessage" and "UnsupportedToolsMessage":
// 1 once the box has been shown during the current import.
int g_multitoolShown = 0;
int g_unsupportedShown = 0;

void showOnce(int& flag, int textId)
{
  if (flag != 0)
    return;
  hostMessageBox(tcString(textId), tcString(136), kImportBoxStyle & 0xFFu);
  flag = 1; // whatever the user answered
}

} // namespace

OdString tcString(int id)
{
  auto it = strings().find(id);
  return it == strings().end() ? OdString() : Supp_Translate(it->second);
}

OdString messageText(int code, bool showBox)
{
  auto it = errors().find(code);
  if (it == errors().end())
    return OdString();
  const OdString text = Supp_Translate(it->second);
  if (showBox)
    hostMessageBox(text, "Verdani", kWarningOk);
  return text;
}

void showMultitoolMessage()
{
  showOnce(g_multitoolShown, 133);
}

void showUnsupportedToolsMessage()
{
  showOnce(g_unsupportedShown, 135);
}

void resetImportMessageFlags()
{
  g_multitoolShown = 0;
  g_unsupportedShown = 0;
}

} // namespace tc
