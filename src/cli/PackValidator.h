#pragma once
// Checks a data pack against the invariants the app relies on without
// guarding them at run time (a line with 6 fields aborts, a NULL distance
// shows as a blank, a missing anchor opens the wrong place, ...). Never opens the
// pack through the model, so a broken pack cannot take the checker down.
#include <QList>
#include <QString>

namespace qor::cli {

struct Violation {
    QString file;  // relative to the pack
    int line = 0;  // line or row; 0 when the problem is the file as a whole
    QString reason;
    QString toString() const;
};

QList<Violation> validatePack(const QString& dir);

} // namespace qor::cli
