// Reading and writing drawings as DXF files: the entry points for hosts.
#pragma once

#include "sdk/db/OdDbDatabase.h"

#include <string>

// Reads an ASCII (R12 to R2018) or binary DXF file. Throws OdError with a
// message naming the file: eFileNotFound when it is missing,
// eUnsupportedFormat for DWG drawings, eFileInternalErr for a file that is
// truncated or no DXF at all.
OdDbDatabasePtr odDxfReadFile(const OdString& path);
// The same from bytes in memory; `name` is used in messages.
OdDbDatabasePtr odDxfReadBuffer(std::string bytes, const OdString& name = OdString("drawing"));

// Writes the drawing as an R2018 ASCII DXF file, through a temporary file
// beside the target that replaces it only when complete. Throws OdError:
// eFileAccessErr when the file cannot be written, eUnsupportedFormat for a
// name ending in .dwg.
void odDxfWriteFile(OdDbDatabase* db, const OdString& path);
// The R2018 DXF text of the drawing.
std::string odDxfWriteBuffer(OdDbDatabase* db);
