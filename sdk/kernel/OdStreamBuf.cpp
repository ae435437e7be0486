// Streams: the memory stream, and file streams of the system services.
#include "sdk/kernel/OdRxSystemServices.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cstring>

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
  bool open(const OdString& name, Oda::FileAccessMode access, Oda::FileCreationDisposition disposition)
  {
    m_file.setFileName(name.qstring());
    QIODevice::OpenMode mode;
    if (access & Oda::kFileRead)
      mode |= QIODevice::ReadOnly;
    if (access & Oda::kFileWrite)
      mode |= QIODevice::WriteOnly;
    if (!mode)
      mode = QIODevice::ReadOnly;
    const bool exists = QFileInfo::exists(name.qstring());
    switch (disposition) {
    case Oda::kCreateNew:
      if (exists)
        return false;
      mode |= QIODevice::NewOnly;
      break;
    case Oda::kCreateAlways:
      mode |= QIODevice::Truncate;
      break;
    case Oda::kOpenExisting:
      if (!exists)
        return false;
      if (mode & QIODevice::WriteOnly)
        mode |= QIODevice::ExistingOnly;
      break;
    case Oda::kOpenAlways:
      break;
    case Oda::kTruncateExisting:
      if (!exists)
        return false;
      mode |= QIODevice::Truncate | QIODevice::ExistingOnly;
      break;
    }
    if ((mode & QIODevice::WriteOnly) && !(mode & QIODevice::Truncate) && !(access & Oda::kFileRead))
      mode |= QIODevice::ReadOnly; // keep what is there: writing alone would truncate
    return m_file.open(mode);
  }

  OdString fileName() override { return OdString(m_file.fileName()); }
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
};

} // namespace

OdStreamBufPtr OdRxSystemServices::createFile(const OdString& fileName, Oda::FileAccessMode access,
                                              Oda::FileShareMode, Oda::FileCreationDisposition disposition)
{
  auto stream = OdRxObjectImpl<FileStream, OdStreamBuf>::createObject();
  if (!static_cast<FileStream*>(stream.get())->open(fileName, access, disposition)) {
    const bool exists = QFileInfo::exists(fileName.qstring());
    throw OdError_FileException(exists ? eFileAccessErr : eFileNotFound, fileName);
  }
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
