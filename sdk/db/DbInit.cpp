// The database classes are registered the moment the library loads,
// parents before children.
#include "OdDbBlockReference.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbCurves.h"
#include "OdDbDatabase.h"
#include "OdDbDictionary.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdDbHatch.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLayout.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbPolyline.h"
#include "OdDbRasterImage.h"
#include "OdDbText.h"
#include "OdDbTextStyleTableRecord.h"

#include "OdRxClass.h"

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
}

namespace {
struct DbClasses
{
  DbClasses() { odDbInitClasses(); }
} g_dbClasses;
} // namespace
