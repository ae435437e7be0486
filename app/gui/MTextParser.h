// The inline format codes of multi-line text: paragraphs of runs, each run
// with its font, height, width factor and colour.
#pragma once

#include "sdk/db/OdCmColor.h"

#include <QString>

#include <optional>
#include <vector>

struct MTextRun
{
  QString text;
  double height = 1.0;       // in drawing units
  double widthFactor = 1.0;
  double oblique = 0.0;      // radians
  QString family;            // empty: the text style's
  bool bold = false, italic = false, underline = false;
  std::optional<OdCmColor> color;
};

using MTextParagraph = std::vector<MTextRun>;

namespace MTextParser {

// Splits the contents at "\P" (and column breaks) and at every change of
// format; `height` is the text's own height, which "\H" changes.
std::vector<MTextParagraph> parse(const QString& contents, double height);
// The special codes of single-line text: %%c, %%d, %%p, %%nnn; %%u and
// %%o (under- and overline) are dropped.
QString decodeSpecialCodes(const QString& text);

} // namespace MTextParser
