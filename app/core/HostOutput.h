// The command line's output: what the host and its modules print, passed to
// a sink (standard output unless one is set).
#pragma once

#include "hostsdk/core/HostServices.h"

#include <functional>

class HostOutput : public HostCommandOutput
{
public:
  using Sink = std::function<void(const OdString& text)>;

  // Texts of modules come in the desktop hosts' habit, a new line before the
  // message: at the start of a line that one new line is dropped, so that
  // messages of both habits line up without blank lines between.
  void printText(const OdString& text) override;
  // A whole line: ends the line in progress first.
  void printLine(const OdString& text);
  // Ends the line in progress, if any.
  void finishLine();
  // Tells that the line was ended elsewhere (a user pressed Enter at a
  // prompt on a terminal).
  void markLineStart() { m_atLineStart = true; }

  void setSink(Sink sink) { m_sink = std::move(sink); }

private:
  void writeOut(const QString& text);

  Sink m_sink;
  bool m_atLineStart = true;
};
