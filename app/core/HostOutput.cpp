// Command-line output.
#include "app/core/HostOutput.h"

#include <cstdio>

void HostOutput::writeOut(const QString& text)
{
  if (text.isEmpty())
    return;
  m_atLineStart = text.endsWith(u'\n');
  if (m_sink) {
    m_sink(OdString(text));
  } else {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout);
    std::fflush(stdout);
  }
}

void HostOutput::printText(const OdString& text)
{
  QString s = text.qstring();
  if (m_atLineStart && s.startsWith(u'\n'))
    s.remove(0, 1);
  writeOut(s);
}

void HostOutput::printLine(const OdString& text)
{
  finishLine();
  writeOut(text.qstring() + u'\n');
}

void HostOutput::finishLine()
{
  if (!m_atLineStart)
    writeOut(QStringLiteral("\n"));
}
