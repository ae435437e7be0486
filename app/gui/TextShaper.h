// Text and multi-line text laid out as runs of glyphs in the world: fonts
// from the drawing's text styles, heights, width factors, slants,
// alignments, mirroring, and the inline formats of multi-line text with
// their word wrap.
#pragma once

#include "app/gui/SceneGeometry.h"
#include "app/gui/SceneTypes.h"
#include "sdk/db/OdCmColor.h"

#include <QHash>

#include <optional>

class OdDbDatabase;
class OdDbMText;
class OdDbText;

struct ShapedText
{
  SceneText run;
  std::optional<OdCmColor> color; // set where the text's format says so
};

class TextShaper
{
public:
  // Fonts are laid out at this size in pixels and scaled into the world.
  static constexpr double kReferencePixels = 100.0;

  explicit TextShaper(OdDbDatabase* db) : m_db(db) {}

  // TEXT, ATTRIB and ATTDEF; `toWorld` maps the block the text is in.
  // `shown`, when given, is drawn instead of the text's own string (an
  // attribute definition shows its tag).
  std::vector<ShapedText> text(const OdDbText& text, const Affine3& toWorld, const QString* shown = nullptr);
  std::vector<ShapedText> mtext(const OdDbMText& text, const Affine3& toWorld);

private:
  struct Style
  {
    QFont font;
    double capRatio = 0.7;     // cap height per pixel of the font's size
    double descentRatio = 0.2;
    double widthFactor = 1.0;
    double oblique = 0.0;
    double fixedHeight = 0.0;
    bool backwards = false, upsideDown = false;
  };
  const Style& style(const OdString& name);
  static QFont fontFor(const OdString& fileName, const OdString& typeface, bool bold, bool italic);

  OdDbDatabase* m_db;
  QHash<QString, Style> m_styles; // by case-folded name
};
