// External references: attaching, finding and loading their drawings.
#include "sdk/db/OdDbXRefMan.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCloner.h"
#include "sdk/db/OdDbDatabase.h"

#include <QDir>
#include <QFileInfo>

OdString OdDbXRefMan::resolvePath(const OdDbBlockTableRecord* xref)
{
  if (!xref)
    return OdString();
  QString path = xref->pathName().qstring();
  path.replace(QChar('\\'), QChar('/'));
  if (path.isEmpty())
    return OdString();
  QFileInfo info(path);
  if (info.isAbsolute())
    return info.exists() ? OdString(path) : OdString();
  OdDbDatabase* db = xref->database();
  QStringList folders;
  if (db && !db->getFilename().isEmpty())
    folders << QFileInfo(db->getFilename().qstring()).absolutePath();
  folders << QDir::currentPath();
  for (const QString& folder : folders) {
    const QString candidate = QDir::cleanPath(QDir(folder).filePath(path));
    if (QFileInfo::exists(candidate))
      return OdString(candidate);
    // References saved without an extension name a drawing all the same.
    if (QFileInfo(candidate).suffix().isEmpty() && QFileInfo::exists(candidate + ".dxf"))
      return OdString(candidate + ".dxf");
  }
  return OdString();
}

OdDbObjectId OdDbXRefManExt::addNewXRefDefBlock(OdDbDatabase* hostDb, const OdString& pathName,
                                                const OdString& blockName, bool overlaid)
{
  if (!hostDb)
    throw OdError(eNullPtr, "no host drawing");
  OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::createObject();
  block->setName(blockName);
  block->setPathName(pathName);
  block->setIsFromExternalReference(true);
  block->setIsFromOverlayReference(overlaid);
  return OdDbSymbolTable::cast(hostDb->getBlockTableId().openObject(OdDb::kForWrite))->add(block);
}

OdResult OdDbXRefMan::load(OdDbObjectId id)
{
  OdDbBlockTableRecordPtr b = OdDbBlockTableRecord::cast(id.openObject(OdDb::kForWrite));
  return load(b.get());
}

OdResult OdDbXRefMan::load(OdDbBlockTableRecord* xref)
{
  if (!xref || !xref->isFromExternalReference() || !xref->database())
    return eInvalidInput;
  const OdString path = resolvePath(xref);
  if (path.isEmpty())
    return eFileNotFound;
  OdDbDatabase::DrawingReader reader = OdDbDatabase::drawingReader();
  if (!reader)
    return eNotImplemented;
  OdDbDatabasePtr source;
  try {
    source = reader(path);
  } catch (const OdError& e) {
    return OdResult(e.code() == eOk ? eFileInternalErr : e.code());
  }
  if (source.isNull())
    return eFileInternalErr;
  for (const OdDbObjectId& old : std::vector<OdDbObjectId>(xref->entityIds())) {
    if (OdDbObjectPtr o = old.openObject(OdDb::kForWrite); o.get())
      o->erase();
    xref->removeEntity(old);
  }
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(source->getModelSpaceId().openObject());
  if (ms.get())
    odDbCopyEntities(source, xref->database(), ms->entityIds(), xref);
  xref->setBlockFlags(xref->blockFlags() | 32);
  return eOk;
}
