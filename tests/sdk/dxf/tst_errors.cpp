// Files that are no DXF, or not whole: clear errors, never a crash; and a
// write that fails leaves what was there.
#include "tests/sdk/dxf/DxfTestSupport.h"

#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbText.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

QString writeBytes(const char* name, const QByteArray& bytes)
{
  const QString path = QDir(DxfTest::scratchFolder()).filePath(name);
  QFile f(path);
  f.open(QIODevice::WriteOnly);
  f.write(bytes);
  return path;
}

int readError(const QString& path, std::string* message = nullptr)
{
  try {
    odDxfReadFile(OdString(path));
  } catch (const OdError& e) {
    if (message)
      *message = e.description().toUtf8();
    return e.code();
  }
  return eOk;
}

const char kSmall[] = "  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n  8\n0\n 10\n1.0\n 20\n2.0\n 11\n3.0\n 21\n4.0\n  0\nENDSEC\n  0\nEOF\n";

} // namespace

TEST(DxfErrors, missingFile_isNotFound)
{
  std::string msg;
  EXPECT_EQ(readError("/nonexistent/folder/drawing.dxf", &msg), eFileNotFound);
  EXPECT_NE(msg.find("drawing.dxf"), std::string::npos);
}

// A FIFO would block the read for ever; a folder or a device is no drawing.
TEST(DxfErrors, whatIsNotARegularFile_isRefusedAtOnce)
{
  const QString fifo = QDir(DxfTest::scratchFolder()).filePath("pipe.dxf");
  QFile::remove(fifo);
  ASSERT_EQ(::mkfifo(fifo.toLocal8Bit().constData(), 0600), 0);
  const QString folder = QDir(DxfTest::scratchFolder()).filePath("folder.dxf");
  QDir().mkpath(folder);
  for (const QString& path : {fifo, folder, QString("/dev/zero")}) {
    try {
      odDxfReadFile(OdString(path));
      ADD_FAILURE() << "read " << path.toStdString();
    } catch (const OdError& e) {
      EXPECT_EQ(e.code(), eFileAccessErr) << path.toStdString();
      EXPECT_NE(e.description().toUtf8().find("not a regular file"), std::string::npos);
    }
  }
  QFile::remove(fifo);
}

TEST(DxfErrors, dwgDrawings_areRefusedByName)
{
  std::string msg;
  EXPECT_EQ(readError(writeBytes("real.dwg", QByteArray("AC1032\0\0\0\0", 10)), &msg), eUnsupportedFormat);
  EXPECT_NE(msg.find("DWG drawings are not supported; save it as DXF"), std::string::npos) << msg;
  EXPECT_EQ(readError(writeBytes("disguised.dxf", QByteArray("AC1015\x00\x01\x02garbage", 15))), eUnsupportedFormat);
  const QString external = DxfTest::externalFile("DomCR__ACadSharp/samples/sample_AC1032.dwg");
  if (QFile::exists(external)) {
    EXPECT_EQ(readError(external), eUnsupportedFormat);
  }
}

TEST(DxfErrors, brokenFiles_giveInternalErrors)
{
  const QByteArray whole(kSmall);
  const struct { const char* name; QByteArray bytes; } cases[] = {
      {"empty.dxf", QByteArray()},
      {"text.dxf", QByteArray("Dear reader,\nthis is a letter.\n")},
      {"cut_in_pair.dxf", whole.left(whole.indexOf("LINE") + 2)},
      {"cut_after_code.dxf", whole.left(whole.indexOf(" 10\n") + 4)},
      {"no_sections.dxf", QByteArray("  0\nEOF\n")},
      {"binary_cut.dxf", QByteArray("AutoCAD Binary DXF\r\n\x1a\0\0\0SECTION\0\x02\0ENTI", 39)},
      {"nul_bytes.dxf", QByteArray("\x00\x01\x02\x03\x04\x05", 6)},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    std::string msg;
    EXPECT_EQ(readError(writeBytes(c.name, c.bytes), &msg), eFileInternalErr);
    EXPECT_NE(msg.find(c.name), std::string::npos) << "the message names the file: " << msg;
  }
}

TEST(DxfErrors, minimalFiles_readIntoCompleteDrawings)
{
  OdDbDatabasePtr db = odDxfReadFile(OdString(writeBytes("small.dxf", QByteArray(kSmall))));
  EXPECT_TRUE(db->getModelSpaceId().isValid());
  EXPECT_TRUE(db->getLayerZeroId().isValid());
  EXPECT_TRUE(db->findLayoutNamed("Model").isValid());
  const std::string text = odDxfWriteBuffer(db);
  EXPECT_NE(text.find("AC1032"), std::string::npos);
  // Trash after EOF is not read.
  EXPECT_NO_THROW(odDxfReadBuffer(std::string(kSmall) + "garbage\nmore garbage\n"));
}

TEST(DxfReader, byteOrderMarkMacLineEndsAndLatin1InR2018_areRead)
{
  const std::string body = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1032\n  0\nENDSEC\n"
                           "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nLAYER\n  0\nLAYER\n  2\nCaf\xE9\n"
                           "  0\nENDTAB\n  0\nENDSEC\n  0\nEOF\n";
  std::string mac = body;
  std::replace(mac.begin(), mac.end(), '\n', '\r');
  for (const std::string& bytes : {"\xEF\xBB\xBF" + body, mac}) {
    OdDbDatabasePtr db = odDxfReadBuffer(bytes, "odd");
    EXPECT_TRUE(OdDbSymbolTable::cast(db->getLayerTableId().openObject())->has(OdString("Café")));
  }
}

TEST(DxfErrors, failedWrite_leavesTheTargetAsItWas)
{
  const QString folder = QDir(DxfTest::scratchFolder()).filePath("occupied.dxf");
  QDir().mkpath(folder);
  OdDbDatabasePtr db = odDbCreateDatabase();
  try {
    odDxfWriteFile(db, OdString(folder));
    FAIL() << "writing over a folder succeeded";
  } catch (const OdError& e) {
    EXPECT_EQ(e.code(), eFileAccessErr);
  }
  EXPECT_TRUE(QFileInfo(folder).isDir());
  EXPECT_THROW(odDxfWriteFile(db, OdString("/nonexistent/folder/out.dxf")), OdError);
  const QString dwg = QDir(DxfTest::scratchFolder()).filePath("drawing.DWG");
  try {
    odDxfWriteFile(db, OdString(dwg));
    FAIL() << "DXF text was written under a DWG name";
  } catch (const OdError& e) {
    EXPECT_EQ(e.code(), eUnsupportedFormat);
  }
  EXPECT_FALSE(QFile::exists(dwg));
  EXPECT_EQ(QDir(DxfTest::scratchFolder()).entryList({"*.tmp*", ".*occupied*"}, QDir::Files | QDir::Hidden).size(), 0);
}

// Cut and damaged copies of a real drawing: each either reads (and then
// writes) or fails with OdError; nothing crashes.
TEST(DxfErrors, damagedDrawings_neverCrash)
{
  const QString path = DxfTest::externalFile("DomCR__ACadSharp/samples/sample_AC1015_ascii.dxf");
  QFile f(path);
  if (!f.open(QIODevice::ReadOnly))
    GTEST_SKIP();
  const std::string whole = f.readAll().toStdString();
  std::uint32_t seed = 12345;
  auto next = [&] { return seed = seed * 1664525u + 1013904223u; };
  int failures = 0, reads = 0;
  for (int round = 0; round < 60; ++round) {
    std::string bytes = whole;
    if (round % 2 == 0) {
      bytes.resize(next() % whole.size());
    } else {
      for (int k = 0; k < 20; ++k)
        bytes[next() % bytes.size()] = char("0\n \t-9A\r"[next() % 8]);
    }
    try {
      OdDbDatabasePtr db = odDxfReadBuffer(bytes, "damaged");
      const std::string out = odDxfWriteBuffer(db);
      EXPECT_NO_THROW(odDxfReadBuffer(out, "rewritten"));
      ++reads;
    } catch (const OdError&) {
      ++failures;
    }
  }
  EXPECT_GT(failures, 0);
}

// The reader's odd rules on a small committed drawing: CRLF, comments,
// values by code in any order, old code page without a header, no handles
// and no EOF.
TEST(DxfReader, oddButValidFile_readsAsMeant)
{
  OdDbDatabasePtr db = odDxfReadFile(OdString(QDir(VERDANI_DXF_DATA).filePath("odd_rules.dxf")));
  OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(db->getLayerTableId().openObject());
  OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::cast(layers->getAt(OdString("Größe"), OdDb::kForRead));
  ASSERT_TRUE(layer.get());
  EXPECT_TRUE(layer->isOff());
  EXPECT_TRUE(layer->isLocked());
  EXPECT_EQ(layer->color().colorIndex(), 3);
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject());
  ASSERT_EQ(ms->entityIds().size(), 2u);
  OdDbCirclePtr circle = OdDbCircle::cast(ms->entityIds()[0].openObject());
  ASSERT_TRUE(circle.get());
  EXPECT_EQ(circle->center(), OdGePoint3d(1, 2, 0));
  EXPECT_DOUBLE_EQ(circle->radius(), 2.5);
  EXPECT_EQ(circle->layerId(), layer->objectId());
  EXPECT_FALSE(circle->getDbHandle().isNull()) << "objects without handles get fresh ones";
  OdDbTextPtr text = OdDbText::cast(ms->entityIds()[1].openObject());
  EXPECT_EQ(text->textString(), OdString("café"));
  EXPECT_NEAR(text->rotation(), M_PI / 2, 1e-12);
  EXPECT_NE(circle->getDbHandle(), text->getDbHandle());
}
