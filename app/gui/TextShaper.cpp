// Laying out text.
#include "app/gui/TextShaper.h"

#include "app/gui/MTextParser.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbText.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"

#include <QFileInfo>
#include <QFontMetricsF>

#include <cmath>

namespace {

// The drawing programs' single-stroke fonts have no outline counterpart
// here; a plain sans face of the same proportions stands in for them.
const char* const kStrokeFontStandIn = "DejaVu Sans";

struct Metrics
{
  double cap, ascent, descent;
};

Metrics metricsOf(const QFont& font)
{
  const QFontMetricsF fm(font);
  return {fm.capHeight() > 0 ? fm.capHeight() : fm.ascent() * 0.7, fm.ascent(), fm.descent()};
}

// A run's own box: from the baseline up by the ascent, down by the descent.
QRectF runBox(double advance, const Metrics& m)
{
  return QRectF(0, -m.ascent, advance, m.ascent + m.descent);
}

} // namespace

QFont TextShaper::fontFor(const OdString& fileName, const OdString& typeface, bool bold, bool italic)
{
  QString family = typeface.qstring();
  if (family.isEmpty()) {
    const QFileInfo file(fileName.qstring());
    const QString suffix = file.suffix().toLower();
    family = (suffix == QLatin1String("ttf") || suffix == QLatin1String("otf") || suffix == QLatin1String("ttc"))
                 ? file.completeBaseName()
                 : QString::fromLatin1(kStrokeFontStandIn);
  }
  QFont font(family);
  font.setPixelSize(int(kReferencePixels));
  font.setBold(bold);
  font.setItalic(italic);
  font.setStyleStrategy(QFont::PreferOutline);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setKerning(true);
  return font;
}

const TextShaper::Style& TextShaper::style(std::string_view text)
{
  auto known = m_styleByText.find(text);
  if (known != m_styleByText.end())
    return *known->second;
  const OdString name = OdDxf::toOdString(text);
  const QString key = name.qstring().toCaseFolded();
  auto it = m_styles.find(key);
  if (it == m_styles.end()) {
    auto s = std::make_unique<Style>();
    OdString typeface;
    bool bold = false, italic = false;
    OdString file;
    OdDbTextStyleTableRecordPtr record;
    if (m_db)
      record = OdDbTextStyleTableRecord::cast(m_db->recordId(m_db->getTextStyleTableId(), name).openObject());
    if (record.get()) {
      int charset = 0, pitch = 0;
      record->font(typeface, bold, italic, charset, pitch);
      file = record->fileName();
      s->widthFactor = record->xScale() > 0 ? record->xScale() : 1.0;
      s->oblique = record->obliquingAngle();
      s->fixedHeight = record->textSize();
      s->backwards = record->isBackwards();
      s->upsideDown = record->isUpsideDown();
    }
    s->font = fontFor(file, typeface, bold, italic);
    s->metrics = std::make_unique<QFontMetricsF>(s->font);
    const Metrics m = metricsOf(s->font);
    s->cap = m.cap;
    s->ascent = m.ascent;
    s->descent = m.descent;
    it = m_styles.emplace(key, std::move(s)).first;
  }
  m_styleByText.emplace(text, it->second.get());
  return *it->second;
}

std::vector<ShapedText> TextShaper::text(const OdDbText& t, const Affine3& toWorld, const QString* shown)
{
  const QString string = MTextParser::decodeSpecialCodes(shown ? *shown : t.textString().qstring());
  if (string.trimmed().isEmpty())
    return {};
  const Style& st = style(t.rawValue(OdDbText::kSub, 7, "Standard"));
  double height = t.height();
  if (height <= 0)
    height = st.fixedHeight > 0 ? st.fixedHeight : (m_db ? m_db->getHeaderDouble("$TEXTSIZE", 2.5) : 2.5);
  const Metrics m{st.cap, st.ascent, st.descent};
  const double advance = st.metrics->horizontalAdvance(string);
  if (advance <= 0 || m.cap <= 0)
    return {};

  double widthFactor = t.findPair(OdDbText::kSub, 41) >= 0 ? t.widthFactor() : st.widthFactor;
  if (widthFactor <= 0)
    widthFactor = 1.0;
  double scale = height / m.cap; // drawing units per reference pixel
  double rotation = t.rotation();
  const OdGePoint3d p1 = t.position(), p2 = t.alignmentPoint();
  const int h = t.horizontalMode(), v = t.verticalMode();
  OdGePoint3d anchor = (h == 0 && v == 0) ? p1 : p2;
  double ax = 0.0, ay = 0.0; // the anchor in the run's own coordinates
  if (h == 3 || h == 5) {
    // Aligned and fit run from the first to the second point.
    const double dx = p2.x - p1.x, dy = p2.y - p1.y, length = std::hypot(dx, dy);
    if (length > 0) {
      rotation = std::atan2(dy, dx);
      if (h == 3)
        scale = length / (advance * widthFactor);
      else
        widthFactor = length / (advance * scale);
    }
    anchor = p1;
  } else {
    ax = h == 1 || h == 4 ? advance / 2 : h == 2 ? advance : 0.0;
    const int vertical = h == 4 ? 2 : v;
    ay = vertical == 1 ? m.descent : vertical == 2 ? -m.cap / 2 : vertical == 3 ? -m.cap : 0.0;
  }
  const bool backwards = (t.getInt(OdDbText::kSub, 71, st.backwards ? 2 : 0) & 2) != 0;
  const bool upsideDown = (t.getInt(OdDbText::kSub, 71, st.upsideDown ? 4 : 0) & 4) != 0;
  double oblique = t.findPair(OdDbText::kSub, 51) >= 0 ? t.oblique() : st.oblique;

  const QTransform plane = (toWorld * Affine3::ocs(t.normal())).planeTransform(anchor.z);
  QTransform local;
  local.translate(anchor.x, anchor.y);
  local.rotateRadians(rotation);
  local.shear(std::tan(oblique), 0);
  local.scale(scale * widthFactor * (backwards ? -1 : 1), -scale * (upsideDown ? -1 : 1));
  local.translate(-ax, -ay);

  ShapedText out;
  out.run.text = string;
  out.run.font = st.font;
  out.run.toWorld = local * plane;
  out.run.box = runBox(advance, m);
  out.run.capHeight = m.cap;
  return {out};
}

std::vector<ShapedText> TextShaper::mtext(const OdDbMText& t, const Affine3& toWorld)
{
  const Style& st = style(t.rawValue(OdDbMText::kSub, 7, "Standard"));
  double height = t.textHeight();
  if (height <= 0)
    height = st.fixedHeight > 0 ? st.fixedHeight : 2.5;
  const std::vector<MTextParagraph> paragraphs = MTextParser::parse(t.contents().qstring(), height);

  // One piece of a run: text measured in its own font.
  struct Piece
  {
    MTextRun run;
    QFont font;
    Metrics metrics;
    double scale = 1.0, advance = 0.0, width = 0.0; // width in drawing units
    bool isSpace = false;
    int runId = 0; // pieces of one run on one line are drawn as one
  };
  struct Line
  {
    std::vector<Piece> pieces;
    double width = 0.0, height = 0.0;
  };
  auto measure = [&](const MTextRun& run, const QString& text) {
    Piece p;
    p.run = run;
    p.run.text = text;
    p.font = run.family.isEmpty() ? st.font : fontFor(OdString(), OdString(run.family), run.bold, run.italic);
    if (run.family.isEmpty()) {
      p.font.setBold(run.bold || st.font.bold());
      p.font.setItalic(run.italic || st.font.italic());
    }
    const bool plainFont = run.family.isEmpty() && !run.bold && !run.italic;
    p.metrics = plainFont ? Metrics{st.cap, st.ascent, st.descent} : metricsOf(p.font);
    p.scale = run.height / p.metrics.cap;
    p.advance = plainFont ? st.metrics->horizontalAdvance(text) : QFontMetricsF(p.font).horizontalAdvance(text);
    p.width = p.advance * p.scale * run.widthFactor * st.widthFactor;
    p.isSpace = text.trimmed().isEmpty();
    return p;
  };

  const double wrap = t.width();
  std::vector<Line> lines;
  int runId = 0;
  for (const MTextParagraph& paragraph : paragraphs) {
    lines.emplace_back();
    for (const MTextRun& run : paragraph) {
      ++runId;
      // Words keep their following blanks, so that a line can break after them.
      QString word;
      auto place = [&](const QString& text) {
        Piece p = measure(run, text);
        p.runId = runId;
        Line* line = &lines.back();
        if (wrap > 0 && !line->pieces.empty() && line->width + p.width > wrap * 1.0001 && !p.isSpace) {
          lines.emplace_back();
          line = &lines.back();
        }
        line->width += p.width;
        line->height = std::max(line->height, run.height);
        line->pieces.push_back(p);
      };
      for (const QChar c : run.text) {
        word += c;
        if (c == u' ') {
          place(word);
          word.clear();
        }
      }
      if (!word.isEmpty())
        place(word);
    }
  }
  // Blanks at the end of a line take no room.
  for (Line& line : lines) {
    while (!line.pieces.empty() && line.pieces.back().isSpace) {
      line.width -= line.pieces.back().width;
      line.pieces.pop_back();
    }
    if (line.height <= 0)
      line.height = height;
  }

  // Lines go down from the top at 5/3 of their height, times the factor.
  const double factor = t.lineSpacingFactor() > 0 ? t.lineSpacingFactor() : 1.0;
  std::vector<double> baselines;
  double y = 0.0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    y -= i == 0 ? lines[i].height : lines[i].height * 5.0 / 3.0 * factor;
    baselines.push_back(y);
  }
  const double total = -y;
  const int attachment = int(t.attachment());
  const int column = (attachment - 1) % 3; // 0 left, 1 centre, 2 right
  const int row = (attachment - 1) / 3;    // 0 top, 1 middle, 2 bottom
  const double shiftY = row == 1 ? total / 2 : row == 2 ? total : 0.0;

  // The text's plane: its insertion point and x direction are in the world
  // of its block; the direction wins over the rotation when both are there.
  const OdGePoint3d insertion = t.location();
  OdGeVector3d xdir;
  if (t.findPair(OdDbMText::kSub, 11) >= 0 && t.direction().length() > 0) {
    xdir = t.direction();
  } else {
    const double angle = t.rotation() * M_PI / 180.0; // degrees, whatever the reference says
    xdir = Affine3::ocs(t.getVector(OdDbMText::kSub, 210, OdGeVector3d::kZAxis)).applyLinear(OdGeVector3d(std::cos(angle), std::sin(angle), 0));
  }
  const OdGeVector3d n = t.getVector(OdDbMText::kSub, 210, OdGeVector3d::kZAxis);
  const OdGeVector3d ydir(n.y * xdir.z - n.z * xdir.y, n.z * xdir.x - n.x * xdir.z, n.x * xdir.y - n.y * xdir.x);
  const double xl = xdir.length(), yl = ydir.length();
  const OdGeVector3d ux = xl > 0 ? xdir * (1 / xl) : OdGeVector3d::kXAxis;
  const OdGeVector3d uy = yl > 0 ? ydir * (1 / yl) : OdGeVector3d::kYAxis;
  const OdGePoint3d o = toWorld.apply(insertion);
  const OdGeVector3d wx = toWorld.applyLinear(ux), wy = toWorld.applyLinear(uy);
  const QTransform plane(wx.x, wx.y, wy.x, wy.y, o.x, o.y);

  std::vector<ShapedText> out;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const Line& line = lines[i];
    double x = column == 1 ? -line.width / 2 : column == 2 ? -line.width : 0.0;
    for (std::size_t k = 0; k < line.pieces.size();) {
      // The pieces of one run, joined again.
      const Piece& p = line.pieces[k];
      QString text = p.run.text;
      double advance = p.advance, width = p.width;
      std::size_t next = k + 1;
      for (; next < line.pieces.size() && line.pieces[next].runId == p.runId; ++next) {
        text += line.pieces[next].run.text;
        advance += line.pieces[next].advance;
        width += line.pieces[next].width;
      }
      if (!text.trimmed().isEmpty()) {
        QTransform local;
        local.translate(x, baselines[i] + shiftY);
        local.shear(std::tan(p.run.oblique + st.oblique), 0);
        local.scale(p.scale * p.run.widthFactor * st.widthFactor, -p.scale);
        ShapedText s;
        s.run.text = text;
        s.run.font = p.font;
        s.run.toWorld = local * plane;
        s.run.box = runBox(advance, p.metrics);
        s.run.capHeight = p.metrics.cap;
        s.run.underline = p.run.underline;
        s.color = p.run.color;
        out.push_back(std::move(s));
      }
      x += width;
      k = next;
    }
  }
  return out;
}
