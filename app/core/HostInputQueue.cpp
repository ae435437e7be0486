// Splitting typed text into inputs.
#include "app/core/HostInputQueue.h"

namespace {
// Cancel in the queue: the control character that Ctrl+C types.
constexpr QChar kCancelMark(u'\x03');
} // namespace

void HostInputQueue::append(const OdString& text)
{
  QString s = text.qstring();
  if (m_caretWaits) {
    s.prepend(u'^');
    m_caretWaits = false;
  }
  for (qsizetype i = 0; i < s.size(); ++i) {
    const QChar c = s.at(i);
    if (c == u'^' && i + 1 == s.size()) {
      m_caretWaits = true;
      break;
    }
    if (c == u'^') {
      const QChar next = s.at(i + 1);
      if (next == u'C' || next == u'c') {
        m_text += kCancelMark;
        ++i;
        continue;
      }
      if (next == u'M' || next == u'm') {
        m_text += u'\n';
        ++i;
        continue;
      }
    }
    if (c == u'\r') {
      m_text += u'\n';
      if (i + 1 < s.size() && s.at(i + 1) == u'\n')
        ++i;
      continue;
    }
    m_text += c;
  }
}

int HostInputQueue::terminatorOf(bool allowSpaces) const
{
  bool quoted = false;
  for (qsizetype i = 0; i < m_text.size(); ++i) {
    const QChar c = m_text.at(i);
    if (c == kCancelMark || c == u'\n')
      return int(i);
    if (c == u'"')
      quoted = !quoted;
    else if (c == u' ' && !allowSpaces && !quoted)
      return int(i);
  }
  return -1;
}

bool HostInputQueue::hasInput(bool allowSpaces) const
{
  return terminatorOf(allowSpaces) >= 0;
}

HostInputQueue::Kind HostInputQueue::read(bool allowSpaces, OdString& out)
{
  out = OdString();
  const int end = terminatorOf(allowSpaces);
  if (end < 0)
    return kNone;
  const bool cancel = m_text.at(end) == kCancelMark;
  if (!cancel)
    out = OdString(m_text.left(end));
  m_text.remove(0, end + 1);
  return cancel ? kCancel : kText;
}

OdString HostInputQueue::pending() const
{
  QString s = m_text;
  s.replace(kCancelMark, QStringLiteral("^C"));
  return OdString(s);
}
