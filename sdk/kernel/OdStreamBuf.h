// OdStreamBuf: a byte stream over a file or memory.
#pragma once

#include "sdk/kernel/OdRxObject.h"

#include <cstdint>
#include <vector>

class OdStreamBuf : public OdRxObject
{
  ODRX_DECLARE_MEMBERS(OdStreamBuf);

public:
  enum SeekType { kSeekFromStart = 0, kSeekFromCurrent = 1, kSeekFromEnd = 2 };

  virtual OdString fileName() { return OdString(); }
  virtual std::uint64_t length() = 0;
  virtual std::uint64_t tell() = 0;
  virtual std::uint64_t seek(std::int64_t offset, SeekType whence) = 0;
  virtual bool isEof() = 0;
  // Reads exactly `count` bytes; throws OdError when the stream ends first.
  virtual void getBytes(void* buffer, std::uint32_t count) = 0;
  virtual std::uint8_t getByte();
  virtual void putBytes(const void* buffer, std::uint32_t count) = 0;
  virtual void putByte(std::uint8_t value);
  virtual void truncate() {}
  // Hands everything written so far to the file system; throws
  // OdError_FileException when that fails (a full disk, a size limit).
  // Closing a stream without it may lose such an error.
  virtual void flush() {}
  virtual void rewind() { seek(0, kSeekFromStart); }
};
using OdStreamBufPtr = OdSmartPtr<OdStreamBuf>;

// A stream over bytes in memory, growing as it is written.
class OdMemoryStream : public OdStreamBuf
{
public:
  static OdSmartPtr<OdStreamBuf> createNew(const std::vector<char>& initial = {});

  std::uint64_t length() override { return m_data.size(); }
  std::uint64_t tell() override { return m_pos; }
  std::uint64_t seek(std::int64_t offset, SeekType whence) override;
  bool isEof() override { return m_pos >= m_data.size(); }
  void getBytes(void* buffer, std::uint32_t count) override;
  void putBytes(const void* buffer, std::uint32_t count) override;
  void truncate() override { m_data.resize(m_pos); }
  const std::vector<char>& data() const { return m_data; }

protected:
  OdMemoryStream() = default;

private:
  std::vector<char> m_data;
  std::uint64_t m_pos = 0;
};
