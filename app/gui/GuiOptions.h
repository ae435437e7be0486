// The command line of verdani, the desktop program:
//   verdani [--set KEY=VALUE]... [--size WxH] [--events FILE] [--screenshot FILE]
//           [--render FILE [--window X0,Y0,X1,Y1]] [DRAWING]...
#pragma once

#include "sdk/kernel/OdString.h"

#include <QRectF>
#include <QSize>

#include <optional>
#include <vector>

struct GuiOptions
{
  std::vector<OdString> settings; // "KEY=VALUE", in the order given
  std::vector<OdString> drawings;
  QSize size;               // of the main window; empty: what it had last
  OdString events;          // a script of user events to play
  OdString screenshot;      // a picture of the window to take, then exit
  OdString render;          // a picture of the first drawing, without windows
  std::optional<QRectF> window; // the part of the drawing to render
  bool help = false;

  // False with a message that says what is wrong.
  bool parse(const std::vector<OdString>& arguments, OdString& error);
  static OdString usage();
};
