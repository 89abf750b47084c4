#pragma once
// The user's own folders. Reference data never lives here; only the viewed
// history, settings and rendered-image cache do.
#include <QString>

namespace qor {

class UserPaths {
public:
    // Root of the user's files; "Documents" and "Library" live below it, so the
    // "%@/%@/%@" form (home, folder name, file) names the same folders.
    static QString homeDir();
    static QString documentsDir();
    static QString libraryDir();
    static QString cachesDir();
    // Overrides the root (qor-cli --data-dir, tests). Caches move below it too.
    static void setDataDir(const QString& dir);
    // Creates a folder (and its parents) readable by the owner only.
    static bool ensureDir(const QString& dir);
};

} // namespace qor
