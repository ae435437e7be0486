// Streams: the memory stream, and file streams of the system services.
#include "sdk/kernel/OdRxSystemServices.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

ODRX_NO_CONS_DEFINE_MEMBERS(OdStreamBuf, OdRxObject)

std::uint8_t OdStreamBuf::getByte()
{
  std::uint8_t b = 0;
  getBytes(&b, 1);
  return b;
}

void OdStreamBuf::putByte(std::uint8_t value)
{
  putBytes(&value, 1);
}

OdSmartPtr<OdStreamBuf> OdMemoryStream::createNew(const std::vector<char>& initial)
{
  auto s = OdRxObjectImpl<OdMemoryStream, OdStreamBuf>::createObject();
  static_cast<OdMemoryStream*>(s.get())->m_data = initial;
  return s;
}

std::uint64_t OdMemoryStream::seek(std::int64_t offset, SeekType whence)
{
  const std::int64_t base = whence == kSeekFromStart ? 0
                          : whence == kSeekFromCurrent ? std::int64_t(m_pos) : std::int64_t(m_data.size());
  const std::int64_t pos = base + offset;
  if (pos < 0 || pos > std::int64_t(m_data.size()))
    throw OdError(eInvalidInput, "seek out of range");
  m_pos = std::uint64_t(pos);
  return m_pos;
}

void OdMemoryStream::getBytes(void* buffer, std::uint32_t count)
{
  if (m_pos + count > m_data.size())
    throw OdError(eFileInternalErr, "end of stream");
  std::memcpy(buffer, m_data.data() + m_pos, count);
  m_pos += count;
}

void OdMemoryStream::putBytes(const void* buffer, std::uint32_t count)
{
  if (m_pos + count > m_data.size())
    m_data.resize(m_pos + count);
  std::memcpy(m_data.data() + m_pos, buffer, count);
  m_pos += count;
}

namespace {

class FileStream : public OdStreamBuf
{
public:
  // Opens only regular files: a FIFO or a device named where a file
  // belongs would block the opening, or the reading, for ever. 0 on
  // success, else the system's error number, or kNotRegular.
  static constexpr int kNotRegular = -1;
  int open(const OdString& name, Oda::FileAccessMode access, Oda::FileCreationDisposition disposition)
  {
    m_name = name;
    const bool write = access & Oda::kFileWrite;
    const bool read = (access & Oda::kFileRead) || !write;
    int flags = O_CLOEXEC | O_NONBLOCK | (read && write ? O_RDWR : write ? O_WRONLY : O_RDONLY);
    switch (disposition) {
    case Oda::kCreateNew: flags |= O_CREAT | O_EXCL; break;
    case Oda::kCreateAlways: flags |= O_CREAT | (write ? O_TRUNC : 0); break;
    case Oda::kOpenExisting: break;
    case Oda::kOpenAlways: flags |= O_CREAT; break;
    case Oda::kTruncateExisting: flags |= write ? O_TRUNC : 0; break;
    }
    const int fd = ::open(QFile::encodeName(name.qstring()).constData(), flags, 0666);
    if (fd < 0)
      return errno;
    struct stat info {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
      ::close(fd);
      return kNotRegular;
    }
    ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) & ~O_NONBLOCK);
    const QIODevice::OpenMode mode =
        read && write ? QIODevice::ReadWrite : write ? QIODevice::WriteOnly : QIODevice::ReadOnly;
    if (!m_file.open(fd, mode, QFileDevice::AutoCloseHandle)) {
      ::close(fd);
      return EIO;
    }
    return 0;
  }

  OdString fileName() override { return m_name; }
  std::uint64_t length() override { return std::uint64_t(m_file.size()); }
  std::uint64_t tell() override { return std::uint64_t(m_file.pos()); }
  std::uint64_t seek(std::int64_t offset, SeekType whence) override
  {
    const std::int64_t base = whence == kSeekFromStart ? 0
                            : whence == kSeekFromCurrent ? m_file.pos() : m_file.size();
    if (base + offset < 0 || !m_file.seek(base + offset))
      throw OdError(eInvalidInput, "seek out of range");
    return std::uint64_t(m_file.pos());
  }
  bool isEof() override { return m_file.atEnd(); }
  void getBytes(void* buffer, std::uint32_t count) override
  {
    if (m_file.read(static_cast<char*>(buffer), count) != qint64(count))
      throw OdError_FileException(eFileInternalErr, fileName());
  }
  void putBytes(const void* buffer, std::uint32_t count) override
  {
    if (m_file.write(static_cast<const char*>(buffer), count) != qint64(count))
      throw OdError_FileException(eFileAccessErr, fileName());
  }
  void putByte(std::uint8_t value) override
  {
    if (!m_file.putChar(char(value)))
      throw OdError_FileException(eFileAccessErr, fileName());
  }
  void truncate() override { m_file.resize(m_file.pos()); }
  void flush() override
  {
    if (!m_file.flush() || m_file.error() != QFileDevice::NoError)
      throw OdError_FileException(eFileAccessErr, fileName());
  }

private:
  QFile m_file;
  OdString m_name;
};

} // namespace

OdStreamBufPtr OdRxSystemServices::createFile(const OdString& fileName, Oda::FileAccessMode access,
                                              Oda::FileShareMode, Oda::FileCreationDisposition disposition)
{
  auto stream = OdRxObjectImpl<FileStream, OdStreamBuf>::createObject();
  const int error = static_cast<FileStream*>(stream.get())->open(fileName, access, disposition);
  if (error == FileStream::kNotRegular)
    throw OdError_FileException(eFileAccessErr, fileName, "it is not a regular file");
  if (error)
    throw OdError_FileException(error == ENOENT || error == ENOTDIR ? eFileNotFound : eFileAccessErr, fileName,
                                OdString(std::strerror(error)));
  return stream;
}

bool OdRxSystemServices::accessFile(const OdString& fileName, int accessMode)
{
  const QFileInfo info(fileName.qstring());
  if (!info.exists())
    return false;
  if ((accessMode & Oda::kFileRead) && !info.isReadable())
    return false;
  if ((accessMode & Oda::kFileWrite) && !info.isWritable())
    return false;
  return true;
}

OdString OdRxSystemServices::createGuid()
{
  return OdString(QUuid::createUuid().toString(QUuid::WithBraces).toUpper());
}

OdRxSystemServices* odrxSystemServices()
{
  static OdRxSystemServices services;
  return &services;
}
