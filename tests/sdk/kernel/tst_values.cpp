// Variants, time stamps, streams and the system services.
#include "sdk/kernel/OdRxSystemServices.h"
#include "sdk/kernel/OdTimeStamp.h"
#include "sdk/kernel/OdVariant.h"

#include "tests/support/Unprivileged.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

TEST(OdVariant, typedAccess_wrongTypeGivesEmptyValue)
{
  OdVariant v(std::int32_t(-5));
  EXPECT_EQ(v.type(), OdVariant::kInt32);
  EXPECT_EQ(v.getInt32(), -5);
  EXPECT_EQ(v.getString(), OdString());
  EXPECT_EQ(OdVariant("text").type(), OdVariant::kString);
  EXPECT_EQ(OdVariant(std::int64_t(1) << 40).getInt64(), std::int64_t(1) << 40);
  EXPECT_EQ(OdVariant(true).type(), OdVariant::kBool);
  EXPECT_EQ(OdVariant(std::uint8_t(200)).type(), OdVariant::kInt8);
  OdArray<OdVariant> items{OdVariant("a"), OdVariant(2.5)};
  OdVariant array(items);
  EXPECT_EQ(array.type(), OdVariant::kArray);
  EXPECT_EQ(array.getArray().size(), 2u);
  EXPECT_EQ(array, OdVariant(items));
  EXPECT_TRUE(OdVariant().isVoid());
}

TEST(OdTimeStamp, ctime_isUniversalCText)
{
  OdTimeStamp t;
  t.setPackedValue(1795235880); // 2026-11-21 04:38:00 UTC
  OdTimeStamp utc;
  t.getUniversalTime(utc);
  EXPECT_EQ(utc.ctime(), "Sat Nov 21 04:38:00 2026");
  t.setPackedValue(0);
  EXPECT_EQ(t.ctime(), "Thu Jan  1 00:00:00 1970"); // day padded with a blank
  EXPECT_EQ(t.packedValue(), 0);
}

TEST(OdTimeStamp, localRoundTrip_returnsSameMoment)
{
  OdTimeStamp now(OdTimeStamp::kInitUniversalTime);
  OdTimeStamp local, back;
  now.getLocalTime(local);
  local.getUniversalTime(back);
  EXPECT_EQ(back.packedValue(), now.packedValue());
}

TEST(SystemServices, createGuid_isUniqueWindowsForm)
{
  const OdString a = odrxSystemServices()->createGuid();
  const OdString b = odrxSystemServices()->createGuid();
  EXPECT_NE(a, b);
  static const QRegularExpression form(QStringLiteral("^\\{[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}\\}$"));
  EXPECT_TRUE(form.match(a.qstring()).hasMatch()) << a.toUtf8();
}

TEST(SystemServices, createFile_followsDisposition)
{
  QTemporaryDir dir;
  const OdString path(dir.filePath(QStringLiteral("f.bin")));
  auto* services = odrxSystemServices();

  EXPECT_THROW(services->createFile(path, Oda::kFileRead, Oda::kShareDenyNo, Oda::kOpenExisting),
               OdError_FileException);
  {
    OdStreamBufPtr out = services->createFile(path, Oda::kFileWrite, Oda::kShareDenyNo, Oda::kCreateNew);
    const char text[] = "hello";
    out->putBytes(text, 5);
    out->putByte('!');
  }
  EXPECT_THROW(services->createFile(path, Oda::kFileWrite, Oda::kShareDenyNo, Oda::kCreateNew),
               OdError_FileException);
  {
    OdStreamBufPtr in = services->createFile(path);
    EXPECT_EQ(in->length(), 6u);
    char buf[6];
    in->getBytes(buf, 6);
    EXPECT_EQ(std::string(buf, 6), "hello!");
    EXPECT_TRUE(in->isEof());
    EXPECT_THROW(in->getByte(), OdError);
  }
  {
    OdStreamBufPtr keep = services->createFile(path, Oda::kFileWrite, Oda::kShareDenyNo, Oda::kOpenAlways);
    keep->seek(0, OdStreamBuf::kSeekFromEnd);
    keep->putByte('?');
  }
  EXPECT_EQ(services->createFile(path)->length(), 7u); // kOpenAlways kept the bytes
  services->createFile(path, Oda::kFileWrite, Oda::kShareDenyNo, Oda::kCreateAlways);
  EXPECT_EQ(services->createFile(path)->length(), 0u);
  EXPECT_TRUE(services->accessFile(path, Oda::kFileRead));
  EXPECT_FALSE(services->accessFile(OdString(dir.filePath(QStringLiteral("none"))), Oda::kFileRead));
}

// What is not a regular file is refused at once: a FIFO would block the
// opening for ever, a device would be read without end.
TEST(SystemServices, createFile_opensOnlyRegularFiles)
{
  ::alarm(30);
  QTemporaryDir dir;
  const QString fifo = dir.filePath(QStringLiteral("pipe.vtc"));
  ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0644), 0);
  for (const QString& path : {fifo, QStringLiteral("/dev/zero"), dir.path()}) {
    try {
      odrxSystemServices()->createFile(OdString(path));
      ADD_FAILURE() << path.toStdString() << " was opened";
    } catch (const OdError_FileException& e) {
      EXPECT_EQ(e.code(), eFileAccessErr) << path.toStdString();
      EXPECT_EQ(e.reason(), OdString("it is not a regular file")) << path.toStdString();
    }
  }
  ::alarm(0);
}

TEST(SystemServices, createFile_givesTheSystemsReason)
{
  if (tst::reranUnprivileged())
    return;
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("locked.vtc"));
  QFile(path).open(QIODevice::WriteOnly);
  ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0), 0);
  try {
    odrxSystemServices()->createFile(OdString(path));
    ADD_FAILURE() << "a file without permissions was opened";
  } catch (const OdError_FileException& e) {
    EXPECT_EQ(e.code(), eFileAccessErr);
    EXPECT_EQ(e.reason(), OdString("Permission denied"));
  }
  try {
    odrxSystemServices()->createFile(OdString(dir.filePath(QStringLiteral("none/x.vtc"))));
    ADD_FAILURE() << "a missing file was opened";
  } catch (const OdError_FileException& e) {
    EXPECT_EQ(e.code(), eFileNotFound);
  }
}

TEST(OdMemoryStream, readsWhatWasWritten)
{
  OdStreamBufPtr s = OdMemoryStream::createNew();
  s->putBytes("abc", 3);
  EXPECT_EQ(s->tell(), 3u);
  s->rewind();
  EXPECT_EQ(s->getByte(), 'a');
  s->seek(-1, OdStreamBuf::kSeekFromEnd);
  EXPECT_EQ(s->getByte(), 'c');
  EXPECT_THROW(s->seek(10, OdStreamBuf::kSeekFromStart), OdError);
}
