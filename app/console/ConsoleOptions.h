// The command line of verdani-console:
//   verdani-console [--set KEY=VALUE]... [--script FILE] [DRAWING]
#pragma once

#include "sdk/kernel/OdString.h"

#include <vector>

struct ConsoleOptions
{
  std::vector<OdString> settings; // "KEY=VALUE", in the order given
  OdString script;                // empty: standard input
  OdString drawing;
  bool help = false;

  // False with a message that says what is wrong and what to type instead.
  bool parse(const std::vector<OdString>& arguments, OdString& error);
  static OdString usage();
};
