// Resolving the look of entities.
#include "app/gui/SceneStyleResolver.h"

#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbEntity.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"

#include <cmath>

namespace {
constexpr int kDefaultLineWeight = 25; // hundredths of a millimetre
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

const SceneStyleResolver::Layer& SceneStyleResolver::layer(const QString& name)
{
  const QString key = name.toCaseFolded();
  auto it = m_layers.constFind(key);
  if (it != m_layers.constEnd())
    return *it;
  Layer l;
  l.color = m_foreground;
  l.linetype = "Continuous";
  OdDbLayerTableRecordPtr record;
  if (m_db)
    record = OdDbLayerTableRecord::cast(m_db->recordId(m_db->getLayerTableId(), OdString(name)).openObject());
  if (record.get()) {
    OdCmColor c = record->color();
    // An off layer keeps its colour as a negative index.
    if (c.isByACI() && c.colorIndex() < 0)
      c.setColorIndex(std::int16_t(-c.colorIndex()));
    l.color = rgb(c);
    l.off = record->isOff();
    l.frozen = record->isFrozen();
    l.linetype = record->linetypeName();
    l.lineWeight = record->lineWeight();
  }
  return *m_layers.insert(key, l);
}

bool SceneStyleResolver::isFrozen(const QString& name)
{
  return layer(name).frozen;
}

SceneLook SceneStyleResolver::look(const OdDbEntity& entity, const SceneInherit& parent)
{
  SceneLook out;
  QString name = entity.layer().qstring();
  // Entities on layer "0" inside a block take the reference's layer.
  if (parent.inBlock && name == QLatin1String("0"))
    name = parent.layer;
  out.layer = name;
  const Layer& l = layer(name);
  out.visible = !l.off && !l.frozen && entity.visibility() == OdDb::kVisible;

  const OdCmColor c = entity.color();
  if (c.isByLayer())
    out.color = l.color;
  else if (c.isByBlock())
    out.color = parent.inBlock ? parent.color : m_foreground;
  else
    out.color = rgb(c);

  const OdString lt = entity.linetype();
  if (lt.iCompare("ByLayer") == 0)
    out.linetype = l.linetype;
  else if (lt.iCompare("ByBlock") == 0)
    out.linetype = parent.inBlock ? parent.linetype : OdString("Continuous");
  else
    out.linetype = lt;

  int lw = entity.lineWeight();
  if (lw == OdDb::kLnWtByLayer)
    lw = l.lineWeight;
  else if (lw == OdDb::kLnWtByBlock)
    lw = parent.inBlock ? parent.lineWeight : kDefaultLineWeight;
  out.lineWeight = lw < 0 ? kDefaultLineWeight : lw;

  out.linetypeScale = entity.linetypeScale() * (parent.inBlock ? parent.linetypeScale : m_ltscale);
  return out;
}

const std::vector<double>& SceneStyleResolver::pattern(const OdString& linetype)
{
  const QString key = linetype.qstring().toCaseFolded();
  auto it = m_patterns.constFind(key);
  if (it != m_patterns.constEnd())
    return *it;
  std::vector<double> dashes;
  OdDbLinetypeTableRecordPtr record;
  if (m_db && !linetype.isEmpty() && linetype.iCompare("Continuous") != 0)
    record = OdDbLinetypeTableRecord::cast(m_db->recordId(m_db->getLinetypeTableId(), linetype).openObject());
  if (record.get()) {
    for (const auto& d : record->dashes())
      dashes.push_back(d.length);
  }
  return *m_patterns.insert(key, dashes);
}

float SceneStyleResolver::widthPixels(int lineWeight)
{
  // Millimetres at 96 pixels an inch; what would be a pixel or less stays
  // the thinnest line.
  const double px = lineWeight / 100.0 * 96.0 / 25.4;
  return px < 1.5 ? 0.0f : float(std::round(px));
}
