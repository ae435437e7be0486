// Built-in arrowheads of dimensions.
#include "sdk/db/OdDmUtil.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"

namespace {
const char* const kArrows[] = {"ClosedBlank", "Closed", "Dot", "ArchTick", "Oblique", "Open", "Origin", "Origin2",
                               "Open90", "Open30", "DotSmall", "DotBlank", "Small", "BoxBlank", "BoxFilled",
                               "DatumBlank", "DatumFilled", "Integral", "None"};
}

bool OdDmUtil::isBuiltInArrow(const OdString& name)
{
  if (name.isEmpty())
    return true;
  OdString n = name;
  if (n.left(1) == "_")
    n = n.mid(1);
  for (const char* a : kArrows)
    if (n.iCompare(a) == 0)
      return true;
  return false;
}

OdString OdDmUtil::arrowBlockName(const OdString& name)
{
  if (name.isEmpty() || name.left(1) == "_" || !isBuiltInArrow(name))
    return name;
  OdString n = name;
  for (const char* a : kArrows)
    if (n.iCompare(a) == 0)
      return OdString("_") + a;
  return "_" + n;
}

OdDbObjectId OdDmUtil::getArrowId(const OdString& name, OdDbDatabase* db, bool create)
{
  if (!db || name.isEmpty())
    return OdDbObjectId();
  const OdString blockName = arrowBlockName(name);
  OdDbSymbolTablePtr blocks = OdDbSymbolTable::cast(db->getBlockTableId().openObject(OdDb::kForWrite));
  if (blocks.isNull())
    return OdDbObjectId();
  OdDbObjectId id = blocks->getAt(blockName);
  if (id.isNull() && create) {
    OdDbBlockTableRecordPtr b = OdDbBlockTableRecord::createObject();
    b->setName(blockName);
    id = blocks->add(b);
  }
  return id;
}
