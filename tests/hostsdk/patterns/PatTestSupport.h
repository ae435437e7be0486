// Shared helpers of the pattern library's tests: where the real files are.
#pragma once

#include <QString>

namespace PatTest {

// A file of shared/data/external; empty when that folder is not there.
QString externalFile(const QString& relative);
QString externalFolder();
// The repository's own pattern file.
QString defaultPatternFile();

} // namespace PatTest
