// OdDbXRefMan: loading external references into their blocks.
#pragma once

#include "sdk/db/OdDbObjectId.h"
#include "sdk/kernel/OdError.h"

class OdDbBlockTableRecord;
class OdDbDatabase;

class OdDbXRefMan
{
public:
  // Reads the referenced drawing and puts copies of its model space into
  // the block (replacing what it held), with the records they use; marks
  // the block resolved. eFileNotFound when the file is not there,
  // eInvalidInput when the block is no external reference.
  static OdResult load(OdDbBlockTableRecord* xrefBlock);
  static OdResult load(OdDbObjectId xrefBlockId);
  // The file of the reference as found on this system, or empty.
  static OdString resolvePath(const OdDbBlockTableRecord* xrefBlock);
};

class OdDbXRefManExt
{
public:
  // A new, not yet loaded external reference block named `blockName` for
  // the drawing at `pathName` (an overlay when `overlaid`). Throws OdError
  // when the name is taken.
  static OdDbObjectId addNewXRefDefBlock(OdDbDatabase* hostDb, const OdString& pathName, const OdString& blockName,
                                         bool overlaid);
};
