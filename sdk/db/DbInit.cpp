// The database classes are registered the moment the library loads,
// parents before children.
#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLayout.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbRasterImage.h"
#include "sdk/db/OdDbText.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"
#include "sdk/db/OdResBuf.h"

#include "sdk/kernel/OdRxClass.h"

void odDbInitClasses()
{
  if (OdDbObject::desc())
    return;
  OdDbDatabase::rxInit();
  OdDbObject::rxInit();
  OdDbEntity::rxInit();
  OdDbCurve::rxInit();
  OdDbSymbolTable::rxInit();
  OdDbBlockTable::rxInit();
  OdDbLayerTable::rxInit();
  OdDbLinetypeTable::rxInit();
  OdDbTextStyleTable::rxInit();
  OdDbDimStyleTable::rxInit();
  OdDbRegAppTable::rxInit();
  OdDbViewportTable::rxInit();
  OdDbViewTable::rxInit();
  OdDbUCSTable::rxInit();
  OdDbSymbolTableRecord::rxInit();
  OdDbBlockTableRecord::rxInit();
  OdDbLayerTableRecord::rxInit();
  OdDbLinetypeTableRecord::rxInit();
  OdDbTextStyleTableRecord::rxInit();
  OdDbDimStyleTableRecord::rxInit();
  OdDbRegAppTableRecord::rxInit();
  OdDbViewportTableRecord::rxInit();
  OdDbViewTableRecord::rxInit();
  OdDbUCSTableRecord::rxInit();
  OdDbDictionary::rxInit();
  OdDbPlotSettings::rxInit();
  OdDbLayout::rxInit();
  OdDbRasterImageDef::rxInit();
  OdDbLine::rxInit();
  OdDbCircle::rxInit();
  OdDbArc::rxInit();
  OdDbEllipse::rxInit();
  OdDbPoint::rxInit();
  OdDbSolid::rxInit();
  OdDbSpline::rxInit();
  OdDbPolyline::rxInit();
  OdDb2dVertex::rxInit();
  OdDb2dPolyline::rxInit();
  OdDbText::rxInit();
  OdDbAttributeDefinition::rxInit();
  OdDbAttribute::rxInit();
  OdDbMText::rxInit();
  OdDbBlockReference::rxInit();
  OdDbDimension::rxInit();
  OdDbHatch::rxInit();
  OdDbRasterImage::rxInit();
  OdDbRasterImageDefReactor::rxInit();
  OdResBuf::rxInit();
}

namespace {
struct DbClasses
{
  DbClasses() { odDbInitClasses(); }
} g_dbClasses;
} // namespace
