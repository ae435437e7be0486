// Text and multi-line text laid out as runs of glyphs in the world: fonts
// from the drawing's text styles, heights, width factors, slants,
// alignments, mirroring, and the inline formats of multi-line text with
// their word wrap.
#pragma once

#include "app/gui/SceneGeometry.h"
#include "app/gui/SceneTypes.h"
#include "sdk/db/OdCmColor.h"

#include <QFontMetricsF>

#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>

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
    std::unique_ptr<QFontMetricsF> metrics;
    double cap = 70, ascent = 90, descent = 20; // at the reference size
    double widthFactor = 1.0;
    double oblique = 0.0;
    double fixedHeight = 0.0;
    bool backwards = false, upsideDown = false;
  };
  // By the bytes the text names its style with, as entities repeat them.
  const Style& style(std::string_view name);
  static QFont fontFor(const OdString& fileName, const OdString& typeface, bool bold, bool italic);

  OdDbDatabase* m_db;
  std::unordered_map<std::string_view, const Style*> m_styleByText;
  std::unordered_map<QString, std::unique_ptr<Style>> m_styles; // by case-folded name
};
