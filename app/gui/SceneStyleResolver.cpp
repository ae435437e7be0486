// Resolving the look of entities.
#include "app/gui/SceneStyleResolver.h"

#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbEntity.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"

#include <cmath>

namespace {

constexpr int kDefaultLineWeight = 25; // hundredths of a millimetre

bool sameAscii(std::string_view a, std::string_view b)
{
  if (a.size() != b.size())
    return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if ((a[i] | 0x20) != (b[i] | 0x20))
      return false;
  return true;
}

} // namespace

SceneStyleResolver::SceneStyleResolver(OdDbDatabase* db, QRgb foreground) : m_db(db), m_foreground(foreground)
{
  if (m_db) {
    m_ltscale = m_db->getLTSCALE();
    if (m_ltscale <= 0)
      m_ltscale = 1.0;
  }
}

QRgb SceneStyleResolver::rgb(const OdCmColor& color) const
{
  // Index 7 is the colour that stands out from the background.
  if (color.isForeground() || (color.isByACI() && color.colorIndex() == 7))
    return m_foreground;
  const std::uint32_t v = color.rgb();
  return qRgb(int(v >> 16) & 0xFF, int(v >> 8) & 0xFF, int(v) & 0xFF);
}

const SceneLayer* SceneStyleResolver::layer(std::string_view text)
{
  auto known = m_layerByText.find(text);
  if (known != m_layerByText.end())
    return known->second;
  const OdString name = OdDxf::toOdString(text);
  const QString key = name.qstring().toCaseFolded();
  auto it = m_layers.find(key);
  if (it == m_layers.end()) {
    auto l = std::make_unique<SceneLayer>();
    l->color = m_foreground;
    l->pattern = &m_continuous;
    OdDbLayerTableRecordPtr record;
    if (m_db)
      record = OdDbLayerTableRecord::cast(m_db->recordId(m_db->getLayerTableId(), name).openObject());
    if (record.get()) {
      OdCmColor c = record->color();
      // An off layer keeps its colour as a negative index.
      if (c.isByACI() && c.colorIndex() < 0)
        c.setColorIndex(std::int16_t(-c.colorIndex()));
      l->color = rgb(c);
      l->off = record->isOff();
      l->frozen = record->isFrozen();
      l->pattern = pattern(record->rawValue(OdDbLayerTableRecord::kSub, 6, "Continuous"));
      l->lineWeight = record->lineWeight();
    }
    it = m_layers.emplace(key, std::move(l)).first;
  }
  m_layerByText.emplace(text, it->second.get());
  return it->second.get();
}

const ScenePattern* SceneStyleResolver::pattern(std::string_view text)
{
  auto known = m_patternByText.find(text);
  if (known != m_patternByText.end())
    return known->second;
  const ScenePattern* found = &m_continuous;
  if (!sameAscii(text, "Continuous") && m_db) {
    const OdString name = OdDxf::toOdString(text);
    const QString key = name.qstring().toCaseFolded();
    auto it = m_patterns.find(key);
    if (it == m_patterns.end()) {
      auto dashes = std::make_unique<ScenePattern>();
      OdDbLinetypeTableRecordPtr record =
          OdDbLinetypeTableRecord::cast(m_db->recordId(m_db->getLinetypeTableId(), name).openObject());
      if (record.get())
        for (const auto& d : record->dashes())
          dashes->push_back(d.length);
      it = m_patterns.emplace(key, std::move(dashes)).first;
    }
    found = it->second.get();
  }
  m_patternByText.emplace(text, found);
  return found;
}

SceneLook SceneStyleResolver::look(const OdDbEntity& entity, const SceneInherit& parent)
{
  SceneLook out;
  const std::string_view layerName = entity.rawValue(OdDbEntity::kSub, 8, "0");
  // Entities on layer "0" inside a block take the reference's layer.
  const SceneLayer* l = parent.inBlock && parent.layer && layerName == "0" ? parent.layer : layer(layerName);
  out.layer = l;
  out.visible = !l->off && !l->frozen && entity.visibility() == OdDb::kVisible;

  const OdCmColor c = entity.color();
  if (c.isByLayer())
    out.color = l->color;
  else if (c.isByBlock())
    out.color = parent.inBlock ? parent.color : m_foreground;
  else
    out.color = rgb(c);

  const std::string_view lt = entity.rawValue(OdDbEntity::kSub, 6, "ByLayer");
  if (sameAscii(lt, "ByLayer"))
    out.pattern = l->pattern;
  else if (sameAscii(lt, "ByBlock"))
    out.pattern = parent.inBlock && parent.pattern ? parent.pattern : &m_continuous;
  else
    out.pattern = pattern(lt);

  int lw = entity.lineWeight();
  if (lw == OdDb::kLnWtByLayer)
    lw = l->lineWeight;
  else if (lw == OdDb::kLnWtByBlock)
    lw = parent.inBlock ? parent.lineWeight : kDefaultLineWeight;
  out.lineWeight = lw < 0 ? kDefaultLineWeight : lw;

  out.linetypeScale = entity.linetypeScale() * (parent.inBlock ? parent.linetypeScale : m_ltscale);
  return out;
}

float SceneStyleResolver::widthPixels(int lineWeight)
{
  // Millimetres at 96 pixels an inch; what would be a pixel or less stays
  // the thinnest line.
  const double px = lineWeight / 100.0 * 96.0 / 25.4;
  return px < 1.5 ? 0.0f : float(std::round(px));
}
