#pragma once
// Comparing output with a file under tests/golden. With QOR_UPDATE_GOLDEN=1
// the file is rewritten instead; a mismatch reports a unified diff, so a
// changed caption shows as the lines it changed.
#include <QString>
#include <gtest/gtest.h>

namespace qor::test {

// Unified-style diff of two texts by line, with `context` lines around each
// change and at most `maxLines` lines of output.
QString unifiedDiff(const QString& expected, const QString& actual, const QString& name, int context = 3, int maxLines = 120);

// Passes when the file at path holds text (or was rewritten to hold it).
::testing::AssertionResult matchesGolden(const QString& path, const QString& text, const char* updateTarget);

} // namespace qor::test
