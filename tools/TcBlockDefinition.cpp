// Bringing a block tool's definition into the drawing.
#include "tools/TcBlockDefinition.h"

#include "tools/OdTcCommandConveyor.h"

#include "host/TcHost.h"
#include "host/TcMessages.h"

#include "hostsdk/core/HostCore.h"

#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbSymbolTable.h"
#include "sdk/db/OdDbXRefMan.h"

namespace tc {

namespace {

const char* const kLockName = "EXECUTETOOL";

OdDbSymbolTablePtr blockTable(OdDbDatabase* database)
{
  return OdDbSymbolTable::cast(database->getBlockTableId().openObject());
}

// The source drawing, read as the host reads drawings; null, with the
// reason told, when it cannot be read.
OdDbDatabasePtr readSource(const OdString& path)
{
  OdDbDatabase::DrawingReader reader = OdDbDatabase::drawingReader();
  if (!reader) {
    hostPrint(Supp_Translate("\nDrawing files cannot be read by this host: \"%s\"\n"), path);
    return OdDbDatabasePtr();
  }
  try {
    return reader(path);
  } catch (const OdError& error) {
    hostPrint(Supp_Translate("\nCould not read the source file \"%s\": %s\n"), path, error.description());
  }
  return OdDbDatabasePtr();
}

enum class Outcome
{
  kDone,
  kUnreadable,
  kMissing
};

// One definition of the source: copied out alone, then in under its name,
// with the source's units and scaling.

Outcome importDefinition(OdDbDatabase* database, const ToolBlockInsertParams& record)
{
  OdDbDatabasePtr source = readSource(record.sourceFile);
  if (!source)
    return Outcome::kUnreadable;
  OdDbSymbolTablePtr sourceBlocks = blockTable(source);
  const OdDbObjectId sourceBlockId = sourceBlocks ? sourceBlocks->getAt(record.blockName) : OdDbObjectId();
  if (sourceBlockId.isNull())
    return Outcome::kMissing;
  // A broken definition leaves the drawing without it: the host's command
  // then says it finds none.
  try {
    OdDbDatabasePtr single = source->wblock(sourceBlockId);
    single->setINSUNITS(source->getINSUNITS());
    const OdDbObjectId newId = database->insert(record.blockName, single, true);
    if (!newId.isNull()) {
      OdDbBlockTableRecordPtr made = OdDbBlockTableRecord::cast(newId.openObject(OdDb::kForWrite));
      OdDbBlockTableRecordPtr original = OdDbBlockTableRecord::cast(sourceBlockId.openObject());
      if (made) {
        made->setBlockInsertUnits(source->getINSUNITS());
        made->setBlockScaling(original ? original->blockScaling() : OdDbBlockTableRecord::kAny);
      }
    }
  } catch (const OdError&) {
  } catch (const std::exception&) {
  }
  return Outcome::kDone;
}

// The whole file as one definition, its own external references loaded
// into it as content. kMissing when the making failed.
Outcome importWholeFile(OdDbDatabase* database, const ToolBlockInsertParams& record)
{
  OdDbDatabasePtr source = readSource(record.sourceFile);
  if (!source)
    return Outcome::kUnreadable;
  try {
    OdDbSymbolTablePtr sourceBlocks = blockTable(source);
    if (!sourceBlocks)
      throw OdError(eInvalidInput, Supp_Translate("the drawing has no block table"));
    for (OdDbSymbolTableIteratorPtr it = sourceBlocks->newIterator(); !it->done(); it->step()) {
      OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::cast(it->getRecord());
      if (block && block->isFromExternalReference())
        OdDbXRefMan::load(it->getRecordId());
    }
    const OdDbObjectId newId = database->insert(record.blockName, source, true);
    if (OdDbBlockTableRecordPtr made = OdDbBlockTableRecord::cast(newId.openObject(OdDb::kForWrite)))
      made->setBlockInsertUnits(source->getINSUNITS());
  } catch (const OdError& error) {
    hostPrint(Supp_Translate("\nCould not make block \"%s\" of \"%s\": %s\n"), record.blockName, record.sourceFile,
              error.description());
    return Outcome::kMissing;
  } catch (const std::exception&) {
    return Outcome::kMissing;
  }
  return Outcome::kDone;
}

} // namespace

bool bringBlockDefinition(HostDocument* document, const ToolBlockInsertParams& record)
{
  // The file is tested first, even when the drawing already has the block.
  if (!Fio_IsFileExist(record.sourceFile)) {
    hostPrint(tcString(140), record.sourceFile, record.blockName);
    return false;
  }
  OdDbDatabase* database = document ? document->database() : nullptr;
  OdDbSymbolTablePtr blocks = database ? blockTable(database) : OdDbSymbolTablePtr();
  if (!blocks)
    return false;
  if (!blocks->getAt(record.blockName).isNull())
    return true;

  document->lockDocument(kLockName);
  const Outcome outcome = record.wholeFile ? importWholeFile(database, record) : importDefinition(database, record);
  switch (outcome) {
  case Outcome::kMissing:
    // Both roads end here with the lock taken above still held: a missing
    // block, or a whole file that could not be made a block.
    if (!record.wholeFile)
      hostPrint(tcString(139), record.blockName, record.sourceFile);
    return false;
  case Outcome::kUnreadable:
    document->unlockDocument();
    return false;
  case Outcome::kDone:
    break;
  }
  document->unlockDocument();
  return true;
}

} // namespace tc
