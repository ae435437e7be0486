// The text waiting on the command line, in the host's macro notation: "^C"
// cancels, "^M" or a new line is Enter, and a space ends an input that does
// not allow spaces.
#pragma once

#include "sdk/kernel/OdString.h"

class HostInputQueue
{
public:
  enum Kind
  {
    kNone,   // no complete input waits
    kText,   // an input, without its terminator
    kCancel  // "^C"; any text typed before it in the same input is dropped
  };

  // Appends typed text. "^C" and "^M" are read here, so that a later read
  // sees them whole whatever the pieces the text came in.
  void append(const OdString& text);
  // Takes the next input. With `allowSpaces` only Enter ends it; otherwise a
  // space does too, except inside double quotes (which stay in the text).
  Kind read(bool allowSpaces, OdString& out);
  // Whether a complete input or a cancel waits.
  bool hasInput(bool allowSpaces) const;
  bool isEmpty() const { return m_text.isEmpty(); }
  void clear()
  {
    m_text.clear();
    m_caretWaits = false;
  }
  // What is queued, with cancels shown as "^C" and Enter as a new line.
  OdString pending() const;

private:
  // The end of the next input: index of its terminator, or -1.
  int terminatorOf(bool allowSpaces) const;

  QString m_text;            // Enter kept as '\n', cancel as kCancelMark
  bool m_caretWaits = false; // a piece ended in "^": the next one says what it is
};
