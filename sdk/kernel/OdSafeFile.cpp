// Whole-or-nothing replacement of a file: a temporary file beside it, synced
// to disk, renamed over it.
#include "sdk/kernel/OdSafeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cerrno>
#include <cstring>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

OdString systemReason(int error)
{
  return OdString(std::strerror(error));
}

[[noreturn]] void fail(const OdString& file, int error)
{
  throw OdError_FileException(eFileAccessErr, file, systemReason(error));
}

// Write-only stream over the temporary file's descriptor, with a buffer of
// its own: the filers put one byte at a time.
class SafeFileStream : public OdStreamBuf
{
public:
  void attach(int fd, const OdString& name)
  {
    m_fd = fd;
    m_name = name;
    m_buffer.reserve(kBufferSize);
  }
  // The descriptor stays with the OdSafeFile; after this every write fails.
  void detach() { m_fd = -1; }

  OdString fileName() override { return m_name; }
  std::uint64_t length() override { return m_written + m_buffer.size(); }
  std::uint64_t tell() override { return length(); }
  std::uint64_t seek(std::int64_t offset, SeekType whence) override
  {
    // Only where writing goes on anyway: the content is written in one pass.
    const std::int64_t base = whence == kSeekFromStart ? 0 : std::int64_t(length());
    if (base + offset != std::int64_t(length()))
      throw OdError(eNotImplemented, "a file being replaced is written in one pass");
    return length();
  }
  bool isEof() override { return true; }
  void getBytes(void*, std::uint32_t) override { throw OdError(eNotImplemented, "a file being replaced is not read"); }
  void putBytes(const void* buffer, std::uint32_t count) override
  {
    const char* bytes = static_cast<const char*>(buffer);
    if (m_buffer.size() + count > kBufferSize)
      flush();
    if (count >= kBufferSize)
      writeAll(bytes, count);
    else
      m_buffer.append(bytes, count);
  }
  void putByte(std::uint8_t value) override
  {
    if (m_buffer.size() >= kBufferSize)
      flush();
    m_buffer.push_back(char(value));
  }
  void flush() override
  {
    writeAll(m_buffer.data(), m_buffer.size());
    m_buffer.clear();
  }

private:
  static constexpr std::size_t kBufferSize = 1 << 16;

  void writeAll(const char* bytes, std::size_t count)
  {
    if (m_fd < 0 && count)
      throw OdError_FileException(eFileAccessErr, m_name, "the file is closed");
    while (count) {
      const ssize_t n = ::write(m_fd, bytes, count);
      if (n < 0 && errno == EINTR)
        continue;
      // A write that takes nothing without an error (a file size limit)
      // would loop for ever: it counts as a full disk.
      if (n <= 0)
        fail(m_name, n < 0 ? errno : ENOSPC);
      bytes += n;
      count -= std::size_t(n);
      m_written += std::uint64_t(n);
    }
  }

  int m_fd = -1;
  OdString m_name;
  std::string m_buffer;
  std::uint64_t m_written = 0;
};

QByteArray native(const OdString& path)
{
  return QFile::encodeName(path.qstring());
}

// Removes the temporary files of `prefix` in `folder` that no save holds: a
// save holds a lock on its own until it ends, and the lock dies with the
// process that was killed in the middle.
void removeStaleTemporaries(const QString& folder, const QString& prefix)
{
  // No name filter: the target's name may hold the filter's wild cards.
  const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
  for (const QString& name : names) {
    if (!name.startsWith(prefix))
      continue;
    const QByteArray path = QFile::encodeName(folder + QLatin1Char('/') + name);
    const int fd = ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
      continue;
    struct stat info {};
    if (::fstat(fd, &info) == 0 && S_ISREG(info.st_mode) && ::flock(fd, LOCK_EX | LOCK_NB) == 0)
      ::unlink(path.constData());
    ::close(fd);
  }
}

} // namespace

OdString OdSafeFile::temporaryPrefix(const OdString& targetFileName)
{
  // Long names are cut so that the temporary name stays within the 255
  // bytes a file name may have.
  QByteArray name = targetFileName.qstring().toUtf8().left(200);
  while (!name.isEmpty() && QString::fromUtf8(name).toUtf8() != name)
    name.chop(1);
  return OdString(QStringLiteral(".odsafe.") + QString::fromUtf8(name) + QLatin1Char('.'));
}

OdSafeFile::OdSafeFile(const OdString& target) : m_target(target)
{
  const QFileInfo info(target.qstring());
  const QString folder = info.absolutePath();
  const QString prefix = temporaryPrefix(OdString(info.fileName())).qstring();
  removeStaleTemporaries(folder, prefix);

  int error = 0;
  for (int attempt = 0; attempt < 16 && m_fd < 0; ++attempt) {
    m_temporary = OdString(folder + QLatin1Char('/') + prefix + QUuid::createUuid().toString(QUuid::Id128).left(12));
    // 0666 less the umask, as any new file of the user.
    m_fd = ::open(native(m_temporary).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    error = errno;
    if (m_fd < 0 && error != EEXIST)
      break;
  }
  if (m_fd < 0)
    throw OdError_FileException(eFileAccessErr, target,
                                OdString::formatted("cannot create a file in %s: %s", OdString(folder),
                                                    systemReason(error)));
  ::flock(m_fd, LOCK_EX | LOCK_NB);
  auto stream = OdRxObjectImpl<SafeFileStream, OdStreamBuf>::createObject();
  static_cast<SafeFileStream*>(stream.get())->attach(m_fd, m_temporary);
  m_stream = stream;
}

OdSafeFile::~OdSafeFile()
{
  discard();
}

void OdSafeFile::discard()
{
  if (m_stream)
    static_cast<SafeFileStream*>(m_stream.get())->detach();
  if (m_fd >= 0) {
    ::unlink(native(m_temporary).constData());
    ::close(m_fd);
    m_fd = -1;
  }
}

void OdSafeFile::commit()
{
  if (m_fd < 0)
    throw OdError_FileException(eFileAccessErr, m_target, "the file was written already");
  try {
    m_stream->flush();
  } catch (...) {
    discard();
    throw;
  }
  const QByteArray target = native(m_target);
  const QByteArray temporary = native(m_temporary);
  struct stat old {};
  if (::stat(target.constData(), &old) == 0 && S_ISREG(old.st_mode)) {
    ::fchmod(m_fd, old.st_mode & 07777);
    // Only the super-user may give a file away; others keep their own.
    [[maybe_unused]] const int owned = ::fchown(m_fd, old.st_uid, old.st_gid);
  }
  if (::fsync(m_fd) != 0) {
    const int error = errno;
    discard();
    fail(m_target, error);
  }
  static_cast<SafeFileStream*>(m_stream.get())->detach();
  const int fd = std::exchange(m_fd, -1);
  if (::close(fd) != 0 || ::rename(temporary.constData(), target.constData()) != 0) {
    const int error = errno;
    ::unlink(temporary.constData());
    fail(m_target, error);
  }
  // The rename itself reaches the disk with the folder.
  const QByteArray folder = QFile::encodeName(QFileInfo(m_target.qstring()).absolutePath());
  const int dir = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (dir >= 0) {
    ::fsync(dir);
    ::close(dir);
  }
}

void odWriteFileSafely(const OdString& target, const std::function<void(OdStreamBuf& stream)>& write)
{
  OdSafeFile file(target);
  write(*file.stream());
  file.commit();
}
