// OdSafeFile: replaces a file whole or not at all. The new content goes to a
// hidden temporary file beside the target, reaches the disk, and is renamed
// over the target; a failure at any step leaves the target byte for byte as
// it was and removes the temporary file.
#pragma once

#include "sdk/kernel/OdStreamBuf.h"

#include <functional>

class OdSafeFile
{
public:
  // Removes what earlier saves of `target` left when they were cut short
  // (temporary files of ours that no running save holds), then opens a new
  // temporary file. Throws OdError_FileException when the folder cannot
  // take it.
  explicit OdSafeFile(const OdString& target);
  // Without commit() the temporary file goes and the target stays.
  ~OdSafeFile();
  OdSafeFile(const OdSafeFile&) = delete;
  OdSafeFile& operator=(const OdSafeFile&) = delete;

  // Where the new content is written; it holds nothing of the target.
  OdStreamBuf* stream() const { return m_stream; }

  // Flushes the content and the folder to disk around the rename over the
  // target; a target that existed keeps its permissions. Throws
  // OdError_FileException with the system's reason; the target then is as
  // it was.
  void commit();

  // The start of the names of the temporary files of `targetFileName`: a
  // hidden name of ours, so that a folder listing shows whose they are.
  static OdString temporaryPrefix(const OdString& targetFileName);

private:
  void discard();

  OdString m_target;
  OdString m_temporary;
  int m_fd = -1;
  OdStreamBufPtr m_stream;
};

// Writes `target` through `write` with an OdSafeFile. What `write` throws
// leaves the target as it was and goes on to the caller.
void odWriteFileSafely(const OdString& target, const std::function<void(OdStreamBuf& stream)>& write);
