// Writing a file without ever leaving it half-written: the bytes go to a
// temporary file beside the target, which is renamed over the target only
// when everything was written.
#pragma once

#include "sdk/kernel/OdStreamBuf.h"

namespace tc {

class TcSafeFile
{
public:
  // Opens the temporary file; throws OdError_FileException when the folder
  // cannot take it.
  explicit TcSafeFile(const OdString& target);
  // Without commit() the temporary file is removed and the target is left
  // as it was.
  ~TcSafeFile();

  OdStreamBuf* stream() const { return m_stream; }
  // Closes the stream and renames the temporary file over the target.
  // False when that fails; the target then is as it was.
  bool commit();

private:
  OdString m_target;
  OdString m_temporary;
  OdStreamBufPtr m_stream;
  bool m_committed = false;
};

} // namespace tc
