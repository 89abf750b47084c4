#pragma once
// A small pack that passes every check, for tests that break one thing at a time.
#include "FixturePack.h"
#include "PackValidator.h"

#include <QStringList>

namespace qor::test {

class MiniPack : public FixturePack {
public:
    MiniPack();
    // Rewrites pack.json, so only the change under test is reported.
    void seal();
    void removeFile(const QString& name);
    QList<cli::Violation> validate() const { return cli::validatePack(dir()); }
};

// "file:line: reason" of every violation, for assertions and failure output.
QStringList describe(const QList<cli::Violation>& violations);
// True when a violation of `file` (at `line`, unless -1) has a reason containing `text`.
bool reports(const QList<cli::Violation>& violations, const QString& file, const QString& text, int line = -1);

} // namespace qor::test
