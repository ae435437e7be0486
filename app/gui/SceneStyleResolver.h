// How an entity looks: its colour, linetype and lineweight resolved through
// its layer and, inside a block, through the reference that shows it; and
// whether its layer lets it be seen at all. Names are resolved once per
// build: entities name their layers and linetypes by the same texts.
#pragma once

#include "sdk/db/OdCmColor.h"

#include <QColor>
#include <QString>

#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

class OdDbDatabase;
class OdDbEntity;

// A dash pattern in drawing units before scaling; empty: continuous.
using ScenePattern = std::vector<double>;

struct SceneLayer
{
  QRgb color = 0;
  bool off = false, frozen = false;
  const ScenePattern* pattern = nullptr;
  int lineWeight = -3;
};

// What a block reference hands down to the entities of its block: the
// values ByBlock stands for, and its layer for the entities on layer "0".
struct SceneInherit
{
  bool inBlock = false;
  const SceneLayer* layer = nullptr;
  QRgb color = 0;
  const ScenePattern* pattern = nullptr;
  int lineWeight = -3;
  double linetypeScale = 1.0;
};

struct SceneLook
{
  bool visible = true;
  const SceneLayer* layer = nullptr; // effective
  QRgb color = 0;
  const ScenePattern* pattern = nullptr;
  int lineWeight = 25;
  double linetypeScale = 1.0;

  // A block reference is left out whole only when its layer is frozen; on a
  // layer that is off, its entities on other layers still show.
  bool frozen() const { return layer && layer->frozen; }
  // What this entity hands down when it is a block reference.
  SceneInherit handedDown() const { return SceneInherit{true, layer, color, pattern, lineWeight, linetypeScale}; }
};

class SceneStyleResolver
{
public:
  SceneStyleResolver(OdDbDatabase* db, QRgb foreground);

  // Resolves an entity's look under what its block reference hands down.
  SceneLook look(const OdDbEntity& entity, const SceneInherit& parent);
  // The width in pixels of a lineweight; 0 for the thinnest line.
  static float widthPixels(int lineWeight);
  QRgb rgb(const OdCmColor& color) const;
  QRgb foreground() const { return m_foreground; }

private:
  const SceneLayer* layer(std::string_view name);
  const ScenePattern* pattern(std::string_view name);

  OdDbDatabase* m_db;
  QRgb m_foreground;
  double m_ltscale = 1.0;
  ScenePattern m_continuous;
  // By the bytes an entity names them with (views into the drawing's own
  // storage), then by case-folded name: the same layer is read once.
  std::unordered_map<std::string_view, const SceneLayer*> m_layerByText;
  std::unordered_map<QString, std::unique_ptr<SceneLayer>> m_layers;
  std::unordered_map<std::string_view, const ScenePattern*> m_patternByText;
  std::unordered_map<QString, std::unique_ptr<ScenePattern>> m_patterns;
};
