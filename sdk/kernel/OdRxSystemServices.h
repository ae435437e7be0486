// The SDK's system services: files as streams, and fresh unique identifiers.
#pragma once

#include "sdk/kernel/OdStreamBuf.h"

namespace Oda {
enum FileAccessMode : unsigned
{
  kFileRead = 0x80000000,
  kFileWrite = 0x40000000
};
enum FileShareMode : unsigned
{
  kShareDenyNo = 0,
  kShareDenyRead = 1,
  kShareDenyWrite = 2,
  kShareDenyReadWrite = 3
};
enum FileCreationDisposition : unsigned
{
  kCreateNew = 1,        // fails when the file exists
  kCreateAlways = 2,     // truncates an existing file
  kOpenExisting = 3,     // fails when the file is missing
  kOpenAlways = 4,       // creates the file when missing
  kTruncateExisting = 5  // fails when missing, truncates otherwise
};
} // namespace Oda

class OdRxSystemServices
{
public:
  virtual ~OdRxSystemServices() = default;

  // Opens a file as a stream. Throws OdError_FileException when the file
  // cannot be opened as asked: missing, existing for kCreateNew, or not
  // accessible.
  virtual OdStreamBufPtr createFile(const OdString& fileName, Oda::FileAccessMode access = Oda::kFileRead,
                                    Oda::FileShareMode share = Oda::kShareDenyNo,
                                    Oda::FileCreationDisposition disposition = Oda::kOpenExisting);
  virtual bool accessFile(const OdString& fileName, int accessMode);
  // A fresh unique identifier text in the Windows form, upper case with
  // braces: {0A1B2C3D-0000-4000-8000-00000000CA01}.
  virtual OdString createGuid();
};

OdRxSystemServices* odrxSystemServices();
