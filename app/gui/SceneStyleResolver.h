// How an entity looks: its colour, linetype and lineweight resolved through
// its layer and, inside a block, through the reference that shows it; and
// whether its layer lets it be seen at all.
#pragma once

#include "sdk/db/OdCmColor.h"
#include "sdk/kernel/OdString.h"

#include <QColor>
#include <QHash>

#include <vector>

class OdDbDatabase;
class OdDbEntity;

// What a block reference hands down to the entities of its block: the
// values ByBlock stands for, and its layer for the entities on layer "0".
struct SceneInherit
{
  bool inBlock = false;
  QString layer;            // the reference's own (effective) layer
  QRgb color = 0;           // what ByBlock means here
  OdString linetype;        // what ByBlock means here
  int lineWeight = -3;      // what ByBlock means here, hundredths of a mm
  double linetypeScale = 1; // the reference's scale of linetypes
};

struct SceneLook
{
  bool visible = true;
  QString layer; // effective
  QRgb color = 0;
  OdString linetype; // resolved name; empty or "Continuous": solid
  int lineWeight = 25;
  double linetypeScale = 1.0;
};

class SceneStyleResolver
{
public:
  SceneStyleResolver(OdDbDatabase* db, QRgb foreground);

  // Resolves an entity's look under what its block reference hands down.
  SceneLook look(const OdDbEntity& entity, const SceneInherit& parent);
  // A block reference is left out whole only when its layer is frozen;
  // on a layer that is off, its entities on other layers still show.
  bool isFrozen(const QString& layer);
  // The dash pattern of a linetype, in drawing units before scaling; empty
  // for a continuous line.
  const std::vector<double>& pattern(const OdString& linetype);
  // The width in pixels of a lineweight; 0 for the thinnest line.
  static float widthPixels(int lineWeight);
  QRgb rgb(const OdCmColor& color) const;
  QRgb foreground() const { return m_foreground; }
  double globalLinetypeScale() const { return m_ltscale; }

private:
  struct Layer
  {
    QRgb color = 0;
    bool off = false, frozen = false;
    OdString linetype;
    int lineWeight = -3;
  };
  const Layer& layer(const QString& name);

  OdDbDatabase* m_db;
  QRgb m_foreground;
  double m_ltscale = 1.0;
  QHash<QString, Layer> m_layers;                   // by case-folded name
  QHash<QString, std::vector<double>> m_patterns;   // by case-folded name
};
