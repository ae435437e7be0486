// Reading the format codes of multi-line text.
#include "app/gui/MTextParser.h"

#include <QStringList>

#include <cmath>

namespace {

struct Format
{
  double height = 1.0, widthFactor = 1.0, oblique = 0.0;
  QString family;
  bool bold = false, italic = false, underline = false;
  std::optional<OdCmColor> color;
};

class Parser
{
public:
  Parser(const QString& s, double height) : m_s(s)
  {
    m_format.height = height;
    m_paragraphs.emplace_back();
  }

  std::vector<MTextParagraph> run()
  {
    std::vector<Format> stack;
    while (m_i < m_s.size()) {
      const QChar c = m_s.at(m_i++);
      if (c == u'{') {
        flush();
        stack.push_back(m_format);
      } else if (c == u'}') {
        flush();
        if (!stack.empty()) {
          m_format = stack.back();
          stack.pop_back();
        }
      } else if (c == u'\\' && m_i < m_s.size()) {
        escape(m_s.at(m_i++));
      } else if (c == u'%' && m_i + 1 < m_s.size() && m_s.at(m_i) == u'%') {
        // Single-line text's codes work here too.
        m_text += MTextParser::decodeSpecialCodes(m_s.mid(m_i - 1, 3));
        m_i += 2;
      } else if (c == u'^' && m_i < m_s.size()) {
        // A control character in the format's caret notation: ^J is a new
        // line, ^I a tab, "^ " the caret itself.
        const QChar next = m_s.at(m_i++);
        if (next == u'J')
          newParagraph();
        else if (next == u'I')
          m_text += QStringLiteral("    ");
        else if (next == u' ')
          m_text += u'^';
      } else if (c == u'\n') {
        newParagraph();
      } else {
        m_text += c;
      }
    }
    flush();
    return m_paragraphs;
  }

private:
  // The text up to ';' after a code, which it ends.
  QString argument()
  {
    const qsizetype end = m_s.indexOf(u';', m_i);
    const QString a = m_s.mid(m_i, end < 0 ? -1 : end - m_i);
    m_i = end < 0 ? m_s.size() : end + 1;
    return a;
  }

  void escape(QChar code)
  {
    switch (code.unicode()) {
    case u'P':
    case u'N': newParagraph(); break;
    case u'~': m_text += QChar(0x00A0); break;
    case u'\\':
    case u'{':
    case u'}': m_text += code; break;
    case u'f':
    case u'F': {
      flush();
      const QStringList parts = argument().split(u'|');
      m_format.family = parts.value(0);
      for (const QString& p : parts.mid(1)) {
        if (p.startsWith(u'b'))
          m_format.bold = p.mid(1).toInt() != 0;
        else if (p.startsWith(u'i'))
          m_format.italic = p.mid(1).toInt() != 0;
      }
      break;
    }
    case u'H': {
      flush();
      QString a = argument();
      const bool relative = a.endsWith(u'x') || a.endsWith(u'X');
      if (relative)
        a.chop(1);
      bool ok = false;
      const double v = a.toDouble(&ok);
      if (ok && v > 0)
        m_format.height = relative ? m_format.height * v : v;
      break;
    }
    case u'W': {
      flush();
      QString a = argument();
      if (a.endsWith(u'x'))
        a.chop(1);
      bool ok = false;
      const double v = a.toDouble(&ok);
      if (ok && v > 0)
        m_format.widthFactor = v;
      break;
    }
    case u'Q': {
      flush();
      bool ok = false;
      const double v = argument().toDouble(&ok);
      if (ok)
        m_format.oblique = v * M_PI / 180.0;
      break;
    }
    case u'C': {
      flush();
      OdCmColor c;
      c.setColorIndex(std::int16_t(argument().toInt()));
      m_format.color = c;
      break;
    }
    case u'c': {
      flush();
      // A true colour, packed 0xBBGGRR as the format writes it.
      const unsigned v = argument().toUInt();
      OdCmColor c;
      c.setRGB(std::uint8_t(v), std::uint8_t(v >> 8), std::uint8_t(v >> 16));
      m_format.color = c;
      break;
    }
    case u'L': flush(); m_format.underline = true; break;
    case u'l': flush(); m_format.underline = false; break;
    case u'S': {
      // Stacked text "a^b", "a/b" or "a#b" shows as a/b on the line.
      QString a = argument();
      a.replace(u'^', u'/').replace(u'#', u'/');
      m_text += a;
      break;
    }
    case u'A':
    case u'T':
    case u'p':
    case u'X':
      argument(); // alignment, tracking, paragraph shape: not drawn
      break;
    default: break; // over- and strike-through marks and the like
    }
  }

  void flush()
  {
    if (m_text.isEmpty())
      return;
    MTextRun r;
    r.text = m_text;
    r.height = m_format.height;
    r.widthFactor = m_format.widthFactor;
    r.oblique = m_format.oblique;
    r.family = m_format.family;
    r.bold = m_format.bold;
    r.italic = m_format.italic;
    r.underline = m_format.underline;
    r.color = m_format.color;
    m_paragraphs.back().push_back(r);
    m_text.clear();
  }

  void newParagraph()
  {
    flush();
    m_paragraphs.emplace_back();
  }

  const QString& m_s;
  qsizetype m_i = 0;
  Format m_format;
  QString m_text;
  std::vector<MTextParagraph> m_paragraphs;
};

} // namespace

namespace MTextParser {

std::vector<MTextParagraph> parse(const QString& contents, double height)
{
  return Parser(contents, height).run();
}

QString decodeSpecialCodes(const QString& text)
{
  if (!text.contains(QStringLiteral("%%")))
    return text;
  QString out;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text.at(i) != u'%' || i + 2 >= text.size() || text.at(i + 1) != u'%') {
      out += text.at(i);
      continue;
    }
    const QChar code = text.at(i + 2).toLower();
    if (code == u'c')
      out += QChar(0x2300);
    else if (code == u'd')
      out += QChar(0x00B0);
    else if (code == u'p')
      out += QChar(0x00B1);
    else if (code == u'%')
      out += u'%';
    else if (code.isDigit()) {
      qsizetype j = i + 2;
      int value = 0;
      while (j < text.size() && j < i + 5 && text.at(j).isDigit())
        value = value * 10 + text.at(j++).digitValue();
      out += QChar(value);
      i = j - 1;
      continue;
    } else if (code != u'u' && code != u'o' && code != u'k')
      out += text.mid(i, 3);
    i += 2;
  }
  return out;
}

} // namespace MTextParser
