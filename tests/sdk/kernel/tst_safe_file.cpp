// Replacing files whole or not at all: what a failed write leaves, what a
// save cut short leaves, and what a good one keeps of the old file.
#include "sdk/kernel/OdSafeFile.h"

#include "tests/support/Unprivileged.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <functional>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace {

QByteArray readAll(const QString& path)
{
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<unreadable>");
}

void writeText(const OdString& path, const std::string& text)
{
  odWriteFileSafely(path, [&](OdStreamBuf& s) { s.putBytes(text.data(), std::uint32_t(text.size())); });
}

QStringList entries(const QString& folder)
{
  return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

mode_t modeOf(const QString& path)
{
  struct stat info {};
  ::stat(QFile::encodeName(path).constData(), &info);
  return info.st_mode & 07777;
}

// Writes past this many bytes fail, for the super-user too.
class FileSizeLimit
{
public:
  explicit FileSizeLimit(rlim_t bytes)
  {
    getrlimit(RLIMIT_FSIZE, &m_old);
    m_signal = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit tiny = m_old;
    tiny.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &tiny);
  }
  ~FileSizeLimit()
  {
    setrlimit(RLIMIT_FSIZE, &m_old);
    std::signal(SIGXFSZ, m_signal);
  }

private:
  struct rlimit m_old {};
  void (*m_signal)(int) = nullptr;
};

} // namespace

TEST(OdSafeFile, newFile_hasItsContentTheUsersModeAndNoCompanion)
{
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("drawing.dxf"));
  writeText(OdString(path), "0\nEOF\n");
  EXPECT_EQ(readAll(path), QByteArray("0\nEOF\n"));
  const mode_t mask = ::umask(0);
  ::umask(mask);
  EXPECT_EQ(modeOf(path), 0666 & ~mask);
  EXPECT_EQ(entries(dir.path()), QStringList{QStringLiteral("drawing.dxf")});
}

TEST(OdSafeFile, replacedFile_keepsItsPermissions)
{
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("VdTcCatalog.vtc"));
  writeText(OdString(path), "old");
  ::chmod(QFile::encodeName(path).constData(), 0640);
  std::string big(300000, 'x'); // more than the stream's buffer
  writeText(OdString(path), big);
  EXPECT_EQ(readAll(path).size(), qsizetype(big.size()));
  EXPECT_EQ(modeOf(path), mode_t(0640));
}

struct FailureRow
{
  const char* name;
  std::function<void(const QString& folder, OdString& target)> prepare;
  std::function<void(OdStreamBuf&)> write;
};

void PrintTo(const FailureRow& row, std::ostream* os)
{
  *os << row.name;
}

class OdSafeFileFailure : public ::testing::TestWithParam<FailureRow>
{
};

TEST_P(OdSafeFileFailure, leavesTheOldFileByteForByteAndNoTemporary)
{
  QTemporaryDir dir;
  OdString target(dir.filePath(QStringLiteral("VdTcCatalog.vtc")));
  writeText(target, "<Catalog>the user's work</Catalog>");
  GetParam().prepare(dir.path(), target);
  const QByteArray before = readAll(target.qstring());
  const QStringList listed = entries(dir.path());
  EXPECT_ANY_THROW(odWriteFileSafely(target, GetParam().write));
  EXPECT_EQ(readAll(target.qstring()), before);
  EXPECT_EQ(entries(dir.path()), listed);
}

INSTANTIATE_TEST_SUITE_P(
    rows, OdSafeFileFailure,
    ::testing::Values(
        FailureRow{"writerThrows", [](const QString&, OdString&) {},
                   [](OdStreamBuf& s) {
                     s.putBytes("half", 4);
                     throw OdError(eInvalidInput, "the writer gave up");
                   }},
        FailureRow{"diskFullInTheMiddle", [](const QString&, OdString&) {},
                   [](OdStreamBuf& s) {
                     FileSizeLimit limit(100000);
                     const std::string text(200000, 'y');
                     s.putBytes(text.data(), std::uint32_t(text.size()));
                     s.flush();
                   }},
        FailureRow{"diskFullAtTheEnd", [](const QString&, OdString&) {},
                   [](OdStreamBuf& s) {
                     // A write cut short after its first bytes.
                     FileSizeLimit limit(8);
                     s.putBytes("0123456789abcdef", 16);
                     s.flush();
                   }},
        FailureRow{"targetIsAFolder",
                   [](const QString& folder, OdString& target) {
                     QDir(folder).mkdir(QStringLiteral("folder.vtc"));
                     target = OdString(folder + QStringLiteral("/folder.vtc"));
                   },
                   [](OdStreamBuf& s) { s.putBytes("x", 1); }}),
    [](const ::testing::TestParamInfo<FailureRow>& info) { return std::string(info.param.name); });

TEST(OdSafeFile, readOnlyFolder_throwsAndLeavesTheFile)
{
  if (tst::reranUnprivileged())
    return;
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("VdTcCatalog.vtc"));
  writeText(OdString(path), "kept");
  ::chmod(QFile::encodeName(dir.path()).constData(), 0555);
  try {
    writeText(OdString(path), "lost");
    ADD_FAILURE() << "no error";
  } catch (const OdError_FileException& e) {
    EXPECT_NE(e.description().find("Permission denied"), -1) << e.description();
  }
  ::chmod(QFile::encodeName(dir.path()).constData(), 0755);
  EXPECT_EQ(readAll(path), QByteArray("kept"));
  EXPECT_EQ(entries(dir.path()), QStringList{QStringLiteral("VdTcCatalog.vtc")});
}

TEST(OdSafeFile, staleTemporaries_goAtTheNextSave_liveOnesStay)
{
  QTemporaryDir dir;
  const OdString target(dir.filePath(QStringLiteral("VdTcCatalog.vtc")));
  const QString prefix = dir.filePath(OdSafeFile::temporaryPrefix("VdTcCatalog.vtc").qstring());
  for (const char* suffix : {"killed1", "killed2"}) {
    QFile f(prefix + QLatin1String(suffix));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("<Catalog><Pal");
  }
  // A save running at this moment (in another process) holds its lock.
  const QByteArray live = QFile::encodeName(prefix + QStringLiteral("running"));
  const int fd = ::open(live.constData(), O_WRONLY | O_CREAT, 0644);
  ASSERT_GE(fd, 0);
  ASSERT_EQ(::flock(fd, LOCK_EX), 0);
  // Files of other targets and of other programs are not ours to remove.
  QFile other(dir.filePath(QStringLiteral(".other.tmp-1")));
  ASSERT_TRUE(other.open(QIODevice::WriteOnly));
  other.close();

  writeText(target, "<Catalog/>");
  ::close(fd);
  const QStringList expected{OdSafeFile::temporaryPrefix("VdTcCatalog.vtc").qstring() + QStringLiteral("running"),
                             QStringLiteral(".other.tmp-1"), QStringLiteral("VdTcCatalog.vtc")};
  EXPECT_EQ(entries(dir.path()), expected);
}

TEST(OdSafeFile, longFileName_fitsItsTemporary)
{
  QTemporaryDir dir;
  const QString name = QString(250, QLatin1Char('n'));
  writeText(OdString(dir.filePath(name)), "content");
  EXPECT_EQ(readAll(dir.filePath(name)), QByteArray("content"));
  EXPECT_EQ(entries(dir.path()), QStringList{name});
}
