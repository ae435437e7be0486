// ezdxf runs as a separate Python process; fixtures are made once.
#include "tests/sdk/dxf/DxfTestSupport.h"

#include <QDir>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace {
QTemporaryDir& scratch()
{
  static QTemporaryDir dir;
  return dir;
}
} // namespace

bool DxfTest::haveEzdxf()
{
  static const bool have = [] {
    QProcess p;
    p.start(VERDANI_PYTHON, {"-c", "import ezdxf"});
    return p.waitForFinished(30000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
  }();
  return have;
}

QByteArray DxfTest::runHelper(const QStringList& args)
{
  QProcess p;
  p.start(VERDANI_PYTHON, QStringList{VERDANI_DXF_HELPER} + args);
  const bool done = p.waitForFinished(120000);
  const QByteArray err = p.readAllStandardError();
  EXPECT_TRUE(done && p.exitCode() == 0) << "ezdxf helper failed: " << args.join(' ').toStdString() << "\n"
                                         << err.toStdString();
  return p.readAllStandardOutput();
}

QJsonObject DxfTest::compare(const QString& original, const QString& ours)
{
  return QJsonDocument::fromJson(runHelper({"compare", original, ours})).object();
}

QString DxfTest::fixtureFolder()
{
  static const QString folder = [] {
    const QString f = scratch().filePath("fixtures");
    QDir().mkpath(f);
    runHelper({"fixtures", f});
    return f;
  }();
  return folder;
}

QString DxfTest::externalFile(const QString& relative)
{
  return QDir(VERDANI_EXTERNAL_DATA).filePath(relative);
}

QString DxfTest::scratchFolder()
{
  return scratch().path();
}
