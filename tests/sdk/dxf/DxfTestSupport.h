// Shared by the DXF tests: ezdxf through Python, and scratch folders.
#pragma once

#include "sdk/dxf/OdDxf.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace DxfTest {
// True when /usr/bin/python3 can import ezdxf (checked once).
bool haveEzdxf();
// Runs the helper script; fails the test when it fails. Gives its output.
QByteArray runHelper(const QStringList& args);
// ezdxf's view of `ours` against `original`: {"audit_errors", "diffs"}.
QJsonObject compare(const QString& original, const QString& ours);
// The ezdxf fixture drawings, written once per test run.
QString fixtureFolder();
QString externalFile(const QString& relative);
// A folder of this test process that is removed at exit.
QString scratchFolder();
} // namespace DxfTest
